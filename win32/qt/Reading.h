#ifndef WIN32_QT_READING_H
#define WIN32_QT_READING_H

// What the view reads of a window, with the messages that any host uses, and texts between
// Windows-1252 and Unicode.

#include <QRect>
#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

#include "win32/Win32.h"

namespace win32::qt {

QString ToUnicode(std::string_view text);

/// Leaves out the characters that Windows-1252 doesn't have; `complete` says whether there were
/// none.
std::string FromUnicode(QStringView text, bool* complete = nullptr);

/// A text without the ampersands that mark letters to underline.
QString WithoutMnemonic(const QString& text);

/// An argument of a message that carries a window.
inline HWND ToWindow(LONG_PTR value) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number
    return reinterpret_cast<HWND>(value);
}

std::string ClassOf(HWND window);
std::string TextOf(HWND window);
DWORD StyleOf(HWND window);
bool Has(HWND window, DWORD style);

/// In its parent, in pixels; that of a top-level window is on the screen.
QRect PlaceOf(HWND window);

/// Whether a user could do something with a window: it is there, and it and all that it stands in
/// are shown and enabled.
bool CanBeUsed(HWND window);

/// The top-level window that a window stands in, or is.
HWND TopOf(HWND window);

}  // namespace win32::qt

#endif
