#ifndef WIN32_BACKGROUNDTASK_H
#define WIN32_BACKGROUNDTASK_H

// Work that the library does on threads of its own, safe at the end of the process and when the
// library is unloaded, at any moment.

#include "win32/Win32.h"

namespace win32 {

/// Runs `procedure(parameter)` on a thread of its own. False if the system gives none.
///
/// The code and the objects of the module stay until the procedure has returned. Where a process
/// ends its threads before its modules (Windows), the task keeps the module loaded, and dies with
/// the process; elsewhere whoever ends the process or unloads the module waits until the procedure
/// has noticed StopRequested.
bool RunInBackground(LPTHREAD_START_ROUTINE procedure, void* parameter);

/// Whether somebody waits for the tasks to return: to be asked between pieces of work that take no
/// longer than a user is willing to wait.
bool StopRequested();

}  // namespace win32

#endif
