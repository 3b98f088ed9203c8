// Writes the fluid tables that are installed. The build runs it.

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

#include "tables/CheckPoints.h"
#include "tables/Checks.h"
#include "tables/Csv.h"
#include "tables/FluidDesign.h"
#include "tables/LeftOut.h"
#include "tables/Report.h"
#include "tables/TableFile.h"
#include "tables/TableLines.h"

namespace {

using namespace hydrofacts::tables;
namespace fs = std::filesystem;

/// What comes out of the data.
struct Library {
    std::vector<FluidTable> tables;
    std::vector<LeftOut> leftOut;
    std::string checkPoints = CheckPointHeading();
};

// A table that fails its checks does not stay, nor does that of a fluid which is refused now.
void AddFluid(Library& library, const FluidData& fluid, const fs::path& output) {
    const FluidOptions& options = fluid.options;
    const fs::path file = output / (options.name + ".FTBL");
    const auto leaveOut = [&](const char* part, const std::string& reason) {
        library.leftOut.push_back({options.name, options.cas, part, reason});
    };
    try {
        FluidTable table = DesignFluid(fluid);
        WriteWholeFile(file, TableText(table));
        CheckTable(output, table);
        if (!table.liquid) {
            leaveOut("liquid", table.noLiquid);
        }
        if (!table.vapor) {
            leaveOut("vapor", table.noVapor);
        }
        library.checkPoints += CheckPointLines(table, fluid);
        library.tables.push_back(std::move(table));
    } catch (const DesignError& error) {
        std::error_code ignored;
        fs::remove(file, ignored);
        leaveOut("table", error.what());
    }
}

int Run(int argc, char** argv) {
    CLI::App app(
        "Writes a table file (*.FTBL) for each fluid of a folder of CSV files, and checks each "
        "with the library that reads them. Their check points go into check_points.csv beside "
        "them.");
    app.footer(
        "Example:\n  hydrofacts_table_writer --fluids tables/fluids -o build/tables\n\n"
        "Bad data end the run with exit status 1 and a message that names the file, line and\n"
        "field. So does a fluid that cannot be made into a sound table, unless left_out.csv says\n"
        "so, word for word.");
    std::string fluids;
    std::string output;
    std::string report;
    bool renew = false;
    app.add_option("--fluids", fluids, "Folder with fluids.csv and the data that it draws on")
        ->required();
    app.add_option("-o,--output", output, "Folder to write the tables into; made if missing")
        ->required();
    app.add_option("--report", report, "File to write the accuracy of all tables into (Markdown)");
    app.add_flag("--renew", renew, "Write left_out.csv anew instead of comparing it");
    CLI11_PARSE(app, argc, argv);

    fs::create_directories(output);
    Library library;
    for (const FluidData& fluid : ReadReferenceData(fluids)) {
        AddFluid(library, fluid, output);
    }
    const fs::path leftOut = fs::path(fluids) / "left_out.csv";
    if (renew) {
        WriteWholeFile(leftOut, LeftOutText(library.leftOut));
    } else {
        CheckLeftOut(leftOut, library.leftOut);
    }
    WriteWholeFile(fs::path(output) / "check_points.csv", library.checkPoints);
    if (!report.empty()) {
        WriteWholeFile(report, ReportText(library.tables, library.leftOut));
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
