#ifndef WIN32_EDIT_H
#define WIN32_EDIT_H

/// @file
/// The edit control, class "Edit": what it is asked, what it tells.

#include "win32/Types.h"

/// Styles: alignment, one line or several, what may be typed. ES_NUMBER lets digits only be typed,
/// and anything be set.
/// @{
inline constexpr DWORD ES_LEFT = 0x0000;
inline constexpr DWORD ES_CENTER = 0x0001;
inline constexpr DWORD ES_RIGHT = 0x0002;
inline constexpr DWORD ES_MULTILINE = 0x0004;
inline constexpr DWORD ES_UPPERCASE = 0x0008;
inline constexpr DWORD ES_PASSWORD = 0x0020;
inline constexpr DWORD ES_AUTOVSCROLL = 0x0040;
inline constexpr DWORD ES_AUTOHSCROLL = 0x0080;
inline constexpr DWORD ES_READONLY = 0x0800;
inline constexpr DWORD ES_WANTRETURN = 0x1000;
inline constexpr DWORD ES_NUMBER = 0x2000;
/// @}

/// Messages to an edit. Positions count characters from 0; EM_SETSEL with 0 and -1 selects all.
/// EM_SETLIMITTEXT limits what is typed, not what is set; 0 is the highest limit.
/// @{
inline constexpr UINT EM_GETSEL = 0x00B0;
inline constexpr UINT EM_SETSEL = 0x00B1;
inline constexpr UINT EM_GETMODIFY = 0x00B8;
inline constexpr UINT EM_SETMODIFY = 0x00B9;
inline constexpr UINT EM_REPLACESEL = 0x00C2;
inline constexpr UINT EM_SETLIMITTEXT = 0x00C5;
inline constexpr UINT EM_LIMITTEXT = EM_SETLIMITTEXT;
inline constexpr UINT EM_SETREADONLY = 0x00CF;
inline constexpr UINT EM_GETLIMITTEXT = 0x00D5;
/// @}

/// What an edit tells its dialog, as HIWORD(wParam) of WM_COMMAND. EN_CHANGE comes of every change,
/// also of one by a message; EN_MAXTEXT when the limit keeps something from being typed.
/// @{
inline constexpr WORD EN_SETFOCUS = 0x0100;
inline constexpr WORD EN_KILLFOCUS = 0x0200;
inline constexpr WORD EN_CHANGE = 0x0300;
inline constexpr WORD EN_UPDATE = 0x0400;
inline constexpr WORD EN_MAXTEXT = 0x0501;
/// @}

#endif
