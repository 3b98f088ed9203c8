#ifndef HYDROFACTS_TABLES_VALVES_VALVETABLEFILE_H
#define HYDROFACTS_TABLES_VALVES_VALVETABLEFILE_H

#include <filesystem>
#include <string>

#include "tables/valves/ValveData.h"

namespace hydrofacts::tables {

/// The text of a valve table file: head lines, remarks that tell the methods, the records group by
/// group with a remark wherever the source changes.
std::string ValveTableText(const ValveTableData& table);

/// Loads the table of a folder with the library, in both unit systems, and compares all that comes
/// back. Throws InputError for the first difference.
void CheckValveTable(const std::filesystem::path& folder, const ValveTableData& table);

}  // namespace hydrofacts::tables

#endif
