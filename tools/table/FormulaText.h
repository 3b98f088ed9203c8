#ifndef TOOLS_TABLE_FORMULATEXT_H
#define TOOLS_TABLE_FORMULATEXT_H

#include <string>

#include "hydrofacts/hydrofacts.h"

namespace hydrofacts::command {

/// What a formula slot holds, for people.
struct SlotName {
    const char* record;    ///< "P3"
    const char* property;  ///< "liquid density"
    const char* unit;      ///< of the formula's result: "kg/m³"
};

/// The name of a slot, 0 to 6.
const SlotName& NameOf(FORMULASLOT slot);

/// The equation of a formula with its coefficients by name, such as "c0 + c1 T + c2 T² + c3 T³ + c4
/// T⁴"; empty for a type that the slot doesn't have.
std::string EquationForm(const CFormula& formula);

/// The equation with its coefficients written out, without the terms whose coefficient is zero:
/// "1100 - 0.5 T". Empty for a type that the slot doesn't have.
std::string WrittenOut(const CFormula& formula);

}  // namespace hydrofacts::command

#endif
