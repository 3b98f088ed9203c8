#ifndef WIN32_MODULE_H
#define WIN32_MODULE_H

/// @file
/// Modules and their resources. A module handle is the address of a `win32::Module`, which the
/// shared library keeps for itself (see ModuleEntry.h).

#include <cstddef>
#include <span>
#include <string>

#include "win32/Types.h"

namespace win32 {

/// One resource, embedded by the build.
struct Resource {
    LPCSTR type;                ///< a text, or a number made with MAKEINTRESOURCEA
    WORD id;                    ///< its number
    WORD language;              ///< a Windows language identifier
    const unsigned char* data;  ///< its bytes, which last as long as the module
    std::size_t size;           ///< how many bytes
};

/// What a module handle stands for.
struct Module {
    std::string path;                     ///< full path of its file
    std::span<const Resource> resources;  ///< all that it has
};

/// @cond inside the library only
/// The full path of the shared library or program that holds `address`; empty if there is none.
std::string PathOfModuleAt(const void* address);
/// @endcond

/// The handle of a module, which is its address.
inline HINSTANCE ToHandle(Module* module) { return reinterpret_cast<HINSTANCE>(module); }

}  // namespace win32

/// A number in place of a resource's name.
// NOLINTNEXTLINE(performance-no-int-to-ptr)
inline LPSTR MAKEINTRESOURCEA(WORD id) { return reinterpret_cast<LPSTR>(UINT_PTR{id}); }

/// Types of resources.
/// @{
inline const LPSTR RT_BITMAP = MAKEINTRESOURCEA(2);
inline const LPSTR RT_DIALOG = MAKEINTRESOURCEA(5);
/// @}

/// The handle of the running program, which has no resources here: null. Other modules give theirs
/// themselves.
inline HMODULE GetModuleHandleA(LPCSTR) { return nullptr; }

/// @cond inside the library only
/// Writes the path of the module (null: of the program), cut to `size` bytes with its terminator.
/// Returns the number of characters written, `size` if the path was cut, 0 on failure.
DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);

/// Finds a resource by number (MAKEINTRESOURCEA) and type; null, with the error 1814, if the module
/// has no such one, 1813 if it has none of the type.
HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
HGLOBAL LoadResource(HMODULE module, HRSRC resource);
LPVOID LockResource(HGLOBAL loaded);
DWORD SizeofResource(HMODULE module, HRSRC resource);
/// @endcond

#endif
