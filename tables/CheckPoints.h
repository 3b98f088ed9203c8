#ifndef HYDROFACTS_TABLES_CHECKPOINTS_H
#define HYDROFACTS_TABLES_CHECKPOINTS_H

#include <string>

#include "tables/FluidDesign.h"

namespace hydrofacts::tables {

/// The heading line of the file of check points that is installed beside the tables.
std::string CheckPointHeading();

/// The lines of one table in that file: the check data within its ranges (fluids/README.md says
/// what the columns mean).
std::string CheckPointLines(const FluidTable& table, const FluidData& fluid);

}  // namespace hydrofacts::tables

#endif
