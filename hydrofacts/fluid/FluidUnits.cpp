// The crossings between a user's units and the base units of the formulas.

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/fluid/FluidConstants.h"
#include "quillbase/Rounding.h"

double CFluid::KTemp(double temperature) const {
    return m_pUnits->Convert(HF_TEMPERATURE, temperature, HF_USER_UNIT, HF_KELVIN, this);
}

double CFluid::kPaPres(double pressure, int bAbsolute) const {
    if (bAbsolute == 0) pressure += m_pUnits->GetAtmosphere(HF_USER_UNIT, false);
    return m_pUnits->Convert(HF_PRESSURE, pressure, HF_USER_UNIT, HF_KPA, nullptr);
}

double CFluid::kgDen(double density) const {
    return m_pUnits->bUS() ? density * hydrofacts::kKgPerM3InPoundPerFt3 : density;
}

double CFluid::UserTemp(double tempK) {
    return Precision(m_pUnits->Convert(HF_TEMPERATURE, tempK, HF_KELVIN, this), 4);
}

double CFluid::UserPres(double presKPa, int bAbsolute) const {
    const UnitValue<HF_PRESSURE, 0> pressure(HF_KPA, presKPa);
    double inUserUnit = pressure.value_in(m_pUnits->GetUserUnit(HF_PRESSURE));
    if (bAbsolute == 0) inUserUnit -= m_pUnits->GetAtmosphere(HF_USER_UNIT, false);
    return Precision(inUserUnit, 4);
}

double CFluid::UserDen(double densityKg) const {
    return Precision(m_pUnits->bUS() ? densityKg / hydrofacts::kKgPerM3InPoundPerFt3 : densityKg,
                     4);
}
