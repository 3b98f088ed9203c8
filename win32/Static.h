#ifndef WIN32_STATIC_H
#define WIN32_STATIC_H

// The static control, class "Static": a text that nobody can change by hand.

#include "win32/Types.h"

inline constexpr DWORD SS_LEFT = 0x00;
inline constexpr DWORD SS_CENTER = 0x01;
inline constexpr DWORD SS_RIGHT = 0x02;
inline constexpr DWORD SS_SIMPLE = 0x0B;
inline constexpr DWORD SS_LEFTNOWORDWRAP = 0x0C;
inline constexpr DWORD SS_NOPREFIX = 0x80;

#endif
