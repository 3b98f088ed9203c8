#ifndef HYDROFACTS_TABLES_VALVES_VALVEDATA_H
#define HYDROFACTS_TABLES_VALVES_VALVEDATA_H

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "tables/valves/ValveMethods.h"

namespace hydrofacts::tables {

/// The name of the record that `friction by size` multiplies.
inline constexpr const char* kFrictionFactor = "Friction Factor fT";

/// A row of a record with several rows.
struct ValveStep {
    double value = 0.0;
    double limitInches = 0.0;
    double limitMm = 0.0;
};

struct ValveDevice {
    int deviceType = 0;  ///< index into device_type_names
    std::string name;
    const ValveMethod* method = nullptr;
    std::array<double, 3> numbers{};  ///< for a record without rows
    std::vector<ValveStep> steps;     ///< for a record with rows
    int image = 0;
    std::string source;
};

struct ValveTableData {
    std::string name;
    std::string title;
    std::vector<ValveDevice> devices;  ///< by device type, each type in the order of the file
};

/// Reads tables.csv, devices.csv and by_size.csv of a folder and checks every row. What must hold
/// is told in the README beside them. Throws InputError that names the file, line and field of the
/// first row that does not.
std::vector<ValveTableData> ReadValves(const std::filesystem::path& folder);

}  // namespace hydrofacts::tables

#endif
