// A pipe material and its schedule as an object: its life, its loading.

#include "hydrofacts/pipe/CPipeTable.h"

#include <cstring>
#include <iterator>
#include <memory>
#include <string_view>

#include "hydrofacts/frame/NodeList.h"
#include "hydrofacts/frame/RecordKey.h"
#include "hydrofacts/frame/TableFile.h"
#include "hydrofacts/frame/TableSearch.h"
#include "hydrofacts/pipe/PipeRecord.h"
#include "hydrofacts/pipe/SizeCombo.h"
#include "quillbase/Directory.h"
#include "quillbase/Numbers.h"
#include "quillbase/Text.h"
#include "quillbase/TextFile.h"

using hydrofacts::kPipeLineSize;
using hydrofacts::NextField;

namespace {

hydrofacts::TablePath PathOf(const char* directory, const char* material) {
    char installed[MAX_PATH];
    if (directory == nullptr) {
        GetDirectory(DIR_TABLES, installed, 0);
        directory = installed;
    }
    return {directory, material, hydrofacts::kPipeExtension};
}

// Gives the first row of a schedule.
bool FindSchedule(TextFile& file, std::string_view schedule, std::string_view& row) {
    do {
        row = file.TakeLine();
    } while (!file.eof() && !hydrofacts::IsSizeRowOf(schedule, row));
    return !file.eof();
}

/// A size row: its text, cut into fields, and the figures of one unit system.
class SizeRow {
  public:
    SizeRow(std::string_view row, HF_UNITS units) {
        m_line[row.copy(m_line, sizeof m_line - 1)] = '\0';
        // Key, schedule, nominal size US and metric, diameter and second dimension US, metric.
        const bool metric = units == HF_METRIC;
        char* fields[8] = {};
        char* rest = m_line;
        for (int i = 0; i < (metric ? 8 : 6); ++i) fields[i] = hydrofacts::TakeField(rest);
        const auto read = [](const char* field, double& value) {
            if (field != nullptr) quillbase::ScanReal(field, &value);
        };
        sizeText = fields[metric ? 3 : 2];
        read(sizeText, nominal);
        read(fields[metric ? 6 : 4], insideDia);
        read(fields[metric ? 7 : 5], secondDim);
    }

    bool IsComplete() const { return nominal != 0.0 && insideDia != 0.0 && secondDim != 0.0; }

    char* sizeText;
    double nominal = 0.0;
    double insideDia = 0.0;
    double secondDim = 0.0;

  private:
    char m_line[kPipeLineSize];
};

}  // namespace

CPipeTable::CPipeTable(HF_UNITS system)
    : path{},
      material{},
      schedule{},
      abs_roughness(0.0),
      hwc(0.0),
      units(system),
      pipe_list(nullptr) {}

CPipeTable::CPipeTable(const CPipeTable& other) : CPipeTable(other.units) { *this = other; }

CPipeTable& CPipeTable::operator=(const CPipeTable& other) {
    if (this == &other) return *this;
    ClearPipeList();
    std::copy(std::begin(other.path), std::end(other.path), path);
    std::copy(std::begin(other.material), std::end(other.material), material);
    std::copy(std::begin(other.schedule), std::end(other.schedule), schedule);
    abs_roughness = other.abs_roughness;
    hwc = other.hwc;
    units = other.units;
    hydrofacts::AppendCopies(pipe_list, other.pipe_list);
    return *this;
}

CPipeTable::~CPipeTable() { ClearPipeList(); }

void CPipeTable::ClearPipeList() { hydrofacts::ReleaseNodes(pipe_list); }

// The arguments may be texts of this object, so the path is made before any of them changes.
bool CPipeTable::LoadMaterial(const char* directory, const char* materialName) {
    const hydrofacts::TablePath tablePath = PathOf(directory, materialName);
    rstrncpy(material, materialName, sizeof material);
    *schedule = '\0';
    ClearPipeList();
    rstrncpy(path, tablePath.c_str(), sizeof path);
    return ReadMaterialRecord();
}

bool CPipeTable::LoadPipeList(const char* scheduleName, HWND combo) {
    const bool nameFits = std::strlen(scheduleName) < sizeof schedule;
    rstrncpy(schedule, scheduleName, sizeof schedule);
    ClearPipeList();
    const hydrofacts::SizeCombo sizes(combo);
    sizes.Clear();

    TextFile file(path);
    std::string_view row;
    return file.ValidFile() && nameFits && FindSchedule(file, schedule, row) &&
           ReadSizes(file, row, sizes);
}

void CPipeTable::SetPipeUnit(HF_UNITS system, HWND dialog) {
    if (system != units) {
        units = system;
        abs_roughness = 0.0;
        ReadMaterialRecord();
    }
    LoadPipeList(schedule, hydrofacts::SizeCombo::In(dialog));
}

void CPipeTable::ReadPipeRecords(TextFile* file, char* line, int size) {
    while (!file->eof()) {
        file->ReadLine(line, static_cast<unsigned>(size));
        const char key = hydrofacts::RecordKey(line);
        if (file->eof() || key == 'R' || key == 'Z') break;
    }
}

bool CPipeTable::IsValid() const { return pipe_list != nullptr; }

char* CPipeTable::GetMaterialName() { return material; }

const char* CPipeTable::GetMaterialName() const { return material; }

char* CPipeTable::GetScheduleName() { return schedule; }

const char* CPipeTable::GetScheduleName() const { return schedule; }

double CPipeTable::GetHWC() const { return hwc; }

double CPipeTable::GetAbsRoughness() const { return abs_roughness; }

UnitValue<HF_LENGTH, 0> CPipeTable::GetAbsRoughnessValue() const {
    return {LengthUnit(), abs_roughness};
}

bool CPipeTable::IsListed(TextFile& file, double highLimit, double lowLimit) const {
    const bool within = hydrofacts::FileLevelsAreWithin(file, highLimit, lowLimit);
    char line[kPipeLineSize] = "";
    ReadPipeRecords(&file, line, sizeof line);
    NextField(line);
    if (units == HF_METRIC) NextField(nullptr);
    double roughness = 0.0;
    return !file.eof() && within && ReadDoubleField(nullptr, &roughness) != 0 && roughness != 0.0;
}

HF_LENGTH_UNITS CPipeTable::LengthUnit() const {
    return units == HF_METRIC ? HF_LEN_MM : HF_LEN_IN;
}

bool CPipeTable::ReadMaterialRecord() {
    TextFile file(path);
    if (!file.ValidFile()) return false;
    char line[kPipeLineSize] = "";
    while (!file.eof() && *line != 'R') ReadPipeRecords(&file, line, sizeof line);
    if (*line != 'R') return false;

    NextField(line);
    if (units == HF_METRIC) NextField(nullptr);
    ReadDoubleField(nullptr, &abs_roughness);
    if (units != HF_METRIC) NextField(nullptr);
    hwc = 0.0;
    ReadDoubleField(nullptr, &hwc);
    return true;
}

// `row` is the schedule's first one.
bool CPipeTable::ReadSizes(TextFile& file, std::string_view row,
                           const hydrofacts::SizeCombo& combo) {
    hydrofacts::ListEnd<t_pipe_size> end(pipe_list);
    const std::string_view wanted = schedule;
    for (;;) {
        SizeRow read(row, units);
        if (!read.IsComplete()) return false;
        combo.Add(read.sizeText);
        t_pipe_size& size = end.Append(std::make_unique<t_pipe_size>());
        size.nominal = read.nominal;
        size.inside_dia = read.insideDia;
        size.second_dim = read.secondDim;

        row = file.TakeLine();
        if (file.eof() || !row.starts_with('Z')) return true;
        const auto next = hydrofacts::ScheduleIn(row);
        if (!next) return false;
        if (*next != wanted) return true;
    }
}
