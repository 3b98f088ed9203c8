#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz/Targets.h"
#include "quillbase/CLanguage.h"
#include "quillbase/Numbers.h"

namespace hydrofacts::fuzz {
namespace {

bool IsSame(double a, double b) {
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

// The C library knows numbers too; it is asked in its own locale, whatever the process's is.
void RequireSameNumber(const char* text) {
    static const locale_t kC = ::newlocale(LC_ALL_MASK, "C", nullptr);
    constexpr double kBefore = 123.0;
    double value = kBefore;
    const int result = quillbase::ScanReal(text, &value);
    char* end = nullptr;
    const double expected = ::strtod_l(text, &end, kC);
    if (result != 1) {
        Require(value == kBefore, "what is no number leaves the value as it was");
        // "0x" without a digit is no number to scanf, but a zero to strtod.
        Require(end == text || (*end | 0x20) == 'x', "what strtod reads is a number");
        return;
    }
    Require(end != text && IsSame(value, expected), "a number is the one that strtod reads");
    if (std::isfinite(value)) {
        double back = kBefore;
        Require(quillbase::ScanReal(quillbase::RealToText(value).c_str(), &back) == 1 &&
                    IsSame(back, value),
                "a number's text reads back as the number");
    }
}

void RequireSameInteger(const char* text) {
    std::int32_t value = 123;
    const int result = quillbase::ScanInteger(text, &value);
    char* end = nullptr;
    const long long expected = std::strtoll(text, &end, 0);
    Require((result == 1) == (end != text), "an integer is what strtoll reads");
    Require(value == (result == 1 ? static_cast<std::int32_t>(expected) : 123), "and is the same");
    std::int16_t narrow = 123;
    Require(quillbase::ScanShort(text, &narrow) == result, "a short is read the same");
}

}  // namespace

// The head chooses the language, the rest is the number.
void number_forms(Bytes bytes) {
    static constexpr unsigned long kLanguages[] = {1033, 1031, 1040, 1034, 3081, 0};
    Input input(bytes);
    CLanguage language;
    language.SetLanguage(kLanguages[input.Below(std::size(kLanguages))]);
    const std::string text(input.Text().substr(0, input.Text().find('\0')));
    RequireSameNumber(text.c_str());
    RequireSameInteger(text.c_str());

    const auto english = ExactCopy(text);
    Require(std::strlen(language.EnglishNumber(english.get())) <= text.size(),
            "a number doesn't grow");
    const auto shown = ExactCopy(text);
    Require(std::strlen(language.Number(shown.get())) == text.size(), "a shown number is as long");
    if (text.find(',') == std::string::npos) {
        Require(language.EnglishNumber(shown.get()) == text, "what is shown is read back");
    }
}

}  // namespace hydrofacts::fuzz
