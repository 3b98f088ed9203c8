#include "win32/qt/Reading.h"

#include <algorithm>

#include "win32/CodePage.h"

namespace win32::qt {

QString ToUnicode(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::ranges::transform(text, result.begin(), [](char c) { return QChar(ToUtf16(c)); });
    return result;
}

std::string FromUnicode(QStringView text, bool* complete) {
    std::string result;
    bool all = true;
    for (const QChar character : text) {
        const char c = FromUtf16(character.unicode());
        if (c == '?' && character != QLatin1Char('?')) {
            all = false;
        } else {
            result += c;
        }
    }
    if (complete != nullptr) *complete = all;
    return result;
}

QString WithoutMnemonic(const QString& text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && i + 1 < text.size()) ++i;
        result += text[i];
    }
    return result;
}

std::string ClassOf(HWND window) {
    constexpr int kLongest = 64;
    char name[kLongest] = "";
    const int length = GetClassNameA(window, name, kLongest);
    return {name, static_cast<std::size_t>(length)};
}

std::string TextOf(HWND window) {
    const auto length = static_cast<std::size_t>(std::max(0, GetWindowTextLengthA(window)));
    std::string text(length + 1, '\0');
    const int copied = GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(std::max(0, copied)));
    return text;
}

DWORD StyleOf(HWND window) { return static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE)); }

bool Has(HWND window, DWORD style) { return (StyleOf(window) & style) == style; }

QRect PlaceOf(HWND window) {
    RECT place{};
    RECT around{};
    GetWindowRect(window, &place);
    if (HWND parent = GetAncestor(window, GA_PARENT)) GetWindowRect(parent, &around);
    return {place.left - around.left, place.top - around.top, place.right - place.left,
            place.bottom - place.top};
}

bool CanBeUsed(HWND window) {
    if (IsWindowVisible(window) == FALSE) return false;
    for (HWND at = window; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
        if (IsWindowEnabled(at) == FALSE) return false;
    }
    return true;
}

HWND TopOf(HWND window) { return GetAncestor(window, GA_ROOT); }

}  // namespace win32::qt
