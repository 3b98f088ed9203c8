#include <fmt/core.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Conversions.h"
#include "tools/Measures.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Program.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(Case doesn't matter where a unit is asked for, and plain spellings do: m3/hr, degC, C, inH2O. The
number of a unit is the one that programs store.

Examples:
  hydrofacts units
  hydrofacts units flow
  hydrofacts units pressure --json)";

constexpr std::size_t kLineWidth = 72;

nlohmann::ordered_json ToJson(HF_UNIT_TYPES type, int id) {
    const UnitMeaning meaning = MeaningOf(type, id);
    nlohmann::ordered_json json = {{"id", id}, {"text", UnitText(type, id)}};
    if (!meaning.base.empty()) {
        json["factor"] = meaning.factor;
        json["base"] = meaning.base;
    }
    if (!meaning.remark.empty()) json["remark"] = meaning.remark;
    return json;
}

nlohmann::ordered_json ToJson(const Measure& measure) {
    auto units = nlohmann::ordered_json::array();
    for (const int id : UnitIds(measure.type)) units.push_back(ToJson(measure.type, id));
    return {{"measure", measure.name}, {"id", static_cast<int>(measure.type)}, {"units", units}};
}

// The texts of a measure's units, in lines that fit a screen beside the measure's name.
std::vector<std::string> WrappedUnits(HF_UNIT_TYPES type) {
    std::vector<std::string> lines(1);
    for (const int id : UnitIds(type)) {
        if (IsCustomUnit(type, id)) continue;
        const std::string text = UnitText(type, id);
        if (lines.back().size() + text.size() > kLineWidth) lines.emplace_back();
        if (!lines.back().empty()) lines.back() += "  ";
        lines.back() += text;
    }
    return lines;
}

void ShowMeasures(bool json) {
    if (json) {
        auto all = nlohmann::ordered_json::array();
        for (const Measure& measure : Measures()) all.push_back(ToJson(measure));
        PrintJson(all);
        return;
    }
    Rows rows = {{"MEASURE", "UNITS"}};
    for (const Measure& measure : Measures()) {
        if (measure.type == HF_HEAD) {
            rows.push_back({measure.name, "those of pressure"});
            continue;
        }
        std::string name = measure.name;
        for (const std::string& line : WrappedUnits(measure.type)) {
            rows.push_back({name, line});
            name.clear();
        }
    }
    PrintRows(rows);
}

void ShowUnits(const Measure& measure, bool json) {
    if (json) {
        PrintJson(ToJson(measure));
        return;
    }
    Rows rows = {{"UNIT", "ID", "ONE IS", ""}};
    for (const int id : UnitIds(measure.type)) {
        const UnitMeaning meaning = MeaningOf(measure.type, id);
        std::vector<std::string> row = {UnitText(measure.type, id), fmt::format("{:2}", id)};
        if (!meaning.base.empty()) {
            row.push_back(fmt::format("{} {}", ShortNumber(meaning.factor), meaning.base));
        }
        row.push_back(meaning.remark);
        rows.push_back(row);
    }
    PrintRows(rows);
}

}  // namespace

void AddUnitsCommand(Command& program, Options& options) {
    const auto measure = std::make_shared<std::string>();
    Command command = program.AddCommand("units", "List the measures, or the units of one measure");
    command.AddWord("MEASURE", *measure, "Such as flow; without one, all are listed");
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, measure] {
        if (measure->empty()) {
            ShowMeasures(options.json);
        } else {
            ShowUnits(RequireMeasure(*measure), options.json);
        }
    });
}

}  // namespace hydrofacts::command
