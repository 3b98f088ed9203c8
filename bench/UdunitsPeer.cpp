// Conversion by UDUNITS-2: with a converter that is made beforehand, as far as it goes the
// counterpart of a conversion by id, and from the texts of two units.

#include <benchmark/benchmark.h>
#include <udunits2.h>

#include "bench/Ratios.h"

namespace {

ut_system* System() {
    static ut_system* const system = [] {
        ut_set_error_message_handler(&ut_ignore);
        return ut_read_xml(nullptr);
    }();
    return system;
}

void UdunitsPrepared(benchmark::State& state) {
    ut_unit* const from = ut_parse(System(), "bar", UT_ASCII);
    ut_unit* const to = ut_parse(System(), "psi", UT_ASCII);
    cv_converter* const converter = ut_get_converter(from, to);
    if (converter == nullptr) {
        state.SkipWithError("no converter");
        return;
    }
    double value = 12.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(cv_convert_double(converter, value));
    }
    cv_free(converter);
    ut_free(from);
    ut_free(to);
}

void UdunitsByText(benchmark::State& state) {
    double value = 12.0;
    for (auto _ : state) {
        ut_unit* const from = ut_parse(System(), "ft", UT_ASCII);
        ut_unit* const to = ut_parse(System(), "mm", UT_ASCII);
        cv_converter* const converter = ut_get_converter(from, to);
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(cv_convert_double(converter, value));
        cv_free(converter);
        ut_free(from);
        ut_free(to);
    }
}

BENCHMARK(UdunitsPrepared);
BENCHMARK(UdunitsByText);

const bench::Ratio prepared("ConvertPressure", "UdunitsPrepared", 5.0);
const bench::Ratio byText("Operation/convert by text", "UdunitsByText", 1.0);

}  // namespace
