// Runs the benchmarks and prints the ratios of pairs: each side's fastest repetition of this run,
// by processor time, or by the clock where the benchmark asks for that. `--times FILE`, as the
// first argument, also writes every benchmark's fastest time: its name, a tab, nanoseconds.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/Ratios.h"

namespace {

struct Pair {
    std::string measured;
    std::string plain;
    double limit;
};

std::vector<Pair>& Pairs() {
    static std::vector<Pair> pairs;
    return pairs;
}

class FastestTimes : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            benchmark::BenchmarkName fullName = run.run_name;
            const bool byClock = !fullName.time_type.empty();
            fullName.time_type.clear();
            const double time = (byClock ? run.real_accumulated_time : run.cpu_accumulated_time) /
                                static_cast<double>(run.iterations);
            // A benchmark of several sizes has the size in its full name only.
            for (const std::string& name : {run.run_name.function_name, fullName.str()}) {
                const auto [place, added] = times_.emplace(name, time);
                if (!added) place->second = std::min(place->second, time);
            }
        }
    }

    void PrintRatios() const {
        std::printf("\n%-28s %-28s %8s %8s\n", "measured", "plain", "ratio", "limit");
        for (const Pair& pair : Pairs()) {
            const auto measured = times_.find(pair.measured);
            const auto plain = times_.find(pair.plain);
            if (measured == times_.end() || plain == times_.end()) continue;
            std::printf("%-28s %-28s %8.2f %8.2f\n", pair.measured.c_str(), pair.plain.c_str(),
                        measured->second / plain->second, pair.limit);
        }
    }

    void WriteTimes(const char* path) const {
        constexpr double kNanoseconds = 1e9;
        std::ofstream file(path);
        for (const auto& [name, time] : times_) file << name << '\t' << time * kNanoseconds << '\n';
    }

  private:
    std::map<std::string, double> times_;
};

}  // namespace

bench::Ratio::Ratio(std::string measured, std::string plain, double limit) {
    Pairs().push_back({std::move(measured), std::move(plain), limit});
}

int main(int argc, char** argv) {
    const char* times = nullptr;
    if (argc > 2 && std::string_view(argv[1]) == "--times") {
        times = argv[2];
        argv[2] = argv[0];
        argv += 2;
        argc -= 2;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    FastestTimes reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatios();
    if (times != nullptr) reporter.WriteTimes(times);
    return 0;
}
