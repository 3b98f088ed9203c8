#ifndef HYDROFACTS_TABLES_FLUIDDESIGN_H
#define HYDROFACTS_TABLES_FLUIDDESIGN_H

#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#include "tables/PropertyChoice.h"

namespace hydrofacts::tables {

/// A fluid that cannot be made into a sound table; what() is the reason.
class DesignError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The equation of state of a vapor, up to the pressure to which it is good enough.
struct VaporDensity {
    int equation = 0;                ///< As EquationOfState of the library has it.
    double maxPressure = 0.0;        ///< kPa
    std::string reason;              ///< Why not the usual equation; empty for the usual one.
    std::string checkSource;         ///< Empty if there are no check data.
    Deviation deviation;             ///< Of the density, from all check states within the limits.
    double largestAtPressure = 0.0;  ///< kPa
};

/// All that goes into one table file.
struct FluidTable {
    std::string name;
    FluidConstants constants;
    std::map<Property, ChosenFormula> formulas;
    /// How far the vapor pressure strays above the liquid range, where only the state hangs on it.
    std::map<Property, Deviation> aboveLiquid;
    std::optional<Range> liquid;  ///< Absent: no liquid formulas.
    std::optional<Range> vapor;   ///< Absent: no vapor formulas.
    VaporDensity vaporDensity;
    std::string noLiquid;  ///< Why there are no liquid formulas; empty if there are.
    std::string noVapor;   ///< Why there are no vapor formulas; empty if there are.
};

/// Chooses formulas, equation of state and ranges of a fluid. Throws DesignError.
FluidTable DesignFluid(const FluidData& fluid);

}  // namespace hydrofacts::tables

#endif
