// The measures of a fluid as numbers that know their units.

#include "hydrofacts/fluid/CFluid.h"

UnitValue<HF_TEMPERATURE, 0> CFluid::GetTemperatureValue() const {
    return {GetTunit(), GetTemperature()};
}

UnitValue<HF_PRESSURE, 0> CFluid::GetPressureValue() const { return {GetPunit(), GetPressure()}; }

UnitValue<HF_PRESSURE, 0> CFluid::GetAbsPressureValue() const {
    return {GetPunit(), GetAbsPressure()};
}

UnitValue<HF_PRESSURE, 0> CFluid::GetVaporPresValue() const {
    return {GetPunit(), GetUVaporPres()};
}

UnitValue<HF_PRESSURE, 0> CFluid::GetCriticalPresValue() const {
    return {GetPunit(), m_criticalPres};
}

UnitValue<HF_DENSITY, 0> CFluid::GetDensityValue() const {
    constexpr int kPoundPerFt3 = 0;
    constexpr int kKgPerM3 = 1;
    return {m_pUnits->bUS() ? kPoundPerFt3 : kKgPerM3, GetUDensity()};
}

UnitValue<HF_VISCOSITY, 0> CFluid::GetViscosityValue() const {
    constexpr int kCentipoise = 0;
    const UnitValue<HF_VISCOSITY, 0> inCentipoise(kCentipoise, *this, GetViscosity());
    UnitValue<HF_VISCOSITY, 0> inUserUnit(m_pUnits->GetUserUnit(HF_VISCOSITY), *this, 0.0);
    inUserUnit.assign(inCentipoise);
    return inUserUnit;
}
