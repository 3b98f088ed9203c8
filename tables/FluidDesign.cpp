#include "tables/FluidDesign.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "tables/VaporDensity.h"

namespace hydrofacts::tables {
namespace {

// Close to the critical point the liquid correlations bend away, without check data unnoticed.
constexpr double kLiquidEndChecked = 0.982;   // of the critical temperature
constexpr double kLiquidEndUnchecked = 0.95;  // of the critical temperature
constexpr const char* kNoCommonRange = "the ranges of the formulas have nothing in common";

const ChosenFormula* Find(const FluidTable& table, Property property) {
    const auto found = table.formulas.find(property);
    return found == table.formulas.end() ? nullptr : &found->second;
}

double LowestCheckTemperature(const FluidData& fluid, Property property) {
    const auto check = fluid.check.find(property);
    return check == fluid.check.end() ? 0.0 : check->second.fit.front().temperature;
}

double ToHundredth(double kelvin) { return std::round(kelvin * 100.0) / 100.0; }

Range WantedLiquidRange(const FluidData& fluid) {
    const double tc = fluid.constants.criticalTemperature;
    const bool checked = fluid.check.contains(Property::LiquidDensity);
    const double lowest = std::max(fluid.constants.meltingTemperature,
                                   LowestCheckTemperature(fluid, Property::VaporPressure));
    return {
        fluid.options.liquidMin.value_or(lowest),
        fluid.options.liquidMax.value_or(tc * (checked ? kLiquidEndChecked : kLiquidEndUnchecked))};
}

// The end of what is known of a gas property, published or computed.
double GasDataEnd(const FluidData& fluid, Property property) {
    double end = 0.0;
    if (const auto rows = fluid.handbook.find(property); rows != fluid.handbook.end()) {
        for (const HandbookRow& row : rows->second) {
            end = std::max(end, row.maxTemperature);
        }
    }
    if (const auto check = fluid.check.find(property); check != fluid.check.end()) {
        end = std::max(end, check->second.fit.back().temperature);
    }
    return end;
}

Range WantedVaporRange(const FluidData& fluid, double lowest) {
    const double dataEnd = std::min({kHighestTemperature, GasDataEnd(fluid, Property::GasViscosity),
                                     GasDataEnd(fluid, Property::GasHeatCapacity)});
    return {std::max(lowest, fluid.options.vaporMin.value_or(0.0)),
            std::min(dataEnd, fluid.options.vaporMax.value_or(kHighestTemperature))};
}

// Gives the reason if there is no formula.
std::string Choose(FluidTable& table, const FluidData& fluid, Property property,
                   const Range& wanted) {
    Choice choice = ChooseFormula(property, fluid, wanted);
    if (choice.formula) {
        table.formulas.emplace(property, std::move(*choice.formula));
        return "";
    }
    return choice.reason;
}

std::string Join(const std::string& first, const std::string& second) {
    return first + (first.empty() || second.empty() ? "" : "; ") + second;
}

// The range in which all of the properties hold; nothing if one is missing.
std::optional<Range> CommonRange(const FluidTable& table,
                                 std::initializer_list<Property> properties, Range range) {
    for (const Property property : properties) {
        const ChosenFormula* const formula = Find(table, property);
        if (formula == nullptr) {
            return std::nullopt;
        }
        range.min = std::max(range.min, formula->range.min);
        range.max = std::min(range.max, formula->range.max);
    }
    range = {ToHundredth(range.min), ToHundredth(range.max)};
    return range.max > range.min ? std::optional(range) : std::nullopt;
}

void Drop(FluidTable& table, std::initializer_list<Property> properties) {
    for (const Property property : properties) {
        table.formulas.erase(property);
    }
}

void DesignLiquid(FluidTable& table, const FluidData& fluid, const Range& wanted) {
    table.noLiquid = Join(Choose(table, fluid, Property::LiquidDensity, wanted),
                          Choose(table, fluid, Property::LiquidViscosity, wanted));
    table.liquid = CommonRange(
        table, {Property::VaporPressure, Property::LiquidDensity, Property::LiquidViscosity},
        wanted);
    if (!table.liquid) {
        table.noLiquid = table.noLiquid.empty() ? kNoCommonRange : table.noLiquid;
        Drop(table, {Property::LiquidDensity, Property::LiquidViscosity});
    }
}

void DesignVapor(FluidTable& table, const FluidData& fluid, double lowest) {
    const Range wanted = WantedVaporRange(fluid, lowest);
    for (const Property property : {Property::GasViscosity, Property::GasHeatCapacity}) {
        if (wanted.Span() > 0.0 || GasDataEnd(fluid, property) == 0.0) {
            table.noVapor = Join(table.noVapor, Choose(table, fluid, property, wanted));
        }
    }
    table.vapor = CommonRange(table, {Property::GasViscosity, Property::GasHeatCapacity}, wanted);
    if (table.vapor) {
        table.vaporDensity = ChooseVaporDensity(fluid, *table.vapor);
        if (table.vaporDensity.maxPressure <= 0.0) {
            table.vapor.reset();
            table.noVapor = table.vaporDensity.reason;
        }
    }
    if (!table.vapor) {
        table.noVapor = table.noVapor.empty() ? kNoCommonRange : table.noVapor;
        Drop(table, {Property::GasViscosity, Property::GasHeatCapacity, Property::DewPressure});
    }
}

std::vector<Point> PointsNotFittedTo(const ChosenFormula& formula, const CheckPoints& check) {
    std::vector<Point> points = check.judge;
    if (!formula.fitted) {
        points.insert(points.end(), check.fit.begin(), check.fit.end());
    }
    return points;
}

// The deviations as they are within the ranges that the table ends up with.
void MeasureAgain(FluidTable& table, const FluidData& fluid) {
    const double tc = fluid.constants.criticalTemperature;
    for (auto& [property, formula] : table.formulas) {
        const auto check = fluid.check.find(property);
        if (check == fluid.check.end()) {
            continue;
        }
        const std::vector<Point> points = PointsNotFittedTo(formula, check->second);
        const bool gas =
            property == Property::GasViscosity || property == Property::GasHeatCapacity;
        Range range = gas ? *table.vapor : table.liquid.value_or(Range{0.0, tc});
        if (property == Property::DewPressure) {
            range = {table.vapor->min, tc};
        }
        formula.deviation = Measure(formula.formula, table.constants, points, range);
        if (property == Property::VaporPressure) {
            const Range above{std::nextafter(range.max, tc), tc};
            table.aboveLiquid[property] = Measure(formula.formula, table.constants, points, above);
        }
    }
}

}  // namespace

FluidTable DesignFluid(const FluidData& fluid) {
    FluidTable table;
    table.name = fluid.options.name;
    table.constants = fluid.constants;
    const Range wantedLiquid = WantedLiquidRange(fluid);
    const Range saturation{wantedLiquid.min, fluid.constants.criticalTemperature};
    const std::string noPressure = Choose(table, fluid, Property::VaporPressure, saturation);
    Choose(table, fluid, Property::DewPressure, saturation);
    const ChosenFormula* const vaporPressure = Find(table, Property::VaporPressure);
    if (vaporPressure == nullptr) {
        throw DesignError(noPressure);
    }
    DesignLiquid(table, fluid, wantedLiquid);
    DesignVapor(table, fluid, table.liquid ? table.liquid->min : vaporPressure->range.min);
    if (!table.liquid && !table.vapor) {
        throw DesignError(Join(table.noLiquid, table.noVapor));
    }
    MeasureAgain(table, fluid);
    return table;
}

}  // namespace hydrofacts::tables
