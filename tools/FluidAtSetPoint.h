#ifndef TOOLS_FLUIDATSETPOINT_H
#define TOOLS_FLUIDATSETPOINT_H

#include "tools/SetPoint.h"
#include "tools/TableDirectory.h"
#include "tools/TableFluid.h"

namespace hydrofacts::command {

/// Loads a fluid and goes to the set point. Failure if the table is invalid.
void LoadAtSetPoint(TableFluid& fluid, const TableDirectory& directory, const TableName& table,
                    const SetPoint& point);

/// Failure, with the library's message and the limit that was passed, if the fluid has no state.
void RequireState(TableFluid& fluid, const TableName& table);

}  // namespace hydrofacts::command

#endif
