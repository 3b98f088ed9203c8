#ifndef WIN32_QT_QTVIEW_H
#define WIN32_QT_QTVIEW_H

// The windows of a thread, shown with Qt Widgets. A program that includes hydrofacts/hydrofacts.h
// as well is compiled with QT_NO_KEYWORDS: `signals`, which Qt makes a macro, is a namespace there.

#include <functional>
#include <memory>

#include "win32/View.h"

class QPainter;
class QSize;
class QWidget;

namespace win32::qt {

class Screen;

/// Shows the windows of this thread with Qt Widgets and brings what the user does into their queue.
/// There must be a QApplication; while the view exists it is the thread's view.
///
///     QApplication application(argc, argv);
///     win32::qt::QtView view;
///     return static_cast<int>(DialogBoxParamA(module, name, nullptr, &Procedure, 0));
///
/// Each window and control has a widget that mirrors it: the window is asked and told with
/// messages, the widget is only looked at. What the user does is put into the queue one act at a
/// time, so that a key goes to the control that has the focus when all before it has been handled.
/// Nothing of the host is called from within an event handler of Qt, apart from painters.
class HYDROFACTS_API QtView final : public View {
  public:
    /// Shows the windows that there are already as soon as they change.
    QtView();
    /// The former view is that of the thread again. The widgets go, the windows stay.
    ~QtView() override;
    QtView(const QtView&) = delete;
    QtView& operator=(const QtView&) = delete;

    /// The widget that shows a window or control; null if there is none. It lasts no longer than
    /// the window.
    QWidget* WidgetOf(HWND window) const;

    /// Draws what a control of class Static with SS_OWNERDRAW shows: the painter's origin is the
    /// top left corner of the control, whose size in pixels is given with it. It must not end
    /// windows.
    using Painter = std::function<void(QPainter&, QSize)>;

    /// Sets what draws a control whenever it is to be drawn anew (InvalidateRect).
    void SetPainter(HWND control, Painter painter);

    /// For programs whose loop is QApplication::exec: the view then handles the queue itself, each
    /// message with the keyboard handling of the dialog that it is for. PostQuitMessage ends the
    /// loop of Qt.
    void HandleMessagesInQtLoop(bool on);

    void Created(HWND window) override;
    void Changed(HWND window) override;
    void Destroyed(HWND window) override;
    bool Wait(DWORD milliseconds) override;
    /// Those of the application's font.
    SIZE BaseUnits() const override;

  private:
    std::unique_ptr<Screen> screen_;
    View* former_;
};

}  // namespace win32::qt

#endif
