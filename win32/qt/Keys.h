#ifndef WIN32_QT_KEYS_H
#define WIN32_QT_KEYS_H

// Keys of Qt as messages.

#include <QKeyEvent>
#include <QString>

#include "win32/Win32.h"

namespace win32::qt {

/// A key that was pressed or let go, as it is remembered until its turn.
struct Key {
    int code = 0;  ///< Qt::Key
    Qt::KeyboardModifiers held;
    QString text;
    bool pressed = true;

    bool Control() const { return held.testFlag(Qt::ControlModifier); }
    bool Shift() const { return held.testFlag(Qt::ShiftModifier); }
    bool Alt() const { return held.testFlag(Qt::AltModifier); }
    bool Keypad() const { return held.testFlag(Qt::KeypadModifier); }
};

Key KeyOf(const QKeyEvent& event);

/// The virtual key code of a key that is no character; 0 for others.
WPARAM VirtualKey(int key);

/// Tells the thread which of Shift, Control and Alt are held.
void SetHeld(Qt::KeyboardModifiers held);

/// Puts the messages of a key into the queue: characters as WM_CHAR, with Alt as WM_SYSCHAR, other
/// keys as WM_KEYDOWN and WM_KEYUP. A character that Windows-1252 doesn't have is refused with a
/// beep.
void PutKey(HWND window, const Key& key);

/// Puts a key that is no character into the queue.
void PutKeyDown(HWND window, WPARAM key);

}  // namespace win32::qt

#endif
