#include <fmt/core.h>

#include <array>
#include <memory>
#include <nlohmann/json.hpp>
#include <numeric>

#include "tools/Lengths.h"
#include "tools/Names.h"
#include "tools/Output.h"
#include "tools/Program.h"
#include "tools/TableValves.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(The numbers are those of devices, by type. Every table has Fixed K, Fixed Cv and Fixed Kv under
Other, for figures of the user's. Tables that can't be used are named on standard error. Counts are
the same in both unit systems.

Examples:
  hydrofacts valves
  hydrofacts valves --tables /srv/tables --json)";

struct ListedTable {
    std::string name;
    std::array<std::size_t, kDeviceTypes> counts;
    TableHead head;
};

std::vector<ListedTable> UsableTables(const TableDirectory& directory, HF_UNITS system) {
    std::vector<ListedTable> tables;
    for (const TableName& table : directory.Listed()) {
        TableValves valves;
        if (!valves.Load(directory, table, system)) {
            PrintError(directory.NotUsable(table).what());
            continue;
        }
        ListedTable& listed =
            tables.emplace_back(ListedTable{table.name, {}, ReadTableHead(table)});
        for (std::size_t type = 0; type < kDeviceTypes; ++type) {
            listed.counts[type] = valves.Devices(type).size();
        }
    }
    return tables;
}

void PrintAsJson(const std::vector<ListedTable>& tables) {
    auto json = nlohmann::ordered_json::array();
    for (const ListedTable& table : tables) {
        nlohmann::ordered_json devices;
        for (std::size_t type = 0; type < kDeviceTypes; ++type) {
            devices[device_type_names[type]] = table.counts[type];
        }
        json.push_back({{"table", table.name},
                        {"devices", devices},
                        {"title", table.head.title},
                        {"version", table.head.version}});
    }
    PrintJson({{"tables", json}});
}

void ListValves(const Options& options, HF_UNITS system) {
    const TableDirectory directory(options.tables, kValveTables);
    const auto tables = UsableTables(directory, system);
    if (options.json) {
        PrintAsJson(tables);
        return;
    }
    Rows rows = {{"TABLE"}};
    for (const char* const type : device_type_names) rows.front().push_back(UpperCase(type));
    rows.front().insert(rows.front().end(), {"VERSION", "TITLE"});
    for (const ListedTable& table : tables) {
        std::vector<std::string> row = {table.name};
        for (std::size_t type = 0; type < kDeviceTypes; ++type) {
            // Numbers end below the end of their heading.
            row.push_back(fmt::format("{:{}}", table.counts[type], rows.front()[type + 1].size()));
        }
        row.insert(row.end(), {table.head.version, table.head.title});
        rows.push_back(row);
    }
    PrintRows(rows);
}

}  // namespace

void AddValvesCommand(Command& program, Options& options) {
    const auto system = std::make_shared<std::string>();
    Command command =
        program.AddCommand("valves", "List the installed tables of fittings and valves");
    AddLengthUnitsOption(command, *system);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, system] { ListValves(options, SystemNamed(*system)); });
}

}  // namespace hydrofacts::command
