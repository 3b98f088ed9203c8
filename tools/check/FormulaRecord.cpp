#include "tools/check/FormulaRecord.h"

#include <fmt/core.h>

#include <array>
#include <iterator>

#include "hydrofacts/formula/CFormula.h"
#include "hydrofacts/formula/Constants.h"
#include "tools/check/FieldNumber.h"

namespace hydrofacts::command {
namespace {

constexpr NumberField kType = {2, "type"};

// clang-format off
constexpr NumberField kCoefficients[] = {
    {3, "c0"},
    {4, "c1"},
    {5, "c2"},
    {6, "c3"},
    {7, "c4"},
};
// clang-format on

constexpr std::size_t kFields = 7;

int LastType(std::size_t slot) { return slot == SLOT_VAPOR_DENSITY ? kSoaveRedlichKwong : 3; }

bool NeedsAcentricFactor(int type) { return type == kPengRobinson || type == kSoaveRedlichKwong; }

void CheckSum(const TableLine& line, const std::array<double, 5>& c, Findings& findings) {
    if (c[0] + c[1] + c[2] + c[3] + c[4] == 0.0) {
        findings.Error(line.number, 0,
                       "the sum of the coefficients is 0: the record counts as bad");
    }
}

void CheckCoefficients(const TableLine& line, std::size_t slot, Findings& findings) {
    std::array<double, 5> coefficients{};
    for (std::size_t i = 0; i < coefficients.size() && i + 3 <= line.fields.size(); ++i) {
        const auto value = CheckReal(line, kCoefficients[i], findings);
        if (!value) return;
        coefficients[i] = *value;
    }
    if (slot != SLOT_VAPOR_DENSITY) CheckSum(line, coefficients, findings);
}

}  // namespace

int CheckFormula(const TableLine& line, std::size_t slot, Findings& findings) {
    const auto type = CheckShort(line, kType, findings);
    if (!type || *type == 0) {
        CheckEmptyFields(line, 2, findings);
        return 0;
    }
    CheckEmptyFields(line, kFields, findings);
    if (*type < 0 || *type > LastType(slot)) {
        findings.Error(line.number, kType.field,
                       fmt::format("type: {} does not exist for P{}, which has 1 to {}", *type,
                                   slot + 1, LastType(slot)));
    }
    if (slot == SLOT_VAPOR_DENSITY && NeedsAcentricFactor(*type) && line.fields.size() < 3) {
        findings.Warning(line.number, 3, "c0: the acentric factor is missing and is read as 0");
    }
    if (line.fields.size() > kFields) {
        findings.Warning(line.number, kFields + 1,
                         fmt::format("{} is not read: the record has {} fields",
                                     Quoted(line.Field(kFields + 1)), kFields));
    }
    CheckCoefficients(line, slot, findings);
    return *type;
}

}  // namespace hydrofacts::command
