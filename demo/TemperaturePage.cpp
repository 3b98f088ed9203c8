#include "demo/TemperaturePage.h"

#include "demo/FluidForm.h"

namespace demo {

win32::DialogBuilder TemperaturePage::Form() const {
    win32::DialogBuilder form("", kPageStyle, {0, 0, 498, 262}, WS_EX_CONTROLPARENT);
    form.Static(kCaption, "", {0, 0, 124, 9});
    form.ListBox(kFluids, {0, 11, 124, 235}, LBS_SORT);
    form.GroupBox(kSetPointGroup, "", {132, 0, 172, 31});
    Rows(form, 138, 11).Add(kTemperatureLabel, kTemperature, kTemperatureUnit);
    form.GroupBox(kStateGroup, "", {132, 35, 172, 27});
    form.RadioButton(kLiquid, "", {138, 46, 78, 10}, WS_GROUP | WS_TABSTOP);
    form.RadioButton(kVapor, "", {220, 46, 78, 10});
    form.GroupBox(kPropertyGroup, "", {132, 66, 172, 106});
    Rows(form, 138, 78)
        .Add(kDensityLabel, kDensity, kDensityUnit, ES_READONLY)
        .Add(kViscosityLabel, kViscosity, kViscosityUnit, ES_READONLY)
        .Add(kVaporPressureLabel, kVaporPressure, kVaporPressureUnit, ES_READONLY)
        .Add(kCriticalTemperatureLabel, kCriticalTemperature, kCriticalTemperatureUnit, ES_READONLY)
        .Add(kHeatRatioLabel, kHeatRatio, 0, ES_READONLY)
        .Add(kMolarMassLabel, kMolarMass, kMolarMassUnit, ES_READONLY);
    form.Static(kFluidNote, "", {0, 253, 498, 9}, WS_GROUP | SS_NOPREFIX);
    return form;
}

std::span<const Page::Label> TemperaturePage::Labels() const {
    static constexpr Label kLabels[] = {
        {kSetPointGroup, Text::SetPoint},
        {kStateGroup, Text::State},
        {kPropertyGroup, Text::Properties},
        {kTemperatureLabel, Text::Temperature},
        {kLiquid, Text::Liquid},
        {kVapor, Text::Vapor},
        {kDensityLabel, Text::Density},
        {kViscosityLabel, Text::Viscosity},
        {kVaporPressureLabel, Text::VaporPressure},
        {kCriticalTemperatureLabel, Text::CriticalTemperature},
        {kHeatRatioLabel, Text::HeatRatio},
        {kMolarMassLabel, Text::MolarMass},
    };
    return kLabels;
}

std::span<const Following> TemperaturePage::Follows() const {
    static constexpr Following kFollows[] = {{kFluids, kTaller}, {kFluidNote, kDown | kWider}};
    return kFollows;
}

void TemperaturePage::Init() {
    fluid_.InitFluids(dialog_, site_.tables.c_str());
    CheckRadioButton(dialog_, kLiquid, kVapor, kLiquid);
}

// As if the temperature had just been typed.
void TemperaturePage::Calculate() {
    fluid_.DlgCommand(kTemperature, EN_KILLFOCUS);
    ShowState();
}

void TemperaturePage::ShowState() {
    const FLUIDSTATE state = fluid_.GetFluidState();
    EnableFigures(dialog_, state == FLUID_LIQUID, state == FLUID_VAPOR);
}

void TemperaturePage::Relabel() {
    Page::Relabel();
    char caption[120] = "";
    constexpr unsigned kInstalledTables = 4;
    Hydrofacts_GetMessage(kInstalledTables, caption, sizeof caption);
    Put(kCaption, caption);
    // Numbers have the decimal sign of the language, and what is wrong is said anew.
    UnitsChanged(site_.units);
}

void TemperaturePage::UnitsChanged(const Units& before) {
    ShowFluidUnits(dialog_, site_.units);
    double typed = 0.0;
    if (!NumberOf(dialog_, kTemperature, typed)) return;
    Put(kTemperature, Number(ConvertTemperature(before, site_.units, typed)));
    Calculate();
}

bool TemperaturePage::Command(int control, int code, LPARAM) {
    const bool state = control == kLiquid || control == kVapor;
    if (state && code == BN_CLICKED) {
        Calculate();
        return true;
    }
    if (!fluid_.DlgCommand(control, code)) return false;
    ShowState();
    return true;
}

}  // namespace demo
