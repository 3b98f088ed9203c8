// Edits of one line; those of several lines stand in TextEdit.cpp.

#include <QContextMenuEvent>
#include <QLineEdit>

#include "win32/qt/Control.h"
#include "win32/qt/LineEdit.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

class Edit : public Control {
  public:
    Edit(Screen& screen, HWND window, QWidget* parent)
        : Control(screen, window),
          widget_(std::make_unique<QLineEdit>(parent)),
          line_(screen, window, *widget_) {
        const bool border = Has(window, WS_BORDER) ||
                            (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
        widget_->setFrame(border);
        widget_->setFocusPolicy(Qt::TabFocus);
        Watch(*widget_);
    }

    QWidget& Widget() const override { return *widget_; }
    bool TakeKey(const Key& key) override { return line_.TakeKey(key); }

    // The widget may have selected all as it got the focus.
    void TakeFocus(bool byKeyboard) override {
        {
            const QSignalBlocker quiet(*widget_);
            Control::TakeFocus(byKeyboard);
        }
        line_.Show();
    }

  protected:
    void Show() override { line_.Show(); }
    bool Mouse(QObject&, const QMouseEvent& event) override { return line_.Mouse(event); }
    bool Other(QObject&, QEvent& event) override {
        if (event.type() != QEvent::ContextMenu) return false;
        line_.OpenMenu(static_cast<QContextMenuEvent&>(event).globalPos());
        return true;
    }

  private:
    std::unique_ptr<QLineEdit> widget_;
    LineEdit line_;
};

}  // namespace

std::unique_ptr<Control> NewEdit(Screen& screen, HWND window, QWidget* parent) {
    if (Has(window, ES_MULTILINE)) return NewTextEdit(screen, window, parent);
    return std::make_unique<Edit>(screen, window, parent);
}

}  // namespace win32::qt
