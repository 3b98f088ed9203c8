// Conversion by id against a multiply and a divide behind a function pointer.

#include <benchmark/benchmark.h>

#include "bench/Ratios.h"
#include "hydrofacts/hydrofacts.h"

namespace {

double MultiplyDivide(double value, double from, double to) { return from * value / to; }

void ConvertRatio(benchmark::State& state) {
    const Units units(HF_US);
    double value = 12.0;
    int from = HF_LEN_FT;
    int to = HF_LEN_MM;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(from);
        benchmark::DoNotOptimize(to);
        benchmark::DoNotOptimize(units.Convert(HF_LENGTH, value, from, to, nullptr));
    }
}

void ConvertToUserUnit(benchmark::State& state) {
    const Units units(HF_US);
    double value = 12.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(units.Convert(HF_LENGTH, value, HF_LEN_M, nullptr));
    }
}

void ConvertPressure(benchmark::State& state) {
    const Units units(HF_US);
    double value = 12.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(units.Convert(HF_PRESSURE, value, HF_BAR, HF_PSI, nullptr));
    }
}

void ConvertVolumeFlow(benchmark::State& state) {
    const Units units(HF_US);
    double value = 12.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(units.Convert(HF_FLOW, value, HF_M3_HR, HF_BPD, nullptr));
    }
}

void PlainMultiplyDivide(benchmark::State& state) {
    double (*convert)(double, double, double) = MultiplyDivide;
    double value = 12.0;
    double from = 0.3048;
    double to = 0.001;
    for (auto _ : state) {
        benchmark::DoNotOptimize(convert);
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(from);
        benchmark::DoNotOptimize(to);
        benchmark::DoNotOptimize(convert(value, from, to));
    }
}

BENCHMARK(ConvertRatio);
BENCHMARK(ConvertToUserUnit);
BENCHMARK(ConvertPressure);
BENCHMARK(ConvertVolumeFlow);
BENCHMARK(PlainMultiplyDivide);

const bench::Ratio ratio("ConvertRatio", "PlainMultiplyDivide", 2.0);
const bench::Ratio user("ConvertToUserUnit", "PlainMultiplyDivide", 2.0);
const bench::Ratio pressure("ConvertPressure", "PlainMultiplyDivide", 2.0);
const bench::Ratio flow("ConvertVolumeFlow", "PlainMultiplyDivide", 2.0);

}  // namespace
