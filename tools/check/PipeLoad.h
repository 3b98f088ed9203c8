#ifndef TOOLS_CHECK_PIPELOAD_H
#define TOOLS_CHECK_PIPELOAD_H

#include <map>
#include <string>

#include "tools/check/Finding.h"
#include "tools/check/TableLibrary.h"

namespace hydrofacts::command {

/// Loads every schedule of a pipe table in both unit systems and reports what the library doesn't
/// load. `schedules` has the rows of each.
void LoadPipeTable(const LibraryPlace& place, const std::map<std::string, std::size_t>& schedules,
                   Findings& findings);

}  // namespace hydrofacts::command

#endif
