#ifndef TOOLS_SETPOINT_H
#define TOOLS_SETPOINT_H

#include <string>

#include "hydrofacts/hydrofacts.h"

namespace hydrofacts::command {

/// What the user gave of the units, as texts.
struct UnitOptions {
    std::string system;           ///< "us", "metric" or empty
    std::string temperatureUnit;  ///< empty: the system's
    std::string pressureUnit;     ///< empty: the system's
};

/// What the user gave of a pressure besides its number.
struct PressureOptions {
    std::string atmosphere;  ///< empty: the standard atmosphere
    bool absolute = false;
};

/// What the user gave of a set point, as texts.
struct SetPointOptions : UnitOptions, PressureOptions {
    std::string temperature;
    std::string pressure;
};

/// Sets the user's units. Failure for what can't be read.
void SetUserUnits(Units& units, const UnitOptions& options);

/// Sets what pressures are measured from. The pressure unit must stand. Failure for what can't be
/// read.
void SetGauge(Units& units, const PressureOptions& options);

/// A set point and the units in which it was given. Throws Failure for what can't be read.
class SetPoint {
  public:
    explicit SetPoint(const SetPointOptions& options);
    SetPoint(const SetPoint&) = delete;
    SetPoint& operator=(const SetPoint&) = delete;

    const Units& UserUnits() const { return m_units; }
    double Temperature() const { return m_temperature; }
    double Pressure() const { return m_pressure; }

    std::string TemperatureUnit() const;
    /// Without "gauge" or "absolute".
    std::string PressureUnit() const;

    /// "20 °C and 1 bar gauge".
    std::string Text() const;
    /// "20 °C".
    std::string TemperatureText() const;
    /// "1 bar gauge, 2.01325 bar absolute (atmosphere 1.01325 bar)".
    std::string PressureText() const;

  private:
    Units m_units;
    double m_temperature;
    double m_pressure;
};

}  // namespace hydrofacts::command

#endif
