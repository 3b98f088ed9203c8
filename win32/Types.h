#ifndef WIN32_TYPES_H
#define WIN32_TYPES_H

// The basic Win32 types. LPARAM, LRESULT and LONG_PTR are as wide as a pointer.

#include <cstdint>

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

struct POINT {
    LONG x;
    LONG y;
};

struct SIZE {
    LONG cx;
    LONG cy;
};

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using LPRECT = RECT*;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

#define WINAPI
#define CALLBACK
inline constexpr DWORD MAX_PATH = 260;
// NOLINTNEXTLINE(performance-no-int-to-ptr): the value is Win32's own
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(LONG_PTR{-1});

inline constexpr WORD LOWORD(ULONG_PTR value) { return static_cast<WORD>(value); }
inline constexpr WORD HIWORD(ULONG_PTR value) { return static_cast<WORD>(value >> 16U); }
inline constexpr DWORD MAKELONG(ULONG_PTR low, ULONG_PTR high) {
    return LOWORD(low) | (DWORD{LOWORD(high)} << 16U);
}
// The parts are given as numbers of any integral type, negative ones too.
template <typename Low, typename High>
constexpr WPARAM MAKEWPARAM(Low low, High high) {
    return MAKELONG(static_cast<ULONG_PTR>(low), static_cast<ULONG_PTR>(high));
}
template <typename Low, typename High>
constexpr LPARAM MAKELPARAM(Low low, High high) {
    return static_cast<LPARAM>(MAKEWPARAM(low, high));
}

#endif
