#ifndef TOOLS_CHECK_FORMULARECORD_H
#define TOOLS_CHECK_FORMULARECORD_H

#include "tools/check/TableText.h"

namespace hydrofacts::command {

/// Checks a formula record (P) of a slot, 0 to 6, and returns its type; 0: the slot is empty.
int CheckFormula(const TableLine& line, std::size_t slot, Findings& findings);

}  // namespace hydrofacts::command

#endif
