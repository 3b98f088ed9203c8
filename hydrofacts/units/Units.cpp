#include "hydrofacts/units/Units.h"

#include <cstddef>
#include <optional>
#include <span>

#include "quillbase/Text.h"

namespace {

// By measure. The two that are not obvious: length is a pipe's diameter, power a pump's.
// clang-format off
constexpr std::array<int, 12> kUsUnits = {
    HF_DEG_F,    HF_PSI,
    HF_US_GPM,   0,  // lb/ft³
    0,           1,  // cP, ft/s
    1,           HF_LEN_IN,  // hp
    HF_HEAD_FT,  2,  // in²
    0,           HF_HEAD_FT,  // lb/ft
};
constexpr std::array<int, 12> kMetricUnits = {
    HF_DEG_C,    HF_BAR,
    HF_M3_HR,    1,  // kg/m³
    0,           0,  // cP, m/s
    0,           HF_LEN_MM,  // kW
    HF_HEAD_M,   4,  // cm²
    1,           HF_HEAD_M,  // kg/m
};
// clang-format on

std::optional<int> CustomUnitId(HF_UNIT_TYPES type) {
    switch (type) {
        case HF_FLOW:
            return HF_FLOW_OTHER;
        case HF_DENSITY:
            return 3;
        case HF_VELOCITY:
        case HF_POWER:
            return 2;
        case HF_LENGTH:
            return HF_LEN_OTHER;
        default:
            return std::nullopt;
    }
}

}  // namespace

Units::Units(HF_UNITS system) : m_absolute(true), m_userUnits{} { SetSystem(system, true); }

// NOLINTNEXTLINE(bugprone-copy-constructor-init): the copy has the standard atmosphere
Units::Units(const Units& other)
    : CAtmPressure(), m_absolute(other.m_absolute), m_userUnits(other.m_userUnits) {
    SetSystem(other.m_system, false);
}

Units& Units::operator=(const Units& other) {
    if (this == &other) return *this;
    SetSystem(other.m_system, true);
    m_userUnits = other.m_userUnits;
    m_absolute = other.m_absolute;
    CAtmPressure::operator=(other);
    return *this;
}

Units::~Units() = default;

void Units::SetSystem(HF_UNITS system, bool setDefaults) {
    m_system = system;
    if (setDefaults) m_userUnits = system == HF_US ? kUsUnits : kMetricUnits;
}

bool Units::bUS() const { return m_system == HF_US; }

bool Units::bMetric() const { return m_system == HF_METRIC; }

Units* Units::defaultUnits() { return &basic_units; }

int Units::GetUserUnit(HF_UNIT_TYPES type) const {
    return m_userUnits[static_cast<std::size_t>(type)];
}

int Units::SetUserUnit(HF_UNIT_TYPES type, int id) {
    const int former = GetUserUnit(type);
    m_userUnits[static_cast<std::size_t>(type)] = id;
    return former;
}

void Units::SetAbsolute(bool absolute) { m_absolute = absolute; }

bool Units::GetAbsolute() const { return m_absolute; }

void Units::InitAtmosphere(char* file) { CAtmPressure::GetFromINI(file); }

void Units::SaveAtmosphere(char* file) {
    const auto unit = static_cast<HF_PUNITS>(GetUserUnit(HF_PRESSURE));
    CAtmPressure::SetToINI(GetAtmosphere(unit, true), unit, file);
}

void Units::SetAtmosphere(double value, HF_PUNITS unit) {
    if (unit == HF_USER_UNIT) unit = static_cast<HF_PUNITS>(GetUserUnit(HF_PRESSURE));
    CAtmPressure::SetValue(value, unit);
}

double Units::GetAtmosphere(HF_PUNITS unit, bool force) const {
    if (m_absolute && !force) return 0.0;
    if (unit == HF_USER_UNIT) unit = static_cast<HF_PUNITS>(GetUserUnit(HF_PRESSURE));
    return CAtmPressure::Value(unit);
}

void Units::SetCustomUnit(HF_UNIT_TYPES type, double factor, const char* text, bool mass_based) {
    const std::optional<int> id = CustomUnitId(type);
    if (!id) return;
    int count = 0;
    t_unit* rows = GetTUnitArray(type, count);
    for (t_unit& row : std::span(rows, static_cast<std::size_t>(count))) {
        if (row.id != *id) continue;
        row.factor = factor;
        rstrncpy(row.text, text, sizeof row.text);
        row.mass_based = mass_based;
    }
}
