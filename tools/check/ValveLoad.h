#ifndef TOOLS_CHECK_VALVELOAD_H
#define TOOLS_CHECK_VALVELOAD_H

#include <cstddef>
#include <set>

#include "tools/check/Finding.h"
#include "tools/check/TableLibrary.h"

namespace hydrofacts::command {

/// What the lines of a valve table come to.
struct ValveRecords {
    std::size_t records = 0;
    std::set<int> formulas;
    std::set<int> formulasOfOther;  ///< of the device type "Other"
};

/// Loads a valve table in both unit systems and reports what the library doesn't load.
void LoadValveTable(const LibraryPlace& place, const ValveRecords& found, Findings& findings);

}  // namespace hydrofacts::command

#endif
