#include "quillbase/Rounding.h"

#include <algorithm>
#include <array>
#include <bit>
#include <boost/multiprecision/cpp_int.hpp>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "quillbase/PowersOfTen.h"

namespace {

using quillbase::kPowersOfTen;

// With an exact power of ten a value scales by a single rounding whose error is known exactly;
// beyond, whole numbers of any length do the work.
constexpr int kExactPowers = static_cast<int>(kPowersOfTen.size()) - 1;

// From 10^-22 to 10^22, each the nearest double.
constexpr std::array<double, 2 * kExactPowers + 1> kTens = [] {
    std::array<double, 2 * kExactPowers + 1> tens{};
    for (std::size_t i = 0; i < kPowersOfTen.size(); ++i) {
        tens[kExactPowers + i] = kPowersOfTen[i];
        tens[kExactPowers - i] = 1.0 / kPowersOfTen[i];
    }
    return tens;
}();

constexpr double kAllWhole = 4503599627370496.0;  // 2⁵²: from here on a double has no fraction
constexpr double kBeyondWhole =
    9007199254740992.0;  // 2⁵³: from here on it has no last digit either

// Dekker's exact product: the rounding error of a × b, as a double. Written out because not every
// platform's fma is exact.
double ProductError(double a, double b, double product) {
    constexpr double kSplitter = 134217729.0;  // 2²⁷ + 1
    const auto high = [](double x) {
        const double t = kSplitter * x;
        return t - (t - x);
    };
    const double aHigh = high(a);
    const double bHigh = high(b);
    const double aLow = a - aHigh;
    const double bLow = b - bHigh;
    return ((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow;
}

// Rounds `value` + `tail()`, a tail of at most half a unit in the last place of the value. The tail
// is asked for only where the value alone doesn't decide, which is rare.
template <typename Tail>
double RoundHalfUp(double value, Tail tail) {
    if (value >= kAllWhole) return tail() >= 0.5 ? value + 1.0 : value;
    const auto whole = static_cast<double>(static_cast<std::int64_t>(value));
    const double fraction = value - whole;
    const bool up = fraction > 0.5 || (fraction == 0.5 && tail() >= 0.0);
    return up ? whole + 1.0 : whole;
}

// The value, positive, to the nearest multiple of 10^-places, for |places| up to kExactPowers.
double RoundByPower(double value, int places) {
    const double power = kPowersOfTen[static_cast<std::size_t>(std::abs(places))];
    if (places >= 0) {
        const double scaled = value * power;
        if (scaled >= kBeyondWhole) return value;
        return RoundHalfUp(scaled, [&] { return ProductError(value, power, scaled); }) / power;
    }
    const double scaled = value / power;
    if (scaled >= kBeyondWhole) return value;
    const auto tail = [&] {
        const double back = scaled * power;
        return ((value - back) - ProductError(scaled, power, back)) / power;
    };
    return RoundHalfUp(scaled, tail) * power;
}

// The largest double takes 1024 bits, the smallest has its last one at 2⁻¹⁰⁷⁴, and 400 places are
// 1329 bits; products and shifted operands of these fit. Without an allocator, so that rounding
// costs no allocation.
constexpr unsigned kWholeBits = 4096;
using Whole = boost::multiprecision::number<boost::multiprecision::cpp_int_backend<
    kWholeBits, kWholeBits, boost::multiprecision::unsigned_magnitude,
    boost::multiprecision::unchecked, void>>;

struct Ratio {
    Whole over;
    Whole under = 1;
};

Whole TenTo(int exponent) {
    return boost::multiprecision::pow(Whole(10), static_cast<unsigned>(exponent));
}

void MultiplyByTenTo(Ratio& ratio, int exponent) {
    (exponent >= 0 ? ratio.over : ratio.under) *= TenTo(std::abs(exponent));
}

Ratio RatioOf(double value) {
    int exponent = 0;
    const double mantissa = std::ldexp(std::frexp(value, &exponent), 53);
    exponent -= 53;
    Ratio ratio{Whole(static_cast<std::int64_t>(mantissa))};
    (exponent >= 0 ? ratio.over : ratio.under) <<= std::abs(exponent);
    return ratio;
}

// The double nearest to a positive ratio, ties to even, subnormal numbers included.
double Nearest(Ratio ratio) {
    constexpr int kMantissaBits = 53;
    constexpr int kLowestBit = -1074;
    using boost::multiprecision::msb;
    int exponent = static_cast<int>(msb(ratio.over)) - static_cast<int>(msb(ratio.under));
    const bool tooHigh = exponent >= 0 ? ratio.over < (ratio.under << exponent)
                                       : (ratio.over << -exponent) < ratio.under;
    if (tooHigh) --exponent;
    const int lastBit = std::max(exponent - (kMantissaBits - 1), kLowestBit);
    (lastBit >= 0 ? ratio.under : ratio.over) <<= std::abs(lastBit);

    Whole rest;
    Whole mantissa;
    divide_qr(ratio.over, ratio.under, mantissa, rest);
    rest <<= 1;
    if (rest > ratio.under || (rest == ratio.under && bit_test(mantissa, 0))) ++mantissa;
    return std::ldexp(static_cast<double>(mantissa), lastBit);
}

// The same as RoundByPower for any number of places.
double RoundByWholeNumbers(double value, int places) {
    Ratio scaled = RatioOf(value);
    MultiplyByTenTo(scaled, places);
    Ratio rounded{(2 * scaled.over + scaled.under) / (2 * scaled.under)};
    if (rounded.over == 0) return 0.0;
    MultiplyByTenTo(rounded, -places);
    return Nearest(rounded);
}

[[gnu::noinline]] double RoundAnyToPlaces(double value, int places) {
    const double magnitude = std::fabs(value);
    const double rounded = std::abs(places) <= kExactPowers
                               ? RoundByPower(magnitude, places)
                               : RoundByWholeNumbers(magnitude, places);
    return rounded == 0.0 ? 0.0 : std::copysign(rounded, value);
}

// The same, with the usual case ahead and by itself: decimals, and a scaled value whose fraction
// decides alone. All else goes the way above.
inline double RoundToPlaces(double value, int places) {
    if (static_cast<unsigned>(places) <= kExactPowers) {
        const double power = kPowersOfTen[static_cast<std::size_t>(places)];
        const double scaled = std::fabs(value) * power;
        if (scaled < kAllWhole) {
            const double nearest = (scaled + kAllWhole) - kAllWhole;  // the sum has no fraction
            const bool decided = std::fabs(scaled - nearest) < 0.5;
            if (decided && nearest > 0.0) return std::copysign(nearest / power, value);
        }
    }
    return RoundAnyToPlaces(value, places);
}

// The greatest power of ten that is not above 2^binary, for all exponents of doubles.
int TenBelow(int binary) { return (binary * 78913) >> 18; }  // log10(2), just below

// As Precision, for a value that no power within kTens is the next one above.
[[gnu::noinline]] double PrecisionOfDistant(double value, int n) {
    if (value == 0.0 || !std::isfinite(value)) return value;
    const int above = TenBelow(std::ilogb(value)) + 1;
    Ratio ratio = RatioOf(std::fabs(value));
    MultiplyByTenTo(ratio, -above);
    return RoundAnyToPlaces(value, n - 1 - (ratio.over >= ratio.under ? above : above - 1));
}

constexpr int kDisplayDigits = 6;

}  // namespace

double Precision(double value, int n) {
    constexpr int kAllDigits = 17;
    constexpr int kMantissaBits = 52;
    constexpr int kBias = 1023;
    if (n >= kAllDigits) return value;
    n = std::max(n, 1);
    const double magnitude = std::fabs(value);
    // Zero and a subnormal have the lowest exponent, infinity and not-a-number the highest.
    const int binary =
        static_cast<int>(std::bit_cast<std::uint64_t>(magnitude) >> kMantissaBits) - kBias;
    const int above = TenBelow(binary) + 1;
    const auto place = static_cast<unsigned>(above + kExactPowers);
    if (place >= kTens.size()) return PrecisionOfDistant(value, n);
    // Where a value lies within an inverse power's own rounding error either number of places
    // rounds to the same decimal.
    const int places = n - above - static_cast<int>(magnitude >= kTens[place]);
    return RoundToPlaces(value, places);
}

double DPlaces(double value, int n) {
    constexpr int kAllPlaces = 400;  // no double has a digit that far from the point
    if (value == 0.0 || !std::isfinite(value) || n > kAllPlaces) return value;
    return n < -kAllPlaces ? 0.0 : RoundToPlaces(value, n);
}

double RoundIt(double value, char* scratch) {
    RoundDbl(scratch, value);
    return Precision(value, kDisplayDigits);
}

int RoundDbl(char* buffer, double value) {
    constexpr std::size_t kRoom = 32;
    const double rounded = Precision(value, kDisplayDigits);
    const auto result = std::to_chars(buffer, buffer + kRoom - 1, rounded,
                                      std::chars_format::general, kDisplayDigits);
    *result.ptr = '\0';
    return static_cast<int>(result.ptr - buffer);
}

bool EqualDbl(double a, double b) {
    constexpr double kTolerance = 1e-12;
    if (a == b) return true;
    if (!std::isfinite(a) || !std::isfinite(b)) return false;
    return std::fabs(a - b) <= kTolerance * std::max(std::fabs(a), std::fabs(b));
}
