// A target as libFuzzer calls it.

#include <cstddef>
#include <cstdint>

#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    hydrofacts::fuzz::HYDROFACTS_FUZZ_TARGET({data, size});
    return 0;
}
