// Conversion between two units of a measure, as far as it needs no fluid.

#include <cstddef>

#include "hydrofacts/units/Heads.h"
#include "hydrofacts/units/Units.h"
#include "quillbase/Conversion.h"
#include "quillbase/UnitScales.h"

using hydrofacts::IsHead;
using hydrofacts::LengthOfHead;
using quillbase::IsTruePressure;
using quillbase::kPascals;

// What is asked for most, a ratio of factors and a true pressure, comes first and calls nothing.
double Units::Convert(HF_UNIT_TYPES type, double value, int from, int to,
                      const CFluid* fluid) const {
    if (from == to) return value;
    if (static_cast<unsigned>(type) >= kMeasures) return value;
    const int userUnit = m_userUnits[static_cast<std::size_t>(type)];
    if (from == HF_USER_UNIT) from = userUnit;
    if (to == HF_USER_UNIT) to = userUnit;
    if (from == to) return value;

    const Catalog& catalog = kCatalogs[type];
    if (catalog.basis == Basis::kRatio) {
        const auto factor = [&catalog](int id) {
            const auto place = static_cast<std::uint32_t>(id);
            return catalog.rows[place < catalog.count ? place : 0].factor;
        };
        return factor(from) * value / factor(to);
    }
    if (catalog.basis == Basis::kPressure && IsTruePressure(from) && IsTruePressure(to)) {
        return value * kPascals[static_cast<std::size_t>(from)] /
               kPascals[static_cast<std::size_t>(to)];
    }
    switch (type) {
        case HF_TEMPERATURE:
            return ConvertTemp(value, static_cast<HF_TUNITS>(from), static_cast<HF_TUNITS>(to));
        case HF_FLOW:
            return Convert_Flow(value, static_cast<HF_FLOW_UNITS>(from),
                                static_cast<HF_FLOW_UNITS>(to), fluid);
        case HF_VISCOSITY:
            return ConvertViscosity(value, from, to, fluid);
        default:
            return ConvertPressureOrHead(value, from, to, fluid);
    }
}

double Units::Convert(HF_UNIT_TYPES type, double value, int from, const CFluid* fluid) const {
    return Convert(type, value, from, HF_USER_UNIT, fluid);
}

double Units::Convert(HF_UNIT_TYPES type, double value, char* from, char* to) const {
    const int fromId = GetUnit(from, type);
    const int toId = GetUnit(to, type);
    if (fromId == -1 || toId == -1) return value;
    return Convert(type, value, fromId, toId, nullptr);
}

double Units::ConvertPressureOrHead(double value, int from, int to, const CFluid* fluid) const {
    const bool fromHead = IsHead(from);
    const bool toHead = IsHead(to);
    if (fromHead && toHead) {
        return Convert(HF_LENGTH, value, LengthOfHead(from), LengthOfHead(to), fluid);
    }
    if (fromHead || toHead) return CrossHeadAndPressure(value, from, to, fluid);
    return ConvertPressure(value, static_cast<HF_PUNITS>(from), static_cast<HF_PUNITS>(to));
}
