#ifndef HYDROFACTS_FORMULA_CFORMULA_H
#define HYDROFACTS_FORMULA_CFORMULA_H

/// @file
/// The formulas of a fluid: what each of the seven computes, and how.

#include <cstdint>

#include "win32/Export.h"

/// What a formula computes. In a fluid's table the record of a slot is P and the slot's number
/// plus 1.
enum FORMULASLOT : int {
    SLOT_LIQUID_SAT_PRES = 0,   ///< also the vapor pressure
    SLOT_VAPOR_SAT_PRES = 1,    ///< where it differs from slot 0: blends and air
    SLOT_LIQUID_DENSITY = 2,    ///< kg/m³
    SLOT_LIQUID_VISCOSITY = 3,  ///< cP
    SLOT_VAPOR_DENSITY = 4,     ///< its type is the equation of state
    SLOT_VAPOR_VISCOSITY = 5,   ///< cP, at low pressure
    SLOT_VAPOR_SPHEAT = 6,      ///< ratio of specific heats, from the heat capacity
};

/// One fitted property correlation of a fluid: which property (slot), which equation form (type),
/// and its five coefficients. `CFluid` holds seven. Temperatures are in kelvin, pressures in kPa
/// absolute, molar masses in kg/kmol; the gas constant is 8.3144 kJ/(kmol K).
///
/// Forms by slot and type, T the temperature, c0 to c4 the coefficients. Two of them return:
/// - POLY is c0 + c1 T + c2 T² + c3 T³ + c4 T⁴
/// - EXPO is exp(c0 + c1 / T + c2 ln T + c3 T^c4)
///
/// Slots 0 and 1, saturation pressure, kPa:
/// - 1: POLY
/// - 2: EXPO / 1000
/// - 3: 0.1333 × 10^x with x = c0 + c1 / T + c2 log10 T + (c3 / 1000) T + (c4 / 1000000) T²
///   (0.1333 kPa is 1 mm Hg)
///
/// Slot 2, liquid density, kg/m³:
/// - 1: POLY
/// - 2: M c0 / c1^(1 + (1 − T / c2)^c3), the molar Rackett form
/// - 3: 1000 c0 c1^(−(1 − T / Tc)^(2/7))
///
/// Slot 3, liquid viscosity, cP:
/// - 1: POLY
/// - 2: 1000 EXPO
/// - 3: 10^y with y = c0 + c1 / T + (c2 / 100) T + (c3 / 1000000) T²
///
/// Slot 4, vapor density, kg/m³: p M / (Z R T), Z after the equation of state that the type names.
///
/// Slot 5, vapor viscosity, cP:
/// - 1: POLY
/// - 2: 1000 c0 T^c1 / (1 + c2 / T + c3 / T²)
/// - 3: (c0 + (c1 / 100) T + (c2 / 1000000) T²) / 10000
///
/// Slot 6, ratio of specific heats: Cp / (Cp − R) with Cp in J/(mol K):
/// - 1: POLY
/// - 2: (c0 + c1 (u / sinh u)² + c3 (v / cosh v)²) / 1000 with u = c2 / T, v = c4 / T
/// - 3: 4.1868 (c0 + (c1 / 1000) T + (c2 / 1000000) T² + (c3 / 1000000000) T³)
///
/// Any number of threads may evaluate one formula, as long as none of them loads, assigns or clears
/// it.
class HYDROFACTS_API CFormula {
  public:
    /// Slot 0, empty.
    CFormula();
    /// The same formula.
    CFormula(const CFormula&) = default;
    ~CFormula() = default;

    /// Takes over slot, type and coefficients.
    void operator=(const CFormula& other);

    /// Same slot and type, and coefficients that are equal as computed numbers (EqualDbl).
    bool operator==(const CFormula& other) const;

    /// Empties the formula: type and coefficients become 0; the slot stays.
    void ClearFormula();

    /// Reads a record: a mark and the number slot + 1, the type, up to five coefficients, separated
    /// by tabs. `line` is cut in place. For the real-gas equations of slot 4 the covolume c1, the
    /// attraction parameter c2 and the temperature slope c3 are derived from the acentric factor
    /// c0, the critical temperature `tc` (K) and the critical pressure `pc` (kPa).
    ///
    /// Returns 0 if the record is good, 1 if its number is missing or is not slot + 1, or if the
    /// coefficients of a type other than 0 have the sum 0.0 (not tested in slot 4). Missing
    /// coefficients are 0.0; after one that is no number the rest is not read.
    int LoadFormula(short slot, char* line, double tc, double pc);

    /// The property at temperature `t` (K) and, for slot 4, absolute pressure `p` (kPa), with molar
    /// mass `mw` (slots 2 and 4) and critical temperature `tc` (slots 2 and 4). `pc` is read by no
    /// form. Gives 0.0 for a slot or type that doesn't exist; the range is not tested, and outside
    /// it the result is what the arithmetic gives, not-a-number included.
    double CalcResult(double t, double p, double mw, double tc, double pc) const;

    /// The compressibility factor of a vapor at temperature `t` (K) and absolute pressure `p` (kPa)
    /// from the equation of state in slot 4: type 1 ideal gas, 2 Peng-Robinson, 3 Redlich-Kwong,
    /// 4 Soave-Redlich-Kwong; any other type gives 1.0. Newton's method from Z = 1 finds the root,
    /// which is the vapor's wherever there is a vapor; it ends when a step is at most 0.00001, and
    /// after 500 steps in any case.
    double CalcZ(double t, double p, double tc) const;

    std::int32_t m_slot;       ///< the property, 0 to 6
    std::int16_t m_type;       ///< the equation form; 0: empty
    double m_coefficients[5];  ///< c0 to c4
};

#endif
