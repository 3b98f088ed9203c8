#ifndef WIN32_WIN32_H
#define WIN32_WIN32_H

/// @file
/// The one way by which the rest of the project reaches the Win32 API: the real headers on Windows,
/// the project's own slice of it, with the same names, elsewhere.

#include "win32/Export.h"

#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
// After the header it builds on.
#include <commctrl.h>

#else

#include "win32/Button.h"
#include "win32/ComboBox.h"
#include "win32/Dialog.h"
#include "win32/Edit.h"
#include "win32/Error.h"
#include "win32/File.h"
#include "win32/FileSearch.h"
#include "win32/ImageList.h"
#include "win32/Keyboard.h"
#include "win32/ListBox.h"
#include "win32/MessageQueue.h"
#include "win32/Module.h"
#include "win32/Static.h"
#include "win32/Text.h"
#include "win32/Thread.h"
#include "win32/TreeView.h"
#include "win32/Types.h"
#include "win32/View.h"
#include "win32/Window.h"

#endif

#include "win32/ModuleEntry.h"

namespace win32 {

/// Separates the folders of a path on this platform.
#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif

}  // namespace win32

#endif
