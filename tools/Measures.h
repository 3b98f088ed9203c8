#ifndef TOOLS_MEASURES_H
#define TOOLS_MEASURES_H

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "hydrofacts/hydrofacts.h"

namespace hydrofacts::command {

/// A measure as the user names it.
struct Measure {
    HF_UNIT_TYPES type;
    const char* name;
};

/// The measures, in the library's order. Head shares the units of pressure.
std::span<const Measure> Measures();

/// The measure of that name, in any case; a Failure that lists the names if there is none.
const Measure& RequireMeasure(std::string_view name);

const char* MeasureName(HF_UNIT_TYPES type);

/// A unit's text in UTF-8, without the blank that one of them begins with.
std::string UnitText(HF_UNIT_TYPES type, int id);

/// The ids of a measure's units, ascending.
std::vector<int> UnitIds(HF_UNIT_TYPES type);

/// Whether a unit is the one that a program defines for itself; it has no factor here.
bool IsCustomUnit(HF_UNIT_TYPES type, int id);

/// The unit of that text (UTF-8), in any case. Plain spellings do: "m3/hr", "degC", "C", "inH2O",
/// "gpm", "kg/s".
std::optional<int> FindUnit(HF_UNIT_TYPES type, std::string_view text);

/// What to say of a text that is no unit of the measure: "the units of area are ...", or what to
/// write in its place.
std::string UnitHint(HF_UNIT_TYPES type, std::string_view text);

/// The unit of that text, or a Failure with the hint; also for the unit without a factor.
int RequireUnit(HF_UNIT_TYPES type, std::string_view text);

/// The texts of the units that can be converted, with commas between.
std::string ListOfUnits(HF_UNIT_TYPES type);

}  // namespace hydrofacts::command

#endif
