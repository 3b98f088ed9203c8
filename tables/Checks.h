#ifndef HYDROFACTS_TABLES_CHECKS_H
#define HYDROFACTS_TABLES_CHECKS_H

#include <filesystem>

#include "tables/FluidDesign.h"

namespace hydrofacts::tables {

/// Loads a written table with the library and holds it to what is true of every fluid, at many set
/// points: it loads, the saturation pressure rises, liquid density and viscosity fall, gas
/// viscosity rises, the ratio of specific heats exceeds 1, the compressibility is a vapor's and
/// tends to 1 at low pressure, and the state that is found is the one that belongs to the point and
/// is valid there. Throws DesignError at the first thing that is not so.
void CheckTable(const std::filesystem::path& folder, const FluidTable& table);

}  // namespace hydrofacts::tables

#endif
