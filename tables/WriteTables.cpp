// Writes the fluid tables that are installed. The build runs it.

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tables/Checks.h"
#include "tables/Csv.h"
#include "tables/FluidDesign.h"
#include "tables/TableFile.h"

namespace {

using namespace hydrofacts::tables;

void WriteFile(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << text;
    stream.close();
    if (!stream) {
        throw InputError(file.generic_string() + ": cannot be written");
    }
}

// A table that fails its checks does not stay.
void WriteTable(const std::filesystem::path& folder, const FluidTable& table) {
    const std::filesystem::path file = folder / (table.name + ".FTBL");
    WriteFile(file, TableText(table));
    try {
        CheckTable(folder, table);
    } catch (...) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
        throw;
    }
}

void WriteAll(const std::filesystem::path& fluids, const std::filesystem::path& output) {
    std::filesystem::create_directories(output);
    for (const FluidData& fluid : ReadReferenceData(fluids)) {
        WriteTable(output, DesignFluid(fluid));
    }
}

int Run(int argc, char** argv) {
    CLI::App app(
        "Writes a table file (*.FTBL) for each fluid of a folder of CSV files, and checks each "
        "with the library that reads them.");
    app.footer(
        "Example:\n  hydrofacts_table_writer --fluids tables/fluids -o build/tables\n\n"
        "The first fluid that cannot be made into a sound table ends the run with exit status 1\n"
        "and a message that names the file, line and field, or the fluid and the reason.");
    std::string fluids;
    std::string output;
    app.add_option("--fluids", fluids, "Folder with fluids.csv and the data that it draws on")
        ->required();
    app.add_option("-o,--output", output, "Folder to write the tables into; made if missing")
        ->required();
    CLI11_PARSE(app, argc, argv);
    WriteAll(fluids, output);
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
