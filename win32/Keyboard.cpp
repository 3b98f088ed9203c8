#include "win32/Keyboard.h"

#include <algorithm>

#include "win32/MessageQueue.h"
#include "win32/Queue.h"
#include "win32/Window.h"

namespace {

constexpr BYTE kHeld = 0x80;

// The character of a key on the US keyboard, 0 if it has none here.
char CharacterOf(WPARAM key, bool shift) {
    if (key >= 'A' && key <= 'Z') return static_cast<char>(shift ? key : key + ('a' - 'A'));
    if (key >= '0' && key <= '9' && !shift) return static_cast<char>(key);
    switch (key) {
        case VK_BACK:
        case VK_TAB:
        case VK_RETURN:
        case VK_ESCAPE:
        case VK_SPACE:
            return static_cast<char>(key);
        case VK_MULTIPLY:
            return '*';
        case VK_ADD:
            return '+';
        case VK_SUBTRACT:
        case VK_OEM_MINUS:
            return shift && key == VK_OEM_MINUS ? '_' : '-';
        case VK_DECIMAL:
        case VK_OEM_PERIOD:
            return shift && key == VK_OEM_PERIOD ? '>' : '.';
        case VK_OEM_COMMA:
            return shift ? '<' : ',';
        default:
            return '\0';
    }
}

}  // namespace

SHORT GetKeyState(int key) {
    const auto& keys = win32::ThisThread().keys;
    if (key < 0 || static_cast<std::size_t>(key) >= keys.size()) return 0;
    const bool held = (keys[static_cast<std::size_t>(key)] & kHeld) != 0;
    return static_cast<SHORT>(held ? -0x80 : 0);
}

BOOL GetKeyboardState(BYTE* keys) {
    std::ranges::copy(win32::ThisThread().keys, keys);
    return TRUE;
}

BOOL SetKeyboardState(BYTE* keys) {
    auto& own = win32::ThisThread().keys;
    std::copy_n(keys, own.size(), own.begin());
    return TRUE;
}

BOOL TranslateMessage(const MSG* message) {
    if (message->message != WM_KEYDOWN && message->message != WM_SYSKEYDOWN) return FALSE;
    const char character = CharacterOf(message->wParam, GetKeyState(VK_SHIFT) < 0);
    if (character == '\0') return FALSE;
    MSG typed = *message;
    typed.message = message->message == WM_KEYDOWN ? WM_CHAR : WM_SYSCHAR;
    typed.wParam = static_cast<unsigned char>(character);
    win32::ThisThread().queue->PushFront(typed);
    return TRUE;
}
