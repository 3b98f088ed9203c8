#ifndef WIN32_WINDOW_H
#define WIN32_WINDOW_H

/// @file
/// Windows of any kind: what they are, their text, place, state and family, and the messages that
/// all of them know. A window is data; a message to it is a call. Names, values and results are
/// those of Win32. A handle stays what it was: that of a window that is gone is refused, never
/// followed.

#include "win32/Export.h"
#include "win32/Types.h"

/// The procedure of a window: what it does with a message.
using WNDPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);

/// Styles of all windows. WS_GROUP and WS_TABSTOP are of controls only.
/// @{
inline constexpr DWORD WS_OVERLAPPED = 0;
inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_MINIMIZE = 0x20000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_DISABLED = 0x08000000;
inline constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
inline constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
inline constexpr DWORD WS_MAXIMIZE = 0x01000000;
inline constexpr DWORD WS_BORDER = 0x00800000;
inline constexpr DWORD WS_DLGFRAME = 0x00400000;
inline constexpr DWORD WS_CAPTION = WS_BORDER | WS_DLGFRAME;
inline constexpr DWORD WS_VSCROLL = 0x00200000;
inline constexpr DWORD WS_HSCROLL = 0x00100000;
inline constexpr DWORD WS_SYSMENU = 0x00080000;
inline constexpr DWORD WS_THICKFRAME = 0x00040000;
inline constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
inline constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
inline constexpr DWORD WS_GROUP = 0x00020000;
inline constexpr DWORD WS_TABSTOP = 0x00010000;
inline constexpr DWORD WS_EX_DLGMODALFRAME = 0x00000001;
inline constexpr DWORD WS_EX_TOPMOST = 0x00000008;
inline constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
inline constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
inline constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000;
/// @}

/// Messages that every window knows; those from WM_USER on are its own, those from WM_APP on the
/// host's.
/// @{
inline constexpr UINT WM_NULL = 0x0000;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_MOVE = 0x0003;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_ACTIVATE = 0x0006;
inline constexpr UINT WM_SETFOCUS = 0x0007;
inline constexpr UINT WM_KILLFOCUS = 0x0008;
inline constexpr UINT WM_ENABLE = 0x000A;
inline constexpr UINT WM_SETTEXT = 0x000C;
inline constexpr UINT WM_GETTEXT = 0x000D;
inline constexpr UINT WM_GETTEXTLENGTH = 0x000E;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_QUIT = 0x0012;
inline constexpr UINT WM_SHOWWINDOW = 0x0018;
inline constexpr UINT WM_GETMINMAXINFO = 0x0024;
inline constexpr UINT WM_NOTIFY = 0x004E;
inline constexpr UINT WM_NCDESTROY = 0x0082;
inline constexpr UINT WM_GETDLGCODE = 0x0087;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102;
inline constexpr UINT WM_SYSKEYDOWN = 0x0104;
inline constexpr UINT WM_SYSKEYUP = 0x0105;
inline constexpr UINT WM_SYSCHAR = 0x0106;
inline constexpr UINT WM_INITDIALOG = 0x0110;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_CLEAR = 0x0303;
inline constexpr UINT WM_USER = 0x0400;
inline constexpr UINT WM_APP = 0x8000;
/// @}

/// wParam of WM_ACTIVATE, and the button that is down in one of WM_MOUSEMOVE.
/// @{
inline constexpr WPARAM WA_INACTIVE = 0;
inline constexpr WPARAM WA_ACTIVE = 1;
inline constexpr WPARAM MK_LBUTTON = 1;
/// @}

/// What a control tells its dialog with WM_NOTIFY.
struct NMHDR {
    HWND hwndFrom;    ///< the control
    UINT_PTR idFrom;  ///< its id
    UINT code;        ///< what it tells: NM_ and TVN_
};
using LPNMHDR = NMHDR*;  ///< what lParam of WM_NOTIFY points to

/// What any control may tell with WM_NOTIFY.
/// @{
inline constexpr UINT NM_CLICK = 0U - 2U;
inline constexpr UINT NM_DBLCLK = 0U - 3U;
inline constexpr UINT NM_SETFOCUS = 0U - 7U;
inline constexpr UINT NM_KILLFOCUS = 0U - 8U;
/// @}

/// Delivers a message and returns when it has been handled: 0, with the error 1400, if there is no
/// such window. From a thread that doesn't own the window it waits until the owner's message loop
/// gets to it, and gives 0 if that thread ends first.
HYDROFACTS_API LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// What a window of the kind does with a message when nobody stands in between.
HYDROFACTS_API LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Hands a message to the procedure that SetWindowLongPtrA(GWLP_WNDPROC) gave back.
HYDROFACTS_API LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam,
                                       LPARAM lParam);

/// Whether there is such a window, of any thread.
HYDROFACTS_API BOOL IsWindow(HWND window);

/// Ends a window with all that belongs to it; only on the thread that owns it.
HYDROFACTS_API BOOL DestroyWindow(HWND window);

// Text.

/// Replaces the text: of a dialog its title, of an edit what is typed in it. FALSE if it can't be.
HYDROFACTS_API BOOL SetWindowTextA(HWND window, LPCSTR text);
/// Writes at most `size` - 1 characters and a terminator, and gives their number.
HYDROFACTS_API int GetWindowTextA(HWND window, LPSTR text, int size);
/// How many characters the text has.
HYDROFACTS_API int GetWindowTextLengthA(HWND window);
/// Writes the name of the window's class, such as "Edit", as GetWindowTextA writes the text.
HYDROFACTS_API int GetClassNameA(HWND window, LPSTR name, int size);

// State.

/// Enables or disables; gives whether the window was disabled. Disabling takes the focus away.
HYDROFACTS_API BOOL EnableWindow(HWND window, BOOL enable);
/// Whether the window itself is enabled; it may lie in a disabled one.
HYDROFACTS_API BOOL IsWindowEnabled(HWND window);

/// How ShowWindow shows a window.
/// @{
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOWNORMAL = 1;
inline constexpr int SW_SHOW = 5;
/// @}

/// Shows or hides; gives whether the window was visible.
HYDROFACTS_API BOOL ShowWindow(HWND window, int how);
/// Whether the window and all that it stands in are shown.
HYDROFACTS_API BOOL IsWindowVisible(HWND window);

// Place, in pixels; that of a child as seen from its parent's client area.

/// The place on the screen; FALSE, with nothing written, if there is no such window.
HYDROFACTS_API BOOL GetWindowRect(HWND window, LPRECT place);
/// The size as a rectangle from 0, 0; FALSE, with nothing written, if there is no such window.
HYDROFACTS_API BOOL GetClientRect(HWND window, LPRECT place);
/// Gives a window its place and size; FALSE if there is no such window. `repaint` doesn't matter.
/// A top-level window with WS_THICKFRAME keeps to the sizes that it gives in WM_GETMINMAXINFO.
HYDROFACTS_API BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
/// A place on the screen as seen from a window's client area, and back.
/// @{
HYDROFACTS_API BOOL ScreenToClient(HWND window, POINT* place);
HYDROFACTS_API BOOL ClientToScreen(HWND window, POINT* place);
/// @}
/// Has the view draw a window anew; the rectangle doesn't matter, it is drawn whole.
HYDROFACTS_API BOOL InvalidateRect(HWND window, const RECT* place, BOOL erase);

/// What WM_GETMINMAXINFO points to: how large a window may become, in pixels.
struct MINMAXINFO {
    POINT ptReserved;      ///< not used
    POINT ptMaxSize;       ///< size when maximized
    POINT ptMaxPosition;   ///< place when maximized
    POINT ptMinTrackSize;  ///< least size
    POINT ptMaxTrackSize;  ///< largest size
};

// Family.

/// Which relative GetAncestor (GA_) and GetWindow (GW_) give.
/// @{
inline constexpr UINT GA_PARENT = 1;
inline constexpr UINT GA_ROOT = 2;
inline constexpr UINT GW_HWNDNEXT = 2;
inline constexpr UINT GW_HWNDPREV = 3;
inline constexpr UINT GW_OWNER = 4;
inline constexpr UINT GW_CHILD = 5;
/// @}

/// The parent of a child, the owner of a top-level window; null if there is none.
HYDROFACTS_API HWND GetParent(HWND window);
/// The parent of a child (GA_PARENT), or the top-level window that it stands in (GA_ROOT); null if
/// there is none.
HYDROFACTS_API HWND GetAncestor(HWND window, UINT which);
/// The next or former sibling, the owner or the first child; null if there is none.
HYDROFACTS_API HWND GetWindow(HWND window, UINT which);
/// Whether a window stands in another, at any depth.
HYDROFACTS_API BOOL IsChild(HWND parent, HWND window);
/// There is no desktop here: null, which is also the parent of a top-level window.
HYDROFACTS_API HWND GetDesktopWindow();

// What a window carries.

/// What GetWindowLongPtrA and SetWindowLongPtrA reach: procedure, module, id, styles, and a value
/// of the host's. Those of a dialog are DWLP_MSGRESULT, DWLP_DLGPROC and DWLP_USER.
/// @{
inline constexpr int GWLP_WNDPROC = -4;
inline constexpr int GWLP_HINSTANCE = -6;
inline constexpr int GWLP_ID = -12;
inline constexpr int GWL_STYLE = -16;
inline constexpr int GWL_EXSTYLE = -20;
inline constexpr int GWLP_USERDATA = -21;
/// @}

/// One of the values that a window carries; 0 for another index, or if there is no such window.
HYDROFACTS_API LONG_PTR GetWindowLongPtrA(HWND window, int index);
/// Replaces one of the values that a window carries and gives the former one; 0 if there is no such
/// window.
HYDROFACTS_API LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value);

/// Values of the host's under a name; they go with the window. SetPropA gives FALSE without a
/// window, the others null without a window or such a value. RemovePropA gives what it has removed.
/// @{
HYDROFACTS_API BOOL SetPropA(HWND window, LPCSTR name, HANDLE value);
HYDROFACTS_API HANDLE GetPropA(HWND window, LPCSTR name);
HYDROFACTS_API HANDLE RemovePropA(HWND window, LPCSTR name);
/// @}

// Focus, capture, activation: one of each a thread.

/// Gives the focus to a window, or with null to none; the result is the window that had it. A
/// disabled window, or one in a disabled one, doesn't get it.
HYDROFACTS_API HWND SetFocus(HWND window);
/// The window of this thread that the keys go to; null if there is none.
HYDROFACTS_API HWND GetFocus();
/// Activates a top-level window of this thread, or with null none; gives the one that was active.
HYDROFACTS_API HWND SetActiveWindow(HWND window);
/// The active top-level window of this thread; null if there is none.
HYDROFACTS_API HWND GetActiveWindow();

#endif
