#include <fmt/core.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <optional>

#include "tools/Conversions.h"
#include "tools/Failure.h"
#include "tools/FluidAtSetPoint.h"
#include "tools/Measures.h"
#include "tools/Names.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Program.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(Temperatures are temperatures, not differences. A gauge pressure stays gauge. Heads are heads of
the fluid, also "ft H2O" and "m H2O"; "in H2O" and "mm H2O" are pressures. Without --measure it is
the one measure that has both units.

Examples:
  hydrofacts convert 100 psi bar
  hydrofacts convert -40 F C
  hydrofacts convert 250 "US gpm" m3/hr
  hydrofacts convert 1 m ft --measure length
  hydrofacts convert 30 m kPa --fluid Water -t 20 -p 1 --units metric
  hydrofacts convert 1000 scfm kg/hr --fluid Air -t 70 -p 100)";

struct ConvertOptions {
    std::string value;
    std::string from;
    std::string to;
    std::string measure;
    std::string fluid;
    SetPointOptions setPoint;
};

// The measures that have the unit. Head has none of its own.
std::vector<HF_UNIT_TYPES> MeasuresWith(const std::string& unit) {
    std::vector<HF_UNIT_TYPES> types;
    for (const Measure& measure : Measures()) {
        if (measure.type == HF_HEAD) continue;
        if (FindUnit(measure.type, unit)) types.push_back(measure.type);
    }
    return types;
}

std::string NamesOf(const std::vector<HF_UNIT_TYPES>& types, const char* lastWord) {
    std::vector<std::string> names;
    names.reserve(types.size());
    for (const HF_UNIT_TYPES type : types) names.emplace_back(MeasureName(type));
    return JoinNames(names, lastWord);
}

// What to say of a unit that no measure has, with the units of the measures of the other one.
std::string UnknownUnit(const std::string& unit, const std::vector<HF_UNIT_TYPES>& otherTypes) {
    std::string text = fmt::format("unknown unit \"{}\"", unit);
    if (otherTypes.empty()) return text + "; `hydrofacts units` lists all units";
    for (const HF_UNIT_TYPES type : otherTypes) {
        text += "; " + UnitHint(type, unit);
    }
    return text;
}

HF_UNIT_TYPES OnlyMeasureWith(const std::string& from, const std::string& to) {
    const auto fromTypes = MeasuresWith(from);
    const auto toTypes = MeasuresWith(to);
    if (fromTypes.empty()) throw Failure(UnknownUnit(from, toTypes));
    if (toTypes.empty()) throw Failure(UnknownUnit(to, fromTypes));
    std::vector<HF_UNIT_TYPES> common;
    for (const HF_UNIT_TYPES type : fromTypes) {
        if (FindUnit(type, to)) common.push_back(type);
    }
    if (common.empty()) {
        throw Failure(fmt::format("\"{}\" is a unit of {}, \"{}\" of {}: there is no conversion",
                                  from, NamesOf(fromTypes, "and"), to, NamesOf(toTypes, "and")));
    }
    if (common.size() > 1) {
        throw Failure(fmt::format("\"{}\" and \"{}\" are units of {}: say which with --measure",
                                  from, to, NamesOf(common, "and of")));
    }
    return common.front();
}

void RequirePossible(HF_UNIT_TYPES type, double value, int from) {
    if (type != HF_TEMPERATURE) return;
    if (ConvertUnits(type, value, from, HF_KELVIN, nullptr) < 0.0) {
        throw Failure(
            fmt::format("{} {} is below absolute zero", ShortNumber(value), UnitText(type, from)));
    }
}

// The fluid of a conversion, with what it refers to.
struct FluidInUse {
    FluidInUse(const ConvertOptions& own, const Options& options)
        : point(own.setPoint),
          directory(options.tables, kFluidTables),
          table(directory.Require(own.fluid)),
          fluid(point.UserUnits()) {
        LoadAtSetPoint(fluid, directory, table, point);
        RequireState(fluid, table);
    }

    SetPoint point;
    TableDirectory directory;
    TableName table;
    TableFluid fluid;
};

std::unique_ptr<FluidInUse> FluidOf(const ConvertOptions& own, const Options& options) {
    const bool point = !own.setPoint.temperature.empty() || !own.setPoint.pressure.empty();
    if (own.fluid.empty()) {
        if (point) throw Failure("-t and -p belong to a fluid: say which with --fluid");
        return nullptr;
    }
    if (own.setPoint.temperature.empty() || own.setPoint.pressure.empty()) {
        throw Failure("--fluid needs its temperature and pressure: -t TEMP -p PRES");
    }
    return std::make_unique<FluidInUse>(own, options);
}

void RequireFluidIfNeeded(HF_UNIT_TYPES type, int from, int to, FluidInUse* use) {
    const std::string why = WhyFluidIsNeeded(type, from, to);
    if (why.empty()) return;
    if (use == nullptr) {
        throw Failure(fmt::format("{} to {} needs a fluid, since {}: --fluid NAME -t TEMP -p PRES",
                                  UnitText(type, from), UnitText(type, to), why));
    }
    // The library would take the specific gravity to water for that to air.
    if (use->fluid.IsLiquid() && (IsStandardVolume(type, from) || IsStandardVolume(type, to))) {
        throw Failure(fmt::format("standard volume is a measure of gas, and {} is a liquid at {}",
                                  use->table.name, use->point.Text()));
    }
}

void ShowConversion(const Options& options, const ConvertOptions& own) {
    const double value = RequireNumber(own.value, "VALUE");
    const HF_UNIT_TYPES type =
        own.measure.empty() ? OnlyMeasureWith(own.from, own.to) : RequireMeasure(own.measure).type;
    const int from = RequireUnit(type, own.from);
    const int to = RequireUnit(type, own.to);
    RequirePossible(type, value, from);
    const auto use = FluidOf(own, options);
    RequireFluidIfNeeded(type, from, to, use.get());

    const double result = ConvertUnits(type, value, from, to, use ? &use->fluid : nullptr);
    if (options.json) {
        nlohmann::ordered_json json = {
            {"measure", MeasureName(type)}, {"value", value},
            {"from", UnitText(type, from)}, {"result", result},
            {"to", UnitText(type, to)},
        };
        if (use) {
            json["fluid"] = {{"name", use->table.name},
                             {"state", use->fluid.IsLiquid() ? "liquid" : "vapor"},
                             {"density", use->fluid.GetDensity()}};
        }
        PrintJson(json);
        return;
    }
    Print(fmt::format("{} {} = {} {}\n", ShortNumber(value), UnitText(type, from),
                      ShortNumber(result), UnitText(type, to)));
    if (use && !WhyFluidIsNeeded(type, from, to).empty()) {
        Print(fmt::format("{}, a {} at {}: {} kg/m\u00B3\n", use->table.name,
                          use->fluid.IsLiquid() ? "liquid" : "vapor", use->point.Text(),
                          SignificantNumber(use->fluid.GetDensity())));
    }
}

}  // namespace

void AddConvertCommand(Command& program, Options& options) {
    const auto own = std::make_shared<ConvertOptions>();
    Command command = program.AddCommand("convert", "Convert a number between two units");
    command.AddWord("VALUE", own->value, "The number").Require();
    command.AddWord("FROM", own->from, "Its unit").Require();
    command.AddWord("TO", own->to, "The unit wanted").Require();
    command.AddOption("--measure", own->measure, "MEASURE",
                      "What is measured; see `hydrofacts units`");
    command.AddOption("--fluid", own->fluid, "NAME", "The fluid whose density joins the units");
    AddSetPointOptions(command, own->setPoint, false);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, own] { ShowConversion(options, *own); });
}

}  // namespace hydrofacts::command
