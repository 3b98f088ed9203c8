#ifndef HYDROFACTS_TESTS_QT_SHOWNDIALOG_H
#define HYDROFACTS_TESTS_QT_SHOWNDIALOG_H

#include <QTest>
#include <QWidget>
#include <string>

#include "tests/dialogs/TestDialog.h"
#include "win32/qt/QtView.h"

/// A dialog on the (offscreen) screen, and a user in front of it: his keys and clicks are those of
/// Qt, on the widgets; what comes of them is handled by a message loop as a host has it.
class ShownDialog {
  public:
    explicit ShownDialog(const win32::DialogBuilder& form, TestDialog::Handler handler = {})
        : dialog_(form, std::move(handler)) {
        ShowWindow(dialog_.Handle(), SW_SHOW);
        Settle();
        dialog_.TakeLog();
    }

    TestDialog& Model() { return dialog_; }
    HWND Handle() const { return dialog_.Handle(); }
    HWND Item(int id) const { return dialog_.Item(id); }
    win32::qt::QtView& View() { return view_; }
    QWidget& Window() { return *view_.WidgetOf(dialog_.Handle()); }

    /// The widget of a control, as the class that it should have.
    template <typename T>
    T& Widget(int id) {
        auto* widget = dynamic_cast<T*>(view_.WidgetOf(Item(id)));
        if (widget == nullptr) throw std::runtime_error("no such widget: " + std::to_string(id));
        return *widget;
    }

    /// Handles all that waits, and all that comes of it.
    void Settle() { SettleView(view_, dialog_.Handle()); }
    static void SettleView(win32::qt::QtView& view, HWND dialog) {
        MSG message;
        do {
            win32::user::HandleMessages(dialog);
            view.Wait(0);
        } while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE);
    }

    // The user: keys go to the widget that has Qt's focus in the window.

    void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(&Focus(), key, held);
        Settle();
    }
    void Type(const char* text) {
        for (const QChar character : QString::fromUtf8(text)) {
            const int key = character.toUpper().unicode();
            QTest::sendKeyEvent(QTest::Click, &Focus(), static_cast<Qt::Key>(key), character, {});
            Settle();
        }
    }
    void Click(QWidget& widget, QPoint at = {}) {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
        Settle();
    }
    QWidget& Focus() {
        QWidget* focus = Window().focusWidget();
        return focus == nullptr ? Window() : *focus;
    }

  private:
    win32::qt::QtView view_;
    TestDialog dialog_;
};

#endif
