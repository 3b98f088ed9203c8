// Dialogs: windows of their own, and pages that stand in others.

#include <QGuiApplication>
#include <QResizeEvent>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "win32/qt/Control.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

Qt::WindowFlags FlagsOf(DWORD style, bool owned) {
    Qt::WindowFlags flags = owned ? Qt::Dialog : Qt::Window;
    const auto add = [&](DWORD bits, Qt::WindowType flag) {
        if ((style & bits) == bits) flags |= flag;
    };
    flags |= Qt::CustomizeWindowHint;
    if ((style & WS_CAPTION) != WS_CAPTION) return flags | Qt::FramelessWindowHint;
    flags |= Qt::WindowTitleHint;
    add(WS_SYSMENU, Qt::WindowSystemMenuHint);
    add(WS_SYSMENU, Qt::WindowCloseButtonHint);
    add(WS_MINIMIZEBOX, Qt::WindowMinimizeButtonHint);
    add(WS_MAXIMIZEBOX, Qt::WindowMaximizeButtonHint);
    return flags;
}

/// A dialog that stands in another one.
class Page : public Control {
  public:
    Page(Screen& screen, HWND window, QWidget* parent)
        : Control(screen, window), widget_(std::make_unique<QWidget>(parent)) {
        Watch(*widget_);
    }

    QWidget& Widget() const override { return *widget_; }

  protected:
    Page(Screen& screen, HWND window, QWidget* parent, Qt::WindowFlags flags)
        : Control(screen, window), widget_(std::make_unique<QWidget>(parent, flags)) {
        Watch(*widget_);
    }

    void Show() override {}

  private:
    std::unique_ptr<QWidget> widget_;
};

/// A window with a title. Its place is that of its inside; the frame around it is the desktop's.
class TopDialog : public Page {
  public:
    TopDialog(Screen& screen, HWND window, QWidget* owner)
        : Page(screen, window, owner, FlagsOf(StyleOf(window), owner != nullptr)) {
        Widget().setAttribute(Qt::WA_DeleteOnClose, false);
    }

  protected:
    void Show() override;
    void Place(const QRect& place) override;
    void SetVisible(bool visible) override;
    bool Other(QObject& watched, QEvent& event) override;

  private:
    bool Resizable() const { return Has(Window(), WS_THICKFRAME); }
    void LimitSize();
    void PutInTheMiddle();
    void AddResize();

    QPoint corner_;  // where the window has been placed, as the window says itself
    bool placed_ = false;
    bool placing_ = false;
};

void TopDialog::Show() {
    const QString title = ToUnicode(TextOf(Window()));
    if (Widget().windowTitle() != title) Widget().setWindowTitle(title);
    // The dialog may have refused the size that the user gave it.
    const QRect place = PlaceOf(Window());
    if (Widget().size() != place.size()) Place(place);
}

void TopDialog::LimitSize() {
    MINMAXINFO sizes{};
    sizes.ptMaxTrackSize = {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    SendMessageA(Window(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&sizes));
    const QSize least(std::max(sizes.ptMinTrackSize.x, 1), std::max(sizes.ptMinTrackSize.y, 1));
    const QSize most(std::max(sizes.ptMaxTrackSize.x, 1), std::max(sizes.ptMaxTrackSize.y, 1));
    Widget().setMinimumSize(least);
    Widget().setMaximumSize(most.expandedTo(least).boundedTo({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}));
}

void TopDialog::Place(const QRect& place) {
    placing_ = true;
    if (Resizable()) {
        LimitSize();
        if (Widget().size() != place.size()) Widget().resize(place.size());
    } else {
        Widget().setFixedSize(place.size());
    }
    if (placed_ && place.topLeft() != corner_) Widget().move(place.topLeft());
    corner_ = place.topLeft();
    placing_ = false;
}

// Over its owner, or else on the screen; but a place that a dialog insists on is its own.
void TopDialog::PutInTheMiddle() {
    QWidget& widget = Widget();
    if (Has(Window(), DS_ABSALIGN)) {
        widget.move(corner_);
        return;
    }
    const QWidget* owner = widget.parentWidget();
    const QRect screen = widget.screen()->availableGeometry();
    const bool over = owner != nullptr && owner->isVisible();
    QRect place(QPoint(0, 0), widget.size());
    place.moveCenter(over ? owner->frameGeometry().center() : screen.center());
    place.moveLeft(std::max(screen.left(), std::min(place.left(), screen.right() - place.width())));
    place.moveTop(std::max(screen.top(), std::min(place.top(), screen.bottom() - place.height())));
    widget.move(place.topLeft());
}

void TopDialog::SetVisible(bool visible) {
    QWidget& widget = Widget();
    if (widget.isVisible() == visible) return;
    if (visible) {
        // The owner of a modal dialog is disabled before that is shown.
        const HWND owner = GetWindow(Window(), GW_OWNER);
        const bool modal = owner != nullptr && IsWindowEnabled(TopOf(owner)) == FALSE;
        widget.setWindowModality(modal ? Qt::WindowModal : Qt::NonModal);
        if (!placed_) PutInTheMiddle();
        placed_ = true;
    }
    widget.setVisible(visible);
}

void TopDialog::AddResize() {
    screen_.Add([this, window = Window(), size = Widget().size()] {
        if (IsWindow(window) == FALSE || PlaceOf(window).size() == size) return;
        MoveWindow(window, corner_.x(), corner_.y(), size.width(), size.height(), TRUE);
    });
}

bool TopDialog::Other(QObject&, QEvent& event) {
    switch (event.type()) {
        case QEvent::Close:
            event.ignore();
            screen_.Add([window = Window()] {
                if (CanBeUsed(window)) PostMessageA(window, WM_CLOSE, 0, 0);
            });
            return true;
        case QEvent::Resize:
            if (!placing_ && Resizable()) AddResize();
            return false;
        case QEvent::WindowActivate:
            screen_.Activated(Window());
            return false;
        default:
            return false;
    }
}

}  // namespace

std::unique_ptr<Control> NewDialog(Screen& screen, HWND window, QWidget* parent) {
    if (Has(window, WS_CHILD)) return std::make_unique<Page>(screen, window, parent);
    return std::make_unique<TopDialog>(screen, window, parent);
}

}  // namespace win32::qt
