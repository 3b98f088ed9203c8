#include "tables/VaporDensity.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "hydrofacts/formula/Constants.h"
#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

// A cubic equation does well away from the critical point and on the gas side of it; near it the
// density of every one is off by ten percent and more.
constexpr double kLargestDeviation = 7.5;  // percent
constexpr double kUncheckedLimit = 0.5;    // of the critical pressure

double PercentOff(const CFormula& equation, const FluidConstants& constants,
                  const GasState& state) {
    const double density =
        equation.CalcResult(state.temperature, state.pressure, constants.molecularWeight,
                            constants.criticalTemperature, constants.criticalPressure);
    return 100.0 * std::fabs(density / state.density - 1.0);
}

// To three significant digits.
double RoundDown(double pressure) {
    const double step = std::pow(10.0, std::floor(std::log10(pressure)) - 2.0);
    return RoundToDigits(std::floor(pressure / step + 1e-9) * step, 3);
}

// The highest pressure among the check states with no bad state at it or below; 0 if there is none.
double GoodUpTo(const CFormula& equation, const FluidData& fluid, const Range& range) {
    std::set<double> pressures;
    double lowestBad = INFINITY;
    for (const GasState& state : fluid.gasStates) {
        if (!range.Holds(state.temperature)) {
            continue;
        }
        pressures.insert(state.pressure);
        if (!(PercentOff(equation, fluid.constants, state) <= kLargestDeviation)) {
            lowestBad = std::min(lowestBad, state.pressure);
        }
    }
    const auto firstBad = pressures.lower_bound(lowestBad);
    return firstBad == pressures.begin() ? 0.0 : RoundDown(*std::prev(firstBad));
}

VaporDensity Assess(int type, const FluidData& fluid, const Range& range) {
    const CFormula equation = EquationFormula(type, fluid.constants);
    VaporDensity result;
    result.equation = type;
    result.checkSource = fluid.check.at(Property::GasHeatCapacity).source;
    result.maxPressure = fluid.options.vaporMaxPressure.value_or(GoodUpTo(equation, fluid, range));
    Deviation& deviation = result.deviation;
    double sum = 0.0;
    for (const GasState& state : fluid.gasStates) {
        if (!range.Holds(state.temperature) || state.pressure > result.maxPressure) {
            continue;
        }
        const double percent = PercentOff(equation, fluid.constants, state);
        if (deviation.count == 0) {
            deviation.range = {state.temperature, state.temperature};
        }
        deviation.range.min = std::min(deviation.range.min, state.temperature);
        deviation.range.max = std::max(deviation.range.max, state.temperature);
        if (percent > deviation.largest) {
            deviation.largest = percent;
            deviation.largestAt = state.temperature;
            result.largestAtPressure = state.pressure;
        }
        sum += percent;
        ++deviation.count;
    }
    deviation.mean = deviation.count == 0 ? 0.0 : sum / static_cast<double>(deviation.count);
    return result;
}

}  // namespace

CFormula EquationFormula(int equation, const FluidConstants& constants) {
    std::string record =
        "P5\t" + std::to_string(equation) + "\t" + ExactNumber(constants.acentricFactor);
    CFormula formula;
    formula.LoadFormula(4, record.data(), constants.criticalTemperature,
                        constants.criticalPressure);
    return formula;
}

VaporDensity ChooseVaporDensity(const FluidData& fluid, const Range& range) {
    const int wanted = fluid.options.equation;
    const int usual = wanted == 0 ? kPengRobinson : wanted;
    VaporDensity best;
    best.equation = usual;
    const bool checked =
        std::any_of(fluid.gasStates.begin(), fluid.gasStates.end(),
                    [&](const GasState& state) { return range.Holds(state.temperature); });
    if (!checked) {
        best.maxPressure = fluid.options.vaporMaxPressure.value_or(
            kUncheckedLimit * fluid.constants.criticalPressure);
    } else {
        best = Assess(usual, fluid, range);
    }
    if (wanted != 0) {
        best.reason = "Peng-Robinson is poor for this gas far above its critical point";
        return best;
    }
    for (const int type : {kSoaveRedlichKwong, kRedlichKwong}) {
        VaporDensity other = checked ? Assess(type, fluid, range) : best;
        if (other.maxPressure >= best.maxPressure &&
            other.deviation.largest < 0.5 * best.deviation.largest) {
            other.reason = "Peng-Robinson is off by up to " +
                           RoundedNumber(best.deviation.largest, 2) + "% here";
            best = other;
        }
    }
    if (best.maxPressure <= 0.0) {
        best.reason = "no equation of state is within " + RoundedNumber(kLargestDeviation, 2) +
                      "% of the gas density, even at low pressure";
    }
    return best;
}

}  // namespace hydrofacts::tables
