#ifndef TOOLS_PROGRAM_H
#define TOOLS_PROGRAM_H

#include <optional>
#include <string>
#include <vector>

#include "tools/Arguments.h"
#include "tools/SetPoint.h"

namespace hydrofacts::command {

/// Options that several subcommands have; they may stand before or behind the subcommand's name.
struct Options {
    std::optional<std::string> tables;
    bool json = false;
};

void AddTablesOption(Command& command, Options& options);
void AddJsonOption(Command& command, Options& options);
/// Takes the unit system of a table's lengths, for SystemNamed.
void AddLengthUnitsOption(Command& command, std::string& system);
/// Takes the system of units, and the unit of temperature and of pressure if one is another.
void AddUnitOptions(Command& command, UnitOptions& units);
/// Takes what pressures are measured from.
void AddPressureOptions(Command& command, PressureOptions& pressures);
void AddSetPointOptions(Command& command, SetPointOptions& setPoint, bool required);

// Each adds one subcommand, which throws Failure when it is run and can't do its work. `options`
// must outlive the parsing.
void AddFluidsCommand(Command& program, Options& options);
void AddFluidCommand(Command& program, Options& options);
void AddPipesCommand(Command& program, Options& options);
void AddPipeCommand(Command& program, Options& options);
void AddValvesCommand(Command& program, Options& options);
void AddValveCommand(Command& program, Options& options);
void AddTableCommand(Command& program, Options& options);
void AddPlotCommand(Command& program, Options& options);
void AddConvertCommand(Command& program, Options& options);
void AddCheckCommand(Command& program, Options& options);
void AddUnitsCommand(Command& program, Options& options);
void AddElevationCommand(Command& program, Options& options);

/// Runs the program on its arguments (UTF-8, without the program's name) and returns the exit
/// status.
int Run(std::vector<std::string> arguments);

}  // namespace hydrofacts::command

#endif
