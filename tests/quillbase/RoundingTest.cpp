#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

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

// The C library's printf and strtod, both under the same locale, as the oracle. They send ties to
// the even digit, so a difference is good only if the rest of the exact decimal is a five and
// zeros, and then the result must lie further from zero.
class Oracle {
  public:
    explicit Oracle(bool scientific) : scientific_(scientific) {}

    void Expect(double value, int digits, double rounded) const {
        const double expected = std::strtod(Print(value, digits).c_str(), nullptr);
        if (rounded == expected) return;
        const double exact = std::fabs(std::strtod(Print(value, digits + 2).c_str(), nullptr));
        EXPECT_TRUE(IsTie(value, digits) && std::fabs(rounded) > exact)
            << Print(value, 17) << " to " << digits << ": " << Print(rounded, 17);
    }

  private:
    std::string Print(double value, int digits) const {
        char text[2048];
        if (scientific_) {
            std::snprintf(text, sizeof text, "%.*e", digits, value);
        } else {
            std::snprintf(text, sizeof text, "%.*f", digits, value);
        }
        return text;
    }

    bool IsTie(double value, int digits) const {
        constexpr int kAllDigits = 1100;
        const std::string exact = Print(value, kAllDigits);
        const std::size_t rest = exact.find_first_of(".,") + 1 + static_cast<std::size_t>(digits);
        const std::size_t end = std::min(exact.find('e'), exact.size());
        return exact[rest] == '5' && exact.find_first_not_of('0', rest + 1) >= end;
    }

    bool scientific_;
};

constexpr std::uint64_t kSeed = 20260101;

TEST(Rounding, PrecisionAgreesWithTheCLibraryAtEveryMagnitude) {
    SCOPED_TRACE(::testing::Message() << "seed " << kSeed);
    const Oracle oracle(true);
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

TEST(Rounding, PrecisionAgreesWithTheCLibraryAroundPowersOfTen) {
    const Oracle oracle(true);
    for (int exponent = -323; exponent <= 308; ++exponent) {
        const double power = std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
        for (const double value :
             {std::nextafter(power, 0.0), power, std::nextafter(power, 1e308)}) {
            for (const int digits : {1, 4, 15, 16}) {
                oracle.Expect(value, digits - 1, Precision(value, digits));
            }
        }
    }
}

TEST(Rounding, DPlacesAgreesWithTheCLibrary) {
    SCOPED_TRACE(::testing::Message() << "seed " << kSeed);
    const Oracle oracle(false);
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
