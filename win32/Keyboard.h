#ifndef WIN32_KEYBOARD_H
#define WIN32_KEYBOARD_H

/// @file
/// Keys, and which of them are held, as each thread sees it.

#include "win32/Export.h"
#include "win32/Types.h"

/// Keys: wParam of WM_KEYDOWN and WM_KEYUP. Digits and letters are the characters '0' to '9' and
/// 'A' to 'Z'.
/// @{
inline constexpr int VK_BACK = 0x08;
inline constexpr int VK_TAB = 0x09;
inline constexpr int VK_RETURN = 0x0D;
inline constexpr int VK_SHIFT = 0x10;
inline constexpr int VK_CONTROL = 0x11;
inline constexpr int VK_MENU = 0x12;
inline constexpr int VK_ESCAPE = 0x1B;
inline constexpr int VK_SPACE = 0x20;
inline constexpr int VK_PRIOR = 0x21;
inline constexpr int VK_NEXT = 0x22;
inline constexpr int VK_END = 0x23;
inline constexpr int VK_HOME = 0x24;
inline constexpr int VK_LEFT = 0x25;
inline constexpr int VK_UP = 0x26;
inline constexpr int VK_RIGHT = 0x27;
inline constexpr int VK_DOWN = 0x28;
inline constexpr int VK_DELETE = 0x2E;
inline constexpr int VK_MULTIPLY = 0x6A;
inline constexpr int VK_ADD = 0x6B;
inline constexpr int VK_SUBTRACT = 0x6D;
inline constexpr int VK_DECIMAL = 0x6E;
inline constexpr int VK_F4 = 0x73;
inline constexpr int VK_OEM_COMMA = 0xBC;
inline constexpr int VK_OEM_MINUS = 0xBD;
inline constexpr int VK_OEM_PERIOD = 0xBE;
/// @}

/// Negative while the key is held.
HYDROFACTS_API SHORT GetKeyState(int key);
/// All 256 keys: the high bit of a byte says that the key is held.
HYDROFACTS_API BOOL GetKeyboardState(BYTE* keys);
/// Takes over the state of all 256 keys, for this thread. Always TRUE.
HYDROFACTS_API BOOL SetKeyboardState(BYTE* keys);

#endif
