// Reading a fluid whose properties a user has typed: its formulas hold them as plain values.

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/FluidForm.h"
#include "hydrofacts/formula/Constants.h"

using hydrofacts::FluidForm;

bool CFluidDlg::GetProperties(FLUIDSTATE state) {
    const FluidForm form = Form();
    m_state = state;
    const bool fixed = form.Has(hydrofacts::kFixedName);
    form.GetText(fixed ? hydrofacts::kFixedName : hydrofacts::kTypedName, m_name, sizeof m_name);
    m_temperature = form.Number(hydrofacts::kTemperature);
    m_pressure = form.Number(hydrofacts::kPressure);
    m_molecularWt = form.Number(hydrofacts::kMolecularWeight);
    m_criticalTemp = form.Number(hydrofacts::kCriticalTemperature);
    m_criticalPres = form.Number(hydrofacts::kCriticalPressure);
    for (CFormula& formula : m_formulas) formula.ClearFormula();

    if (form.Has(hydrofacts::kDensity)) {
        ReadWithDensity();
    } else {
        m_formulas[SLOT_VAPOR_DENSITY].m_type = hydrofacts::kIdealGas;
        ReadVapor(0.0, CalcSG(0.0));
    }
    return HasAllThatIsNeeded(state);
}

// Density and specific gravity: whichever the form shows, and the other worked out from it.
void CFluidDlg::ReadWithDensity() {
    const FluidForm form = Form();
    const double shown = form.Number(hydrofacts::kDensity);
    const double density = m_useSG != 0 ? CalcDen(shown) : shown;
    const double sg = m_useSG != 0 ? shown : CalcSG(shown);
    if (m_state != FLUID_USER_LIQUID) {
        ReadVapor(density, sg);
        return;
    }
    m_formulas[SLOT_LIQUID_DENSITY].m_coefficients[0] = density;
    m_formulas[SLOT_LIQUID_DENSITY].m_coefficients[1] = sg;
    m_formulas[SLOT_LIQUID_VISCOSITY].m_coefficients[0] = form.Number(hydrofacts::kViscosity);
    m_formulas[SLOT_LIQUID_SAT_PRES].m_coefficients[0] = form.Number(hydrofacts::kVaporPressure);
}

void CFluidDlg::ReadVapor(double density, double sg) {
    const FluidForm form = Form();
    m_formulas[SLOT_VAPOR_DENSITY].m_coefficients[0] = density;
    m_formulas[SLOT_VAPOR_DENSITY].m_coefficients[1] = sg;
    m_formulas[SLOT_VAPOR_VISCOSITY].m_coefficients[0] = form.Number(hydrofacts::kViscosity);
    m_formulas[SLOT_VAPOR_SPHEAT].m_coefficients[0] = form.Number(hydrofacts::kSpHeat);
}

// An edit that was left empty reads as 0.0, so that a value of 0.0 counts as missing.
bool CFluidDlg::HasAllThatIsNeeded(FLUIDSTATE state) const {
    const FluidForm form = Form();
    const auto stored = [this](int slot) { return m_formulas[slot].m_coefficients[0] != 0.0; };
    const auto given = [&form](int control, bool there) { return there || !form.Has(control); };

    if (m_pUnits->GetAbsolute() && !given(hydrofacts::kPressure, m_pressure != 0.0)) return false;
    if (state == FLUID_USER_LIQUID) {
        return stored(SLOT_LIQUID_VISCOSITY) && stored(SLOT_LIQUID_DENSITY) &&
               given(hydrofacts::kVaporPressure, stored(SLOT_LIQUID_SAT_PRES)) &&
               given(hydrofacts::kCriticalPressure, m_criticalPres != 0.0);
    }
    if (state == FLUID_USER_VAPOR) {
        return stored(SLOT_VAPOR_VISCOSITY) &&
               given(hydrofacts::kDensity, stored(SLOT_VAPOR_DENSITY)) &&
               given(hydrofacts::kSpHeat, stored(SLOT_VAPOR_SPHEAT));
    }
    return true;
}
