#ifndef TOOLS_TABLEVALVES_H
#define TOOLS_TABLEVALVES_H

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "hydrofacts/hydrofacts.h"
#include "tools/TableDirectory.h"

namespace hydrofacts::command {

inline constexpr std::size_t kDeviceTypes = 5;

/// A value of a device that goes by nominal size.
struct ValveRow {
    std::optional<double> limit;  ///< the largest size that has it; none for the last row
    double value;
};

/// A device as it stands in a table.
struct Device {
    std::size_t type;  ///< index into device_type_names
    std::string name;  ///< in UTF-8
    int formula;
    int image;
    std::vector<double> data;    ///< the library's numbers, as they are
    std::vector<ValveRow> rows;  ///< of formula 9 or 13, else empty
};

/// A valve table that can tell its devices, whatever their formula numbers.
class TableValves : public CValveTable {
  public:
    /// Loads a table with its limits in the lengths of a unit system; false if it is invalid.
    bool Load(const TableDirectory& directory, const TableName& table, HF_UNITS system);

    /// The devices of a type in the order of the table. Behind those of the last type come the
    /// three that the library gives every table for figures of the user's.
    std::vector<Device> Devices(std::size_t type) const;
};

/// The index of a device type by its name in any case; a Failure with the names if there is none.
std::size_t RequireDeviceType(const std::string& name);

}  // namespace hydrofacts::command

#endif
