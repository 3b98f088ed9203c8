// The properties of a fluid at its set point. Table fluids evaluate a formula each time they are
// asked; user-defined fluids give back what was stored in the coefficients of their formulas.

#include "hydrofacts/fluid/BaseUnits.h"
#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/fluid/FluidConstants.h"
#include "quillbase/Rounding.h"

namespace {

double StoredValue(const CFormula& formula) { return formula.m_coefficients[0]; }

double StoredSG(const CFormula& formula) { return formula.m_coefficients[1]; }

double FourDigits(double value) { return Precision(value, 4); }

}  // namespace

// No formula but vapor density reads the pressure.
double CFluid::EvaluateAtSetPoint(int slot) const {
    const hydrofacts::BaseUnits units(*m_pUnits);
    const double pressure = slot == SLOT_VAPOR_DENSITY ? units.AbsoluteKPa(m_pressure) : 0.0;
    return m_formulas[slot].CalcResult(units.Kelvin(m_temperature), pressure, m_molecularWt,
                                       units.Kelvin(m_criticalTemp), 0.0);
}

double CFluid::GetDensity() const {
    switch (m_state) {
        case FLUID_LIQUID:
            return EvaluateAtSetPoint(SLOT_LIQUID_DENSITY);
        case FLUID_VAPOR:
            return EvaluateAtSetPoint(SLOT_VAPOR_DENSITY);
        case FLUID_USER_LIQUID:
            return kgDen(StoredValue(m_formulas[SLOT_LIQUID_DENSITY]));
        case FLUID_USER_VAPOR: {
            const double stored = StoredValue(m_formulas[SLOT_VAPOR_DENSITY]);
            if (stored != 0.0) return kgDen(stored);
            return m_formulas[SLOT_VAPOR_DENSITY].CalcResult(
                KTemp(m_temperature), kPaPres(m_pressure, 0), m_molecularWt, 0.0, 0.0);
        }
        default:
            return 0.0;
    }
}

double CFluid::GetUDensity() const {
    switch (m_state) {
        case FLUID_LIQUID:
        case FLUID_VAPOR:
            return UserDen(GetDensity());
        case FLUID_USER_LIQUID:
            return StoredValue(m_formulas[SLOT_LIQUID_DENSITY]);
        case FLUID_USER_VAPOR:
            return StoredValue(m_formulas[SLOT_VAPOR_DENSITY]);
        default:
            return 0.0;
    }
}

double CFluid::GetDensityUS() const {
    return m_pUnits->bUS() ? GetUDensity() : GetDensity() * hydrofacts::kPoundPerFt3InKgPerM3;
}

double CFluid::GetSG() const {
    switch (m_state) {
        case FLUID_LIQUID:
        case FLUID_VAPOR:
            return CalcSG(GetUDensity());
        case FLUID_USER_LIQUID:
            return StoredSG(m_formulas[SLOT_LIQUID_DENSITY]);
        case FLUID_USER_VAPOR:
            return StoredSG(m_formulas[SLOT_VAPOR_DENSITY]);
        default:
            return 0.0;
    }
}

double CFluid::GetUDenSG(int bSG) { return bSG != 0 ? GetSG() : GetUDensity(); }

double CFluid::GetUDenSG() {
    constexpr int kSpecificGravityUnit = 2;
    return GetUDenSG(m_pUnits->GetUserUnit(HF_DENSITY) == kSpecificGravityUnit ? 1 : 0);
}

double CFluid::GetViscosity() const {
    const double viscosity = GetViscosity(hydrofacts::BaseUnits(*m_pUnits).Kelvin(m_temperature));
    return IsTableFluid() ? FourDigits(viscosity) : viscosity;
}

double CFluid::GetViscosity(double tempK) const {
    switch (m_state) {
        case FLUID_LIQUID:
            return m_formulas[SLOT_LIQUID_VISCOSITY].CalcResult(tempK, 0.0, 0.0, 0.0, 0.0);
        case FLUID_VAPOR:
            return m_formulas[SLOT_VAPOR_VISCOSITY].CalcResult(tempK, 0.0, 0.0, 0.0, 0.0);
        case FLUID_USER_LIQUID:
            return StoredValue(m_formulas[SLOT_LIQUID_VISCOSITY]);
        case FLUID_USER_VAPOR:
            return StoredValue(m_formulas[SLOT_VAPOR_VISCOSITY]);
        default:
            return 0.0;
    }
}

double CFluid::CentistokesRounded() const {
    constexpr int kCentipoise = 0;
    constexpr int kCentistokes = 1;
    constexpr double kNoDecimalsFrom = 10.0;
    const double cSt =
        m_pUnits->Convert(HF_VISCOSITY, GetViscosity(), kCentipoise, kCentistokes, this);
    if (m_state == FLUID_NONE) return 0.0;  // 0 cP over no density
    return DPlaces(cSt, cSt < kNoDecimalsFrom ? 1 : 0);
}

double CFluid::GetSpHeat() const {
    switch (m_state) {
        case FLUID_VAPOR:
            return FourDigits(EvaluateAtSetPoint(SLOT_VAPOR_SPHEAT));
        case FLUID_USER_VAPOR:
            return StoredValue(m_formulas[SLOT_VAPOR_SPHEAT]);
        default:
            return 0.0;
    }
}

double CFluid::GetSpHeat(double tempK) {
    switch (m_state) {
        case FLUID_VAPOR:
            return m_formulas[SLOT_VAPOR_SPHEAT].CalcResult(tempK, 0.0, 0.0, 0.0, 0.0);
        case FLUID_USER_VAPOR:
            return StoredValue(m_formulas[SLOT_VAPOR_SPHEAT]);
        default:
            return 0.0;
    }
}

double CFluid::GetVaporPres() const {
    switch (m_state) {
        case FLUID_LIQUID:
        case FLUID_VAPOR:
            return EvaluateAtSetPoint(SLOT_LIQUID_SAT_PRES);
        case FLUID_USER_LIQUID:
            return kPaPres(StoredValue(m_formulas[SLOT_LIQUID_SAT_PRES]), 1);
        default:
            return 0.0;
    }
}

double CFluid::GetUVaporPres() const {
    switch (m_state) {
        case FLUID_LIQUID:
        case FLUID_VAPOR:
            return FourDigits(UserPres(GetVaporPres(), 1));
        case FLUID_USER_LIQUID:
            return StoredValue(m_formulas[SLOT_LIQUID_SAT_PRES]);
        default:
            return 0.0;
    }
}

double CFluid::GetUVaporPresKTX() { return GetUVaporPres(); }

double CFluid::GetAbsPressure() const {
    if (m_pUnits == nullptr) return GetPressure();
    return GetPressure() + m_pUnits->GetAtmosphere(HF_USER_UNIT, false);
}

double CFluid::CalcSG(double density) const {
    if (m_pUnits->bUS()) density *= hydrofacts::kKgPerM3InPoundPerFt3;
    if (IsLiquid()) return DPlaces(density / hydrofacts::kWaterDensity, 3);
    if (m_state == FLUID_USER_VAPOR && m_molecularWt == 0.0) {
        m_molecularWt =
            density * hydrofacts::kGasConstant * KTemp(m_temperature) / kPaPres(m_pressure, 0);
    }
    return Precision(m_molecularWt / hydrofacts::kAirMolecularWt, 3);
}

double CFluid::CalcDen(double sg) {
    constexpr double kAirFactor = 348.3956;  // M / R of air, in the units below, times 100
    double density = sg * hydrofacts::kWaterDensity;
    if (m_state != FLUID_USER_LIQUID) {
        density = kPaPres(m_pressure, 0) * kAirFactor / 100.0 * sg / KTemp(m_temperature);
    }
    if (m_pUnits->bUS()) density /= hydrofacts::kKgPerM3InPoundPerFt3;
    return FourDigits(density);
}
