#include "hydrofacts/units/Atmospheric_Pressure_Equations.h"

#include <cmath>
#include <limits>

namespace {

constexpr double kHighestFeet = 15000.0;
constexpr double kLowestFeet = -10000.0;

constexpr double kSeaLevelPsi = 14.697;
constexpr double kFeetToZeroTemperature = 145422.156;  // sea level temperature over the lapse rate
constexpr double kExponent = 5.255879746;

}  // namespace

UnitValue<HF_PRESSURE, 0> Atmospheric_Pressure_Equations::atmospheric_pressure_at_elevation(
    UnitValue<HF_LENGTH, 0> elevation) {
    const double feet = elevation.value_in(HF_LEN_FT);
    if (feet > kHighestFeet || feet < kLowestFeet) {
        return {HF_PSI, std::numeric_limits<double>::signaling_NaN()};
    }
    return {HF_PSI, kSeaLevelPsi * std::pow(1.0 - feet / kFeetToZeroTemperature, kExponent)};
}
