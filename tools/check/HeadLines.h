#ifndef TOOLS_CHECK_HEADLINES_H
#define TOOLS_CHECK_HEADLINES_H

#include <span>

#include "tools/check/TableText.h"

namespace hydrofacts::command {

/// The head lines of a table: the place of the version line among the lines, or their number if
/// there is none.
std::size_t VersionLine(std::span<const TableLine> lines);

/// Checks title, version and levels. The note of a dialog shows the first two lines alone, of 100
/// characters each, and lists leave a table out by its levels. Returns VersionLine(lines); whether
/// a table can do without one is for the caller to say.
std::size_t CheckHeadLines(std::span<const TableLine> lines, Findings& findings);

}  // namespace hydrofacts::command

#endif
