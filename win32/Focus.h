#ifndef WIN32_FOCUS_H
#define WIN32_FOCUS_H

namespace win32 {

class Window;

/// Moves focus and activation away from a window that is hidden or ends: to its parent, or from a
/// top-level window to its owner.
void LeaveWindow(const Window& window);

}  // namespace win32

#endif
