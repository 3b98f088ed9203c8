#include <fmt/core.h>

#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Failure.h"
#include "tools/Names.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Platform.h"
#include "tools/Program.h"
#include "tools/plot/Gnuplot.h"
#include "tools/plot/GnuplotScript.h"
#include "tools/plot/PropertyPlot.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(The properties are density, viscosity, vapor-pressure, k (the ratio of specific heats) and
compressibility, each over the temperatures of the table; liquid and vapor have a panel of their own.
Density and compressibility of the vapor are drawn for the pressures given, or for those of the check
points. Check points, which check_points.csv beside the tables holds, are hollow where the formula was
fitted to them and filled where it has not seen them.

FILE.svg is drawn by gnuplot, which has to be installed; FILE.gp is the script for it. With --json the
points are printed.

Examples:
  hydrofacts plot Water density -o water-density.svg --units metric
  hydrofacts plot Water density --state liquid --deviation -o fit.svg
  hydrofacts plot R-134a viscosity --state liquid -o r134a.svg --temperature-unit K
  hydrofacts plot Methane compressibility -p 10 -p 50 -p 90 --absolute --units metric -o z.svg
  hydrofacts plot Air density -p 0 -p 100 --state vapor --json)";

using Json = nlohmann::ordered_json;

struct PlotOptions {
    std::string name;
    std::string property;
    std::string state;
    std::string output;
    std::vector<std::string> pressures;
    bool deviation = false;
    UnitOptions units;
    PressureOptions from;
};

bool IsScript(const std::filesystem::path& file) {
    const std::string extension = Utf8FromPath(file.extension());
    if (EqualIgnoringCase(extension, ".gp")) return true;
    if (EqualIgnoringCase(extension, ".svg")) return false;
    throw Failure(Utf8FromPath(file) + ": a plot is named *.svg, or *.gp for a script of gnuplot");
}

std::vector<double> PressuresIn(const PlotOptions& own) {
    std::vector<double> pressures;
    for (const std::string& text : own.pressures) {
        pressures.push_back(RequireNumber(text, "--pressure"));
    }
    if (!pressures.empty() && !DependsOnPressure(own.property)) {
        throw Failure(fmt::format("--pressure: in a table {} doesn't depend on the pressure",
                                  LowerCase(own.property)));
    }
    return pressures;
}

void Save(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << text;
    stream.close();
    if (!stream) throw Failure(Utf8FromPath(file) + ": the file can't be written");
}

std::string Summary(const PropertyPlot& plot) {
    std::size_t curves = 0;
    std::size_t points = 0;
    for (const Panel& panel : plot.panels) {
        for (const Series& series : panel.series) {
            if (series.kind == SeriesKind::Curve) {
                ++curves;
            } else {
                points += series.points.size();
            }
        }
    }
    return fmt::format("{} {}, {} check {}", curves, curves == 1 ? "curve" : "curves", points,
                       points == 1 ? "point" : "points");
}

Json ToJson(const Series& series) {
    constexpr const char* kKinds[] = {"curve", "fitted", "not fitted"};
    auto points = Json::array();
    for (const PlotPoint& point : series.points) {
        points.push_back({point.temperature, point.value});
    }
    return {{"label", series.label},
            {"kind", kKinds[static_cast<std::size_t>(series.kind)]},
            {"points", points}};
}

Json ToJson(const PropertyPlot& plot) {
    auto panels = Json::array();
    for (const Panel& panel : plot.panels) {
        auto list = Json::array();
        for (const Series& series : panel.series) list.push_back(ToJson(series));
        panels.push_back({{"title", panel.title},
                          {"x", plot.temperatureLabel},
                          {"y", panel.valueLabel},
                          {"series", list}});
    }
    return {{"panels", panels}};
}

void Draw(const Options& options, const PlotOptions& own) {
    const std::filesystem::path file = PathFromUtf8(own.output);
    const bool script = !own.output.empty() && IsScript(file);
    if (own.output.empty() && !options.json) {
        throw Failure("--output FILE.svg says where the plot goes; --json prints its points");
    }
    Units units;
    SetUserUnits(units, own.units);
    SetGauge(units, own.from);
    const std::vector<double> pressures = PressuresIn(own);
    const TableDirectory directory(options.tables, kFluidTables);
    const PropertyPlot plot = MakePlot(directory, directory.Require(own.name),
                                       {own.property, own.state, pressures, own.deviation}, units);
    if (!own.output.empty()) {
        const std::string commands = GnuplotScript(plot);
        Save(file, script ? commands : RunGnuplot(commands));
    }
    if (options.json) {
        PrintJson(ToJson(plot));
    } else {
        Print(fmt::format("{}: {}\n", own.output, Summary(plot)));
    }
}

}  // namespace

void AddPlotCommand(Command& program, Options& options) {
    const auto own = std::make_shared<PlotOptions>();
    Command command = program.AddCommand("plot", "Draw a fluid's property over its table's range");
    command.AddWord("NAME", own->name, "The fluid, in any case").Require();
    command.AddWord("PROPERTY", own->property, JoinNames(PlotProperties(), "or")).Require();
    command.AddOption("-o,--output", own->output, "FILE",
                      "The plot, as .svg, or as .gp for gnuplot");
    command.AddChoice("--state", own->state, {"liquid", "vapor"}, "Only this state");
    command.AddFlag("--deviation", own->deviation,
                    "How far the table is off the check points, in percent");
    command
        .AddOption("-p,--pressure", own->pressures, "PRES",
                   "Pressure of a vapor's curve, gauge unless --absolute\nis given; may be "
                   "repeated")
        .Under("Set point");
    AddPressureOptions(command, own->from);
    AddUnitOptions(command, own->units);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, own] { Draw(options, *own); });
}

}  // namespace hydrofacts::command
