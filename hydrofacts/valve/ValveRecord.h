#ifndef HYDROFACTS_VALVE_VALVERECORD_H
#define HYDROFACTS_VALVE_VALVERECORD_H

#include <cstdint>
#include <memory>

#include "hydrofacts/valve/CValveTable.h"

namespace hydrofacts {

inline constexpr const char* kValveExtension = ".VTBL";

/// The device type "Other", which every loaded table has records of.
inline constexpr std::int16_t kOtherDevices = 4;

/// The formula number of "Fixed K".
inline constexpr std::int16_t kFixedK = 20;

/// Gives a record its numbers and releases those that it had.
inline void SetNumbers(CValveType& record, std::unique_ptr<double[]> numbers, int count) {
    const std::unique_ptr<double[]> former(record.data_count != 0 ? record.data : nullptr);
    record.data = numbers.release();
    record.data_count = static_cast<std::int16_t>(count);
}

}  // namespace hydrofacts

#endif
