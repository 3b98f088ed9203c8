// What the fluid dialog shows: the note of a table or what is wrong with it, and the properties.

#include <cstring>

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/FluidForm.h"
#include "hydrofacts/frame/TableFile.h"
#include "hydrofacts/frame/TableNote.h"
#include "quillbase/Text.h"

using hydrofacts::FluidForm;

// A name that doesn't fit is that of no table.
bool CFluidDlg::LoadNamed(const char* name) {
    const bool fits = std::strlen(name) < sizeof m_name;
    rstrncpy(m_name, name, sizeof m_name);
    return fits && LoadFluidTable(m_tableDir, m_name) != 0;
}

void CFluidDlg::RejectTable(int messageSize) {
    m_state = FLUID_NONE;
    Form().ShowMessage(hydrofacts::kNote, hydrofacts::kInvalidTable, messageSize, m_name);
}

void CFluidDlg::ShowFluidNotes(int index) {
    const FluidForm form = Form();
    form.Empty(hydrofacts::kNote);
    const hydrofacts::TablePath path(m_tableDir, form.RowText(index).c_str(), ".FTBL");
    ShowTableNote(path.c_str(), m_hDlg, hydrofacts::kNote);
}

void CFluidDlg::ShowProperties() {
    const FluidForm form = Form();
    const bool hasButtons = form.Has(hydrofacts::kVaporButton);
    form.Show(hydrofacts::kDensity, GetUDenSG(m_useSG));
    form.Show(hydrofacts::kViscosity, GetViscosity());
    form.Show(hydrofacts::kMolecularWeight, GetMolecularWt());
    if (m_state == FLUID_VAPOR || m_state == FLUID_USER_VAPOR) {
        if (hasButtons) form.CheckVapor();
        form.Empty(hydrofacts::kVaporPressure);
        form.Empty(hydrofacts::kCriticalPressure);
        form.Empty(hydrofacts::kCriticalTemperature);
        form.Show(hydrofacts::kSpHeat, GetSpHeat());
        return;
    }
    if (hasButtons) form.CheckLiquid();
    form.Empty(hydrofacts::kSpHeat);
    const double vaporPressure = GetUVaporPres();
    if (vaporPressure != 0.0) form.Show(hydrofacts::kVaporPressure, vaporPressure);
    form.Show(hydrofacts::kCriticalTemperature, GetCriticalTemp());
    form.Show(hydrofacts::kCriticalPressure, GetCriticalPres());
}

void CFluidDlg::ClearDlgProperties() {
    const FluidForm form = Form();
    for (const int control : {hydrofacts::kDensity, hydrofacts::kViscosity, hydrofacts::kSpHeat,
                              hydrofacts::kVaporPressure, hydrofacts::kMolecularWeight,
                              hydrofacts::kCriticalTemperature, hydrofacts::kCriticalPressure}) {
        form.Empty(control);
    }
    if (!form.Has(hydrofacts::kSpHeat) || !form.Has(hydrofacts::kVaporPressure)) return;
    form.Disable(hydrofacts::kFirstOfPhaseProperties, hydrofacts::kLastOfPhaseProperties);
    if (!form.Has(hydrofacts::kCriticalPressure)) return;
    form.Disable(hydrofacts::kFirstOfCriticalPressure, hydrofacts::kLastOfCriticalPressure);
}
