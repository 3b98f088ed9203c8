#ifndef TOOLS_CHECK_FLUIDPROPERTIES_H
#define TOOLS_CHECK_FLUIDPROPERTIES_H

#include <array>
#include <cstddef>

#include "tools/check/Finding.h"
#include "tools/check/TableLibrary.h"

namespace hydrofacts::command {

inline constexpr std::size_t kFormulas = 7;

/// The lines of a fluid table's records, and its constants in the order and units of the D record.
struct FluidRecords {
    double molecularWt = 0.0;
    double criticalTemp = 0.0;
    double criticalPres = 0.0;
    double liquidMinTemp = 0.0;
    double liquidMaxTemp = 0.0;
    double vaporMinTemp = 0.0;
    double vaporMaxTemp = 0.0;
    double vaporMaxPres = 0.0;
    std::array<std::size_t, kFormulas> formulaLines{};
};

/// Loads a fluid table and reports if the library refuses it, or where a property is not what a
/// host can work with: density, viscosity and saturation pressure above zero, the saturation
/// pressure rising up to the critical temperature, the ratio of specific heats above 1.
void CheckFluidProperties(const LibraryPlace& place, const FluidRecords& records,
                          Findings& findings);

}  // namespace hydrofacts::command

#endif
