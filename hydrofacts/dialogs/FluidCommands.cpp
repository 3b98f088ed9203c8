// What the fluid dialog's user does, and the calculation that follows. Any write to an edit comes
// back as EN_CHANGE from inside the operation that writes, through the host.

#include <string>

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/FluidForm.h"
#include "quillbase/DialogItems.h"

using hydrofacts::FluidForm;

bool CFluidDlg::DlgCommand(int id, int notification) {
    switch (id) {
        case hydrofacts::kFluidList:
            return notification == LBN_SELCHANGE && FluidPicked();
        case hydrofacts::kTemperature:
        case hydrofacts::kPressure:
            if (notification == EN_CHANGE) return ConditionTyped(id);
            return notification == EN_KILLFOCUS && ConditionLeft(id);
        case hydrofacts::kTypedName:
            if (notification == EN_CHANGE) return NameTyped();
            return notification == EN_KILLFOCUS && NameLeft();
        default:
            return false;
    }
}

bool CFluidDlg::FluidPicked() {
    const FluidForm form = Form();
    const int index = form.SelectedRow();
    if (index == -1) return true;
    form.Empty(hydrofacts::kTypedName);
    if (LoadNamed(form.RowText(index).c_str())) {
        ShowFluidNotes(index);
        if (form.Has(hydrofacts::kVaporButton)) {
            if (m_formulas[SLOT_LIQUID_DENSITY].m_type == 0) form.CheckVapor();
            if (m_formulas[SLOT_VAPOR_DENSITY].m_type == 0) form.CheckLiquid();
        }
    } else {
        RejectTable(hydrofacts::kPickMessageSize);
    }
    ClearDlgProperties();
    if (form.HoldsConditions()) SetDlgFluidName(index);
    return true;
}

// The properties are gone, but nothing has been calculated yet: m_changed stays.
bool CFluidDlg::ConditionTyped(int id) {
    Form().Empty(hydrofacts::kNote);
    GoodNumber(m_hDlg, id, true, true, true);
    ClearDlgProperties();
    return true;
}

// A fluid whose properties were typed isn't calculated.
bool CFluidDlg::ConditionLeft(int id) {
    const FluidForm form = Form();
    const int index = form.SelectedRow();
    if (index == -1) return true;
    if (form.HoldsConditions()) SetDlgFluidName(index);
    const bool goesOn = id == hydrofacts::kPressure && GetKeyState(VK_SHIFT) >= 0;
    if (goesOn && form.Has(hydrofacts::kDefaultButton)) {
        SetFocus(form.Item(hydrofacts::kDefaultButton));
    }
    return true;
}

// The controller itself empties the name whenever a fluid is picked, which must leave the selection
// alone.
bool CFluidDlg::NameTyped() {
    const FluidForm form = Form();
    if (form.HoldsText(hydrofacts::kTypedName)) {
        form.Select(-1);
        form.Empty(hydrofacts::kNote);
    }
    ClearDlgProperties();
    m_changed = 1;
    return true;
}

// A name that matches nothing is that of a fluid whose properties are typed.
bool CFluidDlg::NameLeft() {
    const FluidForm form = Form();
    char name[sizeof m_name];
    form.GetText(hydrofacts::kTypedName, name, sizeof name);
    const int index = form.FindRow(name);
    if (index == -1) return true;
    form.Select(index);
    form.Empty(hydrofacts::kTypedName);
    SendMessageA(m_hDlg, WM_COMMAND, MAKEWPARAM(hydrofacts::kFluidList, LBN_SELCHANGE), 0);
    SetFocus(form.Item(hydrofacts::kTemperature));
    return true;
}

// On a form that sets conditions only, the state stays that which was chosen elsewhere.
void CFluidDlg::SetDlgFluidName(int index) {
    const FluidForm form = Form();
    const FLUIDSTATE oldState = m_state;
    const std::string name = form.RowText(index);
    m_temperature = form.Number(hydrofacts::kTemperature);
    if (form.Has(hydrofacts::kPressure)) m_pressure = form.Number(hydrofacts::kPressure);

    if (LoadNamed(name.c_str())) {
        m_state = StateOfConditions();
        ShowOutcome(oldState);
    } else {
        RejectTable(hydrofacts::kConditionMessageSize);
    }
    if (form.Has(hydrofacts::kFixedName)) m_state = oldState;
    m_changed = 1;
}

// Without a pressure on the form the state is the user's, and a vapor stands just below saturation.
FLUIDSTATE CFluidDlg::StateOfConditions() {
    const FluidForm form = Form();
    if (form.Has(hydrofacts::kPressure)) return FindFluidState(m_temperature, m_pressure);
    if (!form.VaporIsChecked()) return FLUID_LIQUID;
    m_pressure = MaxCompressiblePressure(m_temperature);
    return FLUID_VAPOR;
}

void CFluidDlg::ShowOutcome(FLUIDSTATE oldState) {
    const FluidForm form = Form();
    const bool valid = m_state != FLUID_NONE && SetPointIsValid(m_temperature, m_pressure) != 0;
    if (valid && (m_state == oldState || !form.Has(hydrofacts::kFixedName))) {
        ShowProperties();
        return;
    }
    auto message = hydrofacts::kStateChanges;
    if (!valid) {
        message = m_state == FLUID_LIQUID ? hydrofacts::kNoLiquidThere : hydrofacts::kNoVaporThere;
        if (form.Has(hydrofacts::kPressure)) message = hydrofacts::kNoPropertiesThere;
        m_state = FLUID_NONE;
    }
    form.ShowMessage(hydrofacts::kNote, message, hydrofacts::kConditionMessageSize);
    ClearDlgProperties();
}
