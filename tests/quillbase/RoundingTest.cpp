#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <system_error>

#include "quillbase/Rounding.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
constexpr double kLargest = std::numeric_limits<double>::max();

struct Case {
    double value;
    int n;
    double expected;
};

// The expected values are decimals that one can write down; the compiler makes doubles of them.
TEST(Rounding, PrecisionGivesTheDoubleNearestToTheDecimal) {
    constexpr Case kCases[] = {
        {998.2071, 4, 998.2},
        {0.0010016, 4, 0.001002},
        {-1234567.0, 3, -1230000.0},
        {9999.6, 4, 10000.0},
        {0.99999, 3, 1.0},
        {1e22, 1, 1e22},
        // True ties go away from zero.
        {2.5, 1, 3.0},
        {-0.125, 2, -0.13},
        {1015.5, 4, 1016.0},
        {0.5 + 2097152.0, 7, 2097153.0},
        // These look like ties, but the doubles lie below the decimals.
        {1.005, 3, 1.0},
        {0.15, 1, 0.1},
        // Less than one digit is one digit, seventeen are all that a double has.
        {4567.0, 0, 5000.0},
        {4567.0, -9, 5000.0},
        {0.1 + 0.2, 16, 0.3},
        {0.1 + 0.2, 17, 0.1 + 0.2},
        // The ends of the range.
        {kSmallest, 1, 5e-324},
        {2.2250738585072014e-308, 3, 2.23e-308},
        {kLargest, 6, 1.79769e308},
        {kLargest, 2, kInfinity},
        {-kInfinity, 4, -kInfinity},
    };
    for (const Case& c : kCases) EXPECT_EQ(Precision(c.value, c.n), c.expected) << c.value;
    EXPECT_TRUE(std::isnan(Precision(std::nan(""), 4)));
    EXPECT_TRUE(std::signbit(Precision(-0.0, 4)));
}

TEST(Rounding, DPlacesGivesTheDoubleNearestToTheDecimal) {
    constexpr double kTwoTo24 = 16777216.0;
    constexpr Case kCases[] = {
        {0.80225, 3, 0.802},
        {9.96, 1, 10.0},
        {10.4, 0, 10.0},
        {-10.6, 0, -11.0},
        {-0.5, 0, -1.0},
        {0.0625, 3, 0.063},
        {123456.0, -2, 123500.0},
        {5e21, -22, 1e22},
        {4.9e21, -22, 0.0},
        {1.0 / kTwoTo24, 23, 5.960464477539063e-8},  // a tie at the 23rd place
        {1e300, 5, 1e300},
        {1e300, -300, 1e300},
        {kSmallest, 340, kSmallest},
        {kSmallest, 3, 0.0},
        {kLargest, 400, kLargest},
        {kLargest, -308, kInfinity},
        {kLargest, -400, 0.0},
        {123.456, 100000, 123.456},
        {123.456, -100000, 0.0},
        {kInfinity, 2, kInfinity},
    };
    for (const Case& c : kCases) EXPECT_EQ(DPlaces(c.value, c.n), c.expected) << c.value;
    EXPECT_TRUE(std::isnan(DPlaces(std::nan(""), 0)));
}

// The standard library's to_chars and from_chars, which are exact and know no locale, as the
// oracle. (The C library's strtod is off by a bit at times with mingw.) They send ties to the even
// digit; where the exact decimal goes on with a five and zeros, the next double away from zero
// decides.
class Oracle {
  public:
    explicit Oracle(std::chars_format format) : format_(format) {}

    void Expect(double value, int digits, double rounded) const {
        double expected = Read(Print(value, digits));
        if (rounded != expected && IsTie(value, digits)) {
            expected = Read(Print(std::nextafter(value, std::copysign(kInfinity, value)), digits));
        }
        EXPECT_EQ(rounded, expected) << Print(value, 17) << " to " << digits;
    }

    static double Read(const std::string& text) {
        double value = 0.0;
        const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
        if (result.ec == std::errc()) return value;
        EXPECT_NE(text.find("e+308"), std::string::npos) << text;
        return text.starts_with('-') ? -kInfinity : kInfinity;
    }

  private:
    std::string Print(double value, int digits) const {
        char text[2048];
        return {text, std::to_chars(text, text + sizeof text, value, format_, digits).ptr};
    }

    bool IsTie(double value, int digits) const {
        constexpr int kAllDigits = 1100;
        const std::string exact = Print(value, kAllDigits);
        const std::size_t rest = exact.find('.') + 1 + static_cast<std::size_t>(digits);
        const std::size_t end = std::min(exact.find('e'), exact.size());
        return exact[rest] == '5' && exact.find_first_not_of('0', rest + 1) >= end;
    }

    std::chars_format format_;
};

constexpr std::uint64_t kSeed = 20260101;

TEST(Rounding, PrecisionAgreesWithExactDecimalsAtEveryMagnitude) {
    SCOPED_TRACE(::testing::Message() << "seed " << kSeed);
    const Oracle oracle(std::chars_format::scientific);
    std::mt19937_64 random(kSeed);
    std::uniform_real_distribution<double> mantissa(1.0, 2.0);
    for (int exponent = -1074; exponent <= 1023; ++exponent) {
        for (const double m : {1.0, 1.0 + mantissa(random) / 1024.0, mantissa(random)}) {
            const double value = std::ldexp(exponent % 2 == 0 ? m : -m, exponent);
            const int n = 1 + static_cast<int>(random() % 16);
            for (const int digits : {n, 4}) {
                oracle.Expect(value, digits - 1, Precision(value, digits));
            }
        }
    }
}

TEST(Rounding, PrecisionAgreesWithExactDecimalsAroundPowersOfTen) {
    const Oracle oracle(std::chars_format::scientific);
    for (int exponent = -323; exponent <= 308; ++exponent) {
        const double power = Oracle::Read("1e" + std::to_string(exponent));
        for (const double value :
             {std::nextafter(power, 0.0), power, std::nextafter(power, 1e308)}) {
            for (const int digits : {1, 4, 15, 16}) {
                oracle.Expect(value, digits - 1, Precision(value, digits));
            }
        }
    }
}

TEST(Rounding, DPlacesAgreesWithExactDecimals) {
    SCOPED_TRACE(::testing::Message() << "seed " << kSeed);
    const Oracle oracle(std::chars_format::fixed);
    std::mt19937_64 random(kSeed);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    for (int i = 0; i < 5000; ++i) {
        const double value = std::ldexp(mantissa(random), static_cast<int>(random() % 120) - 50);
        const int places = static_cast<int>(random() % 30);
        oracle.Expect(value, places, DPlaces(value, places));
    }
}

TEST(Rounding, DisplayTextHasSixDigitsAndAPoint) {
    const struct {
        double value;
        const char* text;
        double rounded;
    } kCases[] = {
        {12.5, "12.5", 12.5},
        {100000.0, "100000", 100000.0},
        {1234567.0, "1.23457e+06", 1234570.0},
        {0.0001, "0.0001", 0.0001},
        {0.00001234567, "1.23457e-05", 0.0000123457},
        {-0.1 - 0.2, "-0.3", -0.3},
        {kLargest, "1.79769e+308", 1.79769e308},
        {0.0, "0", 0.0},
    };
    for (const auto& c : kCases) {
        char scratch[32];
        EXPECT_EQ(RoundIt(c.value, scratch), c.rounded);
        EXPECT_STREQ(scratch, c.text);
    }
}

TEST(Rounding, EqualNumbersDifferByRoundingErrorsAtMost) {
    EXPECT_TRUE(EqualDbl(0.1 + 0.2, 0.3));
    EXPECT_TRUE(EqualDbl(1e300, 1e300 * (1.0 + 9e-13)));
    EXPECT_FALSE(EqualDbl(1e300, 1e300 * (1.0 + 2e-12)));
    EXPECT_FALSE(EqualDbl(0.0, 1e-300));
    EXPECT_TRUE(EqualDbl(0.0, -0.0));
    EXPECT_FALSE(EqualDbl(kLargest, -kLargest));
    EXPECT_TRUE(EqualDbl(kInfinity, kInfinity));
    EXPECT_FALSE(EqualDbl(kInfinity, kLargest));
    EXPECT_FALSE(EqualDbl(std::nan(""), std::nan("")));
}

}  // namespace
