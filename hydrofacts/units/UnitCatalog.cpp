// The catalogs of units and the lookups over them.

#include <cstddef>
#include <span>

#include "hydrofacts/units/Units.h"
#include "quillbase/Text.h"

// Texts are Windows-1252: \xB0 is the degree sign, \xB2 and \xB3 are the raised 2 and 3. Several
// factors are the customary rounded figures of the trade (1 kg/m = 0.6721 lb/ft, 1 sg = 997.2
// kg/m³, 1 cfm = 7.4805195 gpm): results agree with hand calculation, not with the last known
// digit.
// clang-format off

// Conversion is by ConvertTemp; no factor.
constinit std::array<Units::t_unit, 4> Units::Temperature = {{
    {HF_DEG_F,  "\xB0" "F", 0.0, false},
    {HF_DEG_R,  "\xB0" "R", 0.0, false},
    {HF_DEG_C,  "\xB0" "C", 0.0, false},
    {HF_KELVIN, " K",       0.0, false},
}};

// True pressures convert by ConvertPressure; no factor. For a head the factor is what divides length
// times density in lb/ft³ to give psi.
constinit std::array<Units::t_unit, 14> Units::Pressure = {{
    {HF_PSI,     "psi",    0.0,                   false},
    {HF_IN_H2O,  "in H2O", 0.0,                   false},
    {HF_IN_HG,   "in Hg",  0.0,                   false},
    {HF_KPA,     "kPa",    0.0,                   false},
    {HF_PA,      "Pa",     0.0,                   false},
    {HF_BAR,     "bar",    0.0,                   false},
    {HF_MM_H2O,  "mm H2O", 0.0,                   false},
    {HF_MM_HG,   "mm Hg",  0.0,                   false},
    {HF_HEAD_FT, "ft",     144.0,                 false},
    {HF_HEAD_M,  "m",      43.891200000000005,    false},
    {HF_HEAD_IN, "in",     1728.0,                false},
    {HF_HEAD_MM, "mm",     43891.200000000004,    false},
    {HF_FT_H2O,  "ft H2O", 144.0,                 false},
    {HF_M_H2O,   "m H2O",  43.891200000000005,    false},
}};

// Volume: US gpm in one unit. Mass: US gpm in one unit, times the density in kg/m³. Standard volume:
// standard cubic feet per minute in one unit.
constinit std::array<Units::t_unit, 26> Units::Flow = {{
    {HF_US_GPM,     "US gpm",      1.0,                  false},
    {HF_MGD,        "mgd",         694.44444,            false},
    {HF_CFM,        "cfm",         7.4805195,            false},
    {HF_CFS,        "cfs",         448.83117,            false},
    {HF_BPH,        "bph",         0.7,                  false},
    {HF_BPD,        "bpd",         0.029166666666666664, false},
    {HF_LB_HR,      "lb/hr",       1.9971,               false},
    {HF_LB_SEC,     "lb/sec",      7189.56,              false},
    {HF_LB_MIN,     "lb/min",      119.82600000000001,   false},
    {HF_MLB_HR,     "Mlb/hr",      1997100.0,            false},
    {HF_M3_DAY,     "m\xB3/day",   0.1834528125,         false},
    {HF_M3_HR,      "m\xB3/hr",    4.4028675,            false},
    {HF_M3_S,       "m\xB3/s",     15850.323,            false},
    {HF_LPM,        "lpm",         0.26417205,           false},
    {HF_L_S,        "l/s",         15.850323,            false},
    {HF_KG_HR,      "kg/hr",       4.4028675,            false},
    {HF_KG_SEC,     "kg/sec",      15850.323,            false},
    {HF_KG_MIN,     "kg/min",      264.17205,            false},
    {HF_GG_HR,      "Gg/hr",       4402867.5,            false},
    {HF_SCFH,       "scfh",        0.016666666666666666, false},
    {HF_SCFS,       "scfs",        60.0,                 false},
    {HF_SCFM,       "scfm",        1.0,                  false},
    {HF_SM3_HR,     "sm\xB3/hr",   0.58857778,           false},
    {HF_SM3_S,      "sm\xB3/s",    2118.880008,          false},
    {HF_SM3_MIN,    "sm\xB3/min",  35.314666800000005,   false},
    {HF_FLOW_OTHER, "OTHER",       0.0,                  false},
}};

// kg/m³ in one unit.
constinit std::array<Units::t_unit, 4> Units::Density = {{
    {0, "lb/ft\xB3", 16.018463, false},
    {1, "kg/m\xB3",  1.0,       false},
    {2, "sg",        997.2,     false},
    {3, "OTHER",     0.0,       false},
}};

// Converted with the fluid's density; the factor is not read.
constinit std::array<Units::t_unit, 2> Units::Viscosity = {{
    {0, "cP",  1.0, false},
    {1, "cSt", 1.0, false},
}};

// m/s in one unit.
constinit std::array<Units::t_unit, 3> Units::Velocity = {{
    {0, "m/s",   1.0,    false},
    {1, "ft/s",  0.3048, false},
    {2, "OTHER", 0.0,    false},
}};

// kW in one unit.
constinit std::array<Units::t_unit, 3> Units::Power = {{
    {0, "kW",    1.0,        false},
    {1, "hp",    0.74569987, false},
    {2, "OTHER", 0.0,        false},
}};

// Metres in one unit.
constinit std::array<Units::t_unit, 9> Units::Length = {{
    {HF_LEN_M,     "m",     1.0,      false},
    {HF_LEN_KM,    "km",    1000.0,   false},
    {HF_LEN_CM,    "cm",    0.01,     false},
    {HF_LEN_MM,    "mm",    0.001,    false},
    {HF_LEN_IN,    "in",    0.0254,   false},
    {HF_LEN_FT,    "ft",    0.3048,   false},
    {HF_LEN_YD,    "yd",    0.9144,   false},
    {HF_LEN_MI,    "mi",    1609.344, false},
    {HF_LEN_OTHER, "OTHER", 0.0,      false},
}};

// m² in one unit.
constinit std::array<Units::t_unit, 5> Units::Area = {{
    {0, "m\xB2",  1.0,        false},
    {1, "ft\xB2", 0.09290304, false},
    {2, "in\xB2", 0.00064516, false},
    {3, "mm\xB2", 0.000001,   false},
    {4, "cm\xB2", 0.0001,     false},
}};

// lb/ft in one unit.
constinit std::array<Units::t_unit, 2> Units::ThrustPerLength = {{
    {0, "lb/ft", 1.0,    false},
    {1, "kg/m",  0.6721, false},
}};

// clang-format on

namespace {

// The rows of the two catalogs whose display order is not the order of ids, by id; in the others a
// row's id is its place.
constexpr unsigned char kPressureRow[] = {0, 3, 5, 1, 2, 6, 7, 4, 8, 9, 10, 11, 12, 13};
constexpr unsigned char kFlowRow[] = {0,  1,  2,  3,  4,  6,  7,  8,  9,  11, 12, 13, 14,
                                      15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 5,  10, 25};

}  // namespace

// By measure.
constexpr Units::Catalog Units::kCatalogs[kMeasures] = {
    {Temperature.data(), nullptr, Temperature.size(), Basis::kOther},
    {Pressure.data(), kPressureRow, Pressure.size(), Basis::kPressure},
    {Flow.data(), kFlowRow, Flow.size(), Basis::kOther},
    {Density.data(), nullptr, Density.size(), Basis::kRatio},
    {Viscosity.data(), nullptr, Viscosity.size(), Basis::kOther},
    {Velocity.data(), nullptr, Velocity.size(), Basis::kRatio},
    {Power.data(), nullptr, Power.size(), Basis::kRatio},
    {Length.data(), nullptr, Length.size(), Basis::kRatio},
    {Pressure.data(), kPressureRow, Pressure.size(), Basis::kPressure},
    {Area.data(), nullptr, Area.size(), Basis::kRatio},
    {ThrustPerLength.data(), nullptr, ThrustPerLength.size(), Basis::kRatio},
    {Pressure.data(), kPressureRow, Pressure.size(), Basis::kPressure},
};

Units::t_unit* Units::GetTUnitArray(HF_UNIT_TYPES type, int& count) {
    if (static_cast<unsigned>(type) >= kMeasures) return nullptr;
    const Catalog& catalog = kCatalogs[type];
    count = static_cast<int>(catalog.count);
    return catalog.rows;
}

Units::t_unit Units::GetTUnit(HF_UNIT_TYPES type, int id) { return FindRow(type, id); }

int Units::GetUnit(const char* text, HF_UNIT_TYPES type) {
    int count = 0;
    const t_unit* rows = GetTUnitArray(type, count);
    if (rows == nullptr) return -1;
    for (const t_unit& row : std::span(rows, static_cast<std::size_t>(count))) {
        if (quillbase::EqualIgnoringCase(row.text, text)) return row.id;
    }
    return -1;
}

const char* Units::GetString(HF_UNIT_TYPES type, int id) {
    int count = 0;
    const t_unit* rows = GetTUnitArray(type, count);
    if (rows == nullptr || id < 0 || id >= count) return nullptr;
    return FindRow(type, id).text;
}

const char* Units::GetString(HF_UNIT_TYPES type) const {
    return GetString(type, GetUserUnit(type));
}
