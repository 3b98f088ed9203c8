#ifndef TOOLS_PROGRAM_H
#define TOOLS_PROGRAM_H

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "tools/SetPoint.h"

namespace hydrofacts::command {

/// Options that several subcommands have; they may stand before or behind the subcommand's name.
struct Options {
    std::optional<std::string> tables;
    bool json = false;
};

void AddTablesOption(CLI::App& app, Options& options);
void AddJsonOption(CLI::App& app, Options& options);
/// Takes the unit system of a table's lengths, for SystemNamed.
void AddLengthUnitsOption(CLI::App& app, std::string& system);
/// Takes the system of units, and the unit of temperature and of pressure if one is another.
void AddUnitOptions(CLI::App& app, UnitOptions& units);
/// Takes what pressures are measured from.
void AddPressureOptions(CLI::App& app, PressureOptions& pressures);
void AddSetPointOptions(CLI::App& app, SetPointOptions& setPoint, bool required);

// Each adds one subcommand, which throws Failure when it is run and can't do its work. `options`
// must outlive the parsing.
void AddFluidsCommand(CLI::App& app, Options& options);
void AddFluidCommand(CLI::App& app, Options& options);
void AddPipesCommand(CLI::App& app, Options& options);
void AddPipeCommand(CLI::App& app, Options& options);
void AddValvesCommand(CLI::App& app, Options& options);
void AddValveCommand(CLI::App& app, Options& options);
void AddTableCommand(CLI::App& app, Options& options);
void AddPlotCommand(CLI::App& app, Options& options);
void AddConvertCommand(CLI::App& app, Options& options);
void AddCheckCommand(CLI::App& app, Options& options);
void AddUnitsCommand(CLI::App& app, Options& options);
void AddElevationCommand(CLI::App& app, Options& options);

/// Runs the program on its arguments (UTF-8, without the program's name) and returns the exit
/// status.
int Run(std::vector<std::string> arguments);

}  // namespace hydrofacts::command

#endif
