#ifndef WIN32_LISTBOX_H
#define WIN32_LISTBOX_H

/// @file
/// The list box, class "ListBox": rows of text, of which one may be selected.

#include "win32/Types.h"

/// Styles. Only with LBS_NOTIFY does a list tell of selections; LBS_SORT keeps the rows sorted as
/// people read them.
/// @{
inline constexpr DWORD LBS_NOTIFY = 0x0001;
inline constexpr DWORD LBS_SORT = 0x0002;
inline constexpr DWORD LBS_HASSTRINGS = 0x0040;
inline constexpr DWORD LBS_NOINTEGRALHEIGHT = 0x0100;
/// @}

/// Messages to a list box. Rows are counted from 0; where a row is asked for, wParam is its index
/// and lParam a text or its data. LB_ERR answers what cannot be.
/// @{
inline constexpr UINT LB_ADDSTRING = 0x0180;
inline constexpr UINT LB_INSERTSTRING = 0x0181;
inline constexpr UINT LB_DELETESTRING = 0x0182;
inline constexpr UINT LB_RESETCONTENT = 0x0184;
inline constexpr UINT LB_SETCURSEL = 0x0186;
inline constexpr UINT LB_GETCURSEL = 0x0188;
inline constexpr UINT LB_GETTEXT = 0x0189;
inline constexpr UINT LB_GETTEXTLEN = 0x018A;
inline constexpr UINT LB_GETCOUNT = 0x018B;
inline constexpr UINT LB_SELECTSTRING = 0x018C;
inline constexpr UINT LB_GETTOPINDEX = 0x018E;
inline constexpr UINT LB_FINDSTRING = 0x018F;
inline constexpr UINT LB_SETTOPINDEX = 0x0197;
inline constexpr UINT LB_GETITEMRECT = 0x0198;
inline constexpr UINT LB_GETITEMDATA = 0x0199;
inline constexpr UINT LB_SETITEMDATA = 0x019A;
inline constexpr UINT LB_GETITEMHEIGHT = 0x01A1;
inline constexpr UINT LB_FINDSTRINGEXACT = 0x01A2;
/// @}

/// The result of a message that cannot be carried out: no such row, no selection.
inline constexpr LRESULT LB_ERR = -1;

/// What a list box tells its dialog, as HIWORD(wParam) of WM_COMMAND. A selection by a message
/// tells nothing.
/// @{
inline constexpr WORD LBN_SELCHANGE = 1;
inline constexpr WORD LBN_DBLCLK = 2;
inline constexpr WORD LBN_SETFOCUS = 4;
inline constexpr WORD LBN_KILLFOCUS = 5;
/// @}

#endif
