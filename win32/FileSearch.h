#ifndef WIN32_FILESEARCH_H
#define WIN32_FILESEARCH_H

/// @file
/// Directory search by a pattern with * and ?, in the order in which the system lists the
/// directory. The name part is matched with case, as the file system does; the extension without.

#include "win32/Types.h"

struct WIN32_FIND_DATAA {
    DWORD dwFileAttributes;
    char cFileName[MAX_PATH];
};

/// Starts a search and gives its first match; INVALID_HANDLE_VALUE if there is none. A name that
/// does not fit `cFileName` is passed over.
HANDLE FindFirstFileA(LPCSTR pattern, WIN32_FIND_DATAA* found);

/// The next match; FALSE after the last one.
BOOL FindNextFileA(HANDLE search, WIN32_FIND_DATAA* found);

/// Ends the search; the handle is void afterwards.
BOOL FindClose(HANDLE search);

#endif
