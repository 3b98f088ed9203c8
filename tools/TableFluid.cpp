#include "tools/TableFluid.h"

#include <fmt/core.h>

#include <algorithm>

#include "tools/Measures.h"
#include "tools/Numbers.h"

namespace hydrofacts::command {
namespace {

constexpr int kLimitDigits = 6;

}  // namespace

bool TableFluid::Load(const TableDirectory& directory, const TableName& table) {
    if (table.narrow.size() >= sizeof m_name) return false;
    ClearFluid();
    std::copy(table.narrow.begin(), table.narrow.end(), m_name);
    m_name[table.narrow.size()] = '\0';
    return LoadFluidTable(directory.Narrow().c_str(), m_name) != 0;
}

void TableFluid::MoveTo(double temperature, double pressure) {
    m_temperature = temperature;
    m_pressure = pressure;
    m_state = FindFluidState(temperature, pressure);
}

double TableFluid::FormulaAt(FORMULASLOT slot, double kelvin, double kPa) const {
    return m_formulas[slot].CalcResult(kelvin, kPa, m_molecularWt, KTemp(m_criticalTemp),
                                       kPaPres(m_criticalPres, 1));
}

double TableFluid::Compressibility() const {
    return m_formulas[SLOT_VAPOR_DENSITY].CalcZ(KTemp(m_temperature), kPaPres(m_pressure, 0),
                                                KTemp(m_criticalTemp));
}

std::string TableFluid::LiquidRange() const { return Range(m_liquidMinTemp, m_liquidMaxTemp); }

std::string TableFluid::VaporRange() const {
    const double maxPres = m_pUnits->Convert(HF_PRESSURE, m_vaporMaxPres, HF_KPA, nullptr);
    return fmt::format("{}, up to {} {}", Range(m_vaporMinTemp, m_vaporMaxTemp),
                       ShortNumber(maxPres, kLimitDigits), AbsoluteUnit(*m_pUnits));
}

// The tests and their order are those of the library's search for a state.
std::string TableFluid::WhyNoState() {
    const double tK = KTemp(m_temperature);
    const double pKPa = kPaPres(m_pressure, 0);
    if (!(tK > 0.0)) return SetTemperature() + " is not above absolute zero";
    if (!(pKPa > 0.0)) {
        return fmt::format("{} is not above vacuum, {}", SetPressure(), PressureText(0.0));
    }
    if (m_liquidMaxTemp > m_liquidMinTemp && tK < m_liquidMinTemp) {
        return TooCold("liquid", m_liquidMinTemp);
    }
    if (m_vaporMaxTemp > m_vaporMinTemp && tK > m_vaporMaxTemp) {
        return TooHot("vapor", m_vaporMaxTemp);
    }
    switch (StateWithoutRanges()) {
        case FLUID_LIQUID:
            return WhyNotLiquid();
        case FLUID_VAPOR:
            return WhyNotVapor();
        default:
            return WhyBetween();
    }
}

FLUIDSTATE TableFluid::StateWithoutRanges() const {
    if (m_temperature > m_criticalTemp) return FLUID_VAPOR;
    const double pAbs = GetAbsPressure();
    double saturation = 0.0;
    if (m_temperature < m_criticalTemp && m_criticalPres > pAbs) {
        saturation = Saturation(SLOT_LIQUID_SAT_PRES);
        if (saturation < pAbs) return FLUID_LIQUID;
    }
    if (m_formulas[SLOT_VAPOR_SAT_PRES].m_type != 0) {
        saturation = Saturation(SLOT_VAPOR_SAT_PRES);
    }
    return saturation > pAbs ? FLUID_VAPOR : FLUID_NONE;
}

std::string TableFluid::WhyNotLiquid() const {
    const double tK = KTemp(m_temperature);
    if (m_formulas[SLOT_LIQUID_DENSITY].m_type == 0) {
        return fmt::format(
            "{} is above the saturation pressure at {}, {}, and the table has no "
            "liquid formulas",
            SetPressure(), SetTemperature(), UserPressureText(Saturation(SLOT_LIQUID_SAT_PRES)));
    }
    if (tK < m_liquidMinTemp) return TooCold("liquid", m_liquidMinTemp);
    if (tK > m_liquidMaxTemp) return TooHot("liquid", m_liquidMaxTemp);
    return fmt::format(
        "the liquid formulas give no density, viscosity or vapor pressure above "
        "zero at {}",
        SetTemperature());
}

std::string TableFluid::WhyNotVapor() const {
    const double tK = KTemp(m_temperature);
    if (m_formulas[SLOT_VAPOR_DENSITY].m_type == 0) {
        return HasVaporPressure()
                   ? fmt::format(
                         "{} is below the saturation pressure at {}, {}, and the table has "
                         "no vapor formulas",
                         SetPressure(), SetTemperature(),
                         UserPressureText(Saturation(SLOT_LIQUID_SAT_PRES)))
                   : fmt::format(
                         "{} is above the critical temperature, {}, and the table has no "
                         "vapor formulas",
                         SetTemperature(), TemperatureText(KTemp(m_criticalTemp)));
    }
    if (tK < m_vaporMinTemp) return TooCold("vapor", m_vaporMinTemp);
    if (tK > m_vaporMaxTemp) return TooHot("vapor", m_vaporMaxTemp);
    if (kPaPres(m_pressure, 0) > m_vaporMaxPres) {
        return fmt::format("{} is above the highest vapor pressure, {}", SetPressure(),
                           PressureText(m_vaporMaxPres));
    }
    return fmt::format(
        "the vapor formulas give no density, viscosity or ratio of specific heats "
        "above zero at {} and {}",
        SetTemperature(), SetPressure());
}

std::string TableFluid::WhyBetween() const {
    if (m_temperature == m_criticalTemp) {
        return SetTemperature() + " is the critical temperature, where the table tells no state";
    }
    if (GetAbsPressure() >= m_criticalPres) {
        return fmt::format(
            "{} is not below the critical pressure, {}, and {} is below the critical "
            "temperature, {}: the formulas don't reach there",
            SetPressure(), UserPressureText(m_criticalPres), SetTemperature(),
            TemperatureText(KTemp(m_criticalTemp)));
    }
    const std::string boiling = UserPressureText(Saturation(SLOT_LIQUID_SAT_PRES));
    if (m_formulas[SLOT_VAPOR_SAT_PRES].m_type == 0) {
        return fmt::format("{} is the saturation pressure at {}, {}: neither liquid nor vapor",
                           SetPressure(), SetTemperature(), boiling);
    }
    return fmt::format(
        "{} lies between the saturation pressures at {}, {} of the liquid and {} of "
        "the vapor: neither the one nor the other",
        SetPressure(), SetTemperature(), boiling,
        UserPressureText(Saturation(SLOT_VAPOR_SAT_PRES)));
}

// Absolute, in the user's unit, rounded as the library compares it with the set point.
double TableFluid::Saturation(FORMULASLOT slot) const {
    return UserPres(FormulaAt(slot, KTemp(m_temperature), 0.0), 1);
}

std::string TableFluid::TemperatureText(double kelvin) const {
    const double user = m_pUnits->Convert(HF_TEMPERATURE, kelvin, HF_KELVIN, nullptr);
    return fmt::format("{} {}", ShortNumber(user, kLimitDigits),
                       UnitText(HF_TEMPERATURE, GetTunit()));
}

std::string TableFluid::PressureText(double kPa) const {
    return UserPressureText(m_pUnits->Convert(HF_PRESSURE, kPa, HF_KPA, nullptr));
}

// An absolute pressure in the user's unit, told as the user gives pressures; if that is gauge, then
// absolute besides.
std::string TableFluid::UserPressureText(double absolute) const {
    std::string text =
        fmt::format("{} {}", ShortNumber(absolute, kLimitDigits), AbsoluteUnit(*m_pUnits));
    if (m_pUnits->GetAbsolute()) return text;
    const double gauge = absolute - m_pUnits->GetAtmosphere(HF_USER_UNIT, false);
    return fmt::format("{} {} ({})", ShortNumber(gauge, kLimitDigits), UserPressureUnit(*m_pUnits),
                       text);
}

std::string TableFluid::Range(double minK, double maxK) const {
    const double min = m_pUnits->Convert(HF_TEMPERATURE, minK, HF_KELVIN, nullptr);
    return fmt::format("{} to {}", ShortNumber(min, kLimitDigits), TemperatureText(maxK));
}

std::string TableFluid::SetTemperature() const {
    return fmt::format("{} {}", ShortNumber(m_temperature), UnitText(HF_TEMPERATURE, GetTunit()));
}

std::string TableFluid::SetPressure() const {
    return fmt::format("{} {}", ShortNumber(m_pressure), UserPressureUnit(*m_pUnits));
}

std::string TableFluid::TooCold(const char* what, double limitK) const {
    return fmt::format("{} is below the lowest {} temperature, {}", SetTemperature(), what,
                       TemperatureText(limitK));
}

std::string TableFluid::TooHot(const char* what, double limitK) const {
    return fmt::format("{} is above the highest {} temperature, {}", SetTemperature(), what,
                       TemperatureText(limitK));
}

const char* EquationName(int equation) {
    // clang-format off
    switch (equation) {
        case 1:  return "ideal gas";
        case 2:  return "Peng-Robinson";
        case 3:  return "Redlich-Kwong";
        case 4:  return "Soave-Redlich-Kwong";
        default: return "none, no vapor formulas";
    }
    // clang-format on
}

std::string AbsoluteUnit(const Units& units) {
    return UnitText(HF_PRESSURE, units.GetUserUnit(HF_PRESSURE)) + " absolute";
}

std::string UserPressureUnit(const Units& units) {
    return UnitText(HF_PRESSURE, units.GetUserUnit(HF_PRESSURE)) +
           (units.GetAbsolute() ? " absolute" : " gauge");
}

}  // namespace hydrofacts::command
