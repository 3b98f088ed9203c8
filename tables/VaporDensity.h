#ifndef HYDROFACTS_TABLES_VAPORDENSITY_H
#define HYDROFACTS_TABLES_VAPORDENSITY_H

#include "tables/FluidDesign.h"

namespace hydrofacts::tables {

/// The library's equation of state for a fluid; its type is one of EquationOfState.
CFormula EquationFormula(int equation, const FluidConstants& constants);

/// Chooses the equation of state and the highest pressure by the check data: the highest pressure
/// up to which no state within the range strays too far. Peng-Robinson is taken unless another
/// equation reaches as far with less than half the deviation. Without check data the limit is half
/// the critical pressure. A highest
/// pressure of 0 says that no equation is good enough even at low pressure.
VaporDensity ChooseVaporDensity(const FluidData& fluid, const Range& range);

}  // namespace hydrofacts::tables

#endif
