#ifndef WIN32_BUTTON_H
#define WIN32_BUTTON_H

/// @file
/// The button control, class "Button": push buttons, check boxes, radio buttons, group boxes.

#include "win32/Types.h"

/// Styles. The kind of a button is the low four bits, BS_TYPEMASK; with BS_NOTIFY it also tells of
/// the focus.
/// @{
inline constexpr DWORD BS_PUSHBUTTON = 0x00;
inline constexpr DWORD BS_DEFPUSHBUTTON = 0x01;
inline constexpr DWORD BS_CHECKBOX = 0x02;
inline constexpr DWORD BS_AUTOCHECKBOX = 0x03;
inline constexpr DWORD BS_RADIOBUTTON = 0x04;
inline constexpr DWORD BS_3STATE = 0x05;
inline constexpr DWORD BS_AUTO3STATE = 0x06;
inline constexpr DWORD BS_GROUPBOX = 0x07;
inline constexpr DWORD BS_AUTORADIOBUTTON = 0x09;
inline constexpr DWORD BS_TYPEMASK = 0x0F;
inline constexpr DWORD BS_NOTIFY = 0x4000;
/// @}

/// Messages to a button. BM_GETCHECK gives, and BM_SETCHECK takes as wParam, one of BST_UNCHECKED,
/// BST_CHECKED and BST_INDETERMINATE; BM_GETSTATE gives these with BST_PUSHED and BST_FOCUS;
/// BM_SETSTYLE takes a kind as wParam; BM_CLICK does what a click does.
/// @{
inline constexpr UINT BM_GETCHECK = 0x00F0;
inline constexpr UINT BM_SETCHECK = 0x00F1;
inline constexpr UINT BM_GETSTATE = 0x00F2;
inline constexpr UINT BM_SETSTATE = 0x00F3;
inline constexpr UINT BM_SETSTYLE = 0x00F4;
inline constexpr UINT BM_CLICK = 0x00F5;
/// @}

/// Whether a button is checked, and the bits that BM_GETSTATE adds.
/// @{
inline constexpr UINT BST_UNCHECKED = 0;
inline constexpr UINT BST_CHECKED = 1;
inline constexpr UINT BST_INDETERMINATE = 2;
inline constexpr UINT BST_PUSHED = 4;
inline constexpr UINT BST_FOCUS = 8;
/// @}

/// What a button tells its dialog, as HIWORD(wParam) of WM_COMMAND; of the focus only with
/// BS_NOTIFY.
/// @{
inline constexpr WORD BN_CLICKED = 0;
inline constexpr WORD BN_SETFOCUS = 6;
inline constexpr WORD BN_KILLFOCUS = 7;
/// @}

#endif
