#ifndef WIN32_STATIC_H
#define WIN32_STATIC_H

/// @file
/// The static control, class "Static": a text that nobody can change by hand.

#include "win32/Types.h"

/// Styles. The kind of a text or frame is the low five bits, SS_TYPEMASK; SS_OWNERDRAW is drawn by
/// the view, or by nobody; with SS_NOPREFIX an & is a character like any other.
/// @{
inline constexpr DWORD SS_LEFT = 0x00;
inline constexpr DWORD SS_CENTER = 0x01;
inline constexpr DWORD SS_RIGHT = 0x02;
inline constexpr DWORD SS_SIMPLE = 0x0B;
inline constexpr DWORD SS_LEFTNOWORDWRAP = 0x0C;
inline constexpr DWORD SS_OWNERDRAW = 0x0D;
inline constexpr DWORD SS_ETCHEDHORZ = 0x10;
inline constexpr DWORD SS_ETCHEDVERT = 0x11;
inline constexpr DWORD SS_ETCHEDFRAME = 0x12;
inline constexpr DWORD SS_TYPEMASK = 0x1F;
inline constexpr DWORD SS_NOPREFIX = 0x80;
inline constexpr DWORD SS_CENTERIMAGE = 0x200;
/// @}

#endif
