#ifndef HYDROFACTS_UNITS_HEADS_H
#define HYDROFACTS_UNITS_HEADS_H

#include "hydrofacts/units/UnitTypes.h"

namespace hydrofacts {

/// Whether a unit of the pressure catalog is a head of liquid.
constexpr bool IsHead(int id) { return id >= HF_HEAD_FT && id <= HF_M_H2O; }

/// The length unit of a head. The two that name water are heads of the fluid at hand all the same.
constexpr int LengthOfHead(int id) {
    constexpr int kLengths[] = {HF_LEN_FT, HF_LEN_M, HF_LEN_IN, HF_LEN_MM, HF_LEN_FT, HF_LEN_M};
    return kLengths[id - HF_HEAD_FT];
}

}  // namespace hydrofacts

#endif
