#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "hydrofacts/dialogs/FluidTableCache.h"

#ifdef __linux__
#include <sys/inotify.h>
#include <unistd.h>
#endif

#include "hydrofacts/dialogs/CFluidScan.h"
#include "quillbase/Directory.h"
#include "tests/dialogs/FluidHost.h"

namespace {

FluidText WithLevels(const char* levels) {
    FluidText table;
    table.version = std::string("V\t\"1.0\"\tx\t") + levels;
    return table;
}

FluidText Without(int slot) {
    FluidText table;
    const auto index = static_cast<std::size_t>(slot);
    table.formulas[index] = table.formulas[index].substr(0, 2) + "\t0";
    return table;
}

class FluidTableCache : public ::testing::Test {
  protected:
    FluidTableCache() { ForgetFluidTables(); }
    ~FluidTableCache() override { SetDirectory(DIR_TABLES, nullptr); }

    // The rows of a dialog that is opened with the given arguments.
    Texts Listed(FLUIDSTATE state, double high = 0.0, double low = 0.0) {
        FluidHost host;
        EXPECT_EQ(
            host.fluid.InitFluids(host.dialog.Handle(), folder_.path.c_str(), state, high, low), 1);
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
    folder_.Write("Both.PTBL", FluidText().Text());
    folder_.Write(".FTBL", FluidText().Text());
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
        {FLUID_USER_VAPOR, 0.0, 0.0, {}},
    };
    for (const auto& c : kCases) {
        ForgetFluidTables();
        EXPECT_EQ(Listed(c.state, c.high, c.low), c.names) << c.state << " " << c.high;
    }
}

TEST_F(FluidTableCache, FirstScanThatFindsSomethingDecidesForTheProcess) {
    const struct {
        const char* added;
        FLUIDSTATE state;
        Texts names;
    } kSteps[] = {
        {"", FLUID_NONE, {}},
        {"Liquid", FLUID_VAPOR, {}},  // nothing found is not filled
        {"Liquid", FLUID_LIQUID, {"Liquid"}},
        {"Water", FLUID_NONE, {"Liquid"}},
        {"Oil", FLUID_VAPOR, {"Liquid"}},
    };
    for (const auto& step : kSteps) {
        if (*step.added != '\0') folder_.Add(step.added, Without(SLOT_VAPOR_DENSITY));
        EXPECT_EQ(Listed(step.state), step.names) << step.added;
    }
}

#ifdef __linux__
/// Counts what is opened in a folder, the folder itself included.
class Opens {
  public:
    explicit Opens(const std::string& folder) : queue_(::inotify_init1(IN_NONBLOCK)) {
        ::inotify_add_watch(queue_, folder.c_str(), IN_OPEN);
    }
    ~Opens() { ::close(queue_); }
    Opens(const Opens&) = delete;
    Opens& operator=(const Opens&) = delete;

    bool Any() const {
        char events[4096];
        return ::read(queue_, events, sizeof events) > 0;
    }

  private:
    int queue_;
};
#endif

TEST_F(FluidTableCache, DialogOpenedAfterwardsOpensNoFile) {
    folder_.Add("Water", {});
#ifdef __linux__
    const Opens opens(folder_.path);
    EXPECT_EQ(Listed(FLUID_NONE), Texts{"Water"});
    EXPECT_TRUE(opens.Any()) << "the scan";
    EXPECT_EQ(Listed(FLUID_NONE), Texts{"Water"});
    EXPECT_FALSE(opens.Any());
#else
    EXPECT_EQ(Listed(FLUID_NONE), Texts{"Water"});
#endif
    std::filesystem::remove_all(folder_.path);
    EXPECT_EQ(Listed(FLUID_NONE), Texts{"Water"});
}

// A scan on another thread is begun only when the process has the time: wait until it is.
void WaitForScanOrName() {
    const auto names = hydrofacts::FluidTableCache();
    while (true) {
        if (!names->mutex.try_lock()) return;
        const bool filled = !names->text.empty();
        names->mutex.unlock();
        if (filled) return;
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
    WaitForScanOrName();
    EXPECT_EQ(Listed(FLUID_VAPOR, 7.0, 1.0).size(), kTables) << "the thread tests no levels";

    const std::string text = hydrofacts::FluidNamesFound();
    EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\t')), kTables);
    EXPECT_EQ(text.back(), '\t');
    const std::string first = text.substr(0, text.find('\t') + 1);
    EXPECT_EQ(text.find(first, 1), std::string::npos) << "no second scan";
}

TEST_F(FluidTableCache, ThreadsThatAskForTheListAllSeeAllOfIt) {
    for (int i = 0; i < 50; ++i) folder_.Add("Fluid " + std::to_string(i), {});
    std::vector<std::string> seen(4);
    std::vector<std::thread> threads;
    for (std::string& text : seen) {
        threads.emplace_back([&] {
            CFluidScan().LoadFluidNames(folder_.path.c_str(), FLUID_NONE, 0.0, 0.0);
            text = hydrofacts::FluidNamesFound();
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(std::count(seen[0].begin(), seen[0].end(), '\t'), 50);
    for (const std::string& text : seen) EXPECT_EQ(text, seen[0]);
}

}  // namespace
