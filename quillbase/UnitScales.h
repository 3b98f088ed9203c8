#ifndef QUILLBASE_UNITSCALES_H
#define QUILLBASE_UNITSCALES_H

/// @file
/// The scales of temperature and pressure: what Conversion.h documents, as inline functions for
/// code inside the library that a call would slow down.

#include <array>
#include <cstddef>

#include "quillbase/UnitIds.h"

namespace quillbase {

inline constexpr double kRankineAtZeroF = 459.67;
inline constexpr double kKelvinAtZeroC = 273.15;
inline constexpr double kRankineAtZeroC = 491.67;
inline constexpr double kFahrenheitAtZeroC = 32.0;

/// 9/5 has no double of its own, so the ratio is taken in two exact numbers.
/// @{
constexpr double FiveNinths(double value) { return value * 5.0 / 9.0; }
constexpr double NineFifths(double value) { return value * 9.0 / 5.0; }
/// @}

constexpr double FromFahrenheit(double value, HF_TUNITS to) {
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

constexpr double FromRankine(double value, HF_TUNITS to) {
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

constexpr double FromCelsius(double value, HF_TUNITS to) {
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

constexpr double FromKelvin(double value, HF_TUNITS to) {
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

/// As ConvertTemp.
constexpr double TemperatureIn(HF_TUNITS to, double value, HF_TUNITS from) {
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

// clang-format off
/// Pascals in one unit of each true pressure, by id.
inline constexpr std::array<double, 8> kPascals = {
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

/// Whether a unit is a pressure without more ado, not a head or no unit at all.
constexpr bool IsTruePressure(int id) { return static_cast<std::size_t>(id) < kPascals.size(); }

/// Pascals in one unit; what is no true pressure counts as psi.
constexpr double PascalsIn(HF_PUNITS unit) {
    return kPascals[IsTruePressure(unit) ? static_cast<std::size_t>(unit) : 0];
}

/// As ConvertPressure.
constexpr double PressureIn(HF_PUNITS to, double value, HF_PUNITS from) {
    const double pascalsFrom = PascalsIn(from);
    const double pascalsTo = PascalsIn(to);
    return pascalsFrom == pascalsTo ? value : value * pascalsFrom / pascalsTo;
}

}  // namespace quillbase

#endif
