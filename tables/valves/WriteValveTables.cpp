// Writes the valve tables that are installed. The build runs it.

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

#include "tables/TableLines.h"
#include "tables/valves/ValveData.h"
#include "tables/valves/ValveTableFile.h"

namespace {

using namespace hydrofacts::tables;

// A table that fails its checks does not stay.
void WriteTable(const std::filesystem::path& folder, const ValveTableData& table) {
    const std::filesystem::path file = folder / (table.name + ".VTBL");
    WriteWholeFile(file, ValveTableText(table));
    try {
        CheckValveTable(folder, table);
    } catch (...) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
        throw;
    }
}

int Run(int argc, char** argv) {
    CLI::App app(
        "Writes the valve tables (*.VTBL) that a folder of CSV files describes, and loads each "
        "with "
        "the library that reads them.");
    app.footer(
        "Example:\n  hydrofacts_valve_table_writer --valves tables/valves -o build/tables\n\n"
        "The first row that is not sound ends the run with exit status 1 and a message that\n"
        "names the file, line and field.");
    std::string valves;
    std::string output;
    app.add_option("--valves", valves, "Folder with tables.csv, devices.csv and by_size.csv")
        ->required();
    app.add_option("-o,--output", output, "Folder to write the tables into; made if missing")
        ->required();
    CLI11_PARSE(app, argc, argv);
    const std::vector<ValveTableData> tables = ReadValves(valves);
    std::filesystem::create_directories(output);
    for (const ValveTableData& table : tables) {
        WriteTable(output, table);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
