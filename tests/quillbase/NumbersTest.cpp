#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

#include "quillbase/Numbers.h"
#ifndef _WIN32
#include <clocale>
#include <cstdio>
#endif

using quillbase::ScanReal;

namespace {

constexpr double kUntouched = 7.25;

std::uint64_t BitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

// What the library reads in a way of its own has to be the double that the standard library reads.
void ExpectAsFromChars(const std::string& text) {
    double expected = kUntouched;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), expected);
    if (read.ec == std::errc::result_out_of_range) return;
    double value = kUntouched;
    ASSERT_EQ(ScanReal(text.c_str(), &value), read.ec == std::errc{} ? 1 : quillbase::kNoNumber)
        << text;
    ASSERT_EQ(BitsOf(value), BitsOf(expected)) << text;
}

TEST(Numbers, DecimalsAreTheNearestDoubles) {
    std::istringstream edges(
        "9007199254740992 9007199254740993 9007199254740993e1 9007199254740992e22 "
        "9007199254740992e23 9007199254740991e-22 9007199254740991e-23 1e22 1e23 8.5e-22 "
        "8.5e-23 1e+022 1e022 1e-0000022 9999999999999999999 18446744073709551616 "
        "18446744073709551617 0.0000000000000000001 0.00000000000000000001 "
        "00000000000000000000.5 123456789012345678901234567890 0e99 0e999 -0.0 -0e5 -0 5.e1 "
        ".5e1 .e1 1.2.3 1e 1e+ 1e- 1e5e5 1e5.5 1e+-5 1e--5 7E 1.5E+2x 4x "
        "2.2250738585072011e-308 1.7976931348623157e308 0.1e1e 1,5");
    for (std::string text; edges >> text;) ExpectAsFromChars(text);
    std::mt19937_64 random(815);
    for (int i = 0; i < 50000 && !HasFatalFailure(); ++i) {
        // Digits of any number with a point anywhere, and exponents about the largest plain power.
        std::string text = random() % 3 == 0 ? "-" : "";
        text += std::to_string(random() >> (random() % 64));
        if (random() % 8 == 0) text += std::to_string(random() % 1000);
        if (random() % 4 != 0) {
            const std::size_t digits = text.size() - (text.front() == '-' ? 1 : 0);
            text.insert(text.size() - random() % (digits + 1), ".");
        }
        if (random() % 2 == 0) text += "e" + std::to_string(static_cast<int>(random() % 64) - 32);
        ExpectAsFromChars(text);
    }
}

#ifndef _WIN32  // sscanf of Windows differs from C's in details such as "1e" and 0x
void ExpectAsSscanf(const std::string& text) {
    const char* const from = text.c_str();
    double real = kUntouched;
    double expectedReal = kUntouched;
    // glibc takes a hexadecimal point without digits for a number; C doesn't.
    if (text.find("0x.") == std::string::npos) {
        EXPECT_EQ(ScanReal(from, &real), std::sscanf(from, "%lg", &expectedReal)) << text;
        EXPECT_EQ(BitsOf(real), BitsOf(expectedReal)) << text;
    }
    std::int32_t whole = 99;
    std::int32_t expectedWhole = 99;
    EXPECT_EQ(quillbase::ScanInteger(from, &whole), std::sscanf(from, "%i", &expectedWhole))
        << text;
    EXPECT_EQ(whole, expectedWhole) << text;
    std::int16_t cut = 99;
    std::int16_t expectedCut = 99;
    EXPECT_EQ(quillbase::ScanShort(from, &cut), std::sscanf(from, "%hi", &expectedCut)) << text;
    EXPECT_EQ(cut, expectedCut) << text;
}

TEST(Numbers, ScannersAgreeWithSscanfInTheCLocale) {
    const locale_t cLocale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t former = ::uselocale(cLocale);
    for (const char* text :
         {" \t\v\f\r\n-2.5e-3abc", " \t ", "-0XFF", "0xinf", "0x1p+-20", "inf", "-Infinity", "NaN",
          "-1e99999999999999999999", "0.01e-99999999999999999999", "0x1p99999", "-0x1p-99999",
          "0x0.0000001p-1060", "0.00001e-320", "179769313486231570000e288"})
        ExpectAsSscanf(text);
    std::mt19937_64 random(4711);
    for (const std::string_view alphabet : {"0123456789+-.eE ", "0x0x1789abcf.pP+-", "0123456789",
                                            "0123456789012345678901234567890123456789.-+eE"}) {
        for (int i = 0; i < 20000; ++i) {
            std::string text;
            for (std::uint64_t n = random() % 24; n > 0; --n)
                text += alphabet[random() % alphabet.size()];
            ExpectAsSscanf(text);
        }
    }
    ::uselocale(former);
    ::freelocale(cLocale);
}
#endif

}  // namespace
