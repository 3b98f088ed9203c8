#ifndef HYDROFACTS_FLUID_FLUIDCONSTANTS_H
#define HYDROFACTS_FLUID_FLUIDCONSTANTS_H

#include "hydrofacts/formula/Constants.h"

namespace hydrofacts {

// The rounded figures with which a fluid's densities have always been reckoned. They are not those
// of the density catalog, and the two below are not each other's inverse: results must stay
// comparable.

/// kg/m³ in one lb/ft³.
inline constexpr double kKgPerM3InPoundPerFt3 = 16.01794;

/// lb/ft³ in one kg/m³, for densities that go into US conversions.
inline constexpr double kPoundPerFt3InKgPerM3 = 0.06243;

/// kg/m³ of water at specific gravity 1, about that at 24 °C.
inline constexpr double kWaterDensity = 997.2;

/// kg/kmol of dry air.
inline constexpr double kAirMolecularWt = 28.9586;

}  // namespace hydrofacts

#endif
