#ifndef HYDROFACTS_TABLES_PIPES_PIPETABLEFILE_H
#define HYDROFACTS_TABLES_PIPES_PIPETABLEFILE_H

#include <filesystem>
#include <string>

#include "tables/pipes/PipeData.h"

namespace hydrofacts::tables {

/// The text of a material's table file: head lines, remarks with the sources, the material record,
/// and the sizes schedule by schedule, with the outside diameter as second dimension.
std::string PipeTableText(const PipeMaterial& material);

/// Loads the material's table of a folder with the library, in both unit systems, and compares all
/// that comes back. Throws InputError for the first difference.
void CheckPipeTable(const std::filesystem::path& folder, const PipeMaterial& material);

}  // namespace hydrofacts::tables

#endif
