#ifndef TOOLS_TABLEFLUID_H
#define TOOLS_TABLEFLUID_H

#include <string>

#include "hydrofacts/hydrofacts.h"
#include "tools/TableDirectory.h"

namespace hydrofacts::command {

/// In kelvin.
struct TemperatureRange {
    double lowest;
    double highest;
};

/// A fluid of a table that can tell its ranges, and why it has no state at a set point.
class TableFluid : public CFluid {
  public:
    /// Works in the units of the caller, who keeps them alive.
    explicit TableFluid(const Units& units) : CFluid(&units) {}

    /// Loads a table; false if it is invalid.
    bool Load(const TableDirectory& directory, const TableName& table);

    /// Goes to a set point in user units.
    void MoveTo(double temperature, double pressure);

    bool HasLiquid() { return FormulasExist(FLUID_LIQUID); }
    bool HasVapor() { return FormulasExist(FLUID_VAPOR); }

    /// Whether there is a vapor pressure at the set point: below the critical temperature.
    bool HasVaporPressure() const { return m_temperature < m_criticalTemp; }

    /// The formula of a slot as it was loaded.
    const CFormula& Formula(FORMULASLOT slot) const { return m_formulas[slot]; }

    /// What a formula gives at a temperature (K) and pressure (kPa absolute), in its own unit,
    /// whatever the range.
    double FormulaAt(FORMULASLOT slot, double kelvin, double kPa) const;

    /// The compressibility factor of the vapor at the set point.
    double Compressibility() const;

    /// Where the formulas of a state hold, for a fluid that has them.
    TemperatureRange LiquidTemperatures() const { return {m_liquidMinTemp, m_liquidMaxTemp}; }
    TemperatureRange VaporTemperatures() const { return {m_vaporMinTemp, m_vaporMaxTemp}; }
    /// kPa absolute.
    double HighestVaporPressure() const { return m_vaporMaxPres; }

    /// "0.01 to 201.85 °C", for a fluid with liquid formulas.
    std::string LiquidRange() const;
    /// "0.01 to 800 °C, up to 165 bar absolute", for a fluid with vapor formulas.
    std::string VaporRange() const;

    /// Which limit the set point passes, in user units: for a fluid in the state none.
    std::string WhyNoState();

  private:
    std::string WhyNotLiquid() const;
    std::string WhyNotVapor() const;
    std::string WhyBetween() const;
    FLUIDSTATE StateWithoutRanges() const;

    double Saturation(FORMULASLOT slot) const;
    std::string Range(double minK, double maxK) const;
    std::string TemperatureText(double kelvin) const;
    std::string PressureText(double kPa) const;
    std::string UserPressureText(double absolute) const;
    std::string SetTemperature() const;
    std::string SetPressure() const;
    std::string TooCold(const char* what, double limitK) const;
    std::string TooHot(const char* what, double limitK) const;
};

/// The name of an equation of state by the library's number.
const char* EquationName(int equation);

/// "psi absolute" and the like.
std::string AbsoluteUnit(const Units& units);
/// The user's pressure unit, with "gauge" or "absolute".
std::string UserPressureUnit(const Units& units);

}  // namespace hydrofacts::command

#endif
