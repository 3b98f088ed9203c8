#include "demo/FluidForm.h"

namespace demo {

Rows& Rows::Add(int label, int edit, int unit, DWORD style) {
    constexpr short kLabel = 84;
    constexpr short kEdit = 44;
    constexpr short kUnit = 28;
    constexpr short kStep = 15;
    form_.Static(label, "", {x_, static_cast<short>(y_ + 2), kLabel, 9}, WS_GROUP);
    const auto editX = static_cast<short>(x_ + kLabel + 2);
    form_.Edit(edit, {editX, y_, kEdit, 12}, style);
    if (unit != 0) {
        const auto unitX = static_cast<short>(editX + kEdit + 3);
        form_.Static(unit, "", {unitX, static_cast<short>(y_ + 2), kUnit, 9}, SS_NOPREFIX);
    }
    y_ = static_cast<short>(y_ + kStep);
    return *this;
}

void ShowFluidUnits(HWND dialog, const Units& units) {
    const auto show = [dialog](int control, const char* text) {
        if (IsWindow(GetDlgItem(dialog, control)) != FALSE) SetText(dialog, control, text);
    };
    for (const int control : {kTemperatureUnit, kCriticalTemperatureUnit}) {
        show(control, units.GetString(HF_TEMPERATURE));
    }
    for (const int control : {kPressureUnit, kVaporPressureUnit, kCriticalPressureUnit}) {
        show(control, units.GetString(HF_PRESSURE));
    }
    show(kDensityUnit, units.GetString(HF_DENSITY));
    show(kViscosityUnit, Units::GetString(HF_VISCOSITY, 0));
    show(kMolarMassUnit, "kg/kmol");
}

void EnableFigures(HWND dialog, bool liquid, bool vapor) {
    Enable(dialog, kHeatRatioLabel, kHeatRatio, vapor);
    Enable(dialog, kVaporPressureLabel, kVaporPressureUnit, liquid);
    Enable(dialog, kCriticalPressureLabel, kCriticalPressureUnit, liquid);
}

double ConvertTemperature(const Units& before, const Units& now, double temperature) {
    return now.Convert(HF_TEMPERATURE, temperature, before.GetUserUnit(HF_TEMPERATURE), nullptr);
}

double ConvertPressure(const Units& before, const Units& now, double pressure) {
    const double absolute = pressure + before.GetAtmosphere(HF_USER_UNIT, false);
    return now.Convert(HF_PRESSURE, absolute, before.GetUserUnit(HF_PRESSURE), nullptr) -
           now.GetAtmosphere(HF_USER_UNIT, false);
}

}  // namespace demo
