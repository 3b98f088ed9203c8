// Push buttons, check boxes, radio buttons and group boxes.

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "win32/qt/Control.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

DWORD KindOf(HWND window) { return StyleOf(window) & BS_TYPEMASK; }

bool IsPush(HWND window) {
    constexpr LRESULT kPush = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    return (SendMessageA(window, WM_GETDLGCODE, 0, 0) & kPush) != 0;
}

/// What all buttons have in common.
class Button : public Control {
  public:
    Button(Screen& screen, HWND window, std::unique_ptr<QAbstractButton> widget)
        : Control(screen, window), widget_(std::move(widget)) {
        widget_->setFocusPolicy(Qt::TabFocus);
        Watch(*widget_);
        // Mouse and keyboard never get so far: this is a click by other means, as those of a screen
        // reader.
        QObject::connect(widget_.get(), &QAbstractButton::clicked, this, [this] {
            screen_.Add([window = Window()] {
                if (CanBeUsed(window)) PostMessageA(window, BM_CLICK, 0, 0);
            });
            screen_.Changed(Window());
        });
    }

    QWidget& Widget() const override { return *widget_; }

  protected:
    void Show() override {
        const QString text = ToUnicode(TextOf(Window()));
        if (widget_->text() != text) widget_->setText(text);
        widget_->setDown((SendMessageA(Window(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0);
    }

    LRESULT Check() const { return SendMessageA(Window(), BM_GETCHECK, 0, 0); }

    std::unique_ptr<QAbstractButton> widget_;
};

class PushButton : public Button {
  public:
    PushButton(Screen& screen, HWND window, QWidget* parent)
        : Button(screen, window, std::make_unique<QPushButton>(parent)) {
        Push().setAutoDefault(false);
    }

  protected:
    // Enter presses the default button, unless another one has the focus.
    void Show() override {
        Button::Show();
        const HWND focus = GetFocus();
        const LRESULT code = SendMessageA(Window(), WM_GETDLGCODE, 0, 0);
        const bool own = (code & DLGC_DEFPUSHBUTTON) != 0;
        const bool pressed = focus != nullptr && IsPush(focus) ? focus == Window() : own;
        if (Push().isDefault() != pressed) Push().setDefault(pressed);
    }

    void FocusChanged() override {
        const HWND dialog = TopOf(Window());
        const LRESULT id = SendMessageA(dialog, DM_GETDEFID, 0, 0);
        screen_.Changed(Window());
        screen_.Changed(GetDlgItem(dialog, LOWORD(static_cast<ULONG_PTR>(id))));
    }

  private:
    QPushButton& Push() const { return static_cast<QPushButton&>(*widget_); }
};

class CheckBox : public Button {
  public:
    CheckBox(Screen& screen, HWND window, QWidget* parent)
        : Button(screen, window, std::make_unique<QCheckBox>(parent)) {
        const DWORD kind = KindOf(window);
        Box().setTristate(kind == BS_3STATE || kind == BS_AUTO3STATE);
    }

  protected:
    void Show() override {
        Button::Show();
        const LRESULT check = Check();
        Box().setCheckState(check == BST_CHECKED         ? Qt::Checked
                            : check == BST_INDETERMINATE ? Qt::PartiallyChecked
                                                         : Qt::Unchecked);
    }

  private:
    QCheckBox& Box() const { return static_cast<QCheckBox&>(*widget_); }
};

class RadioButton : public Button {
  public:
    RadioButton(Screen& screen, HWND window, QWidget* parent)
        : Button(screen, window, std::make_unique<QRadioButton>(parent)) {
        // Which of a group is checked is the dialog's affair.
        widget_->setAutoExclusive(false);
    }

  protected:
    void Show() override {
        Button::Show();
        widget_->setChecked(Check() == BST_CHECKED);
    }
};

class GroupBox : public Control {
  public:
    GroupBox(Screen& screen, HWND window, QWidget* parent)
        : Control(screen, window), widget_(std::make_unique<QGroupBox>(parent)) {
        // The title stands in the frame, as dialogs are laid out for; the style's own would push
        // the frame down onto the first row.
        widget_->setStyleSheet(QStringLiteral(
            "QGroupBox { border: 1px solid palette(mid); border-radius: 3px; margin-top: 0.5em; }"
            "QGroupBox::title { subcontrol-origin: margin; left: 7px; padding: 0 3px; }"));
        Watch(*widget_);
        PutBehindControls(parent);
    }

    QWidget& Widget() const override { return *widget_; }

  protected:
    void Show() override {
        const QString title = ToUnicode(TextOf(Window()));
        if (widget_->title() != title) widget_->setTitle(title);
    }

    bool Mouse(QObject&, const QMouseEvent&) override { return true; }

  private:
    // The first that isn't a group box stays in front of it, and so do all others; a box within a
    // box is made after that.
    void PutBehindControls(const QWidget* parent) {
        if (parent == nullptr) return;
        for (QObject* child : parent->children()) {
            auto* sibling = qobject_cast<QWidget*>(child);
            if (sibling == nullptr || sibling->isWindow()) continue;
            if (qobject_cast<QGroupBox*>(sibling) != nullptr) continue;
            widget_->stackUnder(sibling);
            return;
        }
    }

    std::unique_ptr<QGroupBox> widget_;
};

}  // namespace

std::unique_ptr<Control> NewButton(Screen& screen, HWND window, QWidget* parent) {
    switch (KindOf(window)) {
        case BS_GROUPBOX:
            return std::make_unique<GroupBox>(screen, window, parent);
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_3STATE:
        case BS_AUTO3STATE:
            return std::make_unique<CheckBox>(screen, window, parent);
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return std::make_unique<RadioButton>(screen, window, parent);
        default:
            return std::make_unique<PushButton>(screen, window, parent);
    }
}

}  // namespace win32::qt
