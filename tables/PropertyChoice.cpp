#include "tables/PropertyChoice.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "tables/Fit.h"
#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

// Part of the wanted range that a published row may leave out at an end.
constexpr double kTolerableGap = 0.08;
// Weight of points outside the liquid range: there the saturation pressure only has to be sensible.
constexpr double kOuterWeight = 0.05;
// Weight of the points that a gas fit takes from the published row, above the check data.
constexpr double kHandbookWeight = 0.3;
constexpr int kHandbookPoints = 24;
// The triple point of water lies this far above 0 degrees Celsius, with room for rounding. K.
constexpr double kHair = 0.025;

bool IsGas(Property property) {
    return property == Property::GasViscosity || property == Property::GasHeatCapacity;
}

bool IsSaturation(Property property) {
    return property == Property::VaporPressure || property == Property::DewPressure;
}

Range Overlap(const Range& a, const Range& b) {
    return {std::max(a.min, b.min), std::min(a.max, b.max)};
}

// The row with the widest share of the wanted range among those that the format can carry.
std::optional<ChosenFormula> FromHandbookRows(Property property, const FluidData& fluid,
                                              const Range& wanted) {
    std::optional<ChosenFormula> best;
    const auto rows = fluid.handbook.find(property);
    if (rows == fluid.handbook.end()) {
        return best;
    }
    for (const HandbookRow& row : rows->second) {
        const auto formula = FromHandbook(property, row, fluid.constants);
        const Range range{row.minTemperature, row.maxTemperature};
        if (formula && Overlap(range, wanted).Span() > 0.0 &&
            (!best || Overlap(range, wanted).Span() > Overlap(best->range, wanted).Span())) {
            best = ChosenFormula{*formula, range, row.source, false, {}, {}};
        }
    }
    return best;
}

// The points within the wanted range, and one more beyond each end, which holds the fit there.
std::vector<WeightedPoint> CheckPointsToFit(Property property, const FluidData& fluid,
                                            const CheckPoints& check, const Range& wanted) {
    const double liquidMax = fluid.options.liquidMax.value_or(INFINITY);
    std::vector<WeightedPoint> points;
    for (std::size_t i = 0; i < check.fit.size(); ++i) {
        const bool beforeRange =
            i + 1 < check.fit.size() && check.fit[i + 1].temperature < wanted.min;
        const bool behindRange = i > 0 && check.fit[i - 1].temperature > wanted.max;
        if (beforeRange || behindRange) {
            continue;
        }
        const Point& point = check.fit[i];
        const bool outer = IsSaturation(property) && point.temperature > liquidMax;
        points.push_back({point.temperature, point.value, outer ? kOuterWeight : 1.0});
    }
    return points;
}

// What the points cover of the wanted range. It may begin a hair before the first of them.
Range RangeOfFit(const std::vector<WeightedPoint>& points, const Range& wanted) {
    const Range covered{points.front().temperature - kHair, points.back().temperature};
    return Overlap(covered, wanted);
}

// A fit needs a hold up to the end of its range, where the check data end before it.
void AddHandbookPoints(std::vector<WeightedPoint>& points, const ChosenFormula& row,
                       const FluidConstants& constants, const Range& range) {
    for (int i = 0; i <= kHandbookPoints; ++i) {
        const double t =
            range.min * std::pow(range.max / range.min, static_cast<double>(i) / kHandbookPoints);
        points.push_back({t, Evaluate(row.formula, constants, t), kHandbookWeight});
    }
}

std::optional<ChosenFormula> FitToCheckData(Property property, const FluidData& fluid,
                                            const CheckPoints& check, const Range& wanted,
                                            const std::optional<ChosenFormula>& row) {
    std::vector<WeightedPoint> points = CheckPointsToFit(property, fluid, check, wanted);
    if (points.empty()) {
        return std::nullopt;
    }
    ChosenFormula result;
    result.fitted = true;
    result.range = RangeOfFit(points, wanted);
    if (result.range.Span() <= 0.0) {
        return std::nullopt;
    }
    result.source = "fitted to " + check.source;
    if (IsGas(property) && row && Overlap(row->range, wanted).max > 1.1 * result.range.max) {
        const double end = Overlap(row->range, wanted).max;
        AddHandbookPoints(points, *row, fluid.constants, {1.05 * result.range.max, end});
        result.source +=
            " and above " + RoundedNumber(result.range.max, 5) + " K to " + row->source;
        result.range.max = end;
    }
    if (IsSaturation(property)) {
        points.push_back(
            {fluid.constants.criticalTemperature, fluid.constants.criticalPressure, kOuterWeight});
        result.range.max = fluid.constants.criticalTemperature;
    }
    const auto fit = FitProperty(property, fluid.constants, points, [&](const CFormula& formula) {
        return HasSoundShape(property, formula, fluid.constants, result.range);
    });
    if (!fit) {
        return std::nullopt;
    }
    result.formula = *fit;
    return result;
}

void Judge(ChosenFormula& choice, const FluidData& fluid, const CheckPoints& check,
           const Range& wanted) {
    std::vector<Point> points = check.judge;
    if (!choice.fitted) {
        points.insert(points.end(), check.fit.begin(), check.fit.end());
    }
    choice.checkSource = check.source;
    choice.deviation =
        Measure(choice.formula, fluid.constants, points, Overlap(choice.range, wanted));
}

bool LeavesGap(const Range& range, const Range& wanted) {
    const double gap = kTolerableGap * wanted.Span();
    return range.min > wanted.min + gap || range.max < wanted.max - gap;
}

}  // namespace

double LargestAccepted(Property property) {
    return property == Property::LiquidViscosity || property == Property::GasViscosity ? 5.0 : 2.0;
}

std::optional<ChosenFormula> ChooseFormula(Property property, const FluidData& fluid,
                                           const Range& wanted) {
    std::optional<ChosenFormula> row = FromHandbookRows(property, fluid, wanted);
    const auto check = fluid.check.find(property);
    if (check == fluid.check.end()) {
        return row;
    }
    bool rowIsGood = false;
    if (row) {
        Judge(*row, fluid, check->second, wanted);
        rowIsGood =
            row->deviation.largest <= LargestAccepted(property) &&
            HasSoundShape(property, row->formula, fluid.constants, Overlap(row->range, wanted));
        if (rowIsGood && !LeavesGap(row->range, wanted) && !fluid.options.fitAlways) {
            return row;
        }
    }
    std::optional<ChosenFormula> fit = FitToCheckData(property, fluid, check->second, wanted, row);
    if (!fit) {
        return row;
    }
    Judge(*fit, fluid, check->second, wanted);
    if (!row) {
        return fit;
    }
    // A row that is not sound, or leaves a part of the range out, gives way to any fit that is
    // sound.
    const bool fitIsGood = fit->deviation.largest <= LargestAccepted(property);
    const bool widens = fitIsGood && (!rowIsGood || LeavesGap(row->range, wanted));
    return widens || fit->deviation.largest < row->deviation.largest ? fit : row;
}

}  // namespace hydrofacts::tables
