// Loading a valve table from its file.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "hydrofacts/frame/NodeList.h"
#include "hydrofacts/frame/RecordKey.h"
#include "hydrofacts/frame/TableFile.h"
#include "hydrofacts/valve/CValveTable.h"
#include "hydrofacts/valve/ValveRecord.h"
#include "quillbase/Numbers.h"
#include "quillbase/Text.h"
#include "quillbase/TextFile.h"

using hydrofacts::kOtherDevices;
using hydrofacts::NextField;
using ListEnd = hydrofacts::ListEnd<CValveType>;

namespace {

constexpr int kLineSize = 200;
constexpr int kGroups = 5;
constexpr int kMostRows = 100;
constexpr double kNoUpperLimit = 9999.0;
constexpr int kNumbers = 3;

struct FixedRecord {
    std::int16_t formula;
    const char* name;
    std::int16_t image;
};

// clang-format off
constexpr FixedRecord kFixedRecords[] = {
    {hydrofacts::kFixedK, "Fixed K",  13},
    {21,                  "Fixed Cv", 14},
    {22,                  "Fixed Kv", 15},
};
// clang-format on

bool HasSeveralRows(std::int16_t formula) { return formula == 9 || formula == 13; }

bool IsWanted(std::int16_t formula, const int* wanted) {
    while (*wanted != 0 && *wanted != formula) ++wanted;
    return *wanted == formula;
}

// The device type of a line, which is cut up to it; null if it has none.
const char* DeviceTypeOf(char* line) {
    NextField(line);
    return NextField(nullptr);
}

// Reads the next two fields; nothing if the line ends before, or has no number for the formula.
struct RecordHead {
    char name[sizeof CValveType::name];
    std::int16_t formula;

    static std::optional<RecordHead> Read() {
        RecordHead head{};
        char* name = NextField(nullptr);
        const char* formula = NextField(nullptr);
        if (formula == nullptr || quillbase::ScanShort(formula, &head.formula) != 1) return {};
        rstrncpy(head.name, UnquoteString(name), sizeof head.name);
        return head;
    }
};

void ReadImage(CValveType& record) {
    const char* field = NextField(nullptr);
    if (field != nullptr) quillbase::ScanShort(field, &record.image);
}

void ReadNumbers(CValveType& record) {
    auto numbers = std::make_unique<double[]>(kNumbers);
    for (int i = 0; i < kNumbers; ++i) ReadDoubleField(nullptr, &numbers[i]);
    hydrofacts::SetNumbers(record, std::move(numbers), kNumbers);
    ReadImage(record);
}

struct Row {
    double limit = 0.0;
    double value = 0.0;
};

Row ReadRow(HF_UNITS units) {
    Row row;
    ReadDoubleField(nullptr, &row.value);
    ReadDoubleField(nullptr, &row.limit);
    if (units == HF_METRIC) {
        ReadDoubleField(nullptr, &row.limit);
    } else {
        NextField(nullptr);
    }
    return row;
}

// Whether a line is a further row of a record, which has its name, cut like that. Cuts the line up
// to its formula number.
bool IsRowOf(const CValveType& record, char* line) {
    NextField(line);
    NextField(nullptr);
    char* field = NextField(nullptr);
    if (field == nullptr) return false;
    char name[sizeof record.name];
    rstrncpy(name, UnquoteString(field), sizeof name);
    NextField(nullptr);
    return std::strcmp(name, record.name) == 0;
}

// An exchange sort that ends a pass at a limit of zero: the order of rows behind one, which tables
// rely on, is not that of a full sort.
void SortByLimit(std::span<Row> rows) {
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        for (std::size_t j = i + 1; j < rows.size() && rows[j].limit != 0.0; ++j) {
            if (rows[i].limit > rows[j].limit) std::swap(rows[i], rows[j]);
        }
    }
}

void SetRows(CValveType& record, std::span<const Row> rows) {
    auto numbers = std::make_unique<double[]>(2 * rows.size());
    double* next = numbers.get();
    for (const Row& row : rows) {
        *next++ = row.limit;
        *next++ = row.value;
    }
    hydrofacts::SetNumbers(record, std::move(numbers), static_cast<int>(2 * rows.size()));
}

}  // namespace

// One reading of a table's file.
struct CValveTable::Reading {
    TextFile file;
    HF_UNITS units;
    const int* wanted;
    char line[kLineSize] = "";

    void NextLine() { ReadValveRecords(&file, line, sizeof line); }
    std::unique_ptr<CValveType> ReadRecord(int deviceType);
};

int CValveTable::LoadValveTable(const char* directory, const char* table, HF_UNITS units,
                                const int* wanted) {
    ClearValveList();
    rstrncpy(path, hydrofacts::TablePath(directory, table, hydrofacts::kValveExtension).c_str(),
             sizeof path);
    Reading reading{TextFile(path), units, wanted};
    if (!reading.file.ValidFile()) return 0;
    reading.NextLine();
    if (reading.file.eof()) return 0;

    std::array ends = {ListEnd(lists[0]), ListEnd(lists[1]), ListEnd(lists[2]), ListEnd(lists[3]),
                       ListEnd(lists[4])};
    const char* type = DeviceTypeOf(reading.line);
    for (int group = 0; group < kGroups && type != nullptr; ++group) {
        const int index = DeviceTypeIdx(type);
        while (index >= 0 && !reading.file.eof() && type != nullptr &&
               DeviceTypeIdx(type) == index) {
            auto record = reading.ReadRecord(index);
            if (record) ends[static_cast<std::size_t>(index)].Append(std::move(record));
            type = DeviceTypeOf(reading.line);
        }
    }
    AddFixedRecords();
    return 1;
}

// The line at hand is cut up to its device type; afterwards it is the next record's, uncut. Null if
// the record is incomplete or not wanted.
std::unique_ptr<CValveType> CValveTable::Reading::ReadRecord(int deviceType) {
    const std::optional<RecordHead> head = RecordHead::Read();
    if (!head || !IsWanted(head->formula, wanted)) {
        NextLine();
        return nullptr;
    }
    auto record = std::make_unique<CValveType>();
    record->device_type = static_cast<std::int16_t>(deviceType);
    record->formula = head->formula;
    std::copy(std::begin(head->name), std::end(head->name), record->name);
    if (HasSeveralRows(record->formula)) {
        ReadMultipleRecordFormula(&file, line, record.get(), units);
    } else {
        ReadNumbers(*record);
        NextLine();
    }
    return record;
}

void CValveTable::ReadValveRecords(TextFile* file, char* line, int size) {
    while (!file->eof()) {
        file->ReadLine(line, static_cast<unsigned>(size));
        if (file->eof() || hydrofacts::RecordKey(line) == 'Z') break;
    }
}

// The limits of rows, and the line behind the last one, which is needed whole but is cut to see
// whether it is a row.
void CValveTable::ReadMultipleRecordFormula(TextFile* file, char* line, CValveType* record,
                                            HF_UNITS units) {
    Row rows[kMostRows];
    char kept[kLineSize];
    std::size_t count = 0;
    bool another = true;
    while (another && count < kMostRows) {
        rows[count++] = ReadRow(units);
        ReadImage(*record);
        ReadValveRecords(file, line, kLineSize);
        rstrncpy(kept, line, sizeof kept);
        another = !file->eof() && IsRowOf(*record, line);
    }
    SortByLimit({rows, count});
    rows[count - 1].limit = kNoUpperLimit;
    SetRows(*record, {rows, count});
    rstrncpy(line, kept, kLineSize);
}

int CValveTable::DeviceTypeIdx(const char* name) {
    for (std::size_t i = 0; i < std::size(device_type_names); ++i) {
        if (std::strcmp(name, device_type_names[i]) == 0) return static_cast<int>(i);
    }
    return -1;
}

void CValveTable::AddFixedRecords() {
    for (const FixedRecord& fixed : kFixedRecords) {
        if (ValveData("", fixed.formula, kOtherDevices) != nullptr) continue;
        // Whole before it is in the list, which stays good if there is no memory for a part of it.
        auto record = std::make_unique<CValveType>();
        record->device_type = kOtherDevices;
        record->formula = fixed.formula;
        record->image = fixed.image;
        rstrncpy(record->name, fixed.name, sizeof record->name);
        hydrofacts::SetNumbers(*record, std::make_unique<double[]>(kNumbers), kNumbers);
        ListEnd(lists[kOtherDevices]).Append(std::move(record));
    }
}
