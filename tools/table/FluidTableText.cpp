#include "tools/table/FluidTableText.h"

#include <utility>

#include "tools/Encoding.h"
#include "tools/WholeFile.h"
#include "tools/check/FieldNumber.h"
#include "tools/check/TableText.h"

namespace hydrofacts::command {
namespace {

constexpr LineRules kRules = {259, "SVDP"};
constexpr std::string_view kRemarkMarks = "*#;!/ \t";

// What is wrong with the table is the business of `check`.
void ReadConstants(const TableLine& line, FluidTableText& table) {
    Findings ignored;
    // clang-format off
    table.molecularWt  = CheckReal(line, {2, "molecular weight"}, ignored).value_or(0.0);
    table.criticalTemp = CheckReal(line, {3, "critical temperature"}, ignored).value_or(0.0);
    table.criticalPres = CheckReal(line, {4, "critical pressure"}, ignored).value_or(0.0);
    // clang-format on
}

/// Takes the lines of a table one after the other. The records stand in a fixed order: V, D, P1 to
/// P7.
class FluidTableReader {
  public:
    void Take(const TableLine& line) {
        const char key = line.Key();
        if (key == 'S' && !m_titled) {
            m_titled = true;
        } else if ((key == 'V' || key == 'D' || key == 'P') && m_records < kRecords) {
            TakeRecord(line);
        } else {
            TakeRemark(line);
        }
    }

    FluidTableText Result() {
        m_table.end = std::move(m_remarks);
        return std::move(m_table);
    }

  private:
    static constexpr std::size_t kFirstFormula = 2;
    static constexpr std::size_t kRecords = 9;

    void TakeRecord(const TableLine& line) {
        const std::size_t record = m_records++;
        if (record == 0) return;  // its remarks are kept for the constants
        if (record == 1) {
            ReadConstants(line, m_table);
            m_table.constants = std::exchange(m_remarks, {});
        } else {
            m_table.formulas[record - kFirstFormula] = std::exchange(m_remarks, {});
            m_table.filled[record - kFirstFormula] = line.fields.size() > 2;
        }
    }

    void TakeRemark(const TableLine& line) {
        const std::size_t start = line.text.find_first_not_of(kRemarkMarks);
        if (start == std::string_view::npos) return;
        m_remarks.push_back(Utf8FromWindows1252(line.text.substr(start)));
    }

    FluidTableText m_table;
    Remarks m_remarks;
    std::size_t m_records = 0;
    bool m_titled = false;
};

}  // namespace

FluidTableText ReadFluidTableText(const TableName& table) {
    const std::string text = ReadWholeFile(table.file);
    Findings ignored;
    FluidTableReader reader;
    for (const TableLine& line : ReadLines(text, kRules, ignored)) reader.Take(line);
    return reader.Result();
}

}  // namespace hydrofacts::command
