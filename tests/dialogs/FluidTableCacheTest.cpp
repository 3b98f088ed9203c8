#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "hydrofacts/dialogs/CFluidScan.h"
#include "hydrofacts/dialogs/FluidTableCache.h"
#include "hydrofacts/frame/TableSearch.h"
#include "quillbase/Directory.h"
#include "tests/dialogs/FluidHost.h"

namespace {

FluidText WithLevels(const char* levels) {
    FluidText table;
    table.version = std::string("V\t\"1.0\"\tx\t") + levels;
    return table;
}

class FluidTableCache : public ::testing::Test {
  protected:
    FluidTableCache() { ForgetFluidTables(); }
    ~FluidTableCache() override { SetDirectory(DIR_TABLES, nullptr); }

    // The rows of a dialog that is opened with the given arguments.
    Texts Listed(FLUIDSTATE state, double high = 0.0, double low = 0.0) {
        FluidHost host("");
        host.fluid.InitFluids(host.dialog.Handle(), folder_.path.c_str(), state, high, low);
        return host.Listed();
    }

    TableFolder folder_;
};

TEST_F(FluidTableCache, HoldsTheNamesOfUsableTables) {
    const std::string thirty(30, 'n');
    folder_.Add("Both", {});
    folder_.Add("Liquid", Without(SLOT_VAPOR_VISCOSITY));
    folder_.Add("Vapor", Without(SLOT_LIQUID_DENSITY));
    folder_.Add("Invalid", Without(SLOT_LIQUID_SAT_PRES));
    folder_.Add(thirty, {});
    folder_.Add(thirty + "n", {});
    folder_.Add("High", WithLevels("7.5\t9"));
    folder_.Add("Low", WithLevels("0.1\t0.5"));
    folder_.Add("", {});
    std::filesystem::create_directory(folder_.Path("Folder.FTBL"));
    const struct {
        FLUIDSTATE state;
        double high;
        double low;
        Texts names;
    } kCases[] = {
        {FLUID_NONE, 0.0, 0.0, {"Both", "High", "Liquid", "Low", thirty, "Vapor"}},
        {FLUID_NONE, 7.0, 1.0, {"Both", "Liquid", thirty, "Vapor"}},
        {FLUID_NONE, 7.5, 0.5, {"Both", "High", "Liquid", "Low", thirty, "Vapor"}},
        {FLUID_LIQUID, 7.0, 1.0, {"Both", "Liquid", thirty}},
        {FLUID_VAPOR, 0.0, 1.0, {"Both", "High", thirty, "Vapor"}},
        {FLUID_USER_LIQUID, 0.0, 0.0, {}},
    };
    for (const auto& c : kCases) {
        ForgetFluidTables();
        EXPECT_EQ(Listed(c.state, c.high, c.low), c.names) << c.state << " " << c.high;
    }
}

TEST_F(FluidTableCache, FirstScanThatFindsSomethingDecidesForTheProcess) {
    FluidText liquid = WithLevels("9\t9");
    liquid.formulas[SLOT_VAPOR_DENSITY] = "P5\t0";
    folder_.Add("Liquid", liquid);
    folder_.Add("Vapor", Without(SLOT_LIQUID_DENSITY));
    EXPECT_EQ(Listed(FLUID_USER_LIQUID), Texts{}) << "which is as if nothing had been looked for";
    SetDirectory(DIR_TABLES, folder_.path.c_str());
    InitFluidTableCache(FLUID_LIQUID);
    for (int waits = 0; waits < 5000 && hydrofacts::FluidNamesFound().empty(); ++waits) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    std::filesystem::remove_all(folder_.path);
    EXPECT_EQ(Listed(FLUID_VAPOR, 7.0, 1.0), Texts{"Liquid"}) << "the thread tests no levels";
}

// A table as chance has it: most are good, others lack formulas or have a record of another kind in
// the place of a formula, which then stays that of the table loaded before.
FluidText Chance(std::mt19937& random) {
    const char* const kInstead[] = {"D\t1", "D\t1", "V", "P9\t1\t1", ""};
    FluidText table;
    if (random() % 8 == 0) table = Without(random() % table.formulas.size());
    for (std::string& formula : table.formulas) {
        const auto die = random() % 40;
        if (die < std::size(kInstead)) formula = kInstead[die];
    }
    if (random() % 8 == 0) table.version = "V\t\"1.0\"\tx\t9\t9";
    if (random() % 8 == 0) table.constants = "D\t28.9586\t400";
    return table;
}

TEST_F(FluidTableCache, ThreadsOfAScanFindWhatOneFindsThatReadsTheTablesInTurn) {
    constexpr int kTables = 700;
    std::mt19937 random(2024);
    for (int i = 0; i < kTables; ++i) folder_.Add("Fluid " + std::to_string(i), Chance(random));
    for (const FLUIDSTATE state : {FLUID_NONE, FLUID_LIQUID, FLUID_VAPOR}) {
        TestFluid fluid;
        std::string expected;
        for (hydrofacts::TableSearch tables(folder_.path.c_str(), ".FTBL"); tables.Next();) {
            if (fluid.LoadFluidTable(folder_.path.c_str(), tables.Name(), 7.0, 1.0) != 0 &&
                (state == FLUID_NONE || fluid.FormulasExist(state))) {
                expected += std::string(tables.Name()) + '\t';
            }
        }
        EXPECT_GT(std::ranges::count(expected, '\t'), kTables / 3) << "for a scan to be a test";
        for (int scans = 0; scans < 3; ++scans) {
            ForgetFluidTables();
            CFluidScan().LoadFluidNames(folder_.path.c_str(), state, 7.0, 1.0);
            EXPECT_EQ(hydrofacts::FluidNamesFound(), expected) << state;
        }
    }
}

}  // namespace
