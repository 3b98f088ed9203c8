#ifndef HYDROFACTS_FLUID_BASEUNITS_H
#define HYDROFACTS_FLUID_BASEUNITS_H

#include "hydrofacts/units/Heads.h"
#include "hydrofacts/units/Units.h"
#include "quillbase/UnitScales.h"

namespace hydrofacts {

/// Takes a set point to the base units of the formulas as Units::Convert would, in code that each
/// getter has of its own: a getter is asked for far more often than units change, so that its
/// branches are always those of the last time.
class BaseUnits {
  public:
    explicit BaseUnits(const Units& units) : units_(units) {}

    /// A temperature in the user unit, in kelvin.
    double Kelvin(double temperature) const {
        const auto unit = static_cast<HF_TUNITS>(units_.m_userUnits[HF_TEMPERATURE]);
        return quillbase::TemperatureIn(HF_KELVIN, temperature, unit);
    }

    /// A pressure of the set point, user unit, in kPa absolute.
    double AbsoluteKPa(double pressure) const {
        const double atmosphere = units_.m_absolute ? 0.0 : units_.CAtmPressure::Value(PresUnit());
        return KPa(pressure + atmosphere);
    }

    /// A pressure in the user unit, in kPa; 0.0 if that is a head, which needs a density.
    double KPa(double pressure) const {
        const HF_PUNITS unit = PresUnit();
        return IsHead(unit) ? 0.0 : quillbase::PressureIn(HF_KPA, pressure, unit);
    }

  private:
    HF_PUNITS PresUnit() const { return static_cast<HF_PUNITS>(units_.m_userUnits[HF_PRESSURE]); }

    const Units& units_;
};

}  // namespace hydrofacts

#endif
