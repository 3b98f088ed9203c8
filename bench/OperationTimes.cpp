// The time of each operation. Costs.cpp has the figures that don't depend on the machine.

#include <benchmark/benchmark.h>

#include <string>

#include "bench/Operations.h"

namespace {

const bool registered = [] {
    for (const bench::Operation& operation : bench::Operations()) {
        const auto time = [&operation](benchmark::State& state) {
            for (auto _ : state) operation.run();
        };
        benchmark::RegisterBenchmark(("Operation/" + std::string(operation.name)).c_str(), time);
    }
    return true;
}();

}  // namespace
