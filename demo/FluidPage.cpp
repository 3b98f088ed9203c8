#include "demo/FluidPage.h"

#include <iterator>

#include "demo/FluidForm.h"

namespace demo {
namespace {

constexpr DWORD kFirstOfGroup = WS_GROUP | WS_TABSTOP;

constexpr int kTyped[] = {kDensity,   kViscosity,           kVaporPressure, kCriticalPressure,
                          kHeatRatio, kCriticalTemperature, kMolarMass};

double Figure(HWND dialog, int control) {
    double value = 0.0;
    return NumberOf(dialog, control, value) ? value : 0.0;
}

}  // namespace

win32::DialogBuilder FluidPage::Form() const {
    win32::DialogBuilder form("", kPageStyle, {0, 0, 498, 262}, WS_EX_CONTROLPARENT);
    form.Static(kCaption, "", {0, 0, 124, 9});
    form.ListBox(kFluids, {0, 11, 124, 211}, LBS_SORT);
    form.Static(kOwnNameLabel, "", {0, 227, 124, 9}, WS_GROUP);
    form.Edit(kOwnName, {0, 237, 124, 12});

    form.GroupBox(kSetPointGroup, "", {132, 0, 172, 46});
    Rows(form, 138, 11)
        .Add(kTemperatureLabel, kTemperature, kTemperatureUnit)
        .Add(kPressureLabel, kPressure, kPressureUnit);
    form.GroupBox(kStateGroup, "", {132, 50, 172, 27});
    form.RadioButton(kLiquid, "", {138, 61, 78, 10}, kFirstOfGroup);
    form.RadioButton(kVapor, "", {220, 61, 78, 10});
    form.GroupBox(kPropertyGroup, "", {132, 81, 172, 120});
    Rows(form, 138, 93)
        .Add(kDensityLabel, kDensity, kDensityUnit)
        .Add(kViscosityLabel, kViscosity, kViscosityUnit)
        .Add(kVaporPressureLabel, kVaporPressure, kVaporPressureUnit)
        .Add(kCriticalPressureLabel, kCriticalPressure, kCriticalPressureUnit)
        .Add(kCriticalTemperatureLabel, kCriticalTemperature, kCriticalTemperatureUnit)
        .Add(kHeatRatioLabel, kHeatRatio, 0)
        .Add(kMolarMassLabel, kMolarMass, kMolarMassUnit);
    form.Button(IDOK, "", {234, 207, 70, 14}, WS_GROUP);

    form.GroupBox(kPlotGroup, "", {312, 0, 186, 249});
    form.ComboBox(kPlotProperty, {318, 11, 120, 90}, WS_VSCROLL);
    form.Control("Static", kPlot, "", WS_VISIBLE | SS_OWNERDRAW, {318, 28, 174, 215});
    form.Static(kFluidNote, "", {0, 253, 498, 9}, SS_NOPREFIX);
    return form;
}

std::span<const Page::Label> FluidPage::Labels() const {
    static constexpr Label kLabels[] = {
        {kTemperatureLabel, Text::Temperature},
        {kPressureLabel, Text::Pressure},
        {kDensityLabel, Text::Density},
        {kViscosityLabel, Text::Viscosity},
        {kVaporPressureLabel, Text::VaporPressure},
        {kCriticalPressureLabel, Text::CriticalPressure},
        {kCriticalTemperatureLabel, Text::CriticalTemperature},
        {kHeatRatioLabel, Text::HeatRatio},
        {kMolarMassLabel, Text::MolarMass},
        {kOwnNameLabel, Text::OwnFluid},
        {kSetPointGroup, Text::SetPoint},
        {kStateGroup, Text::State},
        {kPropertyGroup, Text::Properties},
        {kLiquid, Text::Liquid},
        {kVapor, Text::Vapor},
        {IDOK, Text::TakeOver},
        {kPlotGroup, Text::Plot},
    };
    return kLabels;
}

std::span<const Following> FluidPage::Follows() const {
    static constexpr Following kFollows[] = {
        {kFluids, kTaller},           {kOwnNameLabel, kDown},         {kOwnName, kDown},
        {kFluidNote, kDown | kWider}, {kPlotGroup, kWider | kTaller}, {kPlot, kWider | kTaller},
    };
    return kFollows;
}

void FluidPage::Init() {
    if (site_.showPlot) site_.showPlot(GetDlgItem(dialog_, kPlot), curve_);
    fluid_.InitFluids(dialog_, site_.tables.c_str());
    CheckRadioButton(dialog_, kLiquid, kVapor, kLiquid);
    FillPlots();
}

void FluidPage::FillPlots() {
    const int row = PickedRow(dialog_, kPlotProperty);
    SendDlgItemMessageA(dialog_, kPlotProperty, CB_RESETCONTENT, 0, 0);
    for (const Text text : {Text::Density, Text::Viscosity, Text::VaporPressure, Text::HeatRatio}) {
        std::string name = Say(text);
        std::erase(name, '&');
        AddRow(dialog_, kPlotProperty, name);
    }
    PickRow(dialog_, kPlotProperty, row < 0 ? 0 : row);
}

void FluidPage::Relabel() {
    Page::Relabel();
    char caption[120] = "";
    constexpr unsigned kInstalledTables = 4;
    Hydrofacts_GetMessage(kInstalledTables, caption, sizeof caption);
    Put(kCaption, caption);
    FillPlots();
    // Numbers have the decimal sign of the language, and what is wrong is said anew.
    UnitsChanged(site_.units);
}

bool FluidPage::IsPicked() const {
    return SendDlgItemMessageA(dialog_, kFluids, LB_GETCURSEL, 0, 0) >= 0;
}

bool FluidPage::Command(int control, int code, LPARAM) {
    if (fluid_.DlgCommand(control, code)) {
        Update();
        return true;
    }
    const bool clicked = code == BN_CLICKED;
    if (clicked && (control == kLiquid || control == kVapor)) {
        EnableTyping();
    } else if (clicked && control == IDOK) {
        TakeOver();
    } else if (control == kPlotProperty && code == CBN_SELCHANGE) {
        Update();
    } else {
        return false;
    }
    return true;
}

bool FluidPage::Other(UINT message, WPARAM wParam, LPARAM lParam) {
    return site_.drawPlot && site_.drawPlot(message, wParam, lParam, curve_);
}

// The figures of an installed fluid are there to be read; those of a fluid of the user's own are
// typed, as far as its state has them.
void FluidPage::EnableTyping() {
    const bool own = !IsPicked();
    for (const int control : kTyped) {
        SendDlgItemMessageA(dialog_, control, EM_SETREADONLY, own ? FALSE : TRUE, 0);
    }
    Enable(dialog_, kLiquid, kVapor, own);
    Enable(dialog_, IDOK, IDOK, own);
    const FLUIDSTATE state = fluid_.GetFluidState();
    const bool none = !own && state == FLUID_NONE;
    const bool vapor = IsDlgButtonChecked(dialog_, kVapor) != 0;
    EnableFigures(dialog_, !vapor && !none, vapor && !none);
}

void FluidPage::Update() {
    EnableTyping();
    const int row = PickedRow(dialog_, kPlotProperty);
    curve_.SetDecimalSign(DecimalSign(site_.language));
    const bool drawn = IsPicked() && fluid_.GetFluidState() != FLUID_NONE && row >= 0;
    if (!drawn) {
        curve_.Clear(Say(Text::NoPlot));
    } else if (!curve_.Set(fluid_, site_.units, static_cast<Property>(row),
                           PickedText(dialog_, kPlotProperty))) {
        curve_.Clear(Say(Text::NotInThisState));
    }
    InvalidateRect(GetDlgItem(dialog_, kPlot), nullptr, TRUE);
    if (site_.changed) site_.changed();
}

void FluidPage::TakeOver() {
    if (IsPicked()) return;
    const bool vapor = IsDlgButtonChecked(dialog_, kVapor) != 0;
    complete_ = fluid_.GetProperties(vapor ? FLUID_USER_VAPOR : FLUID_USER_LIQUID);
    Put(kFluidNote, complete_ ? std::string() : Say(Text::Incomplete));
    Update();
}

void FluidPage::SetConditions(double temperature, double pressure) {
    const FLUIDSTATE state = fluid_.GetFluidState();
    if (state != FLUID_LIQUID && state != FLUID_VAPOR) return;
    const std::string name = fluid_.GetFluidName();
    fluid_.SetDlgFluid(name.c_str(), temperature, pressure);
    Update();
}

void FluidPage::UnitsChanged(const Units& before) {
    const bool conditions =
        !TextOf(dialog_, kTemperature).empty() && !TextOf(dialog_, kPressure).empty();
    if (IsPicked() && conditions) {
        ConvertListed(before);
    } else {
        ConvertTyped(before);
    }
    ShowFluidUnits(dialog_, site_.units);
    Update();
}

// The note of a table stays as long as there is nothing else to be said.
void FluidPage::ConvertListed(const Units& before) {
    const bool hadState = fluid_.GetFluidState() != FLUID_NONE;
    const std::string note = TextOf(dialog_, kFluidNote);
    const std::string name = fluid_.GetFluidName();
    const double temperature = ConvertTemperature(before, site_.units, fluid_.GetTemperature());
    const double pressure = ConvertPressure(before, site_.units, fluid_.GetPressure());
    fluid_.SetDlgFluid(name.c_str(), Rounded(temperature), Rounded(pressure));
    if (hadState && fluid_.GetFluidState() != FLUID_NONE) Put(kFluidNote, note);
}

// The figures as they stand in the controls, so that none is lost which has not been taken over.
void FluidPage::ConvertTyped(const Units& before) {
    const Units& now = site_.units;
    const auto convert = [&](HF_UNIT_TYPES type, int control) {
        return now.Convert(type, Figure(dialog_, control), before.GetUserUnit(type), nullptr);
    };
    const struct {
        int control;
        double value;
    } shown[] = {{kTemperature, ConvertTemperature(before, now, Figure(dialog_, kTemperature))},
                 {kPressure, ConvertPressure(before, now, Figure(dialog_, kPressure))},
                 {kDensity, convert(HF_DENSITY, kDensity)},
                 {kVaporPressure, convert(HF_PRESSURE, kVaporPressure)},
                 {kCriticalPressure, convert(HF_PRESSURE, kCriticalPressure)},
                 {kCriticalTemperature, convert(HF_TEMPERATURE, kCriticalTemperature)},
                 {kViscosity, Figure(dialog_, kViscosity)},
                 {kHeatRatio, Figure(dialog_, kHeatRatio)},
                 {kMolarMass, Figure(dialog_, kMolarMass)}};
    // The set point comes first: a change of it empties the properties.
    bool empty[std::size(shown)];
    for (std::size_t i = 0; i < std::size(shown); ++i) {
        empty[i] = TextOf(dialog_, shown[i].control).empty();
    }
    for (std::size_t i = 0; i < std::size(shown); ++i) {
        Put(shown[i].control, empty[i] ? std::string() : Number(shown[i].value));
    }
    const FLUIDSTATE state = fluid_.GetFluidState();
    const bool taken = state == FLUID_USER_LIQUID || state == FLUID_USER_VAPOR;
    EnableTyping();
    if (taken) TakeOver();
}

std::string FluidPage::Summary() const {
    const FLUIDSTATE state = fluid_.GetFluidState();
    const bool own = state == FLUID_USER_LIQUID || state == FLUID_USER_VAPOR;
    if (state == FLUID_NONE || (own && !complete_)) return {};
    const bool liquid = state == FLUID_LIQUID || state == FLUID_USER_LIQUID;
    std::string phase = Say(liquid ? Text::Liquid : Text::Vapor);
    std::erase(phase, '&');
    const Units& units = site_.units;
    return std::string(fluid_.GetFluidName()) + ", " + phase + ", " +
           Number(fluid_.GetTemperature()) + ' ' + units.GetString(HF_TEMPERATURE) + ", " +
           Number(fluid_.GetPressure()) + ' ' + units.GetString(HF_PRESSURE) + ", " +
           Number(fluid_.GetUDensity()) + ' ' + units.GetString(HF_DENSITY);
}

}  // namespace demo
