// The crossings between a user's units and the base units of the formulas.

#include "hydrofacts/fluid/BaseUnits.h"
#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/fluid/FluidConstants.h"
#include "quillbase/Rounding.h"

double CFluid::KTemp(double temperature) const {
    return hydrofacts::BaseUnits(*m_pUnits).Kelvin(temperature);
}

double CFluid::kPaPres(double pressure, int bAbsolute) const {
    const hydrofacts::BaseUnits units(*m_pUnits);
    return bAbsolute == 0 ? units.AbsoluteKPa(pressure) : units.KPa(pressure);
}

double CFluid::kgDen(double density) const {
    return m_pUnits->bUS() ? density * hydrofacts::kKgPerM3InPoundPerFt3 : density;
}

double CFluid::UserTemp(double tempK) {
    return Precision(m_pUnits->Convert(HF_TEMPERATURE, tempK, HF_KELVIN, this), 4);
}

double CFluid::UserPres(double presKPa, int bAbsolute) const {
    const int unit = m_pUnits->GetUserUnit(HF_PRESSURE);
    double inUserUnit = Units::defaultUnits()->Convert(HF_PRESSURE, presKPa, HF_KPA, unit, nullptr);
    if (bAbsolute == 0) inUserUnit -= m_pUnits->GetAtmosphere(HF_USER_UNIT, false);
    return Precision(inUserUnit, 4);
}

double CFluid::UserDen(double densityKg) const {
    return Precision(m_pUnits->bUS() ? densityKg / hydrofacts::kKgPerM3InPoundPerFt3 : densityKg,
                     4);
}
