#ifndef TOOLS_CONVERSIONS_H
#define TOOLS_CONVERSIONS_H

#include <string>

#include "hydrofacts/hydrofacts.h"

namespace hydrofacts::command {

/// Why the conversion between two units needs a fluid, such as "a head and a pressure are joined by
/// the fluid's density"; empty if it needs none.
std::string WhyFluidIsNeeded(HF_UNIT_TYPES type, int from, int to);

/// Whether a unit is a flow of standard volume, which only a vapor has.
bool IsStandardVolume(HF_UNIT_TYPES type, int id);

/// Converts a number; `fluid` may be null where none is needed. Unlike the library, joins two flows
/// of mass without a fluid.
double ConvertUnits(HF_UNIT_TYPES type, double value, int from, int to, const CFluid* fluid);

/// What one of a unit is: a number of `base` units, or a remark where there is none.
struct UnitMeaning {
    double factor = 0.0;
    std::string base;    ///< empty if the unit is no fixed multiple of another
    std::string remark;  ///< empty if there is nothing to say
};
UnitMeaning MeaningOf(HF_UNIT_TYPES type, int id);

}  // namespace hydrofacts::command

#endif
