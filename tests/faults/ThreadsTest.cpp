// What many threads do at once with objects of their own, and with what a process has one of. The
// thread sanitizer looks on.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "hydrofacts/dialogs/CFluidScan.h"
#include "hydrofacts/dialogs/FluidTableCache.h"
#include "hydrofacts/frame/Language.h"
#include "hydrofacts/pipe/CPipeTableList.h"
#include "hydrofacts/valve/CValveTable.h"
#include "quillbase/Directory.h"
#include "tests/faults/FaultTables.h"
#include "tests/support/TempFolder.h"

namespace {

constexpr int kRounds = 100;
constexpr int kTables = 250;  // for a scan to have threads of its own

// What goes wrong is counted, since the tests' own macros would join the threads' work.
using Work = std::function<int()>;

int RunAtOnce(const std::vector<Work>& works) {
    std::vector<int> faults(works.size(), -1);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < works.size(); ++i) {
        threads.emplace_back([&, i] { faults[i] = works[i](); });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(std::ranges::count(faults, -1), 0);
    int sum = 0;
    for (const int count : faults) sum += count;
    return sum;
}

int PipeFaults() {
    int faults = 0;
    CPipeTable pipe(HF_US);
    const CPipeTableList list(HF_METRIC);
    for (int i = 0; i < kRounds; ++i) {
        char names[100];
        if (!pipe.LoadMaterial(nullptr, "Steel") || !pipe.LoadPipeList("40", nullptr)) ++faults;
        if (pipe.PipeDia(2.0) != 2.067) ++faults;
        if (list.ListPipeSizes(names, sizeof names, "Steel", "40") != 3) ++faults;
        if (names != std::string("25\t50\t80")) ++faults;
    }
    return faults;
}

int ValveFaults(const std::string& folder) {
    int faults = 0;
    CValveTable valves;
    for (int i = 0; i < kRounds; ++i) {
        if (valves.LoadValveTable(folder.c_str(), "Standard", HF_US, kFormulas) != 1) ++faults;
        const CValveType* elbow = valves.Find("elbow");
        if (elbow == nullptr || elbow->data_count != 4) ++faults;
    }
    return faults;
}

int LanguageFaults(unsigned long language) {
    int faults = 0;
    for (int i = 0; i < kRounds * 10; ++i) {
        char text[160];
        Hydrofacts_SetLanguage(language);
        if (Hydrofacts_GetMessage(6, text, sizeof text) == 0) ++faults;
    }
    return faults;
}

int ConversionFaults() {
    int faults = 0;
    const Units units(HF_METRIC);
    for (int i = 0; i < kRounds * 20; ++i) {
        if (units.Convert(HF_LENGTH, 1.0, HF_LEN_M, HF_LEN_MM, nullptr) != 1000.0) ++faults;
        if (UnitValue<HF_PRESSURE, 0>(HF_BAR, 1.0).value_in(HF_KPA) != 100.0) ++faults;
    }
    return faults;
}

class SharedServices : public ::testing::Test {
  protected:
    SharedServices() {
        folder_.Write("Plain.FTBL", kFluidTable);
        folder_.Write("Steel.PTBL", kPipeTable);
        folder_.Write("Standard.VTBL", kValveTable);
        for (int i = 1; i < kTables; ++i) folder_.Write(std::to_string(i) + ".FTBL", kFluidTable);
        SetDirectory(DIR_TABLES, folder_.Path().c_str());
        ForgetFluidTables();
    }
    ~SharedServices() override {
        SetDirectory(DIR_TABLES, nullptr);
        Hydrofacts_SetLanguage(1033);
    }

    TempFolder folder_;
};

TEST_F(SharedServices, ThreadsStartTheListOfFluidsAtOnceAndAllSeeOneScan) {
    const auto start = [] {
        InitFluidTableCache(FLUID_NONE);
        return 0;
    };
    const auto scan = [this] {
        // As a dialog does: it waits for a scan that has begun, or scans.
        CFluidScan().LoadFluidNames(folder_.Path().c_str(), FLUID_NONE, 0.0, 0.0);
        return std::ranges::count(hydrofacts::FluidNamesFound(), '\t') == kTables ? 0 : 1;
    };
    const auto german = [] { return LanguageFaults(1031); };
    const auto english = [] { return LanguageFaults(1033); };
    EXPECT_EQ(RunAtOnce({start, start, scan, start, scan, german, start, english, scan}), 0);
}

TEST_F(SharedServices, ThreadsLoadTablesOfTheirOwnWhileTheLanguageChanges) {
    const auto valves = [this] { return ValveFaults(folder_.Path()); };
    const auto fluid = [this] {
        int faults = 0;
        std::string path = folder_.Path();
        for (int i = 0; i < kRounds; ++i) {
            CFluid own(HF_KELVIN, HF_KPA, 1, 0.0);
            if (own.SetFluid(path.data(), "Plain", 300.0, 900.0) != 0) ++faults;
            const CFluid copy(own);
            if (copy.GetDensity() != 900.0) ++faults;
        }
        return faults;
    };
    const auto german = [] { return LanguageFaults(1031); };
    const auto english = [] { return LanguageFaults(1033); };
    EXPECT_EQ(RunAtOnce({&PipeFaults, valves, fluid, fluid, &PipeFaults, valves, &ConversionFaults,
                         &ConversionFaults, german, english}),
              0);
}

// What the docstrings allow: lookups of one object from several threads, as long as none of them
// loads.
TEST_F(SharedServices, ThreadsLookUpInOneTable) {
    CPipeTable pipe(HF_US);
    ASSERT_TRUE(pipe.LoadMaterial(nullptr, "Steel") && pipe.LoadPipeList("40", nullptr));
    CValveTable valves;
    ASSERT_EQ(valves.LoadValveTable(folder_.Path().c_str(), "Standard", HF_US, kFormulas), 1);
    const auto lookUp = [&] {
        int faults = 0;
        for (int i = 0; i < kRounds * 10; ++i) {
            if (pipe.PipeDia(2.0) != 2.067 || pipe.PipeSize(2.0) != 2.0) ++faults;
            if (pipe.NextSize(2.0) != 3.0 || pipe.PrevSize(2.0) != 1.0) ++faults;
            if (valves.Find("Gate") == nullptr || valves.ValveData("", 9, 1) == nullptr) ++faults;
        }
        return faults;
    };
    EXPECT_EQ(RunAtOnce({lookUp, lookUp, lookUp, lookUp}), 0);
}

}  // namespace
