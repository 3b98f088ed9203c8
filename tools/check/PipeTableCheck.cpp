#include "tools/check/PipeTableCheck.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <span>

#include "tools/check/FieldNumber.h"
#include "tools/check/HeadLines.h"
#include "tools/check/PipeLoad.h"
#include "tools/check/TableText.h"

namespace hydrofacts::command {
namespace {

constexpr LineRules kRules = {100, "SVRZ"};
constexpr std::size_t kMaterialFields = 4;
constexpr std::size_t kRowFields = 8;
constexpr std::size_t kLongestSchedule = 30;
constexpr std::size_t kLongestNominal = 11;

// clang-format off
constexpr std::array<NumberField, 6> kColumns = {{
    {3, "nominal size (in.)",     Need::Positive},
    {4, "nominal size (mm)",      Need::Positive},
    {5, "inside diameter (in.)",  Need::Positive},
    {6, "second dimension (in.)", Need::Positive},
    {7, "inside diameter (mm)",   Need::Positive},
    {8, "second dimension (mm)",  Need::Positive},
}};
// clang-format on

constexpr bool IsNominal(std::size_t column) { return column < 2; }

// The second dimensions need no order.
constexpr bool Ascends(std::size_t column) { return column != 3 && column != 5; }

using Figures = std::array<std::optional<double>, kColumns.size()>;

class PipeWalk {
  public:
    PipeWalk(std::span<const TableLine> lines, Findings& findings)
        : m_lines(lines), m_findings(findings) {}

    void Run() {
        const std::size_t version = CheckHeadLines(m_lines, m_findings);
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            Visit(m_lines[i], i < version && version < m_lines.size());
        }
        CheckWhole(version);
    }

    /// Sizes by schedule, in the rows that a load reads.
    const std::map<std::string, std::size_t>& Schedules() const { return m_schedules; }

  private:
    void Visit(const TableLine& line, bool aheadOfVersion) {
        switch (line.Key()) {
            case 'R':
                VisitMaterial(line, aheadOfVersion);
                EndRun(line);
                break;
            case 'Z':
                VisitRow(line);
                break;
            case 'r':
            case 'z':
                VisitSmallKey(line);
                EndRun(line);
                break;
            default:
                EndRun(line);
                break;
        }
    }

    void VisitSmallKey(const TableLine& line) {
        m_findings.Error(line.number, 1,
                         line.Field(1).size() == 1
                             ? fmt::format("{} is a small letter: the record is passed over",
                                           Quoted(line.Field(1)))
                             : fmt::format("a line that begins with \"{}\" is taken for a record "
                                           "where tables, schedules and sizes are listed",
                                           line.Key()));
    }

    void VisitMaterial(const TableLine& line, bool aheadOfVersion) {
        if (line.Field(1) != "R") {
            m_findings.Error(line.number, 1,
                             fmt::format("{} begins with R and is taken for the material record",
                                         Quoted(line.Field(1))));
            m_material = true;
            return;
        }
        if (m_material) {
            m_findings.Error(line.number, 0, "a second R line: the first one counts");
            return;
        }
        m_material = true;
        if (aheadOfVersion) {
            m_findings.Error(line.number, 0,
                             "R ahead of the version line (V): lists of tables miss it");
        }
        if (m_firstRow != 0) {
            m_findings.Error(line.number, 0,
                             fmt::format("R behind the first Z row, in line {}: lists of tables "
                                         "read the roughness from that row",
                                         m_firstRow));
        }
        CheckEmptyFields(line, kMaterialFields, m_findings);
        CheckReal(line, {2, "absolute roughness (in.)", Need::Positive}, m_findings);
        CheckReal(line, {3, "absolute roughness (mm)", Need::Positive}, m_findings);
        if (line.fields.size() < kMaterialFields) {
            m_findings.Warning(line.number, 4, "Hazen-Williams C: the field is missing, C is 0");
        } else {
            CheckReal(line, {4, "Hazen-Williams C", Need::Positive}, m_findings);
        }
        CheckFurtherFields(line, kMaterialFields);
    }

    void VisitRow(const TableLine& line) {
        if (m_firstRow == 0) m_firstRow = line.number;
        if (line.Field(1) != "Z") {
            m_findings.Error(
                line.number, 1,
                fmt::format("{} begins with Z and is taken for a row", Quoted(line.Field(1))));
            EndRun(line);
            return;
        }
        if (line.fields.size() < 2) {
            m_findings.Error(line.number, 2, "schedule: the field is missing");
            EndRun(line);
            return;
        }
        CheckEmptyFields(line, kRowFields, m_findings);
        EnterRun(line);
        CheckFigures(line);
        CheckFurtherFields(line, kRowFields);
    }

    void CheckFurtherFields(const TableLine& line, std::size_t fields) {
        if (line.fields.size() > fields) {
            m_findings.Warning(line.number, fields + 1,
                               fmt::format("{} is not read: the record has {} fields",
                                           Quoted(line.Field(fields + 1)), fields));
        }
    }

    void EndRun(const TableLine& line) {
        if (!m_schedule.empty() && m_endedBy == 0) m_endedBy = line.number;
    }

    // Notes to which run of rows a row belongs; only a schedule's first run is ever loaded.
    void EnterRun(const TableLine& line) {
        const std::string schedule(line.Field(2));
        if (schedule != m_schedule) {
            m_previous = {};
            m_loads = m_schedules.find(schedule) == m_schedules.end();
            if (m_loads) {
                CheckScheduleName(line);
            } else {
                m_findings.Error(line.number, 2,
                                 fmt::format("schedule {} has rows further up: those from here on "
                                             "are not read",
                                             Quoted(schedule)));
            }
        } else if (m_endedBy != 0 && m_loads) {
            m_findings.Error(m_endedBy, 0,
                             fmt::format("ends schedule {} between its rows: those from line {} "
                                         "on are not read",
                                         Quoted(schedule), line.number));
            m_loads = false;
        }
        m_schedule = schedule;
        m_endedBy = 0;
        if (m_loads) ++m_schedules[schedule];
    }

    void CheckScheduleName(const TableLine& line) {
        const std::string_view name = line.Field(2);
        if (name.size() > kLongestSchedule) {
            m_findings.Error(line.number, 2,
                             fmt::format("schedule {}: {} characters, {} at most", Quoted(name),
                                         name.size(), kLongestSchedule));
        }
        if (name.front() == '"') {
            m_findings.Warning(line.number, 2,
                               fmt::format("schedule {}: quotes belong to the name here", name));
        }
        if (name.front() == ' ' || name.back() == ' ') {
            m_findings.Warning(line.number, 2,
                               fmt::format("schedule {}: blanks belong to the name", Quoted(name)));
        }
    }

    void CheckFigures(const TableLine& line) {
        for (std::size_t column = 0; column < kColumns.size(); ++column) {
            const auto figure = CheckReal(line, kColumns[column], m_findings);
            const bool sound =
                figure && !m_findings.JustFailed(line.number, kColumns[column].field);
            if (sound && IsNominal(column)) CheckNominalText(line, column, *figure);
            if (sound && Ascends(column)) CheckOrder(line, column, *figure);
            if (figure) m_previous[column] = figure;
        }
    }

    // A size is looked up by the text that "%g" gives for its number.
    void CheckNominalText(const TableLine& line, std::size_t column, double figure) {
        const NumberField& place = kColumns[column];
        const std::string_view text = line.Field(place.field);
        if (text.size() > kLongestNominal) {
            m_findings.Error(line.number, place.field,
                             fmt::format("{}: {} has {} characters, {} at most", place.what,
                                         Quoted(text), text.size(), kLongestNominal));
        }
        const std::string wanted = fmt::format("{:g}", figure);
        if (text != wanted) {
            m_findings.Error(
                line.number, place.field,
                fmt::format("{}: {} is looked up as {}", place.what, Quoted(text), Quoted(wanted)));
        }
    }

    void CheckOrder(const TableLine& line, std::size_t column, double figure) {
        const auto& previous = m_previous[column];
        if (!previous || figure > *previous) return;
        const NumberField& place = kColumns[column];
        m_findings.Error(line.number, place.field,
                         fmt::format("{}: {} does not ascend, the row ahead has {}", place.what,
                                     figure, *previous));
    }

    void CheckWhole(std::size_t version) {
        if (m_lines.empty()) return;
        const std::size_t last = m_lines.back().number;
        if (version == m_lines.size()) {
            m_findings.Error(std::min<std::size_t>(2, last), 0,
                             "no version line (V): lists of tables leave the table out");
        }
        if (!m_material) {
            m_findings.Error(m_firstRow != 0 ? m_firstRow : last, 0,
                             "no material record (R) ahead of this line: the table can't be used");
        }
        if (m_firstRow == 0) m_findings.Error(last, 0, "no row (Z): the table has no schedule");
    }

    std::span<const TableLine> m_lines;
    Findings& m_findings;
    bool m_material = false;
    std::size_t m_firstRow = 0;
    std::map<std::string, std::size_t> m_schedules;
    std::string m_schedule;     // of the latest row
    bool m_loads = true;        // whether the latest row is one of those that a load reads
    std::size_t m_endedBy = 0;  // the line behind the latest row, if that is no row
    Figures m_previous;
};

}  // namespace

void CheckPipeTable(std::string_view text, const LibraryPlace& place, Findings& findings) {
    const auto lines = ReadLines(text, kRules, findings);
    PipeWalk walk(lines, findings);
    walk.Run();
    if (!findings.HasErrors() && place.IsReachable()) {
        LoadPipeTable(place, walk.Schedules(), findings);
    }
}

}  // namespace hydrofacts::command
