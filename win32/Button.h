#ifndef WIN32_BUTTON_H
#define WIN32_BUTTON_H

// The button control, class "Button": push buttons, check boxes, radio buttons, group boxes.

#include "win32/Types.h"

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

inline constexpr UINT BM_GETCHECK = 0x00F0;
inline constexpr UINT BM_SETCHECK = 0x00F1;
inline constexpr UINT BM_GETSTATE = 0x00F2;
inline constexpr UINT BM_SETSTATE = 0x00F3;
inline constexpr UINT BM_SETSTYLE = 0x00F4;
inline constexpr UINT BM_CLICK = 0x00F5;

inline constexpr UINT BST_UNCHECKED = 0;
inline constexpr UINT BST_CHECKED = 1;
inline constexpr UINT BST_INDETERMINATE = 2;
inline constexpr UINT BST_PUSHED = 4;
inline constexpr UINT BST_FOCUS = 8;

inline constexpr WORD BN_CLICKED = 0;
inline constexpr WORD BN_SETFOCUS = 6;   // with BS_NOTIFY
inline constexpr WORD BN_KILLFOCUS = 7;  // with BS_NOTIFY

#endif
