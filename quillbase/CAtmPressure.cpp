#include "quillbase/CAtmPressure.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "quillbase/IniFile.h"
#include "quillbase/Numbers.h"
#include "quillbase/Text.h"
#include "quillbase/UnitScales.h"

namespace {

constexpr double kStandardAtmosphereKPa = 101.325;

constexpr std::string_view kSection = "Atmosphere";
constexpr std::string_view kPressureKey = "Pressure";
constexpr std::string_view kUnitKey = "Unit";

// By id. The file names the unit by text, so that a person can read and edit it.
constexpr std::array<std::string_view, 8> kUnitTexts = {
    "psi", "kPa", "bar", "in H2O", "in Hg", "mm H2O", "mm Hg", "Pa",
};

HF_PUNITS TruePressure(HF_PUNITS unit) { return quillbase::IsTruePressure(unit) ? unit : HF_PSI; }

}  // namespace

CAtmPressure::CAtmPressure() : value_(kStandardAtmosphereKPa), unit_(HF_KPA) {}

CAtmPressure::~CAtmPressure() = default;

void CAtmPressure::SetValue(double value, HF_PUNITS unit) {
    value_ = value;
    unit_ = TruePressure(unit);
}

double CAtmPressure::Value(HF_PUNITS unit) const {
    return quillbase::PressureIn(unit, value_, unit_);
}

bool CAtmPressure::GetFromINI(char* file) {
    const quillbase::IniFile ini(file);
    const auto pressure = ini.Value(kSection, kPressureKey);
    const auto unitText = ini.Value(kSection, kUnitKey);
    if (!pressure || !unitText) return false;

    double value = 0.0;
    if (quillbase::ScanReal(pressure->c_str(), &value) != 1) return false;
    if (!std::isfinite(value) || value < 0.0) return false;
    for (std::size_t id = 0; id < kUnitTexts.size(); ++id) {
        if (quillbase::EqualIgnoringCase(*unitText, kUnitTexts[id])) {
            SetValue(value, static_cast<HF_PUNITS>(id));
            return true;
        }
    }
    return false;
}

bool CAtmPressure::SetToINI(double value, HF_PUNITS unit, char* file) {
    quillbase::IniFile ini(file);
    ini.SetValue(kSection, kPressureKey, quillbase::RealToText(value));
    ini.SetValue(kSection, kUnitKey, kUnitTexts[static_cast<std::size_t>(TruePressure(unit))]);
    return ini.Save();
}
