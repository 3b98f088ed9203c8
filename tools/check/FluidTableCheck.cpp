#include "tools/check/FluidTableCheck.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "hydrofacts/formula/CFormula.h"
#include "tools/Names.h"
#include "tools/check/FieldNumber.h"
#include "tools/check/FluidProperties.h"
#include "tools/check/FormulaRecord.h"
#include "tools/check/HeadLines.h"
#include "tools/check/TableText.h"

namespace hydrofacts::command {
namespace {

constexpr LineRules kRules = {259, "SVDP"};
constexpr std::size_t kConstantFields = 9;

struct Constant {
    NumberField place;
    double FluidRecords::*value;
};

// clang-format off
constexpr Constant kConstants[] = {
    {{2, "molecular weight",            Need::Positive}, &FluidRecords::molecularWt},
    {{3, "critical temperature",        Need::Positive}, &FluidRecords::criticalTemp},
    {{4, "critical pressure",           Need::Positive}, &FluidRecords::criticalPres},
    {{5, "lowest liquid temperature",   Need::Any},      &FluidRecords::liquidMinTemp},
    {{6, "highest liquid temperature",  Need::Any},      &FluidRecords::liquidMaxTemp},
    {{7, "lowest vapor temperature",    Need::Any},      &FluidRecords::vaporMinTemp},
    {{8, "highest vapor temperature",   Need::Any},      &FluidRecords::vaporMaxTemp},
    {{9, "highest vapor pressure",      Need::Positive}, &FluidRecords::vaporMaxPres},
};

struct Phase {
    const char* name;
    std::array<std::size_t, 3> slots;  // a place is repeated where a phase has fewer
    NumberField lowest;
    double FluidRecords::*from;
    double FluidRecords::*to;
};

constexpr Phase kPhases[] = {
    {"liquid", {SLOT_LIQUID_DENSITY, SLOT_LIQUID_VISCOSITY, SLOT_LIQUID_VISCOSITY},
     {5, "lowest liquid temperature", Need::Positive},
     &FluidRecords::liquidMinTemp, &FluidRecords::liquidMaxTemp},
    {"vapor", {SLOT_VAPOR_DENSITY, SLOT_VAPOR_VISCOSITY, SLOT_VAPOR_SPHEAT},
     {7, "lowest vapor temperature", Need::Positive},
     &FluidRecords::vaporMinTemp, &FluidRecords::vaporMaxTemp},
};
// clang-format on

/// The records of a table in their order: V, D, P1 to P7.
class FluidWalk {
  public:
    FluidWalk(std::span<const TableLine> lines, Findings& findings)
        : m_lines(lines), m_findings(findings) {}

    void Run() {
        CheckHeadLines(m_lines, m_findings);
        for (const TableLine& line : m_lines) Visit(line);
        if (m_lines.empty()) return;
        if (m_next < kRecords) {
            m_findings.Error(m_lines.back().number, 0,
                             fmt::format("the table ends here without {}", Name(m_next)));
        } else if (m_constantsLine != 0) {
            CheckSets();
        }
    }

    const FluidRecords& Records() const { return m_records; }

  private:
    // Places of the records: V is 0, D is 1, P1 is 2.
    static constexpr std::size_t kFirstFormula = 2;
    static constexpr std::size_t kRecords = kFirstFormula + kFormulas;

    static std::string Name(std::size_t place) {
        if (place < kFirstFormula) return place == 0 ? "V" : "D";
        return fmt::format("P{}", place - kFirstFormula + 1);
    }

    // The place of the record that a line is; nothing for a remark that begins with a capital.
    static std::optional<std::size_t> PlaceOf(std::string_view mark) {
        if (mark == "V") return 0;
        if (mark == "D") return 1;
        const auto number = ScanInteger(mark.substr(1));
        if (mark.front() != 'P' || !number || !number->rest.empty()) return std::nullopt;
        if (number->value < 1 || number->value > static_cast<int>(kFormulas)) return std::nullopt;
        return kFirstFormula + static_cast<std::size_t>(number->value) - 1;
    }

    void Visit(const TableLine& line) {
        const char key = line.Key();
        if (key == 'v' || key == 'd' || key == 'p') CheckSmallKey(line);
        if (key != 'V' && key != 'D' && key != 'P') return;
        if (m_next == kRecords) {
            m_findings.Warning(line.number, 0, "a record behind P7 is not read");
            return;
        }
        const auto place = PlaceOf(line.Field(1));
        if (!place) {
            // The head lines report what is taken for the version line.
            if (key == 'V' && m_next == 0) return;
            m_findings.Error(line.number, 1,
                             fmt::format("{} begins with {} and is taken for the record {}",
                                         Quoted(line.Field(1)), key, Name(m_next)));
            return;
        }
        if (*place != m_next) {
            m_findings.Error(
                line.number, 1,
                fmt::format("{} stands where {} must stand", Name(*place), Name(m_next)));
        }
        if (*place < m_next) return;
        m_next = *place + 1;
        if (*place == 1) VisitConstants(line);
        if (*place >= kFirstFormula) VisitFormula(line, *place - kFirstFormula);
    }

    void CheckSmallKey(const TableLine& line) {
        std::string mark(line.Field(1));
        mark.front() = static_cast<char>(mark.front() - 'a' + 'A');
        if (!PlaceOf(mark)) return;
        m_findings.Error(
            line.number, 1,
            fmt::format("{} is a small letter: the record is passed over", Quoted(line.Field(1))));
    }

    void VisitConstants(const TableLine& line) {
        m_constantsLine = line.number;
        CheckEmptyFields(line, kConstantFields, m_findings);
        for (const Constant& constant : kConstants) {
            const auto value = CheckReal(line, constant.place, m_findings);
            if (value) m_records.*constant.value = *value;
            // The reading ends at the first field that is no number.
            if (!value) break;
        }
        if (line.fields.size() > kConstantFields) {
            m_findings.Warning(
                line.number, kConstantFields + 1,
                fmt::format("{} is not read: the record has {} fields",
                            Quoted(line.Field(kConstantFields + 1)), kConstantFields));
        }
    }

    void VisitFormula(const TableLine& line, std::size_t slot) {
        m_records.formulaLines[slot] = line.number;
        m_types[slot] = CheckFormula(line, slot, m_findings);
    }

    bool Has(std::size_t slot) const { return m_types[slot] != 0; }

    void CheckSets() {
        if (!Has(SLOT_LIQUID_SAT_PRES) && m_records.formulaLines[0] != 0) {
            m_findings.Error(m_records.formulaLines[0], 2,
                             "type 0: every fluid needs the saturation pressure of its liquid");
        }
        bool any = false;
        for (const Phase& phase : kPhases) {
            const bool whole = std::all_of(phase.slots.begin(), phase.slots.end(),
                                           [this](std::size_t slot) { return Has(slot); });
            any = any || whole;
            if (whole) {
                CheckRange(phase);
            } else {
                CheckDropped(phase);
            }
        }
        if (!any) {
            m_findings.Error(m_constantsLine, 0,
                             "neither all liquid formulas (P3, P4) nor all vapor formulas (P5, P6, "
                             "P7): the table can't be used");
        }
    }

    void CheckDropped(const Phase& phase) {
        for (std::size_t i = 0; i < phase.slots.size(); ++i) {
            const std::size_t slot = phase.slots[i];
            if (!Has(slot) || (i > 0 && slot == phase.slots[i - 1])) continue;
            m_findings.Warning(m_records.formulaLines[slot], 0,
                               fmt::format("{} is left out, for the {} formulas are not complete",
                                           Name(kFirstFormula + slot), phase.name));
        }
    }

    void CheckRange(const Phase& phase) {
        const double from = m_records.*phase.from;
        const double to = m_records.*phase.to;
        if (!(from > 0.0)) {
            m_findings.Error(m_constantsLine, phase.lowest.field,
                             fmt::format("{}: {} K is not above 0", phase.lowest.what, from));
        }
        if (!(to > from)) {
            m_findings.Error(m_constantsLine, phase.lowest.field + 1,
                             fmt::format("highest {} temperature: {} K is not above the lowest, "
                                         "{} K",
                                         phase.name, to, from));
        }
    }

    std::span<const TableLine> m_lines;
    Findings& m_findings;
    FluidRecords m_records;
    std::size_t m_next = 0;
    std::size_t m_constantsLine = 0;
    std::array<int, kFormulas> m_types{};
};

}  // namespace

void CheckFluidTable(std::string_view text, const LibraryPlace& place, Findings& findings) {
    const auto lines = ReadLines(text, kRules, findings);
    FluidWalk walk(lines, findings);
    walk.Run();
    if (!findings.HasErrors() && place.IsReachable()) {
        CheckFluidProperties(place, walk.Records(), findings);
    }
}

}  // namespace hydrofacts::command
