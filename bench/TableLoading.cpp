// Loading a fluid table against opening, reading and closing the same file.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include "bench/Ratios.h"
#include "bench/Toluene.h"

namespace {

class LoadableFluid : public CFluid {
  public:
    using CFluid::LoadFluidTable;
};

void LoadFluidTable(benchmark::State& state) {
    const std::string folder = bench::Tables().Path();
    LoadableFluid fluid;
    for (auto _ : state) {
        if (fluid.LoadFluidTable(folder.c_str(), "Toluene") == 0) {
            state.SkipWithError("the table does not load");
            break;
        }
    }
}

void OpenReadClose(benchmark::State& state) {
    const std::string path = bench::Tables().File();
    char buffer[4096];
    for (auto _ : state) {
        const int file = ::open(path.c_str(), O_RDONLY);
        if (::read(file, buffer, sizeof buffer) <= 0) {
            state.SkipWithError("the file can't be read");
            break;
        }
        ::close(file);
        benchmark::DoNotOptimize(buffer);
    }
}

BENCHMARK(LoadFluidTable);
BENCHMARK(OpenReadClose);

const bench::Ratio load("LoadFluidTable", "OpenReadClose", 1.5);

}  // namespace
