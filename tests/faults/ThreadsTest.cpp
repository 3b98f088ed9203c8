// What many threads do at once with objects of their own, and with what a process has one of. The
// thread sanitizer looks on.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "hydrofacts/dialogs/FluidTableCache.h"
#include "hydrofacts/frame/Language.h"
#include "hydrofacts/pipe/CPipeTableList.h"
#include "hydrofacts/valve/CValveTable.h"
#include "quillbase/Directory.h"
#include "tests/faults/FaultTables.h"

namespace {

constexpr int kRounds = 100;

// What goes wrong is counted, since the tests' own macros would join the threads' work.
using Work = std::function<int()>;

int RunAtOnce(const std::vector<Work>& works) {
    std::vector<int> faults(works.size(), 1);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < works.size(); ++i) {
        threads.emplace_back([&, i] { faults[i] = works[i](); });
    }
    for (std::thread& thread : threads) thread.join();
    return std::accumulate(faults.begin(), faults.end(), 0);
}

class SharedServices : public ::testing::Test {
  protected:
    SharedServices() {
        tables_.WriteAll();
        tables_.FillUp();
        SetDirectory(DIR_TABLES, tables_.path.c_str());
    }
    ~SharedServices() override { SetDirectory(DIR_TABLES, nullptr); }

    Tables tables_;
};

TEST_F(SharedServices, ThreadsStartTheListOfFluidsWhileTheLanguageChangesAndAllSeeOneScan) {
    ForgetFluidTables();
    const auto start = [] {
        InitFluidTableCache(FLUID_NONE);
        return 0;
    };
    const auto scan = [this] {
        // As a dialog does: it waits for a scan that has begun, or scans.
        CFluidScan().LoadFluidNames(tables_.path.c_str(), FLUID_NONE, 0.0, 0.0);
        return std::ranges::count(hydrofacts::FluidNamesFound(), '\t') == kManyTables ? 0 : 1;
    };
    const auto speak = [](unsigned long language) {
        int faults = 0;
        for (int i = 0; i < kRounds * 10; ++i) {
            char text[160];
            Hydrofacts_SetLanguage(language);
            if (Hydrofacts_GetMessage(6, text, sizeof text) == 0) ++faults;
        }
        return faults;
    };
    const Work german = [&speak] { return speak(1031); };
    const Work english = [&speak] { return speak(1033); };
    EXPECT_EQ(RunAtOnce({start, start, scan, start, scan, german, start, english, scan}), 0);
    Hydrofacts_SetLanguage(1033);
}

// Lookups of one object are allowed to several threads, as long as none of them loads.
TEST_F(SharedServices, ThreadsLoadTablesOfTheirOwnAndLookUpInOne) {
    CPipeTable pipe(HF_US);
    ASSERT_TRUE(pipe.LoadMaterial(nullptr, "Steel") && pipe.LoadPipeList("40", nullptr));
    CValveTable valves;
    ASSERT_EQ(valves.LoadValveTable(tables_.path.c_str(), "Standard", HF_US, kFormulas), 1);
    const auto lookUp = [&] {
        int faults = 0;
        for (int i = 0; i < kRounds * 10; ++i) {
            if (pipe.PipeDia(2.0) != 2.067 || pipe.PipeSize(2.0) != 2.0) ++faults;
            if (pipe.NextSize(2.0) != 3.0 || pipe.PrevSize(2.0) != 1.0) ++faults;
            if (valves.Find("Gate") == nullptr || valves.ValveData("", 9, 1) == nullptr) ++faults;
        }
        return faults;
    };
    const auto load = [this] {
        int faults = 0;
        CPipeTable ownPipe(HF_US);
        const CPipeTableList list(HF_METRIC);
        CValveTable ownValves;
        for (int i = 0; i < kRounds; ++i) {
            char names[100];
            const bool hasPipe =
                ownPipe.LoadMaterial(nullptr, "Steel") && ownPipe.LoadPipeList("40", nullptr);
            if (!hasPipe || ownPipe.PipeDia(2.0) != 2.067) ++faults;
            if (list.ListPipeSizes(names, sizeof names, "Steel", "40") != 3) ++faults;
            if (names != std::string("25\t50\t80")) ++faults;
            const int loaded =
                ownValves.LoadValveTable(tables_.path.c_str(), "Standard", HF_US, kFormulas);
            const CValveType* elbow = ownValves.Find("elbow");
            if (loaded != 1 || elbow == nullptr || elbow->data_count != 4) ++faults;
        }
        return faults;
    };
    EXPECT_EQ(RunAtOnce({load, lookUp, load, lookUp, load, lookUp, load, lookUp}), 0);
}

}  // namespace
