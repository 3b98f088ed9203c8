#include "tools/Program.h"

#include <fmt/format.h>

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

void AddCommands(CLI::App& app, Options& options) {
    AddFluidsCommand(app, options);
    AddFluidCommand(app, options);
    AddTableCommand(app, options);
    AddPlotCommand(app, options);
    AddPipesCommand(app, options);
    AddPipeCommand(app, options);
    AddValvesCommand(app, options);
    AddValveCommand(app, options);
    AddConvertCommand(app, options);
    AddUnitsCommand(app, options);
    AddElevationCommand(app, options);
    AddCheckCommand(app, options);
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
void RequireKnownCommand(const CLI::App& app, const std::vector<std::string>& arguments) {
    const auto word = CommandIn(arguments);
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands({})) names.push_back(command->get_name());
    if (word == arguments.end() || std::find(names.begin(), names.end(), *word) != names.end()) {
        return;
    }
    const auto nearest = NearestNames(*word, names);
    throw Failure(fmt::format("unknown command \"{}\"; {}", *word,
                              nearest.empty() ? "the commands are " + JoinNames(names, "and")
                                              : "did you mean " + JoinNames(nearest, "or") + "?"));
}

int Parse(CLI::App& app, std::vector<std::string> arguments) {
    if (arguments.empty()) {
        fmt::print(stderr, "{}", app.help());
        return kRefused;
    }
    try {
        RewriteNegativeNumbers(arguments);
        RequireKnownCommand(app, arguments);
        std::reverse(arguments.begin(), arguments.end());  // the order that the parser wants
        app.parse(arguments);
        return kDone;
    } catch (const CLI::ParseError& error) {
        // Help and version come this way too.
        if (error.get_exit_code() == 0) return app.exit(error);
        PrintError(error.what());
        return kRefused;
    } catch (const Failure& failure) {
        PrintError(failure.what());
        return failure.Status();
    }
}

}  // namespace

void AddTablesOption(CLI::App& app, Options& options) {
    app.add_option("--tables", options.tables,
                   "Directory of the table files, if not the installed one")
        ->type_name("DIR");
}

void AddJsonOption(CLI::App& app, Options& options) {
    app.add_flag("--json", options.json, "Print JSON, for programs");
}

void AddLengthUnitsOption(CLI::App& app, std::string& system) {
    app.add_option("--units", system, "us: lengths in inches, the default; metric: in millimetres")
        ->type_name("us|metric")
        ->check(CLI::IsMember({"us", "metric"}, CLI::ignore_case).description(""));
}

void AddUnitOptions(CLI::App& app, UnitOptions& units) {
    const auto add = [&](const char* name, std::string& text, const char* type, const char* help) {
        return app.add_option(name, text, help)->type_name(type)->group("Units");
    };
    add("--units", units.system, "us|metric",
        "us: \u00B0F, psi, lb/ft\u00B3; metric: \u00B0C, bar, kg/m\u00B3. The default\n"
        "is metric with a temperature unit of \u00B0C or K, else us")
        ->check(CLI::IsMember({"us", "metric"}, CLI::ignore_case).description(""));
    add("--temperature-unit", units.temperatureUnit, "U",
        "\u00B0F, \u00B0R, \u00B0C, K; plain F or degC will do");
    add("--pressure-unit", units.pressureUnit, "U",
        "psi, kPa, bar, in H2O, in Hg, mm H2O, mm Hg, Pa");
}

void AddPressureOptions(CLI::App& app, PressureOptions& pressures) {
    app.add_flag("--absolute", pressures.absolute, "PRES is absolute")->group("Set point");
    app.add_option("--atmosphere", pressures.atmosphere,
                   "Atmospheric pressure, absolute, in the unit of PRES;\nstandard: 101.325 kPa")
        ->type_name("X")
        ->group("Set point");
}

void AddSetPointOptions(CLI::App& app, SetPointOptions& setPoint, bool required) {
    const auto add = [&](const char* name, std::string& text, const char* type, const char* help) {
        app.add_option(name, text, help)->type_name(type)->group("Set point")->required(required);
    };
    add("-t,--temperature", setPoint.temperature, "TEMP", "Temperature");
    add("-p,--pressure", setPoint.pressure, "PRES", "Pressure, gauge unless --absolute is given");
    AddPressureOptions(app, setPoint);
    AddUnitOptions(app, setPoint);
}

int Run(std::vector<std::string> arguments) {
    CLI::App app(
        "Fluid properties, pipe and valve data, unit conversion and the standard atmosphere for\n"
        "systems of pipes.",
        "hydrofacts");
    app.allow_windows_style_options(false);  // "/tables" is a path on every platform
    Options options;
    app.set_version_flag("--version", "hydrofacts " HYDROFACTS_VERSION);
    AddTablesOption(app, options);
    AddJsonOption(app, options);
    app.require_subcommand(1);
    app.footer(kFooter);
    AddCommands(app, options);

    int status = Parse(app, std::move(arguments));
    if (!FlushOutput()) {
        PrintError("the output can't be written");
        status = kRefused;
    }
    return status;
}

}  // namespace hydrofacts::command
