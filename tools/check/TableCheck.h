#ifndef TOOLS_CHECK_TABLECHECK_H
#define TOOLS_CHECK_TABLECHECK_H

#include <filesystem>
#include <optional>
#include <vector>

#include "tools/check/Finding.h"

namespace hydrofacts::command {

enum class TableFileKind {
    Fluid,
    Pipe,
    Valve,
};

/// The kind of table that the extension of a file's name tells, whatever its case.
std::optional<TableFileKind> KindOf(const std::filesystem::path& file);

/// What is wrong with a table file of a known kind, in the order of its lines. Failure if the file
/// can't be read.
std::vector<Finding> CheckTableFile(const std::filesystem::path& file, TableFileKind kind);

}  // namespace hydrofacts::command

#endif
