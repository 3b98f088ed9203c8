#include "hydrofacts/pipe/CPipeTableList.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

#include "hydrofacts/frame/TableFile.h"
#include "hydrofacts/frame/TableSearch.h"
#include "hydrofacts/pipe/NameList.h"
#include "hydrofacts/pipe/PipeRecord.h"
#include "quillbase/Directory.h"
#include "quillbase/TextFile.h"

using hydrofacts::kPipeExtension;
using hydrofacts::kPipeLineSize;
using hydrofacts::NameList;
using hydrofacts::NextField;
using hydrofacts::TableSearch;

namespace {

constexpr int kNoTable = -2;
constexpr int kNoSchedule = -3;

struct InstalledTables {
    InstalledTables() { GetDirectory(DIR_TABLES, directory, 0); }
    hydrofacts::TablePath PathOf(const char* table) const {
        return {directory, table, kPipeExtension};
    }
    char directory[MAX_PATH];
};

// Room for an empty text at least.
std::unique_ptr<char[]> NewList(int size) {
    auto list = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(std::max(size, 1)));
    list[0] = '\0';
    return list;
}

}  // namespace

CPipeTableList::CPipeTableList(HF_UNITS system) : CPipeTable(system) {}

int CPipeTableList::SizePipeTables() const {
    const InstalledTables installed;
    std::size_t size = 0;
    for (TableSearch tables(installed.directory, kPipeExtension); tables.Next();) {
        size += std::strlen(tables.Name()) + 1;
    }
    return static_cast<int>(size) + 2;
}

int CPipeTableList::ListPipeTables(char* buffer, int size, double highLimit,
                                   double lowLimit) const {
    const InstalledTables installed;
    NameList names(buffer, size);
    for (TableSearch tables(installed.directory, kPipeExtension); tables.Next();) {
        if (std::strlen(tables.Name()) > hydrofacts::kLongestListedName) continue;
        TextFile file(installed.PathOf(tables.Name()).c_str());
        if (!file.ValidFile() || !IsListed(file, highLimit, lowLimit)) continue;
        if (!names.Add(tables.Name())) return names.Result();
    }
    names.CutLastTab();
    return names.Result();
}

// More tables may have come since the buffer was sized, and a caller may ask for more than that.
char* CPipeTableList::ListPipeTables(int size, double highLimit, double lowLimit) const {
    const int room = SizePipeTables();
    auto list = NewList(room);
    ListPipeTables(list.get(), std::min(size, room), highLimit, lowLimit);
    return list.release();
}

int CPipeTableList::ListPipeSchedules(char* buffer, int size, const char* table) const {
    TextFile file(InstalledTables().PathOf(table).c_str());
    char line[kPipeLineSize] = "";
    while (file.ValidFile() && !file.eof() && *line != 'Z') {
        ReadPipeRecords(&file, line, sizeof line);
    }
    if (*line != 'Z') return kNoTable;

    NameList names(buffer, size);
    std::string last;
    do {
        const auto scheduleName = hydrofacts::ScheduleIn(line);
        if (scheduleName && last != *scheduleName) {
            if (!names.Add(*scheduleName)) break;
            last = *scheduleName;
        }
        ReadPipeRecords(&file, line, sizeof line);
    } while (!file.eof());
    names.CutLastTab();
    return names.Result();
}

char* CPipeTableList::ListPipeSchedules(int size, const char* table) const {
    auto list = NewList(size);
    ListPipeSchedules(list.get(), size, table);
    return list.release();
}

int CPipeTableList::ListPipeSizes(char* buffer, int size, const char* table,
                                  const char* scheduleName) const {
    TextFile file(InstalledTables().PathOf(table).c_str());
    if (!file.ValidFile()) return kNoTable;
    char line[kPipeLineSize] = "";
    const auto readRow = [&file, &line, scheduleName] {
        ReadPipeRecords(&file, line, sizeof line);
        return !file.eof() && hydrofacts::ScheduleIn(line) == scheduleName;
    };
    while (!readRow()) {
        if (file.eof()) return kNoSchedule;
    }

    NameList names(buffer, size);
    do {
        NextField(line);
        NextField(nullptr);
        if (units == HF_METRIC) NextField(nullptr);
        const char* nominal = NextField(nullptr);
        if (nominal == nullptr || !names.Add(nominal)) break;
    } while (readRow());
    names.CutLastTab();
    return names.Result();
}

char* CPipeTableList::ListPipeSizes(int size, const char* table, const char* scheduleName) const {
    auto list = NewList(size);
    ListPipeSizes(list.get(), size, table, scheduleName);
    return list.release();
}
