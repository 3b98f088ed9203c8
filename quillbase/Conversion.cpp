#include "quillbase/Conversion.h"

#include <array>
#include <cstddef>

namespace {

constexpr double kRankineAtZeroF = 459.67;
constexpr double kKelvinAtZeroC = 273.15;
constexpr double kRankineAtZeroC = 491.67;
constexpr double kFahrenheitAtZeroC = 32.0;

// 9/5 has no double of its own, so the ratio is taken in two exact numbers.
constexpr double FiveNinths(double value) { return value * 5.0 / 9.0; }
constexpr double NineFifths(double value) { return value * 9.0 / 5.0; }

double FromFahrenheit(double value, HF_TUNITS to) {
    switch (to) {
        case HF_DEG_R:
            return value + kRankineAtZeroF;
        case HF_DEG_C:
            return FiveNinths(value - kFahrenheitAtZeroC);
        case HF_KELVIN:
            return FiveNinths(value + kRankineAtZeroF);
        default:
            return value;
    }
}

double FromRankine(double value, HF_TUNITS to) {
    switch (to) {
        case HF_DEG_R:
            return value;
        case HF_DEG_C:
            return FiveNinths(value - kRankineAtZeroC);
        case HF_KELVIN:
            return FiveNinths(value);
        default:
            return value - kRankineAtZeroF;
    }
}

double FromCelsius(double value, HF_TUNITS to) {
    switch (to) {
        case HF_DEG_R:
            return NineFifths(value) + kRankineAtZeroC;
        case HF_DEG_C:
            return value;
        case HF_KELVIN:
            return value + kKelvinAtZeroC;
        default:
            return NineFifths(value) + kFahrenheitAtZeroC;
    }
}

double FromKelvin(double value, HF_TUNITS to) {
    switch (to) {
        case HF_DEG_R:
            return NineFifths(value);
        case HF_DEG_C:
            return value - kKelvinAtZeroC;
        case HF_KELVIN:
            return value;
        default:
            return NineFifths(value) - kRankineAtZeroF;
    }
}

// clang-format off
constexpr std::array<double, 8> kPascals = {
    6894.757293168361,  // psi
    1000.0,             // kPa
    100000.0,           // bar
    249.08891,          // in H2O
    3386.388640341,     // in Hg
    9.80665,            // mm H2O
    133.322387415,      // mm Hg
    1.0,                // Pa
};
// clang-format on

double Pascals(HF_PUNITS unit) {
    const auto index = static_cast<std::size_t>(unit);
    return index < kPascals.size() ? kPascals[index] : kPascals[HF_PSI];
}

}  // namespace

double ConvertTemp(double value, HF_TUNITS from, HF_TUNITS to) {
    switch (from) {
        case HF_DEG_R:
            return FromRankine(value, to);
        case HF_DEG_C:
            return FromCelsius(value, to);
        case HF_KELVIN:
            return FromKelvin(value, to);
        default:
            return FromFahrenheit(value, to);
    }
}

double ConvertPressure(double value, HF_PUNITS from, HF_PUNITS to) {
    const double pascalsFrom = Pascals(from);
    const double pascalsTo = Pascals(to);
    return pascalsFrom == pascalsTo ? value : value * pascalsFrom / pascalsTo;
}
