// A fluid whose properties a user has typed: they are kept in the coefficients of its formulas.

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/formula/Constants.h"
#include "quillbase/Text.h"

void CFluid::SetFluidProperties(const char* name, FLUIDSTATE state, double temperature,
                                double pressure, double density, double viscosity, double vaporPres,
                                double spHeat, double sg, double criticalPres, double criticalTemp,
                                double molecularWt) {
    constexpr unsigned kNameSize = 63;
    rstrncpy(m_name, name, kNameSize);
    m_temperature = temperature;
    m_pressure = pressure;
    m_state = state == FLUID_USER_LIQUID ? FLUID_USER_LIQUID : FLUID_USER_VAPOR;
    m_molecularWt = molecularWt;
    m_criticalPres = criticalPres;
    m_criticalTemp = criticalTemp;

    const bool computed = density < 0.0;
    if (!computed) {
        if (density != 0.0 && sg == 0.0) sg = CalcSG(density);
        if (sg != 0.0 && density == 0.0) density = CalcDen(sg);
    }
    for (CFormula& formula : m_formulas) formula.ClearFormula();

    if (m_state == FLUID_USER_LIQUID) {
        m_formulas[SLOT_LIQUID_DENSITY].m_coefficients[0] = density;
        m_formulas[SLOT_LIQUID_DENSITY].m_coefficients[1] = sg;
        m_formulas[SLOT_LIQUID_VISCOSITY].m_coefficients[0] = viscosity;
        m_formulas[SLOT_LIQUID_SAT_PRES].m_coefficients[0] = vaporPres;
        return;
    }
    CFormula& vaporDensity = m_formulas[SLOT_VAPOR_DENSITY];
    if (computed) {
        vaporDensity.m_type = hydrofacts::kIdealGas;
        vaporDensity.m_coefficients[1] = CalcSG(0.0);
    } else {
        vaporDensity.m_coefficients[0] = density;
        vaporDensity.m_coefficients[1] = sg;
    }
    m_formulas[SLOT_VAPOR_VISCOSITY].m_coefficients[0] = viscosity;
    m_formulas[SLOT_VAPOR_SPHEAT].m_coefficients[0] = spHeat;
}
