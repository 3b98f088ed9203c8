#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "quillbase/Directory.h"
#include "tests/fluid/TestFluid.h"

namespace {

constexpr int kRounds = 200;

// What goes wrong is counted, since the tests' own macros would join the threads' work.
int FluidFaults(std::string directory) {
    int faults = 0;
    CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
    for (int i = 0; i < kRounds; ++i) {
        const char* name = i % 2 == 0 ? "Plain" : "Other";
        const double t = 300.0 + i % 50;
        if (fluid.SetFluid(directory.data(), name, t, 900.0) != 0) ++faults;
        if (fluid.GetDensity() != 1200.0 - t || fluid.GetFluidState() != FLUID_LIQUID) ++faults;
        if (fluid.GetViscosityValue().raw_value() != fluid.GetViscosity()) ++faults;
        if (!(fluid.CalcZ(350.0, 100.0, i % 3 == 0) > 0.0)) ++faults;  // shares its kept values
    }
    return faults;
}

int DirectoryFaults(const std::string& directory) {
    int faults = 0;
    for (int i = 0; i < kRounds * 5; ++i) {
        char buffer[260];
        SetDirectory(DIR_TABLES, directory.c_str());
        GetDirectory(DIR_TABLES, buffer, 0);
        const std::string found = buffer;
        if (found != "/first/tables" && found != "/second") ++faults;
    }
    return faults;
}

TEST(Threads, EachWorksOnItsOwnFluidWhileTheDirectoryChanges) {
    TableFolder folder;
    folder.Add("Plain", {});
    FluidText other;
    other.formulas[4] = kPengRobinson;
    folder.Add("Other", other);
    std::vector<int> faults(6, -1);
    std::vector<std::thread> threads;
    const auto start = [&](auto work) {
        threads.emplace_back([work, &result = faults[threads.size()]] { result = work(); });
    };
    for (int i = 0; i < 4; ++i) start([&folder] { return FluidFaults(folder.path); });
    for (const char* directory : {"/first/tables/", "/second"})
        start([directory] { return DirectoryFaults(directory); });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(faults, std::vector<int>(6, 0));
    SetDirectory(DIR_TABLES, nullptr);
}

}  // namespace
