#ifndef HYDROFACTS_TABLES_TABLEFILE_H
#define HYDROFACTS_TABLES_TABLEFILE_H

#include <string>

#include "tables/FluidDesign.h"

namespace hydrofacts::tables {

/// The text of a fluid's table file: head lines, remarks with the source and the measured deviation
/// of each formula, and the nine records. Throws InputError for what no table can hold.
std::string TableText(const FluidTable& table);

}  // namespace hydrofacts::tables

#endif
