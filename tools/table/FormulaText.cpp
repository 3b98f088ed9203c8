#include "tools/table/FormulaText.h"

#include <fmt/core.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace hydrofacts::command {
namespace {

struct Form {
    FORMULASLOT slot;
    int type;
    const char* equation;  ///< #0 to #4: coefficients; in brackets what goes with a zero one
};

constexpr const char* kPolynomial = "#0[ + #1 T][ + #2 T²][ + #3 T³][ + #4 T⁴]";
constexpr const char* kExponential = "exp(#0[ + #1/T][ + #2 ln T][ + #3 T^#4]) / 1000";
constexpr const char* kMercury =
    "0.1333 · 10^(#0[ + #1/T][ + #2 log T][ + #3 T/10³][ + #4 T²/10⁶])";

// clang-format off
constexpr SlotName kSlots[] = {
    {"P1", "saturation pressure",            "kPa absolute"},
    {"P2", "dew pressure",                   "kPa absolute"},
    {"P3", "liquid density",                 "kg/m³"},
    {"P4", "liquid viscosity",               "cP"},
    {"P5", "vapor density",                  "kg/m³"},
    {"P6", "vapor viscosity",                "cP"},
    {"P7", "heat capacity of the ideal gas", "J/(mol K)"},
};

constexpr Form kForms[] = {
    {SLOT_LIQUID_SAT_PRES,  1, kPolynomial},
    {SLOT_LIQUID_SAT_PRES,  2, kExponential},
    {SLOT_LIQUID_SAT_PRES,  3, kMercury},
    {SLOT_VAPOR_SAT_PRES,   1, kPolynomial},
    {SLOT_VAPOR_SAT_PRES,   2, kExponential},
    {SLOT_VAPOR_SAT_PRES,   3, kMercury},
    {SLOT_LIQUID_DENSITY,   1, kPolynomial},
    {SLOT_LIQUID_DENSITY,   2, "M · #0 / #1^(1 + (1 - T/#2)^#3)"},
    {SLOT_LIQUID_DENSITY,   3, "1000 · #0 / #1^((1 - T/Tc)^(2/7))"},
    {SLOT_LIQUID_VISCOSITY, 1, kPolynomial},
    {SLOT_LIQUID_VISCOSITY, 2, "1000 exp(#0[ + #1/T][ + #2 ln T][ + #3 T^#4])"},
    {SLOT_LIQUID_VISCOSITY, 3, "10^(#0[ + #1/T][ + #2 T/10²][ + #3 T²/10⁶])"},
    {SLOT_VAPOR_DENSITY,    1, "p M / (R T): ideal gas"},
    {SLOT_VAPOR_DENSITY,    2, "p M / (Z R T), Z by Peng-Robinson with the acentric factor #0"},
    {SLOT_VAPOR_DENSITY,    3, "p M / (Z R T), Z by Redlich-Kwong"},
    {SLOT_VAPOR_DENSITY,    4, "p M / (Z R T), Z by Soave-Redlich-Kwong with the acentric factor #0"},
    {SLOT_VAPOR_VISCOSITY,  1, kPolynomial},
    {SLOT_VAPOR_VISCOSITY,  2, "1000 · #0 T^#1 / (1[ + #2/T][ + #3/T²])"},
    {SLOT_VAPOR_VISCOSITY,  3, "(#0[ + #1 T/10²][ + #2 T²/10⁶]) / 10⁴"},
    {SLOT_VAPOR_SPHEAT,     1, kPolynomial},
    {SLOT_VAPOR_SPHEAT,     2, "(#0[ + #1 ((#2/T) / sinh(#2/T))²][ + #3 ((#4/T) / cosh(#4/T))²]) / 1000"},
    {SLOT_VAPOR_SPHEAT,     3, "4.1868 (#0[ + #1 T/10³][ + #2 T²/10⁶][ + #3 T³/10⁹])"},
};
// clang-format on

std::string_view EquationOf(const CFormula& formula) {
    const auto* const form =
        std::find_if(std::begin(kForms), std::end(kForms), [&formula](const Form& row) {
            return row.slot == formula.m_slot && row.type == formula.m_type;
        });
    return form == std::end(kForms) ? std::string_view() : form->equation;
}

double Coefficient(const CFormula& formula, char digit) {
    return formula.m_coefficients[digit - '0'];
}

// A sum with a negative term is written as a difference.
void AppendNumber(std::string& text, double value) {
    constexpr std::string_view kPlus = " + ";
    if (value < 0.0 && text.ends_with(kPlus)) {
        text.replace(text.size() - 2, 1, "-");
        value = -value;
    }
    text += fmt::format("{}", value);
}

}  // namespace

const SlotName& NameOf(FORMULASLOT slot) { return kSlots[slot]; }

std::string EquationForm(const CFormula& formula) {
    std::string text(EquationOf(formula));
    std::replace(text.begin(), text.end(), '#', 'c');
    std::erase_if(text, [](char c) { return c == '[' || c == ']'; });
    return text;
}

std::string WrittenOut(const CFormula& formula) {
    const std::string_view equation = EquationOf(formula);
    std::string text;
    for (std::size_t i = 0; i < equation.size(); ++i) {
        const char c = equation[i];
        if (c == '[') {
            const char first = equation[equation.find('#', i) + 1];
            if (Coefficient(formula, first) == 0.0) i = equation.find(']', i);
        } else if (c == '#') {
            AppendNumber(text, Coefficient(formula, equation[++i]));
        } else if (c != ']') {
            text += c;
        }
    }
    return text;
}

}  // namespace hydrofacts::command
