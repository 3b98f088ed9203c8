#ifndef HYDROFACTS_TABLES_VALVES_SIZESTEPS_H
#define HYDROFACTS_TABLES_VALVES_SIZESTEPS_H

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tables/Csv.h"
#include "tables/valves/ValveData.h"

namespace hydrofacts::tables {

/// The rows of by_size.csv by device, each row checked.
class SizeSteps {
  public:
    explicit SizeSteps(const std::filesystem::path& file);

    /// The rows of the device that a row of devices.csv names; fails there if there are none.
    const std::vector<ValveStep>& Of(const CsvRow& device);

    /// The friction factors, each times `factor`.
    std::vector<ValveStep> Friction(const CsvRow& device, double factor);

    /// Fails at the first row of a device that nothing has asked for.
    void CheckAllAreUsed() const;

  private:
    struct Device {
        CsvRow firstRow;
        std::vector<ValveStep> steps;
        bool used = false;
    };

    void Add(const CsvRow& row);
    const std::vector<ValveStep>& Find(const CsvRow& device, const std::string& key);

    std::map<std::string, Device> m_devices;
    std::string m_last;
};

}  // namespace hydrofacts::tables

#endif
