#ifndef HYDROFACTS_TABLES_LEFTOUT_H
#define HYDROFACTS_TABLES_LEFTOUT_H

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "tables/ReferenceData.h"

namespace hydrofacts::tables {

/// What the data do not allow: a whole table, or the liquid or the vapor of one.
struct LeftOut {
    std::string name;
    std::string cas;
    std::string part;  ///< "table", "liquid" or "vapor".
    std::string reason;
};

/// The list as CSV with a heading line.
std::string LeftOutText(std::span<const LeftOut> list);

/// Holds a list that is kept with the data to what was found. Throws InputError with the first line
/// that differs.
void CheckLeftOut(const std::filesystem::path& file, std::span<const LeftOut> found);

}  // namespace hydrofacts::tables

#endif
