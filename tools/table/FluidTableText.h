#ifndef TOOLS_TABLE_FLUIDTABLETEXT_H
#define TOOLS_TABLE_FLUIDTABLETEXT_H

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "tools/TableDirectory.h"

namespace hydrofacts::command {

/// Remark lines in UTF-8, without the marks that they begin with.
using Remarks = std::vector<std::string>;

/// What a fluid table that the library loads says beyond what a loaded fluid can tell: its remarks,
/// each kept with the record behind it, and the constants without the library's rounding.
struct FluidTableText {
    double molecularWt = 0.0;   ///< kg/kmol
    double criticalTemp = 0.0;  ///< K
    double criticalPres = 0.0;  ///< kPa absolute
    Remarks constants;          ///< those ahead of the constants
    std::array<Remarks, 7> formulas;
    std::array<bool, 7> filled{};  ///< whether the record has coefficients, in use or not
    Remarks end;                   ///< those behind the last record
};

/// Reads the table's file. Failure if it can't be read.
FluidTableText ReadFluidTableText(const TableName& table);

}  // namespace hydrofacts::command

#endif
