#include <fmt/core.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Lengths.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Program.h"
#include "tools/TablePipe.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(Roughness is absolute, in inches or mm; C is that of Hazen and Williams; both of new pipe. Tables that
can't be used are named on standard error.

Examples:
  hydrofacts pipes
  hydrofacts pipes --units metric
  hydrofacts pipes --tables /srv/tables --json)";

struct ListedPipe {
    std::string material;
    std::size_t schedules;
    double roughness;
    double hazenWilliamsC;
    TableHead head;
};

std::vector<ListedPipe> UsablePipes(const TableDirectory& directory, HF_UNITS system) {
    std::vector<ListedPipe> pipes;
    for (const TableName& table : directory.Listed()) {
        TablePipe pipe(system);
        if (!pipe.Load(directory, table)) {
            PrintError(directory.NotUsable(table).what());
        } else if (pipe.GetAbsRoughness() == 0.0) {
            // The library's lists leave such a table out.
            PrintError(directory.NotUsable(table, "no roughness in " + LengthUnit(system)).what());
        } else {
            pipes.push_back({table.name, pipe.Schedules().size(), pipe.GetAbsRoughness(),
                             pipe.GetHWC(), ReadTableHead(table)});
        }
    }
    return pipes;
}

nlohmann::ordered_json ToJson(const ListedPipe& pipe) {
    return {
        {"material", pipe.material},   {"schedules", pipe.schedules},
        {"roughness", pipe.roughness}, {"hazen_williams_c", NumberOrNull(pipe.hazenWilliamsC)},
        {"title", pipe.head.title},    {"version", pipe.head.version},
    };
}

void ListPipes(const Options& options, HF_UNITS system) {
    const TableDirectory directory(options.tables, kPipeTables);
    const auto pipes = UsablePipes(directory, system);
    if (options.json) {
        auto materials = nlohmann::ordered_json::array();
        for (const ListedPipe& pipe : pipes) materials.push_back(ToJson(pipe));
        PrintJson({{"materials", materials}, {"units", {{"roughness", LengthUnit(system)}}}});
        return;
    }
    Rows rows = {{"MATERIAL", "SCHEDULES", fmt::format("ROUGHNESS ({})", LengthUnit(system)), "C",
                  "VERSION", "TITLE"}};
    for (const ListedPipe& pipe : pipes) {
        rows.push_back({pipe.material, fmt::format("{:9}", pipe.schedules),
                        ShortNumber(pipe.roughness), HazenWilliamsText(pipe.hazenWilliamsC),
                        pipe.head.version, pipe.head.title});
    }
    PrintRows(rows);
}

}  // namespace

void AddPipesCommand(Command& program, Options& options) {
    const auto system = std::make_shared<std::string>();
    Command command = program.AddCommand("pipes", "List the installed pipe materials");
    AddLengthUnitsOption(command, *system);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, system] { ListPipes(options, SystemNamed(*system)); });
}

}  // namespace hydrofacts::command
