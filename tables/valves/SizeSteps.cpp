#include "tables/valves/SizeSteps.h"

#include "tables/NominalSize.h"
#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

constexpr std::size_t kMostSteps = 100;  // of a record, for those who read tables
constexpr int kDigitsOfProduct = 6;

std::string Key(const std::string& type, const std::string& name) { return type + ": " + name; }

ValveStep ReadStep(const CsvRow& row) {
    const ValveStep step{row.Number("value"), row.Number("limit_in"), row.Number("limit_mm")};
    if (step.value <= 0.0) {
        row.Fail("value", "must be above zero");
    }
    if (step.limitMm == 0.0 || step.limitMm != NominalDiameter(step.limitInches)) {
        row.Fail("limit_mm", "is not the DN of that inch size");
    }
    return step;
}

}  // namespace

SizeSteps::SizeSteps(const std::filesystem::path& file) {
    for (const CsvRow& row : ReadCsv(file)) {
        Add(row);
    }
}

void SizeSteps::Add(const CsvRow& row) {
    const std::string key = Key(row.NonEmptyText("device_type"), row.NonEmptyText("name"));
    const ValveStep step = ReadStep(row);
    const auto [place, isNew] = m_devices.try_emplace(key, Device{row, {}});
    std::vector<ValveStep>& steps = place->second.steps;
    if (!isNew) {
        if (m_last != key) {
            row.Fail("name", "the rows of this device do not stand together");
        }
        if (step.limitInches <= steps.back().limitInches) {
            row.Fail("limit_in", "is not above the limit ahead of it");
        }
        if (step.value > steps.back().value) {
            row.Fail("value", "rises with size");
        }
    }
    if (steps.size() == kMostSteps) {
        row.Fail("name", "has more than 100 rows");
    }
    steps.push_back(step);
    m_last = key;
}

const std::vector<ValveStep>& SizeSteps::Find(const CsvRow& device, const std::string& key) {
    const auto found = m_devices.find(key);
    if (found == m_devices.end()) {
        device.Fail("name", "has no rows in by_size.csv");
    }
    found->second.used = true;
    return found->second.steps;
}

const std::vector<ValveStep>& SizeSteps::Of(const CsvRow& device) {
    return Find(device, Key(device.Text("device_type"), device.Text("name")));
}

std::vector<ValveStep> SizeSteps::Friction(const CsvRow& device, double factor) {
    std::vector<ValveStep> steps = Find(device, Key("Other", kFrictionFactor));
    for (ValveStep& step : steps) {
        step.value = RoundToDigits(factor * step.value, kDigitsOfProduct);
    }
    return steps;
}

void SizeSteps::CheckAllAreUsed() const {
    for (const auto& [key, device] : m_devices) {
        if (!device.used) {
            device.firstRow.Fail("name", "'" + key + "' is not in devices.csv as one by size");
        }
    }
}

}  // namespace hydrofacts::tables
