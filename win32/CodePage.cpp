#include "win32/CodePage.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr unsigned kFirst = 0x80;

// 0x80 to 0x9F; the rest of Windows-1252 is Latin-1. Source: Unicode consortium, CP1252.TXT.
// clang-format off
constexpr char16_t kUpperControls[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
// clang-format on

}  // namespace

namespace win32 {

char16_t ToUtf16(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < kFirst || byte >= kFirst + std::size(kUpperControls)) return byte;
    return kUpperControls[byte - kFirst];
}

char FromUtf16(char16_t unit) {
    const auto* found = std::find(std::begin(kUpperControls), std::end(kUpperControls), unit);
    if (found != std::end(kUpperControls)) {
        return static_cast<char>(kFirst + (found - std::begin(kUpperControls)));
    }
    const bool latin1 =
        unit < kFirst || (unit >= kFirst + std::size(kUpperControls) && unit < 0x100);
    return latin1 ? static_cast<char>(unit) : '?';
}

}  // namespace win32
