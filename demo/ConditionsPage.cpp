#include "demo/ConditionsPage.h"

#include "demo/FluidForm.h"

namespace demo {

win32::DialogBuilder ConditionsPage::Form() const {
    win32::DialogBuilder form("", kPageStyle, {0, 0, 498, 262}, WS_EX_CONTROLPARENT);
    form.Static(kExplanation, "", {0, 0, 420, 9});
    form.Static(kFixedNameLabel, "", {6, 18, 84, 9});
    form.Static(kFixedName, "", {92, 18, 200, 9}, SS_NOPREFIX);
    // The controller looks the fluid up in its list, which has no place on this form.
    form.Control("ListBox", kFluids, "", LBS_NOTIFY | LBS_SORT, {0, 0, 10, 10});
    form.Control("Static", kCaption, "", 0, {0, 0, 10, 10});
    form.GroupBox(kSetPointGroup, "", {0, 34, 172, 46});
    Rows(form, 6, 45)
        .Add(kTemperatureLabel, kTemperature, kTemperatureUnit)
        .Add(kPressureLabel, kPressure, kPressureUnit);
    form.GroupBox(kPropertyGroup, "", {0, 84, 172, 106});
    Rows(form, 6, 96)
        .Add(kDensityLabel, kDensity, kDensityUnit, ES_READONLY)
        .Add(kViscosityLabel, kViscosity, kViscosityUnit, ES_READONLY)
        .Add(kVaporPressureLabel, kVaporPressure, kVaporPressureUnit, ES_READONLY)
        .Add(kCriticalTemperatureLabel, kCriticalTemperature, kCriticalTemperatureUnit, ES_READONLY)
        .Add(kHeatRatioLabel, kHeatRatio, 0, ES_READONLY)
        .Add(kMolarMassLabel, kMolarMass, kMolarMassUnit, ES_READONLY);
    form.Button(IDOK, "", {102, 196, 70, 14}, WS_GROUP);
    form.Static(kFluidNote, "", {0, 253, 498, 9}, SS_NOPREFIX);
    return form;
}

std::span<const Page::Label> ConditionsPage::Labels() const {
    static constexpr Label kLabels[] = {
        {kExplanation, Text::FromFluidPage},
        {kFixedNameLabel, Text::Fluid},
        {kSetPointGroup, Text::SetPoint},
        {kPropertyGroup, Text::Properties},
        {kTemperatureLabel, Text::Temperature},
        {kPressureLabel, Text::Pressure},
        {kDensityLabel, Text::Density},
        {kViscosityLabel, Text::Viscosity},
        {kVaporPressureLabel, Text::VaporPressure},
        {kCriticalTemperatureLabel, Text::CriticalTemperature},
        {kHeatRatioLabel, Text::HeatRatio},
        {kMolarMassLabel, Text::MolarMass},
        {IDOK, Text::TakeOver},
    };
    return kLabels;
}

std::span<const Following> ConditionsPage::Follows() const {
    static constexpr Following kFollows[] = {{kFluidNote, kDown | kWider}};
    return kFollows;
}

void ConditionsPage::Init() { fluid_.InitFluids(dialog_, site_.tables.c_str()); }

void ConditionsPage::Show(bool show) {
    if (show) ShowChosen();
    Page::Show(show);
}

void ConditionsPage::ShowChosen() {
    CFluid& chosen = chosen_.Fluid();
    const FLUIDSTATE state = chosen.GetFluidState();
    const bool table = state == FLUID_LIQUID || state == FLUID_VAPOR;
    fluid_.SetDlgFluid(chosen);
    Put(kFixedName, state == FLUID_NONE ? Say(Text::Nothing) : chosen.GetFluidName());
    Enable(dialog_, kTemperature, kPressure, table);
    Enable(dialog_, IDOK, IDOK, table);
    ShowState();
}

// A note without figures says what is wrong with the conditions.
void ConditionsPage::ShowState() {
    const FLUIDSTATE state = fluid_.GetFluidState();
    const bool shown = !TextOf(dialog_, kDensity).empty();
    const bool liquid = state == FLUID_LIQUID || state == FLUID_USER_LIQUID;
    const bool vapor = state == FLUID_VAPOR || state == FLUID_USER_VAPOR;
    EnableFigures(dialog_, shown && liquid, shown && vapor);
}

void ConditionsPage::Relabel() {
    Page::Relabel();
    ShowFluidUnits(dialog_, site_.units);
    if (IsWindowVisible(dialog_) != FALSE) ShowChosen();
}

void ConditionsPage::UnitsChanged(const Units&) {
    ShowFluidUnits(dialog_, site_.units);
    if (IsWindowVisible(dialog_) != FALSE) ShowChosen();
}

bool ConditionsPage::Command(int control, int code, LPARAM) {
    if (control == IDOK && code == BN_CLICKED) {
        TakeOver();
        return true;
    }
    if (!fluid_.DlgCommand(control, code)) return false;
    ShowState();
    return true;
}

// Conditions at which the fluid would be in another state stay on this page, whose note says so.
void ConditionsPage::TakeOver() {
    if (fluid_.Changed() == 0 || !TextOf(dialog_, kFluidNote).empty()) return;
    chosen_.SetConditions(fluid_.GetTemperature(), fluid_.GetPressure());
    fluid_.SetChanged(false);
}

}  // namespace demo
