#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
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

using quillbase::kBlankText;
using quillbase::kNoNumber;
using quillbase::ScanInteger;
using quillbase::ScanReal;

namespace {

constexpr double kUntouched = 7.25;

TEST(Numbers, RealsReadAsTheFormatLgReadsThem) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    // What follows these digits is no exponent.
    const std::string twoSigns = std::string(400, '7') + "e+-500";
    const std::string twoSignsHexadecimal = "0x" + std::string(400, '7') + "p+-9000";
    const struct {
        const char* text;
        int result;
        double value;
    } kCases[] = {
        {"1.5", 1, 1.5},
        {" \t\v\f\r\n-2.5e-3abc", 1, -0.0025},
        {"+.5", 1, 0.5},
        {"5.", 1, 5.0},
        {"1,5", 1, 1.0},  // the point is the decimal sign in every locale
        {"12\t34", 1, 12.0},
        {"1e3", 1, 1000.0},
        {"1E+3", 1, 1000.0},
        {"0x1.8p1", 1, 3.0},
        {"-0XFF", 1, -255.0},
        {"0x1p+-20", 1, 1.0},
        {"0x1p-20", 1, 0x1p-20},
        {"inf", 1, kInfinity},
        {"-Infinity", 1, -kInfinity},
        {"1e400", 1, kInfinity},
        {"-1e99999999999999999999", 1, -kInfinity},
        {twoSigns.c_str(), 1, kInfinity},
        {twoSignsHexadecimal.c_str(), 1, kInfinity},
        // With the count of digits these exponents exceed 64 bits.
        {"1e9223372036854775807", 1, kInfinity},
        {"1e-9223372036854775808", 1, 0.0},
        {"0.01e-9223372036854775808", 1, 0.0},
        {"0.00001e-320", 1, 0.0},
        {"1e-99999999999999999999", 1, 0.0},
        {"0x1p99999", 1, kInfinity},
        {"0x.0000001p-1060", 1, 0.0},
        {"4.9e-324", 1, 4.9e-324},
        {"179769313486231570000e288", 1, std::numeric_limits<double>::max()},
        {"", kBlankText, kUntouched},
        {"  \t ", kBlankText, kUntouched},
        {".", kNoNumber, kUntouched},
        {"-", kNoNumber, kUntouched},
        {"+-1", kNoNumber, kUntouched},
        {"e5", kNoNumber, kUntouched},
        {"0x", kNoNumber, kUntouched},
        {"0xinf", kNoNumber, kUntouched},
        {"- 1", kNoNumber, kUntouched},
        {"abc", kNoNumber, kUntouched},
    };
    for (const auto& c : kCases) {
        double value = kUntouched;
        EXPECT_EQ(ScanReal(c.text, &value), c.result) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    double notANumber = 0.0;
    EXPECT_EQ(ScanReal("NaN", &notANumber), 1);
    EXPECT_TRUE(std::isnan(notANumber));
}

// What the library reads in a way of its own has to be the double that the standard library reads.
void ExpectAsFromChars(const std::string& text) {
    double expected = 0.0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), expected);
    if (read.ec == std::errc::result_out_of_range) return;
    double value = kUntouched;
    ASSERT_EQ(ScanReal(text.c_str(), &value), read.ec == std::errc{} ? 1 : kNoNumber) << text;
    if (read.ec != std::errc{}) expected = kUntouched;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected)) << text;
}

TEST(Numbers, DecimalsAreTheNearestDoubles) {
    constexpr std::uint64_t kSeed = 815;
    SCOPED_TRACE(::testing::Message() << "seed " << kSeed);
    std::istringstream edges(
        "9007199254740992 9007199254740993 9007199254740993e1 9007199254740992e22 "
        "9007199254740992e23 9007199254740991e-22 9007199254740991e-23 1e22 1e23 8.5e-22 "
        "8.5e-23 1e+022 1e022 1e-0000022 9999999999999999999 18446744073709551616 "
        "18446744073709551617 0.0000000000000000001 0.00000000000000000001 "
        "00000000000000000000.5 123456789012345678901234567890 0e99 0e999 -0.0 -0e5 -0 5.e1 "
        ".5e1 .e1 1.2.3 1e 1e+ 1e- 1e5e5 1e5.5 1e+-5 1e--5 7E 1.5E+2x 4x "
        "2.2250738585072011e-308 1.7976931348623157e308 0.1e1e 1,5");
    for (std::string text; edges >> text;) ExpectAsFromChars(text);
    std::mt19937_64 random(kSeed);
    for (int i = 0; i < 50000; ++i) {
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
        if (HasFatalFailure()) return;
    }
    constexpr std::string_view kAlphabet = "0123456789012345678901234567890123456789.-+eE";
    for (int i = 0; i < 50000; ++i) {
        std::string text(1, kAlphabet[random() % 40]);
        for (std::uint64_t n = random() % 24; n > 0; --n)
            text += kAlphabet[random() % kAlphabet.size()];
        ExpectAsFromChars(text);
        if (HasFatalFailure()) return;
    }
}

TEST(Numbers, IntegersReadAsTheFormatIReadsThem) {
    const struct {
        const char* text;
        int result;
        std::int32_t value;
        std::int16_t cut;
    } kCases[] = {
        {"12", 1, 12, 12},
        {" -7x", 1, -7, -7},
        {"0x1F", 1, 31, 31},
        {"010", 1, 8, 8},
        {"09", 1, 0, 0},
        {"65537", 1, 65537, 1},
        {"4294967298", 1, 2, 2},
        {"99999999999999999999", 1, -1, -1},  // the largest of 64 bits, cut
        {"", kBlankText, 99, 99},
        {"\t ", kBlankText, 99, 99},
        {"P1", kNoNumber, 99, 99},
        {"+", kNoNumber, 99, 99},
    };
    for (const auto& c : kCases) {
        std::int32_t value = 99;
        EXPECT_EQ(ScanInteger(c.text, &value), c.result) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
        std::int16_t cut = 99;
        EXPECT_EQ(quillbase::ScanShort(c.text, &cut), c.result) << c.text;
        EXPECT_EQ(cut, c.cut) << c.text;
    }
}

#ifndef _WIN32  // sscanf of Windows differs from C's in details such as "1e" and 0x
TEST(Numbers, ScannersAgreeWithSscanfInTheCLocale) {
    constexpr std::uint64_t kSeed = 4711;
    SCOPED_TRACE(::testing::Message() << "seed " << kSeed);
    const locale_t cLocale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t former = ::uselocale(cLocale);
    std::mt19937_64 random(kSeed);
    for (const std::string_view alphabet :
         {"0123456789+-.eE ", "0x0x1789abcf.pP+-", "0123456789"}) {
        for (int i = 0; i < 20000; ++i) {
            std::string text;
            for (std::uint64_t n = random() % 12; n > 0; --n)
                text += alphabet[random() % alphabet.size()];
            double real = kUntouched;
            double expectedReal = kUntouched;
            // glibc takes a hexadecimal point without digits for a number; C doesn't.
            if (text.find("0x.") == std::string::npos) {
                EXPECT_EQ(ScanReal(text.c_str(), &real),
                          std::sscanf(text.c_str(), "%lg", &expectedReal))
                    << text;
                EXPECT_EQ(real, expectedReal) << text;
            }
            std::int32_t whole = 99;
            int expectedWhole = 99;
            EXPECT_EQ(ScanInteger(text.c_str(), &whole),
                      std::sscanf(text.c_str(), "%i", &expectedWhole))
                << text;
            EXPECT_EQ(whole, expectedWhole) << text;
        }
    }
    ::uselocale(former);
    ::freelocale(cLocale);
}
#endif

TEST(Numbers, TextOfARealIsTheShortestThatComesBack) {
    EXPECT_EQ(quillbase::RealToText(14.696), "14.696");
    EXPECT_EQ(quillbase::RealToText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(quillbase::RealToText(-1e-300), "-1e-300");
}

}  // namespace
