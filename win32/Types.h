#ifndef WIN32_TYPES_H
#define WIN32_TYPES_H

// The basic Win32 types. LPARAM, LRESULT and LONG_PTR are as wide as a pointer.

#include <cstdint>

using BOOL = int;
using BYTE = unsigned char;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using LONGLONG = std::int64_t;
using LONG_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPVOID = void*;

using HANDLE = void*;
using HWND = struct HWND__*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HRSRC = struct HRSRC__*;
using HGLOBAL = void*;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

#define WINAPI
inline constexpr DWORD MAX_PATH = 260;
// NOLINTNEXTLINE(performance-no-int-to-ptr): the value is Win32's own
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(LONG_PTR{-1});

#endif
