#ifndef WIN32_COMBOBOX_H
#define WIN32_COMBOBOX_H

/// @file
/// The combo box, class "ComboBox": an edit or a text with a list that drops down.

#include "win32/Export.h"
#include "win32/Types.h"

/// Styles. The kind is one of CBS_SIMPLE (edit with the list always shown), CBS_DROPDOWN (edit,
/// list on demand) and CBS_DROPDOWNLIST (no edit); CBS_SORT keeps the rows sorted as people read
/// them.
/// @{
inline constexpr DWORD CBS_SIMPLE = 0x0001;
inline constexpr DWORD CBS_DROPDOWN = 0x0002;
inline constexpr DWORD CBS_DROPDOWNLIST = 0x0003;
inline constexpr DWORD CBS_AUTOHSCROLL = 0x0040;
inline constexpr DWORD CBS_SORT = 0x0100;
inline constexpr DWORD CBS_HASSTRINGS = 0x0200;
inline constexpr DWORD CBS_NOINTEGRALHEIGHT = 0x0400;
/// @}

/// Messages to a combo box. Rows are counted from 0; where a row is asked for, wParam is its index
/// and lParam a text or its data. CB_ERR answers what cannot be.
/// @{
inline constexpr UINT CB_GETEDITSEL = 0x0140;
inline constexpr UINT CB_LIMITTEXT = 0x0141;
inline constexpr UINT CB_SETEDITSEL = 0x0142;
inline constexpr UINT CB_ADDSTRING = 0x0143;
inline constexpr UINT CB_DELETESTRING = 0x0144;
inline constexpr UINT CB_GETCOUNT = 0x0146;
inline constexpr UINT CB_GETCURSEL = 0x0147;
inline constexpr UINT CB_GETLBTEXT = 0x0148;
inline constexpr UINT CB_GETLBTEXTLEN = 0x0149;
inline constexpr UINT CB_INSERTSTRING = 0x014A;
inline constexpr UINT CB_RESETCONTENT = 0x014B;
inline constexpr UINT CB_FINDSTRING = 0x014C;
inline constexpr UINT CB_SELECTSTRING = 0x014D;
inline constexpr UINT CB_SETCURSEL = 0x014E;
inline constexpr UINT CB_SHOWDROPDOWN = 0x014F;
inline constexpr UINT CB_GETITEMDATA = 0x0150;
inline constexpr UINT CB_SETITEMDATA = 0x0151;
inline constexpr UINT CB_GETDROPPEDSTATE = 0x0157;
inline constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
/// @}

/// Results of the messages that give no row.
/// @{
inline constexpr LRESULT CB_ERR = -1;
inline constexpr LRESULT CB_OKAY = 0;
/// @}

/// What a combo box tells its dialog, as HIWORD(wParam) of WM_COMMAND. A selection by a message
/// tells nothing.
/// @{
inline constexpr WORD CBN_SELCHANGE = 1;
inline constexpr WORD CBN_DBLCLK = 2;
inline constexpr WORD CBN_SETFOCUS = 3;
inline constexpr WORD CBN_KILLFOCUS = 4;
inline constexpr WORD CBN_EDITCHANGE = 5;
inline constexpr WORD CBN_EDITUPDATE = 6;
inline constexpr WORD CBN_DROPDOWN = 7;
inline constexpr WORD CBN_CLOSEUP = 8;
inline constexpr WORD CBN_SELENDOK = 9;
inline constexpr WORD CBN_SELENDCANCEL = 10;
/// @}

/// The windows that a combo box is made of.
struct COMBOBOXINFO {
    DWORD cbSize;       ///< size of this structure, set by the caller
    RECT rcItem;        ///< the edit or the chosen text, as seen from the combo box
    RECT rcButton;      ///< the button that drops the list down
    DWORD stateButton;  ///< not filled here
    HWND hwndCombo;     ///< the combo box itself
    HWND hwndItem;      ///< the edit; the combo box itself if it has none
    HWND hwndList;      ///< the list
};

/// Fills `info`, whose `cbSize` the caller has set. FALSE for another size (error 87) or if `combo`
/// is no combo box (error 1400).
HYDROFACTS_API BOOL GetComboBoxInfo(HWND combo, COMBOBOXINFO* info);

#endif
