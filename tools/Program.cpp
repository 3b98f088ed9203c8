#include "tools/Program.h"

#include <fmt/core.h>

#include <algorithm>
#include <cstdio>

#include "tools/Failure.h"
#include "tools/Names.h"
#include "tools/Numbers.h"
#include "tools/Output.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(Examples:
  hydrofacts fluid Water -t 20 -p 1 --units metric
  hydrofacts pipe "Steel B36.10M" 40 2
  hydrofacts valve Standard "Check Valve"
  hydrofacts convert 100 "US gpm" m3/hr
  hydrofacts elevation 1500 m
  hydrofacts fluid --help

Exit status:
  0  done
  1  a table that was checked can't be used or is misread
  2  refused: the arguments or the tables can't be used
  3  a fluid has no state at the set point, or an elevation is outside the standard atmosphere)";

void AddCommands(Command& program, Options& options) {
    AddFluidsCommand(program, options);
    AddFluidCommand(program, options);
    AddTableCommand(program, options);
    AddPlotCommand(program, options);
    AddPipesCommand(program, options);
    AddPipeCommand(program, options);
    AddValvesCommand(program, options);
    AddValveCommand(program, options);
    AddConvertCommand(program, options);
    AddUnitsCommand(program, options);
    AddElevationCommand(program, options);
    AddCheckCommand(program, options);
}

// "-.5" looks like an option to the parser, "-0.5" like the number that it is.
void RewriteNegativeNumbers(std::vector<std::string>& arguments) {
    for (std::string& argument : arguments) {
        if (argument.starts_with("-.") && NumberIn(argument)) argument.insert(1, "0");
    }
}

// The place of the subcommand's name: behind the options of the program itself.
std::vector<std::string>::const_iterator CommandIn(const std::vector<std::string>& arguments) {
    auto word = arguments.begin();
    while (word != arguments.end() && word->starts_with('-')) {
        const bool hasValue = *word == "--tables";
        ++word;
        if (hasValue && word != arguments.end()) ++word;
    }
    return word;
}

// The parser says only that a subcommand is missing when its name is misspelt.
void RequireKnownCommand(const ArgumentParser& parser, const std::vector<std::string>& arguments) {
    const auto word = CommandIn(arguments);
    const std::vector<std::string> names = parser.CommandNames();
    if (word == arguments.end() || std::find(names.begin(), names.end(), *word) != names.end()) {
        return;
    }
    const auto nearest = NearestNames(*word, names);
    throw Failure(fmt::format("unknown command \"{}\"; {}", *word,
                              nearest.empty() ? "the commands are " + JoinNames(names, "and")
                                              : "did you mean " + JoinNames(nearest, "or") + "?"));
}

int Parse(ArgumentParser& parser, std::vector<std::string> arguments) {
    if (arguments.empty()) {
        fmt::print(stderr, "{}", parser.Help());
        return kRefused;
    }
    try {
        RewriteNegativeNumbers(arguments);
        RequireKnownCommand(parser, arguments);
        parser.Parse(std::move(arguments));
        return kDone;
    } catch (const Failure& failure) {
        PrintError(failure.what());
        return failure.Status();
    }
}

}  // namespace

void AddTablesOption(Command& command, Options& options) {
    command.AddOption("--tables", options.tables, "DIR",
                      "Directory of the table files, if not the installed one");
}

void AddJsonOption(Command& command, Options& options) {
    command.AddFlag("--json", options.json, "Print JSON, for programs");
}

void AddLengthUnitsOption(Command& command, std::string& system) {
    command.AddChoice("--units", system, {"us", "metric"},
                      "us: lengths in inches, the default; metric: in millimetres");
}

void AddUnitOptions(Command& command, UnitOptions& units) {
    command
        .AddChoice("--units", units.system, {"us", "metric"},
                   "us: \u00B0F, psi, lb/ft\u00B3; metric: \u00B0C, bar, kg/m\u00B3. The default\n"
                   "is metric with a temperature unit of \u00B0C or K, else us")
        .Under("Units");
    command
        .AddOption("--temperature-unit", units.temperatureUnit, "U",
                   "\u00B0F, \u00B0R, \u00B0C, K; plain F or degC will do")
        .Under("Units");
    command
        .AddOption("--pressure-unit", units.pressureUnit, "U",
                   "psi, kPa, bar, in H2O, in Hg, mm H2O, mm Hg, Pa")
        .Under("Units");
}

void AddPressureOptions(Command& command, PressureOptions& pressures) {
    command.AddFlag("--absolute", pressures.absolute, "PRES is absolute").Under("Set point");
    command
        .AddOption("--atmosphere", pressures.atmosphere, "X",
                   "Atmospheric pressure, absolute, in the unit of PRES;\nstandard: 101.325 kPa")
        .Under("Set point");
}

void AddSetPointOptions(Command& command, SetPointOptions& setPoint, bool required) {
    command.AddOption("-t,--temperature", setPoint.temperature, "TEMP", "Temperature")
        .Under("Set point")
        .Require(required);
    command
        .AddOption("-p,--pressure", setPoint.pressure, "PRES",
                   "Pressure, gauge unless --absolute is given")
        .Under("Set point")
        .Require(required);
    AddPressureOptions(command, setPoint);
    AddUnitOptions(command, setPoint);
}

int Run(std::vector<std::string> arguments) {
    ArgumentParser parser(
        "hydrofacts", "hydrofacts " HYDROFACTS_VERSION,
        "Fluid properties, pipe and valve data, unit conversion and the standard atmosphere for\n"
        "systems of pipes.");
    Command program = parser.Program();
    Options options;
    AddTablesOption(program, options);
    AddJsonOption(program, options);
    program.SetFooter(kFooter);
    AddCommands(program, options);

    int status = Parse(parser, std::move(arguments));
    if (!FlushOutput()) {
        PrintError("the output can't be written");
        status = kRefused;
    }
    return status;
}

}  // namespace hydrofacts::command
