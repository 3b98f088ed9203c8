// Combo boxes.

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <algorithm>
#include <optional>

#include "win32/qt/Control.h"
#include "win32/qt/LineEdit.h"
#include "win32/qt/ListRows.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

/// The list drops down below the combo box, as on Windows, in styles too that would lay it above.
class DropDownStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_ComboBox_Popup) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

class Combo : public Control {
  public:
    Combo(Screen& screen, HWND window, QWidget* parent);
    ~Combo() override;
    Combo(const Combo&) = delete;
    Combo& operator=(const Combo&) = delete;

    QWidget& Widget() const override { return *widget_; }
    bool TakeKey(const Key& key) override;
    void TakeFocus(bool byKeyboard) override;

  protected:
    void Show() override;
    void Place(const QRect& place) override;
    bool Mouse(QObject& watched, const QMouseEvent& event) override;
    bool Other(QObject& watched, QEvent& event) override;

  private:
    bool IsDropped() const { return SendMessageA(Window(), CB_GETDROPPEDSTATE, 0, 0) != FALSE; }
    QListView& List() const { return static_cast<QListView&>(*widget_->view()); }
    void ShowDropped();
    bool MouseInList(const QMouseEvent& event);

    DropDownStyle style_;
    COMBOBOXINFO info_{};
    std::unique_ptr<QComboBox> widget_;
    std::optional<ListRows> rows_;
    std::optional<LineEdit> line_;
    bool showing_ = false;
};

Combo::Combo(Screen& screen, HWND window, QWidget* parent)
    : Control(screen, window), widget_(std::make_unique<QComboBox>(parent)) {
    info_.cbSize = sizeof info_;
    GetComboBoxInfo(window, &info_);
    widget_->setStyle(&style_);
    widget_->setFocusPolicy(Qt::TabFocus);
    widget_->setInsertPolicy(QComboBox::NoInsert);
    widget_->setContextMenuPolicy(Qt::NoContextMenu);
    if (info_.hwndItem != window) {
        widget_->setEditable(true);
        widget_->setCompleter(nullptr);
        line_.emplace(screen, info_.hwndItem, *widget_->lineEdit());
        Watch(*widget_->lineEdit());
    }
    rows_.emplace(info_.hwndList, List());
    widget_->setModel(&rows_->Texts());
    Watch(*widget_);
    Watch(List());
    Watch(*List().viewport());
    Watch(*List().window());
}

Combo::~Combo() {
    // The widget looks at the rows to its end.
    line_.reset();
    widget_.reset();
}

// The window is as high as a combo box with the font of Windows; here it is as high as an edit of
// twelve dialog units.
void Combo::Place(const QRect& place) {
    RECT edit{0, 0, 0, 12};
    QRect seen = place;
    if (MapDialogRect(GetAncestor(Window(), GA_PARENT), &edit) != FALSE) {
        seen.setHeight(std::max(place.height(), edit.bottom + 1));
    }
    Widget().setGeometry(seen);
}

void Combo::Show() {
    {
        const QSignalBlocker quiet(*widget_);
        // Other rows put another text into the edit for a moment, which the user hasn't done.
        const QSignalBlocker quietEdit(widget_->lineEdit());
        rows_->Show();
        const auto row = static_cast<int>(SendMessageA(Window(), CB_GETCURSEL, 0, 0));
        if (widget_->currentIndex() != row) widget_->setCurrentIndex(row);
    }
    if (line_) line_->Show();
    ShowDropped();
}

void Combo::ShowDropped() {
    const bool dropped = IsDropped();
    const bool seen = List().window()->isVisible();
    if (dropped == seen) return;
    showing_ = true;
    if (dropped) {
        RECT open{};
        GetClientRect(info_.hwndList, &open);
        const auto height =
            std::max<LRESULT>(1, SendMessageA(info_.hwndList, LB_GETITEMHEIGHT, 0, 0));
        constexpr LRESULT kFewest = 8;
        constexpr LRESULT kMost = 30;
        widget_->setMaxVisibleItems(
            static_cast<int>(std::clamp<LRESULT>(open.bottom / height, kFewest, kMost)));
        widget_->showPopup();
    } else {
        widget_->hidePopup();
    }
    showing_ = false;
}

void Combo::TakeFocus(bool byKeyboard) {
    if (!line_) {
        Control::TakeFocus(byKeyboard);
        return;
    }
    {
        const QSignalBlocker quiet(*widget_->lineEdit());
        Control::TakeFocus(byKeyboard);
    }
    line_->Show();
}

bool Combo::TakeKey(const Key& key) {
    if (key.Alt() && (key.code == Qt::Key_Down || key.code == Qt::Key_Up)) {
        PutKeyDown(GetFocus(), VK_F4);
        return true;
    }
    // The row under the mouse looks selected, so it is what Enter takes.
    const int row = List().currentIndex().row();
    const bool enter = key.code == Qt::Key_Return || key.code == Qt::Key_Enter;
    if (enter && IsDropped() && row >= 0 &&
        row != SendMessageA(info_.hwndList, LB_GETCURSEL, 0, 0)) {
        rows_->Click(0, row);
        return true;
    }
    return line_ && line_->TakeKey(key);
}

bool Combo::MouseInList(const QMouseEvent& event) {
    if (event.type() == QEvent::MouseMove) return false;
    if (MouseMessage(event) != WM_LBUTTONUP) return true;
    const int row = rows_->RowAt(event.position().toPoint());
    if (row < 0) return true;
    screen_.Add([this, window = Window(), row] {
        if (CanBeUsed(window) && IsDropped()) rows_->Click(0, row);
    });
    return true;
}

bool Combo::Mouse(QObject& watched, const QMouseEvent& event) {
    if (&watched == List().viewport()) return MouseInList(event);
    if (&watched == &List()) return true;
    if (&watched == List().window()) return false;  // a press beside the list closes it
    if (line_ && &watched == widget_->lineEdit()) return line_->Mouse(event);
    const UINT message = MouseMessage(event);
    if (message == 0) return true;
    // The second press of two quick ones is one as the first.
    AddMouse(message == WM_LBUTTONDBLCLK ? WM_LBUTTONDOWN : message, event.position().toPoint());
    return true;
}

bool Combo::Other(QObject& watched, QEvent& event) {
    if (&watched == widget_.get() && event.type() == QEvent::Wheel) {
        event.ignore();
        return true;
    }
    if (line_ && event.type() == QEvent::ContextMenu) {
        line_->OpenMenu(static_cast<QContextMenuEvent&>(event).globalPos());
        return true;
    }
    // Qt has taken the list away: the user has clicked elsewhere.
    if (&watched == List().window() && event.type() == QEvent::Hide && !showing_) {
        screen_.Add([this, window = Window()] {
            if (IsWindow(window) != FALSE && IsDropped()) {
                PostMessageA(window, CB_SHOWDROPDOWN, FALSE, 0);
            }
        });
    }
    return false;
}

}  // namespace

std::unique_ptr<Control> NewCombo(Screen& screen, HWND window, QWidget* parent) {
    return std::make_unique<Combo>(screen, window, parent);
}

}  // namespace win32::qt
