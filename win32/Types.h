#ifndef WIN32_TYPES_H
#define WIN32_TYPES_H

/// @file
/// The basic Win32 types. LPARAM, LRESULT and LONG_PTR are as wide as a pointer.

#include <cstdint>

/// Numbers of fixed width, flags, texts in Windows-1252, and addresses.
/// @{
using BOOL = int;
using BYTE = unsigned char;
using WORD = std::uint16_t;
using SHORT = std::int16_t;
using WCHAR = char16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using INT = int;
using UINT = unsigned int;
using LONGLONG = std::int64_t;
using INT_PTR = std::intptr_t;
using LONG_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPVOID = void*;
using LPCVOID = const void*;
using COLORREF = DWORD;
/// @}

/// Handles; null is none. That of a window is a number, not an address: one whose window is gone is
/// refused, not followed.
/// @{
using HANDLE = void*;
using HWND = struct HWND__*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HRSRC = struct HRSRC__*;
using HGLOBAL = void*;
using HMENU = struct HMENU__*;
using HGDIOBJ = void*;
using HBITMAP = struct HBITMAP__*;
using HIMAGELIST = struct HIMAGELIST__*;
/// @}

/// A point, in pixels unless said otherwise.
struct POINT {
    LONG x;  ///< from left to right
    LONG y;  ///< from top to bottom
};

/// A size, in pixels unless said otherwise.
struct SIZE {
    LONG cx;  ///< width
    LONG cy;  ///< height
};

/// A rectangle, in pixels unless said otherwise. Its right and bottom sides are outside.
struct RECT {
    LONG left;    ///< first column
    LONG top;     ///< first row
    LONG right;   ///< the column behind the last one
    LONG bottom;  ///< the row below the last one
};
/// Where a rectangle is read or written.
using LPRECT = RECT*;

#ifndef TRUE
/// A BOOL that says yes; anything but 0 does.
#define TRUE 1
/// A BOOL that says no.
#define FALSE 0
#endif

/// Calling conventions, of which this platform has one only.
/// @{
#define WINAPI
#define CALLBACK
/// @}

/// Room for a path with its terminator, in bytes.
inline constexpr DWORD MAX_PATH = 260;

/// What the file functions give on failure.
// NOLINTNEXTLINE(performance-no-int-to-ptr): the value is Win32's own
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(LONG_PTR{-1});

/// The low 16 bits of a parameter, such as a control's id in wParam of WM_COMMAND.
inline constexpr WORD LOWORD(ULONG_PTR value) { return static_cast<WORD>(value); }
/// The 16 bits above them, such as what the control tells.
inline constexpr WORD HIWORD(ULONG_PTR value) { return static_cast<WORD>(value >> 16U); }
/// Puts the low 16 bits of two numbers together.
inline constexpr DWORD MAKELONG(ULONG_PTR low, ULONG_PTR high) {
    return LOWORD(low) | (DWORD{LOWORD(high)} << 16U);
}
/// Puts two parts together to a parameter of a message: numbers of any integral type, negative ones
/// too, of which the low 16 bits count.
/// @{
template <typename Low, typename High>
constexpr WPARAM MAKEWPARAM(Low low, High high) {
    return MAKELONG(static_cast<ULONG_PTR>(low), static_cast<ULONG_PTR>(high));
}
template <typename Low, typename High>
constexpr LPARAM MAKELPARAM(Low low, High high) {
    return static_cast<LPARAM>(MAKEWPARAM(low, high));
}
/// @}

#endif
