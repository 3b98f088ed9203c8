// Whether a table fluid is liquid, vapor or neither at a set point, and whether its formulas hold.

#include "hydrofacts/fluid/CFluid.h"

FLUIDSTATE CFluid::FindFluidState(double temperature, double pressure) {
    const BasePoint point = ToBase(temperature, pressure);
    const double pAbs = pressure + m_pUnits->GetAtmosphere(HF_USER_UNIT, false);
    if (FormulasAreValid(FLUID_NONE, point.tK, point.pKPa) == 0) return FLUID_NONE;

    // The comparisons are in user units, on the rounded saturation pressures: a set point that a
    // user reads off the screen as saturated is neither liquid nor vapor.
    FLUIDSTATE state = FLUID_NONE;
    double pSat = 0.0;
    if (temperature > m_criticalTemp) {
        state = FLUID_VAPOR;
    } else {
        if (temperature < m_criticalTemp && m_criticalPres > pAbs) {
            pSat = UserPres(Evaluate(SLOT_LIQUID_SAT_PRES, point), 1);
            if (pSat < pAbs) state = FLUID_LIQUID;
        }
        if (state == FLUID_NONE) {
            if (m_formulas[SLOT_VAPOR_SAT_PRES].m_type != 0) {
                pSat = UserPres(Evaluate(SLOT_VAPOR_SAT_PRES, point), 1);
            }
            if (pSat > pAbs) state = FLUID_VAPOR;
        }
    }
    return SetPointIsValid(temperature, pressure, state) != 0 ? state : FLUID_NONE;
}

int CFluid::SetPointIsValid(double temperature, double pressure) {
    return SetPointIsValid(temperature, pressure, m_state);
}

int CFluid::SetPointIsValid(double temperature, double pressure, FLUIDSTATE state) {
    if (state != FLUID_LIQUID && state != FLUID_VAPOR) return 0;
    const BasePoint point = ToBase(temperature, pressure);
    if (FormulasAreValid(state, point.tK, point.pKPa) == 0) return 0;
    // Not-a-number isn't above zero either.
    const auto positive = [&](int slot) { return Evaluate(slot, point) > 0.0; };
    const bool sound = state == FLUID_LIQUID
                           ? positive(SLOT_LIQUID_DENSITY) && positive(SLOT_LIQUID_VISCOSITY) &&
                                 positive(SLOT_LIQUID_SAT_PRES)
                           : positive(SLOT_VAPOR_DENSITY) && positive(SLOT_VAPOR_VISCOSITY) &&
                                 positive(SLOT_VAPOR_SPHEAT);
    return sound ? 1 : 0;
}

bool CFluid::FormulasExist(FLUIDSTATE state) {
    return (state == FLUID_VAPOR && m_formulas[SLOT_VAPOR_DENSITY].m_type != 0) ||
           (state == FLUID_LIQUID && m_formulas[SLOT_LIQUID_DENSITY].m_type != 0);
}

int CFluid::FormulasAreValid(FLUIDSTATE state, double tempK, double presKPa) {
    bool outside = false;
    switch (state) {
        case FLUID_NONE:
            // Ahead of the state only what lies beyond both phases is refused; a phase without a
            // range sets no limit.
            outside = (m_liquidMaxTemp > m_liquidMinTemp && tempK < m_liquidMinTemp) ||
                      (m_vaporMaxTemp > m_vaporMinTemp && tempK > m_vaporMaxTemp);
            break;
        case FLUID_LIQUID:
            outside = m_formulas[SLOT_LIQUID_DENSITY].m_type == 0 || tempK < m_liquidMinTemp ||
                      tempK > m_liquidMaxTemp;
            break;
        case FLUID_VAPOR:
            outside = m_formulas[SLOT_VAPOR_DENSITY].m_type == 0 || tempK < m_vaporMinTemp ||
                      tempK > m_vaporMaxTemp || presKPa > m_vaporMaxPres;
            break;
        default:
            break;
    }
    return outside ? 0 : 1;
}

bool CFluid::UpdateAtmPressure(double atmPressure) {
    if (m_name[0] != '\0') m_pUnits->SetAtmosphere(atmPressure, HF_USER_UNIT);
    return true;
}

bool CFluid::CheckNewAtmPressure() {
    const FLUIDSTATE former = m_state;
    if (former == FLUID_USER_LIQUID || former == FLUID_USER_VAPOR) return true;
    m_state = FindFluidState(m_temperature, m_pressure);
    return m_state == former;
}

CFluid::BasePoint CFluid::ToBase(double temperature, double pressure) const {
    return {KTemp(temperature), kPaPres(pressure, 0), KTemp(m_criticalTemp)};
}

double CFluid::Evaluate(int slot, const BasePoint& point) const {
    const double pressure = slot == SLOT_VAPOR_DENSITY ? point.pKPa : 0.0;
    return m_formulas[slot].CalcResult(point.tK, pressure, m_molecularWt, point.tcK, 0.0);
}
