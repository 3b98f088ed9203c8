#include "tools/check/ValveTableCheck.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "hydrofacts/hydrofacts.h"
#include "tools/Names.h"
#include "tools/check/FieldNumber.h"
#include "tools/check/HeadLines.h"
#include "tools/check/TableText.h"
#include "tools/check/ValveLoad.h"
#include "tools/check/ValveRows.h"

namespace hydrofacts::command {
namespace {

constexpr LineRules kRules = {199, "SVZz"};
constexpr std::size_t kLongestDownToVersion = 100;
constexpr std::size_t kFields = 8;
constexpr std::size_t kMostGroups = 5;
constexpr std::size_t kLongestName = 31;

// clang-format off
constexpr std::array<NumberField, 3> kNumbers = {{
    {5, "first number"},
    {6, "second number"},
    {7, "third number"},
}};
// clang-format on

using Records = std::span<const TableLine* const>;

bool IsDeviceType(std::string_view text) {
    return std::any_of(std::begin(device_type_names), std::end(device_type_names),
                       [text](const char* name) { return text == name; });
}

std::string Hint(std::string_view type) {
    for (const char* name : device_type_names) {
        if (EqualIgnoringCase(type, name)) return fmt::format("; it is written {}", name);
    }
    return "";
}

class ValveWalk {
  public:
    explicit ValveWalk(Findings& findings) : m_findings(findings) {}

    void Run(Records records) {
        while (!records.empty()) records = records.subspan(VisitRecord(records));
    }

    const ValveRecords& Found() const { return m_found; }

  private:
    // Returns how many lines the record has.
    std::size_t VisitRecord(Records records) {
        const TableLine& line = *records.front();
        if (!IsRecord(line)) return 1;
        EnterGroup(line);
        const auto formula = CheckHead(line);
        if (!formula) return 1;
        const std::size_t rows = HasSeveralRows(*formula) ? RowsOfRecord(records) : 1;
        if (HasSeveralRows(*formula)) {
            VisitRows(records.first(rows));
        } else {
            for (const NumberField& number : kNumbers) CheckReal(line, number, m_findings);
            CheckShort(line, {8, "image number", Need::Positive}, m_findings);
        }
        CheckRepeatedName(line);
        ++m_found.records;
        m_found.formulas.insert(*formula);
        if (line.Field(2) == "Other") m_found.formulasOfOther.insert(*formula);
        return rows;
    }

    void VisitRows(Records rows) {
        for (const TableLine* row : rows.subspan(1)) {
            if (IsRecord(*row)) CheckShape(*row);
        }
        CheckRows(rows.first(std::min(rows.size(), kMostRows)), m_findings);
        if (rows.size() > kMostRows) {
            m_findings.Error(rows[kMostRows]->number, 0,
                             fmt::format("a record has {} rows at most: this one begins another of "
                                         "the same name",
                                         kMostRows));
        }
    }

    bool IsRecord(const TableLine& line) {
        const std::string_view key = line.Field(1);
        if (key.size() == 1) return true;
        m_findings.Error(
            line.number, 1,
            fmt::format("{} begins with {} and is taken for a record", Quoted(key), line.Key()));
        return false;
    }

    void EnterGroup(const TableLine& line) {
        const std::string_view type = line.Field(2);
        if (type == m_type || m_ended) return;
        m_type = type;
        if (type.empty()) {
            End(line, "device type: the field is missing, and the reading ends here");
        } else if (!IsDeviceType(type)) {
            End(line, fmt::format("{} is no device type, and the reading ends here{}", Quoted(type),
                                  Hint(type)));
        } else if (m_groups == kMostGroups) {
            End(line,
                fmt::format("{} begins a sixth group, and the reading ends here", Quoted(type)));
        } else if (const auto former = m_types.find(type); former != m_types.end()) {
            m_findings.Error(line.number, 2,
                             fmt::format("{} has a group already, from line {} on", Quoted(type),
                                         former->second));
        }
        m_types.emplace(type, line.number);
        ++m_groups;
    }

    void End(const TableLine& line, std::string reason) {
        m_findings.Error(line.number, 2, std::move(reason));
        m_ended = true;
    }

    void CheckShape(const TableLine& line) {
        CheckEmptyFields(line, kFields, m_findings);
        if (line.fields.size() > kFields) {
            m_findings.Warning(line.number, kFields + 1,
                               fmt::format("{} is not read: the record has {} fields",
                                           Quoted(line.Field(kFields + 1)), kFields));
        }
    }

    // The formula number, if the line has what the library needs to make a record of it.
    std::optional<std::int16_t> CheckHead(const TableLine& line) {
        CheckShape(line);
        if (line.fields.size() < 2) return std::nullopt;
        CheckName(line);
        return CheckShort(line, {4, "formula number", Need::Positive}, m_findings);
    }

    void CheckName(const TableLine& line) {
        const std::string_view field = line.Field(3);
        const std::string_view name = WithoutQuotes(field);
        const auto error = [&](const std::string& reason) {
            m_findings.Error(line.number, 3, "name: " + reason);
        };
        if (field.empty()) {
            error("the field is missing");
        } else if (name.empty()) {
            error("it is empty");
        } else if (name.size() > kLongestName) {
            error(fmt::format("{} has {} characters, {} at most", Quoted(name), name.size(),
                              kLongestName));
        } else if (name.size() != field.size()) {
            return;
        } else if (field.front() == '"' || field.back() == '"') {
            error(fmt::format("{} has one quote, which becomes part of the name", field));
        } else {
            error(fmt::format("{} is not in double quotes", Quoted(field)));
        }
    }

    void CheckRepeatedName(const TableLine& line) {
        const auto [first, isNew] = m_names.emplace(LowerCase(DeviceName(line)), line.number);
        if (isNew || line.Field(3).empty()) return;
        m_findings.Warning(line.number, 3,
                           fmt::format("name: {} is that of line {} too, and a search by name "
                                       "finds but one of them",
                                       Quoted(DeviceName(line)), first->second));
    }

    Findings& m_findings;
    ValveRecords m_found;
    std::string_view m_type;
    std::size_t m_groups = 0;
    bool m_ended = false;
    std::map<std::string_view, std::size_t> m_types;
    std::map<std::string, std::size_t> m_names;
};

void CheckWhole(std::span<const TableLine> lines, Records records, Findings& findings) {
    const std::size_t version = CheckHeadLines(lines, findings);
    if (lines.empty()) return;
    const std::size_t last = lines.back().number;
    if (version == lines.size()) {
        findings.Error(std::min<std::size_t>(2, last), 0,
                       "no version line (V): lists with a lowest level leave the table out");
    }
    // The scan for the levels reads into a shorter room. The head lines have been measured.
    for (const TableLine& line : lines.first(std::min(version, lines.size()))) {
        if (line.number == 1 || line.text.size() <= kLongestDownToVersion) continue;
        findings.Error(line.number, 0,
                       fmt::format("{} characters: {} at most down to the version line",
                                   line.length, kLongestDownToVersion));
    }
    if (records.empty()) findings.Error(last, 0, "no record (Z): the table can't be used");
}

}  // namespace

void CheckValveTable(std::string_view text, const LibraryPlace& place, Findings& findings) {
    const auto lines = ReadLines(text, kRules, findings);
    std::vector<const TableLine*> records;
    for (const TableLine& line : lines) {
        if (line.Key() == 'Z' || line.Key() == 'z') records.push_back(&line);
    }
    CheckWhole(lines, records, findings);
    ValveWalk walk(findings);
    walk.Run(records);
    if (!findings.HasErrors() && place.IsReachable()) {
        LoadValveTable(place, walk.Found(), findings);
    }
}

}  // namespace hydrofacts::command
