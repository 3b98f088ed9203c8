#include "win32/Text.h"

#include <algorithm>
#include <string>

namespace {

unsigned char Capital(unsigned char c) {
    switch (c) {
        case 0x9A:
        case 0x9C:
        case 0x9E:
            return static_cast<unsigned char>(c - 0x10);
        case 0xF7:
            return c;  // the division sign has no case
        case 0xFF:
            return 0x9F;
        default:
            break;
    }
    const bool small = (c >= 'a' && c <= 'z') || c >= 0xE0;
    return small ? static_cast<unsigned char>(c - 0x20) : c;
}

// The accented capitals and, in the same place of the second text, the letters that they are sorted
// with. The ligatures and the sharp s stand with the first letter that they are made of.
constexpr unsigned char kAccented[] = {0xC0, 0xC1, 0xC2, 0xC3, 0xC4, 0xC5, 0xC6, 0xC7, 0xC8, 0xC9,
                                       0xCA, 0xCB, 0xCC, 0xCD, 0xCE, 0xCF, 0xD0, 0xD1, 0xD2, 0xD3,
                                       0xD4, 0xD5, 0xD6, 0xD8, 0xD9, 0xDA, 0xDB, 0xDC, 0xDD, 0xDE,
                                       0xDF, 0x8A, 0x8C, 0x8E, 0x9F, 0x83, 0xAA, 0xBA, 0};
constexpr char kPlain[] = "AAAAAAACEEEEIIIIDNOOOOOOUUUUYTSSOZYFAO";
static_assert(sizeof kAccented == sizeof kPlain);

char WithoutAccent(char capital) {
    const auto* found = std::find(std::begin(kAccented), std::end(kAccented) - 1,
                                  static_cast<unsigned char>(capital));
    return found == std::end(kAccented) - 1 ? capital : kPlain[found - std::begin(kAccented)];
}

bool IsPassedOver(char c) { return c == '-' || c == '\''; }

// The text as it is sorted in the first place: a class before each character.
std::string Plain(std::string_view text) {
    std::string plain;
    for (const char c : text) {
        if (IsPassedOver(c)) continue;
        const char base = WithoutAccent(win32::ToUpper(c));
        const bool digit = base >= '0' && base <= '9';
        const bool letter = base >= 'A' && base <= 'Z';
        plain += letter ? '2' : digit ? '1' : '0';
        plain += base;
    }
    return plain;
}

std::string Upper(std::string_view text, bool withHyphens) {
    std::string upper;
    for (const char c : text) {
        if (withHyphens || !IsPassedOver(c)) upper += win32::ToUpper(c);
    }
    return upper;
}

}  // namespace

namespace win32 {

char ToUpper(char c) { return static_cast<char>(Capital(static_cast<unsigned char>(c))); }

bool EqualWithoutCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && StartsWithoutCase(a, b);
}

bool StartsWithoutCase(std::string_view text, std::string_view start) {
    return text.size() >= start.size() &&
           std::equal(start.begin(), start.end(), text.begin(),
                      [](char a, char b) { return ToUpper(a) == ToUpper(b); });
}

int CompareForSorting(std::string_view a, std::string_view b) {
    if (const int order = Plain(a).compare(Plain(b))) return order;
    if (const int order = Upper(a, false).compare(Upper(b, false))) return order;
    return Upper(a, true).compare(Upper(b, true));
}

}  // namespace win32

LPSTR CharUpperA(LPSTR text) {
    constexpr UINT_PTR kFirstAddress = 0x10000;
    const auto value = reinterpret_cast<UINT_PTR>(text);
    if (value < kFirstAddress) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        return reinterpret_cast<LPSTR>(UINT_PTR{Capital(static_cast<unsigned char>(value))});
    }
    for (char* c = text; *c != '\0'; ++c) {
        *c = static_cast<char>(Capital(static_cast<unsigned char>(*c)));
    }
    return text;
}
