#ifndef HYDROFACTS_BENCH_OPERATIONS_H
#define HYDROFACTS_BENCH_OPERATIONS_H

#include <span>

namespace bench {

/// One thing that hosts ask of the library, on installed tables, with all that it needs set up
/// beforehand. Measured in time by hydrofacts_bench, in instructions and allocations by
/// hydrofacts_costs.
struct Operation {
    const char* name;
    void (*run)();
};

std::span<const Operation> Operations();

}  // namespace bench

#endif
