#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "quillbase/Rounding.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
constexpr double kLargest = std::numeric_limits<double>::max();

// The expected values are decimals that one can write down; the compiler makes doubles of them.
TEST(Rounding, GivesTheDoubleNearestToTheDecimal) {
    constexpr struct {
        double (*round)(double, int);
        double value;
        int n;
        double expected;
    } kCases[] = {
        // True ties go away from zero.
        {&Precision, 2.5, 1, 3.0},
        {&Precision, -0.125, 2, -0.13},
        {&Precision, 0.5 + 2097152.0, 7, 2097153.0},
        {&DPlaces, -0.5, 0, -1.0},
        {&DPlaces, 0x1p-24, 23, 5.960464477539063e-8},
        // This looks like a tie, but the double lies below the decimal.
        {&Precision, 1.005, 3, 1.0},
        // Less than one digit is one digit, seventeen are all that a double has.
        {&Precision, 4567.0, -9, 5000.0},
        {&Precision, 0.1 + 0.2, 16, 0.3},
        {&Precision, 0.1 + 0.2, 17, 0.1 + 0.2},
        {&DPlaces, 123456.0, -2, 123500.0},
        // The ends of the range.
        {&Precision, kLargest, 2, kInfinity},
        {&Precision, -kInfinity, 4, -kInfinity},
        {&DPlaces, kSmallest, 340, kSmallest},
        {&DPlaces, kLargest, 400, kLargest},
        {&DPlaces, kLargest, -308, kInfinity},
        {&DPlaces, 123.456, 100000, 123.456},
        {&DPlaces, 123.456, -100000, 0.0},
    };
    for (const auto& c : kCases) EXPECT_EQ(c.round(c.value, c.n), c.expected) << c.value;
    EXPECT_TRUE(std::isnan(Precision(std::nan(""), 4)));
    EXPECT_TRUE(std::isnan(DPlaces(std::nan(""), 0)));
    EXPECT_TRUE(std::signbit(Precision(-0.0, 4)));
}

// The standard library's to_chars and from_chars, which are exact and know no locale, as the
// oracle. (The C library's strtod is off by a bit at times with mingw.)
std::string Print(double value, std::chars_format format, int digits) {
    char text[2048];
    return {text, std::to_chars(text, text + sizeof text, value, format, digits).ptr};
}

double Read(const std::string& text) {
    double value = text.starts_with('-') ? -kInfinity : kInfinity;  // stays where none is near
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

void ExpectExact(double rounded, double value, std::chars_format format, int digits) {
    constexpr int kAllDigits = 1100;
    const std::string exact = Print(value, format, kAllDigits);
    const std::size_t rest = exact.find('.') + 1 + static_cast<std::size_t>(digits);
    const std::size_t end = std::min(exact.find('e'), exact.size());
    const bool tie = exact[rest] == '5' && exact.find_first_not_of('0', rest + 1) >= end;
    // The oracle sends ties to the even digit; where that is the lower one, the next is wanted.
    std::string expected = Print(value, format, digits);
    const std::size_t last = std::min(expected.find('e'), expected.size()) - 1;
    if (tie && exact.starts_with(expected.substr(0, last + 1))) ++expected[last];
    EXPECT_EQ(rounded, Read(expected)) << Print(value, format, 17) << " to " << digits;
}

TEST(Rounding, PrecisionAgreesWithExactDecimalsAtEveryMagnitude) {
    std::mt19937_64 random(20260101);
    std::uniform_real_distribution<double> mantissa(1.0, 2.0);
    std::vector<double> values;
    for (int exponent = -1074; exponent <= 1023; ++exponent) {
        for (const double m : {1.0, -1.0 - mantissa(random) / 1024.0, mantissa(random)})
            values.push_back(std::ldexp(m, exponent));
    }
    for (int exponent = -323; exponent <= 308; ++exponent) {
        const double power = Read("1e" + std::to_string(exponent));
        values.insert(values.end(),
                      {std::nextafter(power, 0.0), power, std::nextafter(power, 2.0 * power)});
    }
    for (const double value : values) {
        for (const int n : {1 + static_cast<int>(random() % 16), 1, 4, 15, 16})
            ExpectExact(Precision(value, n), value, std::chars_format::scientific, n - 1);
    }
}

TEST(Rounding, DPlacesAgreesWithExactDecimals) {
    std::mt19937_64 random(20260101);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    for (int i = 0; i < 5000; ++i) {
        const double value = std::ldexp(mantissa(random), static_cast<int>(random() % 120) - 50);
        const int places = static_cast<int>(random() % 30);
        ExpectExact(DPlaces(value, places), value, std::chars_format::fixed, places);
    }
}

TEST(Rounding, DisplayTextHasSixDigitsAndAPoint) {
    const struct {
        double value;
        const char* text;
    } kCases[] = {
        {1234567.0, "1.23457e+06"},
        {100000.0, "100000"},
        {0.0001, "0.0001"},
        {0.00001234567, "1.23457e-05"},
        {-0.1 - 0.2, "-0.3"},
        {kLargest, "1.79769e+308"},
        {0.0, "0"},
    };
    for (const auto& c : kCases) {
        char scratch[32];
        EXPECT_EQ(RoundIt(c.value, scratch), Read(c.text));
        EXPECT_STREQ(scratch, c.text);
    }
}

TEST(Rounding, EqualNumbersDifferByRoundingErrorsAtMost) {
    EXPECT_TRUE(EqualDbl(1e300, 1e300 * (1.0 + 9e-13)));
    EXPECT_FALSE(EqualDbl(1e300, 1e300 * (1.0 + 2e-12)));
    EXPECT_FALSE(EqualDbl(0.0, 1e-300));
    EXPECT_TRUE(EqualDbl(kInfinity, kInfinity));
    EXPECT_FALSE(EqualDbl(kInfinity, kLargest));
    EXPECT_FALSE(EqualDbl(std::nan(""), std::nan("")));
}

}  // namespace
