#ifndef WIN32_QT_SCREEN_H
#define WIN32_QT_SCREEN_H

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "win32/Win32.h"
#include "win32/qt/Control.h"
#include "win32/qt/Input.h"
#include "win32/qt/QtView.h"

namespace win32::qt {

/// The inside of QtView: the controls that are shown, which of them have to be shown anew, what the
/// user has done, and when each of these gets its turn.
class Screen final : public QObject {
  public:
    Screen();
    ~Screen() override;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    void Created(HWND window);
    void Changed(HWND window);
    void Destroyed(HWND window);
    bool Wait(DWORD milliseconds);
    void HandleMessagesInQtLoop(bool on);

    /// Shows a window that was there before the view, with its owners and all that stands in them.
    void ShowFamilyOf(HWND window);

    /// The control that shows a window, or the one that a part of a combo box belongs to; null if
    /// there is none.
    Control* ControlOf(HWND window) const;
    QWidget* WidgetOf(HWND window) const;

    void SetPainter(HWND control, QtView::Painter painter);
    /// Empty if there is none.
    QtView::Painter PainterOf(HWND control) const;

    /// Remembers what the user does until its turn comes.
    void Add(Input::Act act);
    /// The same for a key, which goes to the window that has the focus by then.
    void AddKey(const Key& key);
    /// The user has gone to another of our windows.
    void Activated(HWND window);

  private:
    bool HasMessage() const;
    void PutKeyToFocus(const Key& key);
    void FollowActivation();
    void RefreshAll();
    void FollowFocus();
    /// Gives the widgets their turn, when nothing waits to be handled.
    void Settle();
    void ScheduleTurn();
    void TakeTurn();
    void HandleMessages();

    // In the order of their handles, so parents stand before what stands in them.
    std::map<HWND, std::unique_ptr<Control>, std::less<>> controls_;
    std::map<HWND, QtView::Painter, std::less<>> painters_;
    std::vector<HWND> changed_;
    Input input_;
    QTimer poll_;
    HWND activated_ = nullptr;    ///< by the user, and not yet the thread's active window
    HWND shownActive_ = nullptr;  ///< the active window that Qt has been told of
    HWND shownFocus_ = nullptr;
    bool byKeyboard_ = false;  ///< the last act was a key: the focus is to be seen
    bool scheduled_ = false;
    bool settling_ = false;
    bool handlesMessages_ = false;
    int waiting_ = 0;  ///< loops of the host that wait in Wait()
};

}  // namespace win32::qt

#endif
