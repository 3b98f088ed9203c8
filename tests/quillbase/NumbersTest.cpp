#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

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
