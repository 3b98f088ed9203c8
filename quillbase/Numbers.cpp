#include "quillbase/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>
#include <system_error>

#include "quillbase/PowersOfTen.h"

namespace quillbase {
namespace {

const char* SkipBlanks(const char* text) {
    while (*text == ' ' || (*text >= '\t' && *text <= '\r')) ++text;
    return text;
}

struct Notation {
    std::chars_format format;
    const char* digits;    // what may stand in the number's body
    const char* exponent;  // the letters that begin the exponent
    int digitWeight;       // what one digit adds to the exponent
};

// clang-format off
constexpr Notation kDecimal     = {std::chars_format::general, "0123456789",             "eE", 1};
constexpr Notation kHexadecimal = {std::chars_format::hex,     "0123456789abcdefABCDEF", "pP", 4};
// clang-format on

constexpr const char* kHexadecimalStart = ".0123456789abcdefABCDEF";  // not the i of 0xinf

// The exponent at `text`, or one as good: beyond what any number of digits can make up for, but
// with room to add their count.
long long ScanExponent(const char* text) {
    constexpr long long kHuge = std::numeric_limits<long long>::max() / 2;
    if (*text == '+' && *++text == '-') return 0;  // two signs: no exponent
    long long exponent = 0;
    const auto result = std::from_chars(text, text + std::strlen(text), exponent);
    if (result.ec == std::errc::result_out_of_range) return *text == '-' ? -kHuge : kHuge;
    return std::clamp(exponent, -kHuge, kHuge);
}

// Only called for numbers that no double holds, so the rough order of magnitude decides.
double BeyondDouble(const char* body, const Notation& notation) {
    const char* integerEnd = body + std::strspn(body, notation.digits);
    const char* first = body + std::strspn(body, "0");
    long long order = (integerEnd - first) * notation.digitWeight;
    const char* end = integerEnd;
    if (*end == '.') {
        const char* fraction = end + 1;
        if (first == integerEnd) {
            order = -static_cast<long long>(std::strspn(fraction, "0")) * notation.digitWeight;
        }
        end = fraction + std::strspn(fraction, notation.digits);
    }
    if (*end != '\0' && std::strchr(notation.exponent, *end) != nullptr) {
        order += ScanExponent(end + 1);
    }
    return order > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

// The end of what belongs to a number. libstdc++ 12 reads "0x1p+-2" as a quarter; "p" without a
// number behind it is no exponent.
const char* EndOf(const char* body, bool hexadecimal) {
    const char* end = body + std::strlen(body);
    const char* exponent = hexadecimal ? std::strpbrk(body, "pP") : nullptr;
    return exponent != nullptr && exponent[1] == '+' && exponent[2] == '-' ? exponent : end;
}

int StoreUnsigned(const char* body, const Notation& notation, double* value) {
    const bool hexadecimal = notation.format == std::chars_format::hex;
    if (*body == '-' || (hexadecimal && std::strspn(body, kHexadecimalStart) == 0)) {
        return kNoNumber;
    }
    const auto result = std::from_chars(body, EndOf(body, hexadecimal), *value, notation.format);
    if (result.ec == std::errc::invalid_argument) return kNoNumber;
    if (result.ec == std::errc::result_out_of_range) *value = BeyondDouble(body, notation);
    return 1;
}

// The value of a digit; of anything else more than 9.
constexpr unsigned DigitOf(char c) { return static_cast<unsigned char>(c) - unsigned{'0'}; }

constexpr bool IsDigit(char c) { return DigitOf(c) <= 9; }

// Takes digits into a whole number, which is wrong if they are more than fit; gives their end.
const char* TakeDigits(const char* text, std::uint64_t& whole) {
    for (unsigned digit = DigitOf(*text); digit <= 9; digit = DigitOf(*++text)) {
        whole = whole * 10 + digit;
    }
    return text;
}

// Adds the exponent that begins at `text` to a power. Null if there is none, or one that is too
// long to be of use.
const char* TakeExponent(const char* text, int& power) {
    const bool negative = *text == '-';
    if (*text == '-' || *text == '+') ++text;
    if (!IsDigit(*text)) return nullptr;
    int exponent = *text++ - '0';
    if (IsDigit(*text)) exponent = exponent * 10 + (*text++ - '0');
    power += negative ? -exponent : exponent;
    return IsDigit(*text) ? nullptr : text;
}

}  // namespace

const char* ScanPlainDecimal(const char* text, double* value) {
    constexpr std::uint64_t kLargestWhole = std::uint64_t{1} << 53U;
    constexpr int kLargestPower = static_cast<int>(kPowersOfTen.size()) - 1;
    constexpr int kMostDigits = 19;  // what 64 bits hold of any digits
    const bool negative = *text == '-';
    if (*text == '-' || *text == '+') ++text;
    std::uint64_t digits = 0;
    const char* first = text;
    text = TakeDigits(text, digits);
    std::ptrdiff_t count = text - first;
    int power = 0;
    if (*text == '.') {
        first = text + 1;
        text = TakeDigits(first, digits);
        if (text - first > kMostDigits) return nullptr;
        power = static_cast<int>(first - text);
        count -= power;
    }
    if (count == 0 || count > kMostDigits) return nullptr;
    if (*text == 'e' || *text == 'E') text = TakeExponent(text + 1, power);
    if (text == nullptr || digits > kLargestWhole || std::abs(power) > kLargestPower) {
        return nullptr;
    }
    const auto whole = static_cast<double>(digits);
    const double scale = kPowersOfTen[static_cast<std::size_t>(std::abs(power))];
    const double magnitude = power < 0 ? whole / scale : whole * scale;
    *value = negative ? -magnitude : magnitude;
    return text;
}

int ScanReal(const char* text, double* value) {
    const char* start = SkipBlanks(text);
    if (*start == '\0') return kBlankText;
    double plain = 0.0;
    const char* end = ScanPlainDecimal(start, &plain);
    if (end != nullptr && *end != 'x' && *end != 'X') {
        *value = plain;
        return 1;
    }
    const bool negative = *start == '-';
    const char* body = start + (*start == '-' || *start == '+' ? 1 : 0);

    const bool hexadecimal = body[0] == '0' && (body[1] == 'x' || body[1] == 'X');
    double magnitude = 0.0;
    const int result = hexadecimal ? StoreUnsigned(body + 2, kHexadecimal, &magnitude)
                                   : StoreUnsigned(body, kDecimal, &magnitude);
    if (result == 1) *value = negative ? -magnitude : magnitude;
    return result;
}

int ScanInteger(const char* text, std::int32_t* value) {
    const char* start = SkipBlanks(text);
    if (*start == '\0') return kBlankText;
    // One digit, what table records mostly have: no prefix to look for.
    if (IsDigit(*start) && start[1] == '\0') {
        *value = *start - '0';
        return 1;
    }
    char* end = nullptr;
    const long long number = std::strtoll(start, &end, 0);
    if (end == start) return kNoNumber;
    *value = static_cast<std::int32_t>(number);
    return 1;
}

int ScanShort(const char* text, std::int16_t* value) {
    std::int32_t number = 0;
    const int result = ScanInteger(text, &number);
    if (result == 1) *value = static_cast<std::int16_t>(number);
    return result;
}

std::string RealToText(double value) {
    constexpr std::size_t kLongest = 32;
    char buffer[kLongest];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, result.ptr};
}

}  // namespace quillbase
