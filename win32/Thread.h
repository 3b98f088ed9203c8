#ifndef WIN32_THREAD_H
#define WIN32_THREAD_H

/// @file
/// Threads: start one, wait for its end. CloseHandle gives the handle back; the thread goes on.

#include <cstddef>

#include "win32/Types.h"

using LPTHREAD_START_ROUTINE = DWORD(WINAPI*)(void*);

inline constexpr DWORD INFINITE = 0xFFFFFFFFU;
inline constexpr DWORD WAIT_OBJECT_0 = 0;
inline constexpr DWORD WAIT_TIMEOUT = 258;
inline constexpr DWORD WAIT_FAILED = 0xFFFFFFFFU;

/// Runs `procedure(parameter)` on a thread of its own, with the default stack size; the other
/// arguments are not used. Null if the system gives no thread.
HANDLE CreateThread(void* security, std::size_t stackSize, LPTHREAD_START_ROUTINE procedure,
                    void* parameter, DWORD flags, DWORD* id);

/// Waits until a thread has ended (INFINITE), or asks whether it has (0): WAIT_OBJECT_0 if nothing
/// of the thread runs any more, else WAIT_TIMEOUT. WAIT_FAILED for other times and for handles of
/// anything else. From one thread at a time.
DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds);

namespace win32 {

/// Whether a handle is that of a thread.
bool IsThread(HANDLE handle);

/// What CloseHandle does with the handle of a thread.
void CloseThread(HANDLE handle);

}  // namespace win32

#endif
