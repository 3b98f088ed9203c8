#include "fuzz/Targets.h"

namespace hydrofacts::fuzz {

std::span<const Target> library_targets() {
    // clang-format off
    static constexpr Target kTargets[] = {
        {"bitmap",          &bitmap},
        {"dialog_template", &dialog_template},
        {"fluid_lookups",   &fluid_lookups},
        {"fluid_table",     &fluid_table},
        {"formula",         &formula},
        {"ini_file",        &ini_file},
        {"language_table",  &language_table},
        {"number_forms",    &number_forms},
        {"pipe_lookups",    &pipe_lookups},
        {"pipe_table",      &pipe_table},
        {"valve_lookups",   &valve_lookups},
        {"valve_table",     &valve_table},
    };
    // clang-format on
    return kTargets;
}

}  // namespace hydrofacts::fuzz
