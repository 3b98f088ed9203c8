#ifndef TOOLS_CHECK_PIPETABLECHECK_H
#define TOOLS_CHECK_PIPETABLECHECK_H

#include <string_view>

#include "tools/check/Finding.h"
#include "tools/check/TableLibrary.h"

namespace hydrofacts::command {

/// Checks the text of a pipe table line by line; if nothing is wrong with it, loads it in both unit
/// systems and sees that the library has every size of every schedule.
void CheckPipeTable(std::string_view text, const LibraryPlace& place, Findings& findings);

}  // namespace hydrofacts::command

#endif
