#include "fuzz/Targets.h"

namespace hydrofacts::fuzz {

std::span<const Target> command_targets() {
    // clang-format off
    static constexpr Target kTargets[] = {
        {"command_arguments", &command_arguments},
        {"table_check",       &table_check},
    };
    // clang-format on
    return kTargets;
}

}  // namespace hydrofacts::fuzz
