#ifndef QUILLBASE_LIBRARYPLACE_H
#define QUILLBASE_LIBRARYPLACE_H

#include <string>

#include "win32/Win32.h"

namespace quillbase {

/// Tells where the library itself lies; called once when the process loads it.
void SetLibraryModule(HINSTANCE module);

/// The folder of the library's own file, without a trailing separator; empty before
/// SetLibraryModule and if the system doesn't tell.
std::string LibraryFolder();

}  // namespace quillbase

#endif
