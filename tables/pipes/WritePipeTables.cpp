// Writes the pipe tables that are installed. The build runs it.

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

#include "tables/TableLines.h"
#include "tables/pipes/PipeData.h"
#include "tables/pipes/PipeTableFile.h"

namespace {

using namespace hydrofacts::tables;

// A table that fails its checks does not stay.
void WriteTable(const std::filesystem::path& folder, const PipeMaterial& material) {
    const std::filesystem::path file = folder / (material.name + ".PTBL");
    WriteWholeFile(file, PipeTableText(material));
    try {
        CheckPipeTable(folder, material);
    } catch (...) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
        throw;
    }
}

int Run(int argc, char** argv) {
    CLI::App app(
        "Writes a table file (*.PTBL) for each pipe material of a folder of CSV files, and loads "
        "each with the library that reads them.");
    app.footer(
        "Example:\n  hydrofacts_pipe_table_writer --pipes tables/pipes -o build/tables\n\n"
        "The first row that is not sound ends the run with exit status 1 and a message that\n"
        "names the file, line and field.");
    std::string pipes;
    std::string output;
    app.add_option("--pipes", pipes, "Folder with materials.csv and sizes.csv")->required();
    app.add_option("-o,--output", output, "Folder to write the tables into; made if missing")
        ->required();
    CLI11_PARSE(app, argc, argv);
    const std::vector<PipeMaterial> materials = ReadPipes(pipes);
    std::filesystem::create_directories(output);
    for (const PipeMaterial& material : materials) {
        WriteTable(output, material);
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
