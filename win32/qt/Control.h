#ifndef WIN32_QT_CONTROL_H
#define WIN32_QT_CONTROL_H

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <memory>
#include <vector>

#include "win32/Win32.h"
#include "win32/qt/Keys.h"

class QMouseEvent;
class QWidget;

namespace win32::qt {

class Screen;

/// A window and the widget that mirrors it. Each kind of window has a class of its own, in the file
/// of its name. Events of the widget come here first: keys and clicks become acts, nothing of the
/// widget changes by them.
class Control : public QObject {
  public:
    Control(Screen& screen, HWND window) : screen_(screen), window_(window) {}
    ~Control() override = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    virtual QWidget& Widget() const = 0;
    HWND Window() const { return window_; }

    /// Makes the widget show what the window holds now.
    void Refresh();

    /// The window has the focus now: the widget takes Qt's.
    virtual void TakeFocus(bool byKeyboard);
    /// The window has lost or got the focus; its text and state are the same.
    virtual void FocusChanged() {}

    /// Does what a key does apart from its messages (copying, moving by words); true if that was
    /// all.
    virtual bool TakeKey(const Key& key);

    /// The window is gone, or the view: nothing of the widget comes here any more.
    void Release();

    bool marked = false;  ///< waits to be refreshed

  protected:
    /// The widget's events come here; for widgets that are made of several, each of them.
    void Watch(QObject& widget);
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// What the kind of control shows of its own.
    virtual void Show() = 0;
    virtual void Place(const QRect& place);
    virtual void SetVisible(bool visible);

    /// True if the widget is not to see the event. The position is that in the widget.
    virtual bool Mouse(QObject& watched, const QMouseEvent& event);
    /// Other events than those of mouse and keyboard.
    virtual bool Other(QObject&, QEvent&) { return false; }

    /// A click, or half of one, at a place of the control.
    void AddMouse(UINT message, QPoint at) const;

    Screen& screen_;

  private:
    HWND window_;
    QRect place_;
    std::vector<QPointer<QObject>> watched_;
};

/// The message of a mouse button that goes down (once or again) or up, 0 for other events.
UINT MouseMessage(const QMouseEvent& event);

/// Makes the control for a window: null for windows that are shown by another one.
std::unique_ptr<Control> MakeControl(Screen& screen, HWND window);

// One function a kind of window; each stands in the file of its kind. `parent` is the widget of the
// dialog, or of a dialog's owner.
std::unique_ptr<Control> NewButton(Screen& screen, HWND window, QWidget* parent);
std::unique_ptr<Control> NewCombo(Screen& screen, HWND window, QWidget* parent);
std::unique_ptr<Control> NewDialog(Screen& screen, HWND window, QWidget* parent);
std::unique_ptr<Control> NewEdit(Screen& screen, HWND window, QWidget* parent);
std::unique_ptr<Control> NewList(Screen& screen, HWND window, QWidget* parent);
std::unique_ptr<Control> NewStatic(Screen& screen, HWND window, QWidget* parent);
std::unique_ptr<Control> NewTextEdit(Screen& screen, HWND window, QWidget* parent);
std::unique_ptr<Control> NewTree(Screen& screen, HWND window, QWidget* parent);

}  // namespace win32::qt

#endif
