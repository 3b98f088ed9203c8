// Scanning a directory of fluid tables for the list of a dialog, against finding, opening, reading
// and closing the same files. That the ratio stays as the tables become more shows that the scan
// grows as reading does: beyond some thousand files, the system needs longer for each.

#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <map>
#include <string>

#include "bench/Ratios.h"
#include "bench/Toluene.h"
#include "tests/support/TempFolder.h"

namespace {

/// A folder with copies of one table, kept until the program ends.
class Copies : public TempFolder {
  public:
    explicit Copies(int count) {
        for (int i = 0; i < count; ++i) {
            Write("Fluid " + std::to_string(i) + ".FTBL", bench::kTable);
        }
    }
};

const Copies& CopiesOf(int count) {
    static std::map<int, Copies> all;
    return all.try_emplace(count, count).first->second;
}

// A state that no table has: every table is loaded, none is listed, so that each dialog scans anew.
void Scan(benchmark::State& state, int count) {
    const std::string folder = CopiesOf(count).Path();
    for (auto _ : state) {
        CFluidDlg dialog(HF_DEG_C, HF_KPA, 0, 101.325, 0);
        dialog.InitFluids(nullptr, folder.c_str(), FLUID_USER_LIQUID);
    }
    state.SetItemsProcessed(state.iterations() * count);
}

bool ReadOne(int folder, const char* name) {
    char buffer[8192];
    const int file = ::openat(folder, name, O_RDONLY);
    const bool read = ::read(file, buffer, sizeof buffer) > 0;
    ::close(file);
    benchmark::DoNotOptimize(buffer);
    return read;
}

void Read(benchmark::State& state, int count) {
    const std::string folder = CopiesOf(count).Path();
    for (auto _ : state) {
        DIR* const listing = ::opendir(folder.c_str());
        int files = 0;
        while (const dirent* entry = ::readdir(listing)) {
            if (*entry->d_name != '.' && ReadOne(::dirfd(listing), entry->d_name)) ++files;
        }
        ::closedir(listing);
        if (files != count) {
            state.SkipWithError("a file can't be read");
            return;
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

// By the clock: a scan uses all cores, the reading one.
// clang-format off
BENCHMARK_CAPTURE(Scan, Tables10,       10)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(Read, Tables10,       10)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(Scan, Tables100,     100)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(Read, Tables100,     100)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(Scan, Tables1000,   1000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(Read, Tables1000,   1000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(Scan, Tables10000, 10000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(Read, Tables10000, 10000)->Unit(benchmark::kMicrosecond)->UseRealTime();

const bench::Ratio ten ("Scan/Tables10",    "Read/Tables10",    3.0);
const bench::Ratio few ("Scan/Tables100",   "Read/Tables100",   3.0);
const bench::Ratio many("Scan/Tables1000",  "Read/Tables1000",  3.0);
const bench::Ratio most("Scan/Tables10000", "Read/Tables10000", 3.0);
// clang-format on

}  // namespace
