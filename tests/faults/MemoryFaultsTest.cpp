// No memory: what a host asks for ends with std::bad_alloc, and the object that it asked is good
// for the next question. Each operation is run with its first allocation refused, then its second,
// and so on.

#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <system_error>
#include <thread>

#include "hydrofacts/dialogs/FluidTableCache.h"
#include "hydrofacts/pipe/CPipeTableList.h"
#include "hydrofacts/valve/CValveTable.h"
#include "quillbase/CAtmPressure.h"
#include "quillbase/Directory.h"
#include "tests/faults/FaultTables.h"

namespace {

constexpr long kNever = std::numeric_limits<long>::max();

// How many allocations are granted before all are refused.
std::atomic<long> granted{kNever};

// NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory): these are what
// operator new is made of
void* Allocate(std::size_t size) {
    const bool refused = granted != kNever && granted.fetch_sub(1) <= 0;
    void* memory = refused ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

// Apart, since the compiler takes an inlined call of free for a mismatch.
[[gnu::noinline]] void Release(void* memory) { std::free(memory); }
// NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* memory) noexcept { Release(memory); }
void operator delete[](void* memory) noexcept { Release(memory); }
void operator delete(void* memory, std::size_t) noexcept { Release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Release(memory); }

namespace {

using Work = std::function<void()>;

/// Runs an operation with ever more memory until it has enough, and a check after each failure.
/// Gives how often it failed.
int FailEverywhere(const Work& operation, const Work& check = {}) {
    constexpr int kEnough = 10000;
    for (int allowed = 0; allowed < kEnough; ++allowed) {
        granted = allowed;
        try {
            operation();
            granted = kNever;
            return allowed;
        } catch (const std::bad_alloc&) {
            granted = kNever;
            if (check) check();
        }
    }
    ADD_FAILURE() << "no memory is enough";
    return kEnough;
}

class MemoryFaults : public ::testing::Test {
  protected:
    MemoryFaults() {
        tables_.WriteAll();
        SetDirectory(DIR_TABLES, tables_.path.c_str());
    }
    ~MemoryFaults() override { SetDirectory(DIR_TABLES, nullptr); }

    Tables tables_;
};

std::ptrdiff_t Sizes(const CPipeTable& pipe) {
    return std::ranges::count_if(std::array{1.0, 2.0, 3.0},
                                 [&pipe](double size) { return pipe.PipeDia(size) > 0.0; });
}

TEST_F(MemoryFaults, FluidLoadsOnceThereIsMemory) {
    CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
    const auto load = [&] { fluid.SetFluid(tables_.path.data(), "Plain", 300.0); };
    EXPECT_GT(FailEverywhere(load, [&] { EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE); }), 0);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    std::string lighter = kFluidTable;
    tables_.Write("Lighter.FTBL", lighter.replace(lighter.find("1200"), 4, "1000"));
    const auto change = [&] { fluid.SetFluid(tables_.path.data(), "Lighter", 300.0, 900.0); };
    const auto isTheFormer = [&] {
        EXPECT_STREQ(fluid.GetFluidName(), "Plain");
        EXPECT_EQ(fluid.GetDensity(), 900.0);
        EXPECT_EQ(fluid.GetCriticalTemp(), 400.0);
    };
    EXPECT_GT(FailEverywhere(change, isTheFormer), 0);
    EXPECT_EQ(fluid.GetDensity(), 700.0);
    const auto copy = [&] {
        const CFluid copied(fluid);  // NOLINT(performance-unnecessary-copy-initialization): on test
        EXPECT_EQ(copied.GetViscosityValue().raw_value(), fluid.GetViscosity());
    };
    EXPECT_GT(FailEverywhere(copy, [&] { EXPECT_EQ(fluid.GetDensity(), 700.0); }), 1);
}

TEST_F(MemoryFaults, PipeTableHasTheSizesThatFoundRoom) {
    CPipeTable pipe(HF_US);
    const auto load = [&] {
        pipe.LoadMaterial(nullptr, "Steel");
        pipe.LoadPipeList("40", nullptr);
    };
    const auto isSound = [&] {
        EXPECT_EQ(pipe.IsValid(), Sizes(pipe) > 0);
        EXPECT_LT(Sizes(pipe), 3);
    };
    EXPECT_GT(FailEverywhere(load, isSound), 4);
    EXPECT_EQ(pipe.PipeDia(3.0), 3.068);

    CPipeTable copy(HF_METRIC);
    const auto assign = [&] { copy = pipe; };
    EXPECT_EQ(FailEverywhere(assign, [&] { EXPECT_LT(Sizes(copy), 3); }), 3);
    EXPECT_EQ(Sizes(copy), 3);
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): it is on test
    EXPECT_EQ(FailEverywhere([&] { const CPipeTable copied(pipe); }), 3);
}

TEST_F(MemoryFaults, ListsOfPipesReleaseWhatTheyHad) {
    const CPipeTableList list(HF_US);
    const auto listAll = [&] {
        const std::unique_ptr<char[]> tables(list.ListPipeTables(100, 0.0, 0.0));
        const std::unique_ptr<char[]> schedules(list.ListPipeSchedules(100, "Steel"));
        const std::unique_ptr<char[]> sizes(list.ListPipeSizes(100, "Steel", "40"));
        granted = kNever;
        EXPECT_STREQ(sizes.get(), "1\t2\t3");
    };
    EXPECT_GT(FailEverywhere(listAll), 3);
}

TEST_F(MemoryFaults, ValveTableHasTheDevicesThatFoundRoom) {
    CValveTable valves;
    const auto load = [&] {
        valves.LoadValveTable(tables_.path.c_str(), "Standard", HF_US, kFormulas);
    };
    const auto isSound = [&] {
        const CValveType* elbow = valves.Find("Elbow");
        EXPECT_TRUE(elbow == nullptr || elbow->data_count == 4);
        EXPECT_EQ(valves.Find("Fixed Kv"), nullptr);
    };
    EXPECT_GT(FailEverywhere(load, isSound), 8);
    EXPECT_NE(valves.Find("Fixed Kv"), nullptr);
    CValveTable copy;
    EXPECT_EQ(FailEverywhere([&] { copy = valves; }), 10) << "five devices with numbers";
    EXPECT_NE(copy.Find("Fixed Kv"), nullptr);
    // A device keeps what it had.
    CValveType device(*valves.Find("Gate"));
    EXPECT_EQ(FailEverywhere([&] { device = *valves.Find("Elbow"); },
                             [&] { EXPECT_EQ(device.data_count, 3); }),
              1);
    EXPECT_EQ(device.data_count, 4);
}

TEST_F(MemoryFaults, IniFileIsWrittenWholeOrNotAtAll) {
    std::string ini = tables_.Write("host.ini", "[B]\nx=1\n");
    CAtmPressure atmosphere;
    const auto save = [&] { EXPECT_TRUE(atmosphere.SetToINI(1.5, HF_BAR, ini.data())); };
    const auto isUnchanged = [&] { EXPECT_EQ(tables_.Read("host.ini"), "[B]\nx=1\n"); };
    EXPECT_GT(FailEverywhere(save, isUnchanged), 2);
    const auto read = [&] { EXPECT_TRUE(atmosphere.GetFromINI(ini.data())); };
    const double former = atmosphere.Value(HF_KPA);
    EXPECT_GT(FailEverywhere(read, [&] { EXPECT_EQ(atmosphere.Value(HF_KPA), former); }), 1);
    EXPECT_EQ(atmosphere.Value(HF_BAR), 1.5);
}

TEST_F(MemoryFaults, DirectoryStaysAsItWas) {
    const std::string other(100, 'x');
    const auto set = [&] { SetDirectory(DIR_TABLES, other.c_str()); };
    const auto isUnchanged = [&] {
        char buffer[260];
        GetDirectory(DIR_TABLES, buffer, 0);
        EXPECT_EQ(buffer, tables_.path);
    };
    EXPECT_GT(FailEverywhere(set, isUnchanged), 0);
}

TEST_F(MemoryFaults, ScanThatFindsNoRoomLeavesNoNames) {
    const auto scan = [&] { ScanAnew(tables_.path); };
    const auto hasNone = [] { EXPECT_EQ(hydrofacts::FluidNamesFound(), ""); };
    EXPECT_GT(FailEverywhere(scan, hasNone), 2);
    EXPECT_EQ(hydrofacts::FluidNamesFound(), "Plain\t");
    tables_.FillUp();
    EXPECT_GT(FailEverywhere(scan, hasNone), kManyTables) << "in threads of its own";
    EXPECT_EQ(std::ranges::count(hydrofacts::FluidNamesFound(), '\t'), kManyTables);
}

TEST_F(MemoryFaults, ScanThatIsRefusedHelpersDoesWithoutThem) {
    constexpr std::size_t kNoSuchStack = std::size_t{1} << 46U;
    tables_.FillUp();
    pthread_attr_t former;
    pthread_attr_t none;
    ASSERT_EQ(::pthread_getattr_default_np(&former), 0);
    ASSERT_EQ(::pthread_getattr_default_np(&none), 0);
    ASSERT_EQ(::pthread_attr_setstacksize(&none, kNoSuchStack), 0);
    ASSERT_EQ(::pthread_setattr_default_np(&none), 0);
    EXPECT_THROW(std::jthread([] {}), std::system_error);
    ScanAnew(tables_.path);
    ::pthread_setattr_default_np(&former);
    EXPECT_EQ(std::ranges::count(hydrofacts::FluidNamesFound(), '\t'), kManyTables);
}

// On its own thread nobody could catch what the scan throws.
TEST_F(MemoryFaults, ScanInTheBackgroundEndsWithoutNames) {
    constexpr int kMostAllocations = 20;
    for (int allowed = 0; allowed < kMostAllocations; ++allowed) {
        ForgetFluidTables();
        granted = allowed;
        try {
            InitFluidTableCache(FLUID_NONE);
            ::usleep(10000);  // the thread's allocations are refused too
        } catch (const std::bad_alloc&) {
            granted = kNever;  // there was none for the thread itself
        }
        granted = kNever;
        const std::string found = hydrofacts::FluidNamesFound();
        EXPECT_TRUE(found.empty() || found == "Plain\t") << found;
    }
    InitFluidTableCache(FLUID_NONE);
    for (int i = 0; i < 1000 && hydrofacts::FluidNamesFound().empty(); ++i) ::usleep(10000);
    EXPECT_EQ(hydrofacts::FluidNamesFound(), "Plain\t");
}

}  // namespace
