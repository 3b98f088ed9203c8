#ifndef TOOLS_CHECK_VALVEROWS_H
#define TOOLS_CHECK_VALVEROWS_H

#include <cstdint>
#include <span>
#include <string_view>

#include "tools/check/TableText.h"

namespace hydrofacts::command {

/// A device's name as the library keeps it.
std::string_view DeviceName(const TableLine& line);

/// Whether the records of a formula number have several rows.
bool HasSeveralRows(std::int16_t formula);

/// The rows of a record: the library begins another one behind them.
inline constexpr std::size_t kMostRows = 100;

/// How many of the records at the head of `records` are meant as the rows of one: those of its
/// name.
std::size_t RowsOfRecord(std::span<const TableLine* const> records);

/// Checks the rows of one record, kMostRows at most: that they agree with the first one, and that
/// the library's sort by limit gives ascending limits, the same rows in either unit system.
void CheckRows(std::span<const TableLine* const> rows, Findings& findings);

}  // namespace hydrofacts::command

#endif
