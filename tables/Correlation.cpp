#include "tables/Correlation.h"

#include <algorithm>
#include <cmath>

#include "hydrofacts/formula/Constants.h"

namespace hydrofacts::tables {
namespace {

constexpr int kHeatCapacitySlot = 6;
constexpr int kShapeSteps = 400;
constexpr double kLeastAtCritical = 0.98;  // of the critical pressure

CFormula MakeFormula(Property property, int type, const std::array<double, 5>& coefficients) {
    CFormula formula;
    formula.m_slot = SlotOf(property);
    formula.m_type = static_cast<short>(type);
    std::copy(coefficients.begin(), coefficients.end(), formula.m_coefficients);
    return formula;
}

std::array<double, 5> Scaled(std::array<double, 5> coefficients, double factor) {
    for (double& coefficient : coefficients) {
        coefficient *= factor;
    }
    return coefficients;
}

bool Falls(Property property) {
    return property == Property::LiquidDensity || property == Property::LiquidViscosity;
}

bool IsSaturation(Property property) {
    return property == Property::VaporPressure || property == Property::DewPressure;
}

bool StaysUpAboveCritical(const CFormula& formula, const FluidConstants& constants) {
    const double tc = constants.criticalTemperature;
    for (int i = 0; i <= kShapeSteps; ++i) {
        const double t = tc + (kHighestTemperature - tc) * i / kShapeSteps;
        if (!(Evaluate(formula, constants, t) >= kLeastAtCritical * constants.criticalPressure)) {
            return false;
        }
    }
    return true;
}

}  // namespace

int SlotOf(Property property) {
    switch (property) {
        case Property::VaporPressure:
            return 0;
        case Property::DewPressure:
            return 1;
        case Property::LiquidDensity:
            return 2;
        case Property::LiquidViscosity:
            return 3;
        case Property::GasViscosity:
            return 5;
        case Property::GasHeatCapacity:
            break;
    }
    return kHeatCapacitySlot;
}

std::optional<CFormula> FromHandbook(Property property, const HandbookRow& row,
                                     const FluidConstants& constants) {
    const auto is = [&](Property wanted, int form) {
        return property == wanted && row.form == form;
    };
    if (is(Property::VaporPressure, 101) || is(Property::LiquidViscosity, 101) ||
        is(Property::LiquidDensity, 105) || is(Property::GasViscosity, 102) ||
        is(Property::GasHeatCapacity, 107)) {
        return MakeFormula(property, 2, row.coefficients);
    }
    if (is(Property::LiquidDensity, 100)) {  // from kmol/m3
        return MakeFormula(property, 1, Scaled(row.coefficients, constants.molecularWeight));
    }
    if (is(Property::GasHeatCapacity, 100)) {  // from J/(kmol K)
        return MakeFormula(property, 1, Scaled(row.coefficients, 0.001));
    }
    return std::nullopt;
}

double Evaluate(const CFormula& formula, const FluidConstants& constants, double temperature) {
    const double value =
        formula.CalcResult(temperature, 0.0, constants.molecularWeight,
                           constants.criticalTemperature, constants.criticalPressure);
    return formula.m_slot == kHeatCapacitySlot ? kGasConstant * value / (value - 1.0) : value;
}

Deviation Measure(const CFormula& formula, const FluidConstants& constants,
                  std::span<const Point> points, const Range& within) {
    Deviation result;
    double sum = 0.0;
    for (const Point& point : points) {
        if (!within.Holds(point.temperature)) {
            continue;
        }
        const double value = Evaluate(formula, constants, point.temperature);
        double percent = 100.0 * std::fabs(value / point.value - 1.0);
        if (std::isnan(percent)) {
            percent = INFINITY;
        }
        if (result.count == 0) {
            result.range = {point.temperature, point.temperature};
        }
        result.range.min = std::min(result.range.min, point.temperature);
        result.range.max = std::max(result.range.max, point.temperature);
        if (result.count == 0 || percent > result.largest) {
            result.largest = percent;
            result.largestAt = point.temperature;
        }
        sum += percent;
        ++result.count;
    }
    result.mean = result.count == 0 ? 0.0 : sum / static_cast<double>(result.count);
    return result;
}

Range SoundPart(Property property, const CFormula& formula, const FluidConstants& constants,
                const Range& range) {
    Range best{range.min, range.min};
    Range part = best;
    double last = NAN;
    for (int i = 0; i <= kShapeSteps; ++i) {
        const double t = i == kShapeSteps ? range.max : range.min + range.Span() * i / kShapeSteps;
        const double value = Evaluate(formula, constants, t);
        const bool expands = property == Property::LiquidDensity && t < constants.densestAt;
        const bool goesOn =
            property == Property::GasHeatCapacity
                ? value > kGasConstant && last > kGasConstant
                : value > 0.0 && (expands || (Falls(property) ? value < last : value > last));
        if (!goesOn) {
            part.min = t;
        }
        part.max = t;
        last = value > 0.0 ? value : NAN;
        if (part.Span() > best.Span()) {
            best = part;
        }
    }
    return best;
}

bool HasSoundShape(Property property, const CFormula& formula, const FluidConstants& constants,
                   const Range& range) {
    return SoundPart(property, formula, constants, range).Span() == range.Span() &&
           (!IsSaturation(property) || StaysUpAboveCritical(formula, constants));
}

const char* PropertyName(Property property) {
    switch (property) {
        case Property::VaporPressure:
            return "vapor pressure";
        case Property::DewPressure:
            return "dew pressure";
        case Property::LiquidDensity:
            return "liquid density";
        case Property::LiquidViscosity:
            return "liquid viscosity";
        case Property::GasViscosity:
            return "gas viscosity";
        case Property::GasHeatCapacity:
            break;
    }
    return "heat capacity";
}

}  // namespace hydrofacts::tables
