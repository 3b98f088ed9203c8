#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "hydrofacts/frame/Language.h"
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

int ConversionFaults() {
    int faults = 0;
    const Units* units = Units::defaultUnits();
    for (int i = 0; i < kRounds * 20; ++i) {
        if (units->Convert(HF_PRESSURE, 2.0, HF_BAR, HF_KPA, nullptr) != 200.0) ++faults;
        if (units->Convert(HF_FLOW, 2.0, HF_SCFS, HF_SCFM, nullptr) != 120.0) ++faults;
        if (Units::GetUnit("kpa", HF_PRESSURE) != HF_KPA) ++faults;
    }
    return faults;
}

int LanguageFaults(unsigned long language) {
    int faults = 0;
    for (int i = 0; i < kRounds * 5; ++i) {
        char buffer[160];
        Hydrofacts_SetLanguage(language);
        Hydrofacts_GetMessage(8, buffer, sizeof buffer);
        const std::string message = buffer;
        if (message != "Pipe Table for %s is Invalid." &&
            message != "Rohrtabelle f\xFCr %s ist ung\xFCltig.")
            ++faults;
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

TEST(Threads, EachWorksOnItsOwnFluidWhileTheSharedServicesAreInUse) {
    TableFolder folder;
    folder.Add("Plain", {});
    FluidText other;
    other.formulas[4] = kPengRobinson;
    folder.Add("Other", other);
    std::vector<int> faults(10, -1);
    std::vector<std::thread> threads;
    const auto start = [&](auto work) {
        threads.emplace_back([work, &result = faults[threads.size()]] { result = work(); });
    };
    for (int i = 0; i < 4; ++i) start([&folder] { return FluidFaults(folder.path); });
    for (int i = 0; i < 2; ++i) start([] { return ConversionFaults(); });
    for (const unsigned long language : {1033UL, 1031UL})
        start([language] { return LanguageFaults(language); });
    for (const char* directory : {"/first/tables/", "/second"})
        start([directory] { return DirectoryFaults(directory); });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(faults, std::vector<int>(10, 0));
    Hydrofacts_SetLanguage(1033);
    SetDirectory(DIR_TABLES, nullptr);
}

}  // namespace
