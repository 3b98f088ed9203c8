#include <fmt/core.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Names.h"
#include "tools/Output.h"
#include "tools/Program.h"
#include "tools/TableDirectory.h"
#include "tools/TableFluid.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(The levels are those by which a host may leave a table out of its lists. Tables that can't be
used are named on standard error.

Examples:
  hydrofacts fluids
  hydrofacts fluids --state vapor
  hydrofacts fluids --tables /srv/tables --json)";

struct ListedFluid {
    std::string name;
    bool liquid;
    bool vapor;
    TableHead head;
};

std::vector<ListedFluid> UsableFluids(const TableDirectory& directory, const std::string& state) {
    std::vector<ListedFluid> fluids;
    for (const TableName& table : directory.Listed()) {
        const Units units;
        TableFluid fluid(units);
        if (!fluid.Load(directory, table)) {
            PrintError(directory.NotUsable(table).what());
            continue;
        }
        const bool liquid = fluid.HasLiquid();
        const bool vapor = fluid.HasVapor();
        if (EqualIgnoringCase(state, "liquid") && !liquid) continue;
        if (EqualIgnoringCase(state, "vapor") && !vapor) continue;
        fluids.push_back({table.name, liquid, vapor, ReadTableHead(table)});
    }
    return fluids;
}

nlohmann::ordered_json ToJson(const ListedFluid& fluid) {
    auto states = nlohmann::ordered_json::array();
    if (fluid.liquid) states.push_back("liquid");
    if (fluid.vapor) states.push_back("vapor");
    nlohmann::ordered_json json = {
        {"name", fluid.name},
        {"states", states},
        {"title", fluid.head.title},
        {"version", fluid.head.version},
    };
    const auto level = [&](const char* key, const std::optional<double>& value) {
        json[key] = value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json();
    };
    level("low_level", fluid.head.lowLevel);
    level("high_level", fluid.head.highLevel);
    return json;
}

void ListFluids(const Options& options, const std::string& state) {
    const TableDirectory directory(options.tables, kFluidTables);
    const auto fluids = UsableFluids(directory, state);
    if (options.json) {
        auto json = nlohmann::ordered_json::array();
        for (const ListedFluid& fluid : fluids) json.push_back(ToJson(fluid));
        PrintJson(json);
        return;
    }
    Rows rows = {{"FLUID", "STATES", "VERSION", "LEVELS", "TITLE"}};
    for (const ListedFluid& fluid : fluids) {
        const char* const states = !fluid.vapor   ? "liquid"
                                   : fluid.liquid ? "liquid, vapor"
                                                  : "vapor";
        rows.push_back(
            {fluid.name, states, fluid.head.version, LevelsText(fluid.head), fluid.head.title});
    }
    PrintRows(rows);
}

}  // namespace

void AddFluidsCommand(Command& program, Options& options) {
    const auto state = std::make_shared<std::string>();
    Command command = program.AddCommand("fluids", "List the installed fluids");
    command.AddChoice("--state", *state, {"liquid", "vapor"}, "Only fluids that have this state");
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, state] { ListFluids(options, *state); });
}

}  // namespace hydrofacts::command
