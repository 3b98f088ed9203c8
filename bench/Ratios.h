#ifndef HYDROFACTS_BENCH_RATIOS_H
#define HYDROFACTS_BENCH_RATIOS_H

#include <string>

namespace bench {

/// Asks for the ratio of two benchmarks' times, by their names, in the summary behind a run.
/// `limit` is what the ratio is meant to stay below.
struct Ratio {
    Ratio(std::string measured, std::string plain, double limit);
};

}  // namespace bench

#endif
