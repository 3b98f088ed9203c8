#include "tables/valves/ValveData.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "hydrofacts/valve/CValveTable.h"
#include "tables/Csv.h"
#include "tables/TableLines.h"
#include "tables/valves/SizeSteps.h"

namespace hydrofacts::tables {
namespace {

constexpr std::size_t kLongestTableName = 30;
constexpr std::size_t kLongestName = 31;
constexpr int kFirstImage = 1;
constexpr int kLastImage = 15;
constexpr std::string_view kSeparator = "; ";
constexpr const char* kNumbers[] = {"n1", "n2", "n3"};

int DeviceType(const CsvRow& row) {
    const std::string& text = row.NonEmptyText("device_type");
    const auto* const found = std::find(std::begin(device_type_names), std::end(device_type_names),
                                        std::string_view(text));
    if (found == std::end(device_type_names)) {
        row.Fail("device_type", "'" + text + "' is no device type");
    }
    return static_cast<int>(found - std::begin(device_type_names));
}

std::array<double, 3> ReadNumbers(const CsvRow& row, int count) {
    std::array<double, 3> numbers{};
    for (int i = 0; i < static_cast<int>(numbers.size()); ++i) {
        if (i >= count) {
            if (!row.Text(kNumbers[i]).empty()) {
                row.Fail(kNumbers[i], "the method does not use it");
            }
            continue;
        }
        numbers[i] = row.Number(kNumbers[i]);
        if (numbers[i] < 0.0 || (i == 0 && numbers[i] == 0.0)) {
            row.Fail(kNumbers[i], i == 0 ? "must be above zero" : "is below zero");
        }
    }
    return numbers;
}

int ReadImage(const CsvRow& row) {
    const double image = row.Number("image");
    if (image != std::floor(image) || image < kFirstImage || image > kLastImage) {
        row.Fail("image", "is not a whole number from 1 to 15");
    }
    return static_cast<int>(image);
}

ValveDevice ReadDevice(const CsvRow& row, SizeSteps& steps) {
    ValveDevice device;
    device.deviceType = DeviceType(row);
    device.name = row.NonEmptyText("name");
    if (!IsPlainName(device.name, kLongestName)) {
        row.Fail("name", "is not fit for a name of at most 31 characters");
    }
    device.method = FindValveMethod(row.NonEmptyText("method"));
    if (device.method == nullptr) {
        row.Fail("method", "'" + row.Text("method") + "' is no method");
    }
    const std::array<double, 3> numbers = ReadNumbers(row, device.method->numbers);
    switch (device.method->rows) {
        case ValveRows::None:
            device.numbers = numbers;
            break;
        case ValveRows::OwnFile:
            device.steps = steps.Of(row);
            break;
        case ValveRows::Friction:
            device.steps = steps.Friction(row, numbers[0]);
            break;
    }
    device.image = ReadImage(row);
    device.source = row.NonEmptyText("source");
    return device;
}

std::vector<ValveTableData> ReadTables(const std::filesystem::path& file) {
    std::vector<ValveTableData> tables;
    for (const CsvRow& row : ReadCsv(file)) {
        const std::string& name = row.NonEmptyText("table");
        const std::string& title = row.NonEmptyText("title");
        if (!IsFileName(name, kLongestTableName)) {
            row.Fail("table", "is not fit for the name of a table of at most 30 characters");
        }
        if (!IsPlainName(title, std::string::npos)) {
            row.Fail("title", "has a quote or a character that is not plain ASCII");
        }
        tables.push_back({name, title, {}});
    }
    return tables;
}

// Names are unique in a table, not only in a type: hosts look for a name alone, and rows of one
// name that follow each other are rows of one record.
void AddTo(std::vector<ValveTableData>& tables, const std::string& name, const CsvRow& row,
           const ValveDevice& device) {
    const auto table =
        std::find_if(tables.begin(), tables.end(),
                     [&name](const ValveTableData& data) { return data.name == name; });
    if (table == tables.end()) {
        row.Fail("tables", "'" + name + "' is not in tables.csv");
    }
    for (const ValveDevice& other : table->devices) {
        if (other.name == device.name) {
            row.Fail("name", "stands twice in table " + name);
        }
    }
    table->devices.push_back(device);
}

void AddToAll(std::vector<ValveTableData>& tables, const CsvRow& row, const ValveDevice& device) {
    std::string_view names = row.NonEmptyText("tables");
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(kSeparator), names.size());
        AddTo(tables, std::string(names.substr(0, end)), row, device);
        names.remove_prefix(std::min(end + kSeparator.size(), names.size()));
    }
}

}  // namespace

std::vector<ValveTableData> ReadValves(const std::filesystem::path& folder) {
    std::vector<ValveTableData> tables = ReadTables(folder / "tables.csv");
    SizeSteps steps(folder / "by_size.csv");
    for (const CsvRow& row : ReadCsv(folder / "devices.csv")) {
        AddToAll(tables, row, ReadDevice(row, steps));
    }
    steps.CheckAllAreUsed();
    for (ValveTableData& table : tables) {
        if (table.devices.empty()) {
            throw InputError((folder / "tables.csv").generic_string() + ": table " + table.name +
                             " has no row in devices.csv");
        }
        std::stable_sort(
            table.devices.begin(), table.devices.end(),
            [](const ValveDevice& a, const ValveDevice& b) { return a.deviceType < b.deviceType; });
    }
    return tables;
}

}  // namespace hydrofacts::tables
