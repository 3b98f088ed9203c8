#include "tools/SetPoint.h"

#include <fmt/core.h>

#include "tools/Failure.h"
#include "tools/Measures.h"
#include "tools/Names.h"
#include "tools/Numbers.h"
#include "tools/TableFluid.h"

namespace hydrofacts::command {
namespace {

constexpr int kPressureDigits = 6;

// As the library has it: a scale of Celsius degrees makes the fluid metric.
HF_UNITS SystemOf(int temperatureUnit) {
    return temperatureUnit == HF_DEG_C || temperatureUnit == HF_KELVIN ? HF_METRIC : HF_US;
}

int RequireTruePressure(const std::string& text) {
    const int unit = RequireUnit(HF_PRESSURE, text);
    if (unit <= HF_PA) return unit;
    throw Failure(
        fmt::format("--pressure-unit: {} is a head of fluid; a set point needs a "
                    "pressure: psi, kPa, bar, in H2O, in Hg, mm H2O, mm Hg or Pa",
                    UnitText(HF_PRESSURE, unit)));
}

}  // namespace

void SetUserUnits(Units& units, const UnitOptions& options) {
    HF_UNITS system = EqualIgnoringCase(options.system, "metric") ? HF_METRIC : HF_US;
    int temperatureUnit = -1;
    if (!options.temperatureUnit.empty()) {
        temperatureUnit = RequireUnit(HF_TEMPERATURE, options.temperatureUnit);
        if (options.system.empty()) system = SystemOf(temperatureUnit);
    }
    units.SetSystem(system, true);
    if (temperatureUnit >= 0) units.SetUserUnit(HF_TEMPERATURE, temperatureUnit);
    if (!options.pressureUnit.empty()) {
        units.SetUserUnit(HF_PRESSURE, RequireTruePressure(options.pressureUnit));
    }
}

void SetGauge(Units& units, const PressureOptions& options) {
    if (!options.atmosphere.empty()) {
        const double atmosphere = RequireNumber(options.atmosphere, "--atmosphere");
        if (atmosphere < 0.0) {
            throw Failure("--atmosphere: an absolute pressure is not below zero");
        }
        units.SetAtmosphere(atmosphere, HF_USER_UNIT);
    }
    units.SetAbsolute(options.absolute);
}

SetPoint::SetPoint(const SetPointOptions& options)
    : m_temperature(RequireNumber(options.temperature, "--temperature")),
      m_pressure(RequireNumber(options.pressure, "--pressure")) {
    SetUserUnits(m_units, options);
    SetGauge(m_units, options);
}

std::string SetPoint::TemperatureUnit() const {
    return UnitText(HF_TEMPERATURE, m_units.GetUserUnit(HF_TEMPERATURE));
}

std::string SetPoint::PressureUnit() const {
    return UnitText(HF_PRESSURE, m_units.GetUserUnit(HF_PRESSURE));
}

std::string SetPoint::Text() const {
    return fmt::format("{} and {} {}", TemperatureText(), ShortNumber(m_pressure),
                       UserPressureUnit(m_units));
}

std::string SetPoint::TemperatureText() const {
    return fmt::format("{} {}", ShortNumber(m_temperature), TemperatureUnit());
}

std::string SetPoint::PressureText() const {
    const double atmosphere = m_units.GetAtmosphere(HF_USER_UNIT, true);
    const bool absolute = m_units.GetAbsolute();
    const double other = absolute ? m_pressure - atmosphere : m_pressure + atmosphere;
    return fmt::format("{} {}, {} {} {} (atmosphere {} {})", ShortNumber(m_pressure),
                       UserPressureUnit(m_units), ShortNumber(other, kPressureDigits),
                       PressureUnit(), absolute ? "gauge" : "absolute",
                       ShortNumber(atmosphere, kPressureDigits), PressureUnit());
}

}  // namespace hydrofacts::command
