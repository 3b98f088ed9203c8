#include "tools/check/ValveRows.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <vector>

#include "tools/check/FieldNumber.h"

namespace hydrofacts::command {
namespace {

constexpr std::size_t kNameRoom = 31;
constexpr double kNoUpperLimit = 9999.0;

// clang-format off
constexpr NumberField kValue = {5, "value of the row"};
constexpr NumberField kImage = {8, "image number", Need::Positive};
constexpr std::array<NumberField, 2> kLimits = {{
    {6, "upper limit (in.)"},
    {7, "upper limit (mm)"},
}};
// clang-format on

/// The limits of a record in one unit system, in file order.
class Limits {
  public:
    Limits(std::span<const TableLine* const> rows, const NumberField& place, Findings& findings)
        : m_rows(rows), m_place(place), m_findings(findings), m_limits(rows.size(), 0.0) {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const auto limit = CheckReal(*rows[i], place, findings);
            if (limit) m_limits[i] = *limit;
            m_sound = m_sound && limit;
        }
    }

    /// The rows by limit; empty if their order can't be told.
    std::vector<std::size_t> Check() {
        if (!m_sound) return {};
        const std::size_t count = m_limits.size();
        std::vector<std::size_t> order(count);
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
            return m_limits[a] < m_limits[b];
        });
        for (std::size_t i = 0; i + 1 < count; ++i) CheckLimit(i);
        for (std::size_t i = 0; i + 2 < count; ++i) CheckEqual(order[i], order[i + 1]);
        return m_sound ? order : std::vector<std::size_t>();
    }

  private:
    // The last row of the file may have any limit that sorts.
    void CheckLimit(std::size_t i) {
        const double limit = m_limits[i];
        if (limit == 0.0 && i > 0) {
            Error(i, "a limit of 0 ahead of other rows ends the sort there");
        } else if (limit == 0.0) {
            m_findings.Warning(m_rows[i]->number, m_place.field,
                               fmt::format("{}: nothing is as small as 0", m_place.what));
        } else if (limit < 0.0 || limit > kNoUpperLimit) {
            Error(i, fmt::format("{} is outside 0 to {}", limit, kNoUpperLimit));
        }
    }

    void CheckEqual(std::size_t a, std::size_t b) {
        if (m_limits[a] != m_limits[b]) return;
        Error(std::max(a, b), fmt::format("{} is the limit of line {} too", m_limits[a],
                                          m_rows[std::min(a, b)]->number));
    }

    void Error(std::size_t row, const std::string& reason) {
        m_sound = false;
        m_findings.Error(m_rows[row]->number, m_place.field,
                         fmt::format("{}: {}", m_place.what, reason));
    }

    std::span<const TableLine* const> m_rows;
    const NumberField& m_place;
    Findings& m_findings;
    std::vector<double> m_limits;
    bool m_sound = true;
};

void CheckSameAsFirst(const TableLine& row, const TableLine& first, Findings& findings) {
    constexpr struct {
        std::size_t field;
        const char* what;
    } kShared[] = {{2, "device type"}, {4, "formula number"}};
    for (const auto& [field, what] : kShared) {
        if (row.Field(field) == first.Field(field)) continue;
        findings.Error(
            row.number, field,
            fmt::format("{}: {} in a row of the record of line {}, whose {} counts", what,
                        Quoted(row.Field(field)), first.number, Quoted(first.Field(field))));
    }
}

void CheckImage(const TableLine& row, const TableLine& last, Findings& findings) {
    if (!CheckShort(row, kImage, findings) || row.Field(8) == last.Field(8)) return;
    findings.Warning(row.number, 8,
                     fmt::format("image number: {} where the record's last row, which counts, has "
                                 "{}",
                                 Quoted(row.Field(8)), Quoted(last.Field(8))));
}

}  // namespace

std::string_view DeviceName(const TableLine& line) {
    return WithoutQuotes(line.Field(3)).substr(0, kNameRoom);
}

bool HasSeveralRows(std::int16_t formula) { return formula == 9 || formula == 13; }

std::size_t RowsOfRecord(std::span<const TableLine* const> records) {
    std::size_t count = 1;
    while (count < records.size() && !records[count]->Field(3).empty() &&
           DeviceName(*records[count]) == DeviceName(*records[0])) {
        ++count;
    }
    return count;
}

void CheckRows(std::span<const TableLine* const> rows, Findings& findings) {
    for (const TableLine* row : rows) {
        CheckReal(*row, kValue, findings);
        CheckSameAsFirst(*row, *rows.front(), findings);
        CheckImage(*row, *rows.back(), findings);
    }
    const auto inches = Limits(rows, kLimits[0], findings).Check();
    const auto millimetres = Limits(rows, kLimits[1], findings).Check();
    if (inches.size() == millimetres.size() && inches != millimetres) {
        const auto differ = std::mismatch(inches.begin(), inches.end(), millimetres.begin());
        findings.Error(rows[*differ.second]->number, kLimits[1].field,
                       "upper limit (mm): it gives the row another place than its limit in inches");
    }
}

}  // namespace hydrofacts::command
