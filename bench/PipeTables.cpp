// Loading a pipe schedule against reading the same file once, and twice as its two steps do;
// listing tables in directories of growing size.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "bench/Ratios.h"
#include "hydrofacts/hydrofacts.h"
#include "tests/support/TempFolder.h"

namespace {

std::vector<std::string> Cut(char* list) {
    const std::unique_ptr<char[]> owned(list);
    std::vector<std::string> names;
    for (char* name = std::strtok(list, "\t"); name != nullptr; name = std::strtok(nullptr, "\t")) {
        names.emplace_back(name);
    }
    return names;
}

struct Schedule {
    std::string directory;
    std::string material;
    std::string name;
    std::size_t sizes = 0;
};

// The schedule with the most sizes among the installed tables.
const Schedule& Largest() {
    static const Schedule largest = [] {
        constexpr int kRoom = 10000;
        char directory[MAX_PATH];
        GetDirectory(DIR_TABLES, directory, 0);
        CPipeTableList installed(HF_US);
        Schedule found;
        for (std::string& material : Cut(installed.ListPipeTables(kRoom, 0.0, 0.0))) {
            for (std::string& name : Cut(installed.ListPipeSchedules(kRoom, material.data()))) {
                const auto sizes =
                    Cut(installed.ListPipeSizes(kRoom, material.data(), name.data()));
                if (sizes.size() > found.sizes) found = {directory, material, name, sizes.size()};
            }
        }
        return found;
    }();
    return largest;
}

void LoadPipeSchedule(benchmark::State& state) {
    const Schedule& schedule = Largest();
    CPipeTable pipe(HF_US);
    for (auto _ : state) {
        if (!pipe.LoadMaterial(schedule.directory.c_str(), schedule.material.c_str()) ||
            !pipe.LoadPipeList(schedule.name.c_str(), nullptr)) {
            state.SkipWithError("the schedule does not load");
            break;
        }
    }
    state.SetLabel(schedule.material + ", " + schedule.name + ": " +
                   std::to_string(schedule.sizes) + " sizes");
}

bool ReadFile(const std::string& path, std::vector<char>& buffer) {
    const int file = ::open(path.c_str(), O_RDONLY);
    const bool read = ::read(file, buffer.data(), buffer.size()) > 0;
    ::close(file);
    benchmark::DoNotOptimize(buffer.data());
    return read;
}

void ReadTimes(benchmark::State& state, int times) {
    const std::string path = Largest().directory + "/" + Largest().material + ".PTBL";
    std::vector<char> buffer(std::filesystem::file_size(path));
    for (auto _ : state) {
        for (int i = 0; i < times; ++i) {
            if (!ReadFile(path, buffer)) state.SkipWithError("the file can't be read");
        }
    }
}

void ReadPipeTable(benchmark::State& state) { ReadTimes(state, 1); }

// As many times as the two steps of loading do.
void ReadPipeTableTwice(benchmark::State& state) { ReadTimes(state, 2); }

BENCHMARK(LoadPipeSchedule);
BENCHMARK(ReadPipeTable);
BENCHMARK(ReadPipeTableTwice);

const bench::Ratio load("LoadPipeSchedule", "ReadPipeTable", 4.0);
const bench::Ratio loadTwice("LoadPipeSchedule", "ReadPipeTableTwice", 4.0);

/// A directory of many small pipe tables, the table directory of the library while it exists.
class ManyTables {
  public:
    explicit ManyTables(std::int64_t count) {
        for (std::int64_t i = 0; i < count; ++i) {
            folder_.Write("Material " + std::to_string(i) + ".PTBL",
                          "S\t\"Material\"\r\nV\t\"1.0\"\tbenchmark\t1\t7\r\n"
                          "R\t0.0018\t0.0457\t140\r\nZ\t40\t1\t25\t1.049\t1.315\t26.64\t33.4\r\n");
        }
        SetDirectory(DIR_TABLES, Path().c_str());
    }
    ~ManyTables() { SetDirectory(DIR_TABLES, nullptr); }
    ManyTables(const ManyTables&) = delete;
    ManyTables& operator=(const ManyTables&) = delete;

    std::string Path() const { return folder_.Path(); }

  private:
    TempFolder folder_;
};

void CountPerTable(benchmark::State& state) {
    state.SetComplexityN(state.range(0));
    state.counters["per table"] = benchmark::Counter(
        static_cast<double>(state.range(0)),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void ListManyPipeTables(benchmark::State& state) {
    const ManyTables tables(state.range(0));
    CPipeTableList list(HF_US);
    const int size = list.SizePipeTables();
    std::vector<char> names(static_cast<std::size_t>(size));
    for (auto _ : state) {
        if (list.ListPipeTables(names.data(), size, 0.0, 0.0) != state.range(0)) {
            state.SkipWithError("a table is missing");
            break;
        }
    }
    CountPerTable(state);
}

// What the system takes for the same files: large directories fall out of its caches.
void ReadManyFiles(benchmark::State& state) {
    const ManyTables tables(state.range(0));
    std::vector<char> buffer(1000);
    for (auto _ : state) {
        for (const auto& file : std::filesystem::directory_iterator(tables.Path())) {
            if (!ReadFile(file.path().native(), buffer)) state.SkipWithError("no file");
        }
    }
    CountPerTable(state);
}

BENCHMARK(ListManyPipeTables)->RangeMultiplier(10)->Range(10, 10000)->Complexity();
BENCHMARK(ReadManyFiles)->RangeMultiplier(10)->Range(10, 10000)->Complexity();

}  // namespace
