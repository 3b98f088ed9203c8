#ifndef WIN32_VIEW_H
#define WIN32_VIEW_H

/// @file
/// What a program implements that draws the windows of a thread with a toolkit and brings the
/// user's keys and clicks. Without a view everything works as well, unseen.

#include "win32/Window.h"

namespace win32 {

/// Mean width and height of the characters in the font of dialogs, in pixels: 8 point "MS Shell
/// Dlg" at 96 dots an inch. Four dialog units across are one width, eight down one height.
inline constexpr SIZE kBaseUnits{6, 13};

/// Watches the windows of the thread that has set it. It must not destroy windows from within these
/// calls.
class HYDROFACTS_API View {
  public:
    /// The view must not be any thread's any more.
    virtual ~View();

    /// A window is complete.
    virtual void Created(HWND window) = 0;
    /// A window shows something else: text, rows, selection, state, place.
    virtual void Changed(HWND window) = 0;
    /// A window has gone; the handle is void already.
    virtual void Destroyed(HWND window) = 0;

    /// Lets the toolkit work, for `milliseconds` at most, until it has put a message into the
    /// queue. False if no user can bring one any more: message loops end then.
    virtual bool Wait(DWORD milliseconds) = 0;

    /// What the dialog units of the next dialog are counted in, if the view has a font of its own.
    virtual SIZE BaseUnits() const;
};

/// Sets the view of this thread, null for none; gives the former one. The view has to outlive its
/// use.
HYDROFACTS_API View* SetView(View* view);

}  // namespace win32

#endif
