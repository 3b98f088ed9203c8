#include "tools/Encoding.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace hydrofacts::command {
namespace {

// What the bytes 0x80 to 0x9F stand for; every other byte is the code point of the same number.
// clang-format off
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

char32_t CodePoint(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : byte;
}

std::optional<char> Windows1252Byte(char32_t point) {
    const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), point);
    if (found != kHighControls.end()) {
        return static_cast<char>(0x80 + std::distance(kHighControls.begin(), found));
    }
    if (point < 0x80 || (point >= 0xA0 && point < 0x100)) return static_cast<char>(point);
    return std::nullopt;
}

void AppendUtf8(std::string& text, char32_t point) {
    if (point < 0x80) {
        text += static_cast<char>(point);
        return;
    }
    // No code point of Windows-1252 needs more than three bytes.
    if (point < 0x800) {
        text += static_cast<char>(0xC0U | (point >> 6U));
    } else {
        text += static_cast<char>(0xE0U | (point >> 12U));
        text += static_cast<char>(0x80U | ((point >> 6U) & 0x3FU));
    }
    text += static_cast<char>(0x80U | (point & 0x3FU));
}

// The bytes of a character that begins so; 0 if none does.
std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead < 0xC2) return 0;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    return lead < 0xF5 ? 4 : 0;
}

// Takes one code point off the front of `text`; nothing if it doesn't begin with a well-formed one.
std::optional<char32_t> TakeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || text.size() < length) return std::nullopt;
    char32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (const char c : text.substr(1, length - 1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80U) return std::nullopt;
        point = (point << 6U) | (byte & 0x3FU);
    }
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    const bool surrogate = point >= 0xD800 && point < 0xE000;
    if (overlong || surrogate || point > 0x10FFFF) return std::nullopt;
    text.remove_prefix(length);
    return point;
}

}  // namespace

std::string Utf8FromWindows1252(std::string_view text) {
    std::string result;
    for (const char c : text) AppendUtf8(result, CodePoint(static_cast<unsigned char>(c)));
    return result;
}

std::optional<std::string> Windows1252FromUtf8(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto point = TakeCodePoint(text);
        if (!point) return std::nullopt;
        const auto byte = Windows1252Byte(*point);
        if (!byte) return std::nullopt;
        result += *byte;
    }
    return result;
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        if (!TakeCodePoint(text)) return false;
    }
    return true;
}

}  // namespace hydrofacts::command
