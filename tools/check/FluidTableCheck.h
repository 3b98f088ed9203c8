#ifndef TOOLS_CHECK_FLUIDTABLECHECK_H
#define TOOLS_CHECK_FLUIDTABLECHECK_H

#include <string_view>

#include "tools/check/Finding.h"
#include "tools/check/TableLibrary.h"

namespace hydrofacts::command {

/// Checks the text of a fluid table line by line; if nothing is wrong with it, loads it and looks
/// at its properties over the ranges that it gives.
void CheckFluidTable(std::string_view text, const LibraryPlace& place, Findings& findings);

}  // namespace hydrofacts::command

#endif
