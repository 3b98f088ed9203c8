#ifndef HYDROFACTS_UNITS_ATMOSPHERIC_PRESSURE_EQUATIONS_H
#define HYDROFACTS_UNITS_ATMOSPHERIC_PRESSURE_EQUATIONS_H

#include "hydrofacts/units/UnitValue.h"
#include "win32/Export.h"

/// The standard atmosphere. It has no state: any thread may ask at any time.
class HYDROFACTS_API Atmospheric_Pressure_Equations {
  public:
    /// The atmospheric pressure at an elevation above sea level (a length in any unit), in psi:
    /// 14.697 × (1 − h / 145422.156)^5.255879746 with h in feet, the troposphere of the U.S.
    /// Standard Atmosphere 1976 in feet and psi. From -10000 ft to 15000 ft, both included;
    /// outside, the number is a signalling not-a-number.
    static UnitValue<HF_PRESSURE, 0> atmospheric_pressure_at_elevation(
        UnitValue<HF_LENGTH, 0> elevation);
};

#endif
