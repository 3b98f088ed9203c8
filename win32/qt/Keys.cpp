#include "win32/qt/Keys.h"

#include <QApplication>
#include <algorithm>
#include <array>
#include <string>

#include "win32/qt/Reading.h"

namespace win32::qt {

namespace {

constexpr BYTE kHeldDown = 0x80;
// One stroke; of a key that comes up: it was down before.
constexpr LPARAM kDown = 1;
constexpr LPARAM kUp = static_cast<LPARAM>(0xC0000001U);

struct SameKey {
    Qt::Key key;
    int code;
};

// clang-format off
constexpr std::array kSameKeys{
    SameKey{Qt::Key_Backspace, VK_BACK},
    SameKey{Qt::Key_Tab,       VK_TAB},
    SameKey{Qt::Key_Backtab,   VK_TAB},
    SameKey{Qt::Key_Return,    VK_RETURN},
    SameKey{Qt::Key_Enter,     VK_RETURN},
    SameKey{Qt::Key_Escape,    VK_ESCAPE},
    SameKey{Qt::Key_PageUp,    VK_PRIOR},
    SameKey{Qt::Key_PageDown,  VK_NEXT},
    SameKey{Qt::Key_End,       VK_END},
    SameKey{Qt::Key_Home,      VK_HOME},
    SameKey{Qt::Key_Left,      VK_LEFT},
    SameKey{Qt::Key_Up,        VK_UP},
    SameKey{Qt::Key_Right,     VK_RIGHT},
    SameKey{Qt::Key_Down,      VK_DOWN},
    SameKey{Qt::Key_Delete,    VK_DELETE},
};
// clang-format on

bool IsPrintable(QChar character) {
    constexpr char16_t kDelete = 0x7F;
    return character.unicode() >= u' ' && character.unicode() != kDelete;
}

// A window that takes no characters is operated with the key itself.
bool TakesCharacters(HWND window) {
    return (SendMessageA(window, WM_GETDLGCODE, 0, 0) & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) != 0;
}

void PutCharacters(HWND window, const QString& text, UINT message) {
    QString printable;
    std::copy_if(text.begin(), text.end(), std::back_inserter(printable), &IsPrintable);
    bool complete = true;
    for (const char c : FromUnicode(printable, &complete)) {
        PostMessageA(window, message, static_cast<unsigned char>(c), kDown);
    }
    if (!complete) QApplication::beep();
}

// With Alt the text may be missing.
QString LetterOf(const Key& key) {
    if (!key.text.isEmpty() && IsPrintable(key.text[0])) return key.text;
    const bool ascii = key.code > Qt::Key_Space && key.code <= Qt::Key_AsciiTilde;
    return ascii ? QString(QChar(static_cast<char16_t>(key.code))) : QString();
}

}  // namespace

Key KeyOf(const QKeyEvent& event) {
    return {event.key(), event.modifiers(), event.text(), event.type() != QEvent::KeyRelease};
}

WPARAM VirtualKey(int key) {
    constexpr int kF1 = VK_F4 - 3;
    constexpr int kLast = Qt::Key_F24;
    if (key >= Qt::Key_F1 && key <= kLast) return static_cast<WPARAM>(kF1 + key - Qt::Key_F1);
    const auto* same =
        std::ranges::find_if(kSameKeys, [key](const SameKey& row) { return row.key == key; });
    return same == kSameKeys.end() ? 0 : static_cast<WPARAM>(same->code);
}

void SetHeld(Qt::KeyboardModifiers held) {
    constexpr std::size_t kKeys = 256;
    std::array<BYTE, kKeys> keys{};
    GetKeyboardState(keys.data());
    const auto set = [&](int key, Qt::KeyboardModifier modifier) {
        keys[static_cast<std::size_t>(key)] = held.testFlag(modifier) ? kHeldDown : BYTE{0};
    };
    set(VK_SHIFT, Qt::ShiftModifier);
    set(VK_CONTROL, Qt::ControlModifier);
    set(VK_MENU, Qt::AltModifier);
    SetKeyboardState(keys.data());
}

void PutKeyDown(HWND window, WPARAM key) { PostMessageA(window, WM_KEYDOWN, key, kDown); }

void PutKey(HWND window, const Key& key) {
    const bool space = key.code == Qt::Key_Space && !TakesCharacters(window);
    const WPARAM code = space ? WPARAM{VK_SPACE} : VirtualKey(key.code);
    if (!key.pressed) {
        if (code != 0) PostMessageA(window, WM_KEYUP, code, kUp);
    } else if (code != 0) {
        if (!key.Alt()) PutKeyDown(window, code);
    } else if (key.Alt() && !key.Control()) {
        PutCharacters(window, LetterOf(key), WM_SYSCHAR);
    } else if (!key.Control()) {
        PutCharacters(window, key.text, WM_CHAR);
    }
}

}  // namespace win32::qt
