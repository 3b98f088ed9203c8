#ifndef HYDROFACTS_TESTS_QT_SHOWNDIALOG_H
#define HYDROFACTS_TESTS_QT_SHOWNDIALOG_H

#include <QAbstractItemView>
#include <QTest>
#include <QWidget>
#include <stdexcept>

#include "tests/dialogs/TestDialog.h"
#include "win32/qt/QtView.h"

/// A user in front of a dialog on the (offscreen) screen: his keys and clicks are those of Qt, on
/// the widgets; what comes of them is handled by a message loop as a host has it.
class QtUser {
  public:
    win32::qt::QtView& View() { return view_; }
    QWidget& Window() { return *view_.WidgetOf(window_); }

    /// The widget of a control, as the class that it should have.
    template <typename T>
    T& WidgetOf(HWND control) {
        auto* widget = dynamic_cast<T*>(view_.WidgetOf(control));
        if (widget == nullptr) throw std::runtime_error("no such widget");
        return *widget;
    }

    void Show(HWND dialog) {
        window_ = dialog;
        ShowWindow(dialog, SW_SHOW);
        Settle();
    }
    /// Handles all that waits, and all that comes of it.
    void Settle() {
        MSG message;
        do {
            win32::user::HandleMessages(window_);
            view_.Wait(0);
        } while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE);
    }

    // Keys go to the widget that has Qt's focus in the window.

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
    void ClickRow(QAbstractItemView& view, int row) {
        const QModelIndex index = view.model()->index(row, 0);
        view.scrollTo(index);
        Click(*view.viewport(), view.visualRect(index).center());
    }
    QWidget& Focus() {
        QWidget* focus = Window().focusWidget();
        return focus == nullptr ? Window() : *focus;
    }

  private:
    win32::qt::QtView view_;
    HWND window_ = nullptr;
};

/// A host's dialog with a user in front of it.
class ShownDialog : public QtUser, public TestDialog {
  public:
    explicit ShownDialog(const win32::DialogBuilder& form) : TestDialog(form) {
        Show(Handle());
        TakeLog();
    }

    template <typename T>
    T& Widget(int id) {
        return WidgetOf<T>(Item(id));
    }

    // What the program does, and all that comes of it.

    void Tell(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        Send(id, message, wParam, lParam);
        Settle();
    }
    void SetText(int id, const char* text) {
        SetDlgItemTextA(Handle(), id, text);
        Settle();
        TakeLog();
    }
};

#endif
