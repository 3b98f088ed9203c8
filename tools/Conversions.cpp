#include "tools/Conversions.h"

#include "tools/Measures.h"

namespace hydrofacts::command {
namespace {

enum class Kind { kPlain, kHead, kMass, kStandardVolume, kKinematic };

bool IsPressure(HF_UNIT_TYPES type) {
    return type == HF_PRESSURE || type == HF_HEAD || type == HF_HEAD_2;
}

Kind KindOfFlow(int id) {
    if ((id >= HF_LB_HR && id <= HF_MLB_HR) || (id >= HF_KG_HR && id <= HF_GG_HR)) {
        return Kind::kMass;
    }
    return id >= HF_SCFH && id <= HF_SM3_MIN ? Kind::kStandardVolume : Kind::kPlain;
}

// The kind of a unit within its measure: units of one kind have a fixed ratio.
Kind KindOf(HF_UNIT_TYPES type, int id) {
    if (IsPressure(type)) return id >= HF_HEAD_FT && id <= HF_M_H2O ? Kind::kHead : Kind::kPlain;
    if (type == HF_VISCOSITY) return id == 1 ? Kind::kKinematic : Kind::kPlain;
    return type == HF_FLOW ? KindOfFlow(id) : Kind::kPlain;
}

// The unit in which the others of its measure and kind are told.
int BaseUnit(HF_UNIT_TYPES type, Kind kind) {
    switch (type) {
        case HF_DENSITY:
            return 1;  // kg/m³
        case HF_FLOW:
            return kind == Kind::kMass             ? HF_KG_HR
                   : kind == Kind::kStandardVolume ? HF_SCFM
                                                   : HF_US_GPM;
        case HF_PRESSURE:
        case HF_HEAD:
        case HF_HEAD_2:
            return HF_KPA;
        default:
            return 0;
    }
}

const char* TemperatureScale(int id) {
    switch (id) {
        case HF_DEG_F:
            return "K = (\u00B0F + 459.67) / 1.8";
        case HF_DEG_R:
            return "K = \u00B0R / 1.8";
        case HF_DEG_C:
            return "K = \u00B0C + 273.15";
        default:
            return "absolute";
    }
}

const char* FlowRemark(Kind kind) {
    switch (kind) {
        case Kind::kMass:
            return "mass";
        case Kind::kStandardVolume:
            return "standard volume of a gas";
        default:
            return "volume";
    }
}

}  // namespace

std::string WhyFluidIsNeeded(HF_UNIT_TYPES type, int from, int to) {
    const Kind kinds[] = {KindOf(type, from), KindOf(type, to)};
    if (kinds[0] == kinds[1]) return {};
    if (IsPressure(type)) {
        return "a head of fluid and a pressure are joined by the fluid's density";
    }
    if (type == HF_VISCOSITY) return "cP and cSt are joined by the fluid's density";
    const bool standard = kinds[0] == Kind::kStandardVolume || kinds[1] == Kind::kStandardVolume;
    return standard ? "standard volume is joined to other flows by the gas's density and specific "
                      "gravity"
                    : "mass and volume flow are joined by the fluid's density";
}

bool IsStandardVolume(HF_UNIT_TYPES type, int id) {
    return KindOf(type, id) == Kind::kStandardVolume;
}

double ConvertUnits(HF_UNIT_TYPES type, double value, int from, int to, const CFluid* fluid) {
    const Units units;
    if (KindOf(type, from) != Kind::kMass || KindOf(type, to) != Kind::kMass) {
        return units.Convert(type, value, from, to, fluid);
    }
    // The library goes by way of the volume; any density cancels out, and that of 1 kg/m³ exactly.
    CFluid any(HF_DEG_C, HF_BAR, 1, 0.0);
    any.SetFluidProperties("", FLUID_USER_LIQUID, 0.0, 1.0, 1.0, 1.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0);
    return units.Convert(type, value, from, to, &any);
}

UnitMeaning MeaningOf(HF_UNIT_TYPES type, int id) {
    if (IsCustomUnit(type, id)) return {0.0, "", "defined by a program for itself"};
    if (type == HF_TEMPERATURE) return {0.0, "", TemperatureScale(id)};
    const Kind kind = KindOf(type, id);
    if (type == HF_VISCOSITY) {
        return {0.0, "", kind == Kind::kKinematic ? "kinematic, cP by density" : "dynamic"};
    }
    if (kind == Kind::kHead) return {0.0, "", "head of a fluid"};
    const int base = BaseUnit(type, kind);
    return {ConvertUnits(type, 1.0, id, base, nullptr), UnitText(type, base),
            type == HF_FLOW ? FlowRemark(kind) : ""};
}

}  // namespace hydrofacts::command
