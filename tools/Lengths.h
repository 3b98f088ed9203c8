#ifndef TOOLS_LENGTHS_H
#define TOOLS_LENGTHS_H

#include <optional>
#include <string>
#include <string_view>

#include "hydrofacts/hydrofacts.h"

namespace hydrofacts::command {

/// The unit system that --units names: "us" or "metric", in any case; US if it is not given.
HF_UNITS SystemNamed(std::string_view name);

/// The unit of the lengths of pipe and valve tables: "in" or "mm".
std::string LengthUnit(HF_UNITS system);
/// "in²" or "mm²".
std::string AreaUnit(HF_UNITS system);

/// "2.067 in".
std::string LengthText(double length, HF_UNITS system);

/// A nominal size as people write it: 2, 2.5, 1/2, "2 1/2" or 2-1/2. Nothing for another text.
std::optional<double> NominalSizeIn(std::string_view text);

}  // namespace hydrofacts::command

#endif
