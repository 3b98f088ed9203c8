// The conversions that depend on the density of what flows: head and pressure, cP and cSt, and flow
// by volume, mass and standard volume.

#include <array>
#include <cstddef>

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/units/Heads.h"
#include "hydrofacts/units/Units.h"
#include "quillbase/Conversion.h"

namespace {

using hydrofacts::IsHead;

constexpr double kCentistokesDensity =
    999.93656;  // kg/m³ at which 1 cP is 1 cSt, as customary here

constexpr double kStandardAirDensity = 0.0764;  // lb/ft³, at 60 °F and one atmosphere
constexpr double kGallonsPerCubicFoot = 7.48052;

enum class FlowClass : unsigned char { kNone, kVolume, kMass, kStandard };

// By id. The custom unit is a volume flow unless its row says that it goes by mass.
constexpr std::array<FlowClass, HF_FLOW_OTHER + 1> kFlowClasses = [] {
    std::array<FlowClass, HF_FLOW_OTHER + 1> classes{};
    for (int id = 0; id <= HF_FLOW_OTHER; ++id) {
        const bool mass = (id >= HF_LB_HR && id <= HF_MLB_HR) || (id >= HF_KG_HR && id <= HF_GG_HR);
        const bool standard = id >= HF_SCFH && id <= HF_SM3_MIN;
        classes[static_cast<std::size_t>(id)] = mass       ? FlowClass::kMass
                                                : standard ? FlowClass::kStandard
                                                           : FlowClass::kVolume;
    }
    return classes;
}();

constexpr FlowClass ClassOf(int id) {
    const auto index = static_cast<std::size_t>(id);
    return index < kFlowClasses.size() ? kFlowClasses[index] : FlowClass::kNone;
}

double ActualFlow(double scfm, const CFluid* fluid) {
    if (fluid == nullptr) return 0.0;
    return kStandardAirDensity * scfm * fluid->GetSG() * (1.0 / fluid->GetDensityUS()) *
           kGallonsPerCubicFoot;
}

double StandardFlow(double gpm, const CFluid* fluid) {
    if (fluid == nullptr) return 0.0;
    return (gpm * fluid->GetDensityUS()) /
           (fluid->GetSG() * kGallonsPerCubicFoot * kStandardAirDensity);
}

}  // namespace

double Units::CrossHeadAndPressure(double value, int from, int to, const CFluid* fluid) {
    if (fluid == nullptr) return 0.0;
    const double density = fluid->GetDensityUS();
    const double psi = IsHead(from) ? value * density / FindRow(HF_PRESSURE, from).factor
                                    : ConvertPressure(value, static_cast<HF_PUNITS>(from), HF_PSI);
    return IsHead(to) ? psi * FindRow(HF_PRESSURE, to).factor / density
                      : ConvertPressure(psi, HF_PSI, static_cast<HF_PUNITS>(to));
}

double Units::ConvertViscosity(double value, int from, int to, const CFluid* fluid) {
    constexpr int kCentipoise = 0;
    constexpr int kCentistokes = 1;
    const double density = fluid != nullptr ? fluid->GetDensity() : 0.0;
    if (from == kCentipoise && to == kCentistokes) return value / density * kCentistokesDensity;
    if (from == kCentistokes && to == kCentipoise) return value / kCentistokesDensity * density;
    return value;
}

double Units::Convert_Flow(double value, HF_FLOW_UNITS from, HF_FLOW_UNITS to,
                           const CFluid* fluid) {
    // Ahead of all else: without a fluid a mass flow of zero would be divided by a density of zero.
    if (value == 0.0) return 0.0;
    const t_unit& fromRow = FindRow(HF_FLOW, from);
    const t_unit& toRow = FindRow(HF_FLOW, to);
    // Two volumes or two standard volumes need no density.
    const FlowClass fromClass = ClassOf(from);
    const bool byFactors = fromClass == ClassOf(to) && !fromRow.mass_based && !toRow.mass_based &&
                           (fromClass == FlowClass::kVolume || fromClass == FlowClass::kStandard);
    if (!byFactors) return ConvertFlowByDensity(value, from, to, fluid);
    const double flow = fromRow.factor * value;
    return flow == 0.0 ? 0.0 : flow / toRow.factor;
}

double Units::ConvertFlowByDensity(double value, HF_FLOW_UNITS from, HF_FLOW_UNITS to,
                                   const CFluid* fluid) {
    const t_unit& fromRow = FindRow(HF_FLOW, from);
    const t_unit& toRow = FindRow(HF_FLOW, to);
    if (fromRow.mass_based) return Convert_Flow(value * fromRow.factor, HF_KG_HR, to, fluid);
    if (toRow.mass_based) return Convert_Flow(value, from, HF_KG_HR, fluid) / toRow.factor;

    const double density = fluid != nullptr ? fluid->GetDensity() : 0.0;
    double gpm = 0.0;
    double scfm = 0.0;
    switch (ClassOf(from)) {
        case FlowClass::kVolume:
            gpm = fromRow.factor * value;
            break;
        case FlowClass::kMass:
            gpm = fromRow.factor * value / density;
            break;
        case FlowClass::kStandard:
            scfm = fromRow.factor * value;
            break;
        case FlowClass::kNone:
            break;
    }
    if (gpm == 0.0 && scfm == 0.0) return 0.0;

    switch (ClassOf(to)) {
        case FlowClass::kVolume:
            return (gpm == 0.0 ? ActualFlow(scfm, fluid) : gpm) / toRow.factor;
        case FlowClass::kMass:
            return (gpm == 0.0 ? ActualFlow(scfm, fluid) : gpm) * density / toRow.factor;
        case FlowClass::kStandard:
            return (scfm == 0.0 ? StandardFlow(gpm, fluid) : scfm) / toRow.factor;
        case FlowClass::kNone:
            break;
    }
    return 0.0;
}
