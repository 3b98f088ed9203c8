#ifndef WIN32_FILE_H
#define WIN32_FILE_H

/// @file
/// Files: open, read, write, flush, close, replace, delete. Names and results as in Win32; only the
/// combinations of arguments that the library uses are supported, others fail.

#include "win32/Types.h"

inline constexpr DWORD GENERIC_READ = 0x80000000U;
inline constexpr DWORD GENERIC_WRITE = 0x40000000U;
inline constexpr DWORD FILE_SHARE_READ = 1;
inline constexpr DWORD FILE_SHARE_WRITE = 2;
inline constexpr DWORD FILE_SHARE_DELETE = 4;
inline constexpr DWORD CREATE_NEW = 1;
inline constexpr DWORD OPEN_EXISTING = 3;
inline constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x10;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
inline constexpr DWORD MOVEFILE_REPLACE_EXISTING = 1;
inline constexpr DWORD MOVEFILE_WRITE_THROUGH = 8;
inline constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFFU;

union LARGE_INTEGER {
    LONGLONG QuadPart;
};

/// Opens an existing file to read (GENERIC_READ, OPEN_EXISTING) or makes a new one to write
/// (GENERIC_WRITE, CREATE_NEW), with the permissions of the open file `model` unless that is null.
/// INVALID_HANDLE_VALUE on failure. Never waits for the other end of a pipe.
HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD share, void* security, DWORD disposition,
                   DWORD attributes, HANDLE model);

/// The size of a plain file; FALSE for anything else, such as a folder, a pipe or a device.
BOOL GetFileSizeEx(HANDLE file, LARGE_INTEGER* size);

/// Writes the path of an open file with all links followed; `flags` is not used. Returns its
/// length, `size` or more if it doesn't fit, 0 on failure.
DWORD GetFinalPathNameByHandleA(HANDLE file, LPSTR buffer, DWORD size, DWORD flags);

/// Reads at most `size` bytes; `done` is 0 at the end of the file.
BOOL ReadFile(HANDLE file, void* buffer, DWORD size, DWORD* done, void* overlapped);

BOOL WriteFile(HANDLE file, const void* buffer, DWORD size, DWORD* done, void* overlapped);

/// Returns when what was written has reached the disk.
BOOL FlushFileBuffers(HANDLE file);

/// Of a file, or of a thread (see Thread.h).
BOOL CloseHandle(HANDLE handle);

/// Renames a file; with MOVEFILE_REPLACE_EXISTING it takes the place of `to` in one step.
BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags);

BOOL DeleteFileA(LPCSTR path);

/// FILE_ATTRIBUTE_DIRECTORY or FILE_ATTRIBUTE_NORMAL; INVALID_FILE_ATTRIBUTES if there is nothing.
DWORD GetFileAttributesA(LPCSTR path);

#endif
