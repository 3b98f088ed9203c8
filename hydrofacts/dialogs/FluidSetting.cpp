// Showing a fluid that the host gives. A write to temperature, pressure or name comes back as
// EN_CHANGE and empties the properties: so these are written first, and Changed() is taken back
// last.

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/FluidForm.h"
#include "quillbase/Text.h"

using hydrofacts::FluidForm;

namespace {

FLUIDSTATE AsUserDefined(FLUIDSTATE state) {
    if (state == FLUID_LIQUID) return FLUID_USER_LIQUID;
    return state == FLUID_VAPOR ? FLUID_USER_VAPOR : state;
}

}  // namespace

void CFluidDlg::SetDlgFluid(CFluid& fluid) {
    const FluidForm form = Form();
    m_changed = 0;
    if (fluid.GetFluidState() == FLUID_NONE) {
        form.Select(-1);
        form.Empty(hydrofacts::kTypedName);
        form.Empty(hydrofacts::kTemperature);
        form.Empty(hydrofacts::kPressure);
        form.CheckLiquid();
        ClearDlgProperties();
        m_changed = 0;
        return;
    }
    const char* name = fluid.GetFluidName();
    const int index = form.FindRow(name);
    form.Select(index);
    if (index != -1) {
        ShowFluidNotes(index);
        SetDlgFluid(name, fluid.GetTemperature(), fluid.GetPressure());
        return;
    }
    SetDlgProperties(name, AsUserDefined(fluid.GetFluidState()), fluid.GetTemperature(),
                     fluid.GetPressure(), fluid.GetUDensity(), fluid.GetViscosity(),
                     fluid.GetUVaporPres(), fluid.GetSpHeat(), fluid.GetSG(),
                     fluid.GetCriticalPres(), fluid.GetCriticalTemp(), fluid.GetMolecularWt());
}

void CFluidDlg::SetDlgFluid(const char* name, double temperature, double pressure) {
    const FluidForm form = Form();
    form.Empty(hydrofacts::kNote);
    form.Empty(hydrofacts::kTypedName);
    ShowName(name);
    form.Show(hydrofacts::kTemperature, temperature);
    form.Show(hydrofacts::kPressure, pressure);
    m_temperature = temperature;
    m_pressure = pressure;
    const bool loaded = LoadNamed(name);
    if (loaded) m_state = FindFluidState(m_temperature, m_pressure);
    ShowGiven(loaded, hydrofacts::kNoPropertiesThere);
    m_changed = 0;
}

void CFluidDlg::SetDlgFluid(const char* name, double temperature) {
    const FluidForm form = Form();
    form.Empty(hydrofacts::kNote);
    ShowName(name);
    form.Show(hydrofacts::kTemperature, temperature);
    m_temperature = temperature;
    m_pressure = 0.0;
    const bool loaded = LoadNamed(name);
    if (loaded) m_state = FLUID_LIQUID;
    ShowGiven(loaded, hydrofacts::kNoLiquidThere);
    m_changed = 0;
}

void CFluidDlg::SetDlgProperties(const char* name, FLUIDSTATE state, double temperature,
                                 double pressure, double density, double viscosity,
                                 double vaporPres, double spHeat, double sg, double criticalPres,
                                 double criticalTemp, double molecularWt) {
    const FluidForm form = Form();
    rstrncpy(m_name, name, sizeof m_name);
    const bool fixed = form.Has(hydrofacts::kFixedName);
    form.SetText(fixed ? hydrofacts::kFixedName : hydrofacts::kTypedName, name);
    m_temperature = temperature;
    m_pressure = pressure;
    form.Show(hydrofacts::kTemperature, temperature);
    form.Show(hydrofacts::kPressure, pressure);
    SetFluidProperties(name, state, temperature, pressure, density, viscosity, vaporPres, spHeat,
                       sg, criticalPres, criticalTemp, molecularWt);
    ShowProperties();
    m_changed = 0;
}

// A name that isn't in the list clears its selection.
void CFluidDlg::ShowName(const char* name) {
    const FluidForm form = Form();
    form.Select(form.FindRow(name));
    if (form.Has(hydrofacts::kFixedName)) form.SetText(hydrofacts::kFixedName, name);
}

void CFluidDlg::ShowGiven(bool loaded, hydrofacts::FluidMessage ifInvalid) {
    if (!loaded) {
        RejectTable(hydrofacts::kSetMessageSize);
    } else if (m_state != FLUID_NONE && SetPointIsValid(m_temperature, m_pressure) != 0) {
        ShowProperties();
    } else {
        m_state = FLUID_NONE;
        Form().ShowMessage(hydrofacts::kNote, ifInvalid, hydrofacts::kSetMessageSize);
    }
}
