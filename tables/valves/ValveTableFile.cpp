#include "tables/valves/ValveTableFile.h"

#include <algorithm>
#include <set>
#include <vector>

#include "hydrofacts/valve/CValveTable.h"
#include "tables/Csv.h"
#include "tables/Numbers.h"
#include "tables/TableLines.h"

namespace hydrofacts::tables {
namespace {

// With a carriage return, 199 characters are the most of a record and 100 of what the scan for
// levels reads ahead of the version line; remarks stay as short as that, for people.
constexpr std::size_t kLongestLine = 99;
constexpr double kNoLimit = 9999.0;  // the library's, for the last row of a record
constexpr int kOther = 4;
constexpr const char* kFixedRecords[] = {"Fixed K", "Fixed Cv", "Fixed Kv"};

void WriteMethods(TableLines& lines, const ValveTableData& table) {
    std::set<int> told;
    std::vector<const ValveMethod*> methods;
    for (const ValveDevice& device : table.devices) {
        if (told.insert(device.method->formula).second) {
            methods.push_back(device.method);
        }
    }
    std::sort(methods.begin(), methods.end(),
              [](const ValveMethod* a, const ValveMethod* b) { return a->formula < b->formula; });
    for (const ValveMethod* method : methods) {
        lines.Remark(method->remark);
    }
}

void WriteDevice(TableLines& lines, const ValveDevice& device) {
    const char* const type = device_type_names[device.deviceType];
    const std::string name = '"' + device.name + '"';
    const std::string formula = std::to_string(device.method->formula);
    const std::string image = std::to_string(device.image);
    if (device.steps.empty()) {
        lines.Record({"Z", type, name, formula, ExactNumber(device.numbers[0]),
                      ExactNumber(device.numbers[1]), ExactNumber(device.numbers[2]), image});
    }
    for (const ValveStep& step : device.steps) {
        lines.Record({"Z", type, name, formula, ExactNumber(step.value),
                      ExactNumber(step.limitInches), ExactNumber(step.limitMm), image});
    }
}

// What a record should hold after loading.
std::vector<double> ExpectedData(const ValveDevice& device, HF_UNITS units) {
    if (device.steps.empty()) {
        return {device.numbers.begin(), device.numbers.end()};
    }
    std::vector<double> data;
    for (const ValveStep& step : device.steps) {
        data.push_back(units == HF_US ? step.limitInches : step.limitMm);
        data.push_back(step.value);
    }
    data[data.size() - 2] = kNoLimit;
    return data;
}

// Walks the lists of the library, which only a derived table sees.
class LoadedTable : public CValveTable {
  public:
    LoadedTable(const ValveTableData& table, HF_UNITS units) : m_table(table), m_units(units) {}

    void Check(const std::filesystem::path& folder) {
        if (LoadValveTable(folder.string().c_str(), m_table.name.c_str(), m_units,
                           kAllValveFormulas) == 0) {
            Fail("the library does not load the table");
        }
        std::vector<CValveType*> next(std::begin(lists), std::end(lists));
        for (const ValveDevice& device : m_table.devices) {
            CValveType*& record = next[device.deviceType];
            CheckRecord(device, record);
            record = record->next;
        }
        for (const char* const name : kFixedRecords) {
            CValveType*& record = next[kOther];
            Expect(record != nullptr && std::string_view(record->name) == name, name, "is missing");
            record = record->next;
        }
        Expect(std::count(next.begin(), next.end(), nullptr) == std::ssize(next), "the end",
               "has more records than were written");
    }

  private:
    void CheckRecord(const ValveDevice& device, const CValveType* record) const {
        Expect(record != nullptr && device.name == record->name, device.name,
               "is not the next record of its type");
        Expect(record->formula == device.method->formula, device.name, "has another formula");
        Expect(record->image == device.image, device.name, "has another image");
        const std::vector<double> expected = ExpectedData(device, m_units);
        Expect(std::equal(expected.begin(), expected.end(), record->data,
                          record->data + record->data_count),
               device.name, "has other numbers");
        Expect(Find(device.name.c_str()) == record, device.name, "is not found by its name");
    }

    void Expect(bool holds, const std::string& place, const char* reason) const {
        if (!holds) {
            Fail(place + ": " + reason);
        }
    }

    [[noreturn]] void Fail(const std::string& reason) const {
        throw InputError(m_table.name + ".VTBL, " + (m_units == HF_US ? "US" : "metric") +
                         " limits: " + reason);
    }

    const ValveTableData& m_table;
    HF_UNITS m_units;
};

}  // namespace

std::string ValveTableText(const ValveTableData& table) {
    TableLines lines(table.name + ".VTBL", kLongestLine);
    lines.Head(table.title);
    WriteMethods(lines, table);
    std::string source;
    for (const ValveDevice& device : table.devices) {
        if (device.source != source) {
            source = device.source;
            lines.Remark("Source: " + source + ".");
        }
        WriteDevice(lines, device);
    }
    return lines.Text();
}

void CheckValveTable(const std::filesystem::path& folder, const ValveTableData& table) {
    for (const HF_UNITS units : {HF_US, HF_METRIC}) {
        LoadedTable(table, units).Check(folder);
    }
}

}  // namespace hydrofacts::tables
