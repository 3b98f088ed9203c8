#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "hydrofacts/dialogs/FluidTableCache.h"

#ifdef __linux__
#include <sys/inotify.h>
#include <unistd.h>
#endif

#include "hydrofacts/dialogs/CFluidScan.h"
#include "hydrofacts/frame/TableSearch.h"
#include "quillbase/Directory.h"
#include "tests/dialogs/FluidHost.h"

namespace {

FluidText WithLevels(const char* levels) {
    FluidText table;
    table.version = std::string("V\t\"1.0\"\tx\t") + levels;
    return table;
}

FluidText Without(std::size_t slot) {
    FluidText table;
    table.formulas.at(slot) = table.formulas.at(slot).substr(0, 2) + "\t0";
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
    folder_.Add("Liquid", Without(SLOT_VAPOR_DENSITY));
    EXPECT_EQ(Listed(FLUID_VAPOR), Texts{});
    EXPECT_EQ(Listed(FLUID_LIQUID), Texts{"Liquid"}) << "nothing found is not filled";
#ifdef __linux__
    const int opened = ::inotify_init1(IN_NONBLOCK);
    ::inotify_add_watch(opened, folder_.path.c_str(), IN_OPEN);
    EXPECT_EQ(Listed(FLUID_VAPOR), Texts{"Liquid"});
    char events[4096];
    EXPECT_EQ(::read(opened, events, sizeof events), -1) << "a file was opened";
    ::close(opened);
#endif
    std::filesystem::remove_all(folder_.path);
    EXPECT_EQ(Listed(FLUID_VAPOR), Texts{"Liquid"});
}

// A table as chance has it: most are good, others are short, lack formulas or have a record of
// another kind in the place of a formula, which then stays that of the table loaded before.
FluidText Chance(std::mt19937& random) {
    FluidText table;
    for (std::string& formula : table.formulas) {
        switch (random() % 40) {
            case 0:
                formula = formula.substr(0, 2) + "\t0";
                break;
            case 1:
            case 2:
                formula = "D\t1";
                break;
            case 3:
                formula = "V";
                break;
            case 4:
                formula = "P9\t1\t1";
                break;
            default:
                break;
        }
    }
    if (random() % 8 == 0) table.version = "V\t\"1.0\"\tx\t9\t9";
    if (random() % 8 == 0) table.constants = "D\t28.9586\t400";
    if (random() % 8 == 0) {
        for (std::size_t i = 2 + random() % 6; i < table.formulas.size(); ++i) {
            table.formulas.at(i).clear();
        }
    }
    return table;
}

TEST_F(FluidTableCache, ThreadsOfAScanFindWhatOneFindsThatReadsTheTablesInTurn) {
    constexpr unsigned kSeed = 2024;
    constexpr int kTables = 700;
    SCOPED_TRACE(::testing::Message() << "seed " << kSeed);
    std::mt19937 random(kSeed);
    for (int i = 0; i < kTables; ++i) folder_.Add("Fluid " + std::to_string(i), Chance(random));
    for (const FLUIDSTATE state : {FLUID_NONE, FLUID_LIQUID, FLUID_VAPOR}) {
        TestFluid fluid;
        std::string expected;
        for (hydrofacts::TableSearch tables(folder_.path.c_str(), ".FTBL"); tables.Next();) {
            if (fluid.LoadFluidTable(folder_.path.c_str(), tables.Name(), 7.0, 1.0) == 0) continue;
            if (state != FLUID_NONE && !fluid.FormulasExist(state)) continue;
            expected += std::string(tables.Name()) + '\t';
        }
        EXPECT_GT(std::ranges::count(expected, '\t'), kTables / 3) << "for a scan to be a test";
        for (int scans = 0; scans < 3; ++scans) {
            ForgetFluidTables();
            CFluidScan().LoadFluidNames(folder_.path.c_str(), state, 7.0, 1.0);
            EXPECT_EQ(hydrofacts::FluidNamesFound(), expected) << state;
        }
    }
}

// Returns when a scan on another thread has begun.
void WaitForScan() {
    const auto names = hydrofacts::FluidTableCache();
    for (bool filled = false; !filled && names->mutex.try_lock();) {
        filled = !names->text.empty();
        names->mutex.unlock();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

TEST_F(FluidTableCache, ThreadScansOnceAndDialogsWaitForItsEnd) {
    constexpr std::size_t kTables = 300;
    for (std::size_t i = 0; i < kTables; ++i) {
        folder_.Add("Fluid " + std::to_string(i), WithLevels("9\t9"));
    }
    SetDirectory(DIR_TABLES, folder_.path.c_str());
    for (int starts = 0; starts < 3; ++starts) InitFluidTableCache(FLUID_LIQUID);
    WaitForScan();
    EXPECT_EQ(Listed(FLUID_VAPOR, 7.0, 1.0).size(), kTables) << "the thread tests no levels";
    const std::string text = hydrofacts::FluidNamesFound();
    EXPECT_EQ(std::ranges::count(text, '\t'), kTables) << "one scan, whole names";
    EXPECT_EQ(text.back(), '\t');
}

}  // namespace
