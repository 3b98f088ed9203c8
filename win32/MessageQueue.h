#ifndef WIN32_MESSAGEQUEUE_H
#define WIN32_MESSAGEQUEUE_H

/// @file
/// The queue of a thread: posted messages, timers, the end of the loop.

#include "win32/Export.h"
#include "win32/Types.h"

/// A message as it stands in a queue.
struct MSG {
    HWND hwnd;      ///< the window it is for; null: for the thread
    UINT message;   ///< which one
    WPARAM wParam;  ///< its first parameter
    LPARAM lParam;  ///< its second parameter
    DWORD time;     ///< GetTickCount of when it was posted
    POINT pt;       ///< not filled here
};
/// Where a message is written, or read from.
using LPMSG = MSG*;

/// What a timer calls: window, WM_TIMER, the timer's id, GetTickCount.
using TIMERPROC = void(CALLBACK*)(HWND, UINT, UINT_PTR, DWORD);

/// Whether PeekMessageA leaves the message in the queue or takes it out.
/// @{
inline constexpr UINT PM_NOREMOVE = 0;
inline constexpr UINT PM_REMOVE = 1;
/// @}

/// Puts a message into the queue of the thread that owns the window (null: of this thread).
HYDROFACTS_API BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
/// Ends the thread's message loop when all that waits has been handled: GetMessageA then gives 0,
/// with WM_QUIT and the code as wParam.
HYDROFACTS_API void PostQuitMessage(int exitCode);

/// Takes the next message for `window` (null: any); 0 for WM_QUIT. Waits for timers and for what a
/// view brings. Where nothing can come any more, because there is neither, it gives 0 with WM_QUIT
/// and the exit code -1: a loop without a user ends rather than hangs.
HYDROFACTS_API BOOL GetMessageA(LPMSG message, HWND window, UINT first, UINT last);
/// The same without waiting: FALSE if there is no message.
HYDROFACTS_API BOOL PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove);

/// Makes WM_CHAR of a pressed key, after the US keyboard; it is the next message.
HYDROFACTS_API BOOL TranslateMessage(const MSG* message);
/// Hands a message to the window that it is for, or calls the procedure of its timer; gives the
/// result.
HYDROFACTS_API LRESULT DispatchMessageA(const MSG* message);

/// Starts a timer again and again after `milliseconds`: WM_TIMER to the window, or a call of
/// `procedure`. Gives its id, a new one if `window` is null. A timer with the same window and id is
/// replaced.
HYDROFACTS_API UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
/// Ends a timer; FALSE if there is none with that window and id.
HYDROFACTS_API BOOL KillTimer(HWND window, UINT_PTR id);

/// Milliseconds since some moment in the past.
HYDROFACTS_API DWORD GetTickCount();

#endif
