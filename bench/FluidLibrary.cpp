// Loading every installed fluid table against opening, reading and closing the same files.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/Ratios.h"
#include "hydrofacts/fluid/CFluid.h"
#include "quillbase/Directory.h"

namespace {

class LoadableFluid : public CFluid {
  public:
    using CFluid::LoadFluidTable;
};

struct Library {
    std::string folder;
    std::vector<std::string> names;
    std::vector<std::string> files;
};

const Library& Installed() {
    static const Library library = [] {
        Library result;
        char buffer[260] = "";
        GetDirectory(DIR_TABLES, buffer, 0);
        result.folder = buffer;
        for (const auto& entry : std::filesystem::directory_iterator(result.folder)) {
            if (entry.path().extension() == ".FTBL") {
                result.names.push_back(entry.path().stem().string());
                result.files.push_back(entry.path().string());
            }
        }
        return result;
    }();
    return library;
}

void LoadAllFluids(benchmark::State& state) {
    const Library& library = Installed();
    LoadableFluid fluid;
    for (auto _ : state) {
        for (const std::string& name : library.names) {
            if (fluid.LoadFluidTable(library.folder.c_str(), name.c_str()) == 0) {
                state.SkipWithError("a table does not load");
                return;
            }
        }
    }
    state.counters["fluids"] = static_cast<double>(library.names.size());
}

void ReadAllFluidFiles(benchmark::State& state) {
    const Library& library = Installed();
    char buffer[8192];
    for (auto _ : state) {
        for (const std::string& path : library.files) {
            const int file = ::open(path.c_str(), O_RDONLY);
            if (::read(file, buffer, sizeof buffer) <= 0) {
                state.SkipWithError("a file can't be read");
                return;
            }
            ::close(file);
            benchmark::DoNotOptimize(buffer);
        }
    }
}

BENCHMARK(LoadAllFluids)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadAllFluidFiles)->Unit(benchmark::kMicrosecond);

const bench::Ratio load("LoadAllFluids", "ReadAllFluidFiles", 3.0);

}  // namespace
