#ifndef QUILLBASE_DIRECTORY_H
#define QUILLBASE_DIRECTORY_H

/// @file
/// Where the table files lie.

#include "win32/Export.h"

/// The directories that the library knows. Numbers are the ids that hosts use.
enum DirTypes : int {
    DIR_TABLES = 4,  ///< where the table files lie
};

/// Writes the directory, without a trailing separator, into a buffer of at least 260 bytes; the
/// third argument is not used. Unless a host has set it, the directory of the table files is found
/// from the library's own place: the installed tables of an installed library, the build's own
/// `tables` folder of a library in its build tree. An unknown type, and a directory whose path
/// doesn't fit, give the empty text.
HYDROFACTS_API void GetDirectory(DirTypes type, char* const buffer, int);

/// Sets a directory for the whole process; a trailing separator is dropped. A null or empty path
/// takes an earlier setting back. Paths of 260 bytes or more, and unknown types, change nothing.
/// May be called at any time from any thread; what is loading meanwhile uses the old or the new
/// one.
HYDROFACTS_API void SetDirectory(DirTypes type, const char* path);

#endif
