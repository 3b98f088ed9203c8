#include <cmath>
#include <cstring>

#include "fuzz/Targets.h"
#include "hydrofacts/formula/CFormula.h"

namespace hydrofacts::fuzz {

// The head chooses the slot and the conditions, the rest is the record.
void formula(Bytes bytes) {
    Input input(bytes);
    const auto slot = static_cast<short>(input.Below(9));
    const double tc = input.Number();
    const double pc = input.Number();
    const double t = input.Number();
    const double p = input.Number();
    const auto line = ExactCopy(input.Text());

    CFormula read;
    const int refused = read.LoadFormula(slot, line.get(), tc, pc);
    Require(refused == 0 || refused == 1, "a record is good or not");
    Require(read.m_slot == slot, "a formula takes the slot that is wanted");
    const auto again = ExactCopy(input.Text());
    CFormula second;
    const int secondRefused = second.LoadFormula(slot, again.get(), tc, pc);
    // To the last bit, not-a-number too.
    const bool same =  // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
        std::memcmp(second.m_coefficients, read.m_coefficients, sizeof read.m_coefficients) == 0;
    Require(secondRefused == refused && second.m_type == read.m_type && same,
            "a record is read the same twice");
    if (slot != SLOT_VAPOR_DENSITY && read.m_type == 0) {
        for (const double c : read.m_coefficients) Require(c == 0.0, "an absent formula is empty");
        Require(read.CalcResult(t, p, 18.0, tc, pc) == 0.0, "and gives nothing");
    }
    const double result = read.CalcResult(t, p, 18.0, tc, pc);
    const double z = read.CalcZ(t, p, tc);
    Require(second.CalcResult(t, p, 18.0, tc, pc) == result || std::isnan(result), "same result");
    Require(second.CalcZ(t, p, tc) == z || std::isnan(z), "same Z");
    const CFormula copy(read);
    read.ClearFormula();
    Require(read.m_type == 0 && copy.m_slot == slot, "a copy is its own");
}

}  // namespace hydrofacts::fuzz
