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
// A published row is used if it is sound over this part of its range.
constexpr double kLeastSound = 0.4;
// How far a published vapor pressure may miss the critical pressure, and up to which parts of the
// critical temperature it may still be followed when it misses by more.
constexpr double kCriticalTolerance = 0.04;
constexpr double kWorstMiss = 2.5;  // times the critical pressure, or its part
constexpr double kFollowRowTo[] = {0.9, 0.8, 0.7};
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

std::string Kelvins(const Range& range) {
    return RoundedNumber(range.min, 5) + " to " + RoundedNumber(range.max, 5) + " K";
}

// What is left of a row's range.
Range WithoutWithheld(Property property, const FluidData& fluid, Range range) {
    const auto found = fluid.withheld.find(property);
    if (found == fluid.withheld.end() || found->second.maxTemperature <= range.min ||
        found->second.minTemperature >= range.max) {
        return range;
    }
    if (found->second.minTemperature > range.min) {
        range.max = found->second.minTemperature;
    } else {
        range.min = std::min(found->second.maxTemperature, range.max);
    }
    return range;
}

// The row with the widest share of the wanted range among those that the format can carry, where
// it is sound.
Choice FromHandbookRows(Property property, const FluidData& fluid, const Range& wanted) {
    const std::string name = PropertyName(property);
    Choice best{{}, "no " + name + ": there are no data"};
    const auto rows = fluid.handbook.find(property);
    if (rows == fluid.handbook.end()) {
        return best;
    }
    for (const HandbookRow& row : rows->second) {
        const auto formula = FromHandbook(property, row, fluid.constants);
        if (!formula) {
            continue;
        }
        const Range published{row.minTemperature, row.maxTemperature};
        const Range usable = WithoutWithheld(property, fluid, published);
        if (usable.Span() <= 0.0) {
            best.reason = "no " + name + ": the published row is withheld, " +
                          fluid.withheld.at(property).reason;
            continue;
        }
        const Range range = Overlap(usable, wanted);
        if (range.Span() <= 0.0) {
            best.reason = "no " + name + ": the published row holds from " + Kelvins(usable) +
                          ", the table from " + Kelvins(wanted);
            continue;
        }
        // Whether a vapor pressure is sound is a matter of the whole curve.
        const Range sound =
            IsSaturation(property) ? usable : SoundPart(property, *formula, fluid.constants, range);
        if (sound.Span() < kLeastSound * range.Span()) {
            best.reason = "no " + name + ": the published row goes the wrong way over most of " +
                          Kelvins(range);
            continue;
        }
        if (!best.formula ||
            Overlap(sound, wanted).Span() > Overlap(best.formula->range, wanted).Span()) {
            const bool whole = IsSaturation(property) || sound.Span() == range.Span();
            best.formula =
                ChosenFormula{*formula,
                              whole ? usable : sound,
                              row.source + (whole ? "" : ", less what goes the wrong way"),
                              false,
                              {},
                              {}};
        }
    }
    return best;
}

// Whether state finding can use the vapor pressure up to the critical point, and the limit of the
// compressibility above it.
bool MeetsCriticalPoint(const CFormula& formula, const FluidConstants& constants,
                        const Range& range) {
    const double tc = constants.criticalTemperature;
    const double atCritical = Evaluate(formula, constants, tc) / constants.criticalPressure;
    return std::fabs(atCritical - 1.0) <= kCriticalTolerance &&
           HasSoundShape(Property::VaporPressure, formula, constants, {range.min, tc});
}

// A vapor pressure that follows a published row up to a temperature and meets the critical point.
std::optional<ChosenFormula> ThroughCriticalPoint(const ChosenFormula& row,
                                                  const FluidConstants& constants, double upTo) {
    constexpr Property kProperty = Property::VaporPressure;
    const double tc = constants.criticalTemperature;
    const Range follow{row.range.min, std::min(row.range.max, upTo)};
    std::vector<WeightedPoint> points;
    std::vector<Point> between;
    // Even in 1/T, as the curve is.
    for (int i = 0; i <= 2 * kHandbookPoints; ++i) {
        const double share = static_cast<double>(i) / (2 * kHandbookPoints);
        const double t = 1.0 / (1.0 / follow.min + share * (1.0 / follow.max - 1.0 / follow.min));
        const double value = Evaluate(row.formula, constants, t);
        if (i % 2 == 0) {
            points.push_back({t, value, 1.0});
        } else {
            between.push_back({t, value});
        }
    }
    points.push_back({tc, constants.criticalPressure, 1.0});
    const auto fit = FitProperty(kProperty, constants, points, [&](const CFormula& formula) {
        return MeetsCriticalPoint(formula, constants, follow);
    });
    if (!fit) {
        return std::nullopt;
    }
    const Deviation deviation = Measure(*fit, constants, between, follow);
    if (deviation.largest > LargestAccepted(kProperty)) {
        return std::nullopt;
    }
    ChosenFormula result = row;
    result.formula = *fit;
    result.range.max = tc;
    result.source = "fitted to the row of " + row.source + ", " + Kelvins(follow) +
                    " (follows it to " + RoundedNumber(deviation.largest, 2) +
                    "%), and to the critical point, which that row misses";
    return result;
}

Choice ThroughCriticalPoint(const ChosenFormula& row, const FluidConstants& constants) {
    const double tc = constants.criticalTemperature;
    const double atCritical = Evaluate(row.formula, constants, tc) / constants.criticalPressure;
    const bool near = atCritical * kWorstMiss > 1.0 && atCritical < kWorstMiss;
    for (const double share : kFollowRowTo) {
        if (!near) {
            break;
        }
        if (auto result = ThroughCriticalPoint(row, constants, share * tc)) {
            return {std::move(result), ""};
        }
    }
    const std::string follows = ", and no formula that meets it follows the row to " +
                                RoundedNumber(LargestAccepted(Property::VaporPressure), 2) + "%";
    return {{},
            "no vapor pressure: at the critical point the published row gives " +
                RoundedNumber(atCritical, 3) + " times the critical pressure" +
                (near ? follows : "")};
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

// A row that is not sound, or leaves a part of the range out, gives way to any fit that is good.
bool IsBetter(const ChosenFormula& fit, const ChosenFormula& row, Property property,
              const FluidData& fluid, const Range& wanted) {
    const double accepted = LargestAccepted(property);
    const bool rowIsGood =
        row.deviation.largest <= accepted && !LeavesGap(row.range, wanted) &&
        HasSoundShape(property, row.formula, fluid.constants, Overlap(row.range, wanted));
    return fit.deviation.largest < row.deviation.largest ||
           (fit.deviation.largest <= accepted && !rowIsGood);
}

}  // namespace

double LargestAccepted(Property property) {
    return property == Property::LiquidViscosity || property == Property::GasViscosity ? 5.0 : 2.0;
}

Choice ChooseFormula(Property property, const FluidData& fluid, const Range& wanted) {
    Choice choice = FromHandbookRows(property, fluid, wanted);
    std::optional<ChosenFormula>& row = choice.formula;
    const auto check = fluid.check.find(property);
    if (check != fluid.check.end()) {
        if (row) {
            Judge(*row, fluid, check->second, wanted);
        }
        std::optional<ChosenFormula> fit =
            FitToCheckData(property, fluid, check->second, wanted, row);
        if (fit) {
            Judge(*fit, fluid, check->second, wanted);
            if (!row || IsBetter(*fit, *row, property, fluid, wanted)) {
                return {std::move(fit), ""};
            }
        }
    }
    if (row && property == Property::VaporPressure &&
        !MeetsCriticalPoint(row->formula, fluid.constants, row->range)) {
        return ThroughCriticalPoint(*row, fluid.constants);
    }
    return choice;
}

}  // namespace hydrofacts::tables
