#include "tables/Report.h"

#include <fmt/core.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

constexpr double kAtmosphere = 101.325;  // kPa

/// The row of the report for one property of one fluid.
struct Entry {
    std::string fluid;
    std::string property;
    std::string formula;
    Deviation deviation;
    std::string against;
    double limit;  ///< Percent, beyond which the report speaks of it.
};

constexpr Property kProperties[] = {Property::VaporPressure, Property::DewPressure,
                                    Property::LiquidDensity, Property::LiquidViscosity,
                                    Property::GasViscosity,  Property::GasHeatCapacity};
constexpr const char* kGasDensity = "gas density";
constexpr double kGasDensityLimit = 7.5;  // percent, to which the highest pressures are set

std::string Percent(double value) { return RoundedNumber(value, 2); }

std::string Kelvins(const Range& range) {
    return RoundedNumber(range.min, 5) + " to " + RoundedNumber(range.max, 5);
}

// Where a formula comes from, in a word or two.
std::string Origin(const ChosenFormula& formula) {
    const bool chemsep = formula.source.find("ChemSep") != std::string::npos;
    const bool handbook = formula.source.find("Perry") != std::string::npos;
    const std::string row = chemsep ? "ChemSep" : handbook ? "Perry" : "";
    if (formula.fitted) {
        return row.empty() ? "fit" : "fit, " + row + " above";
    }
    return formula.source.starts_with("fitted") ? row + ", refitted" : row;
}

std::string Points(const Deviation& deviation, bool fitted, const char* what) {
    return fmt::format("{} {}{}", deviation.count, what, fitted ? " not fitted to" : "");
}

std::vector<Entry> EntriesOf(const FluidTable& table) {
    std::vector<Entry> entries;
    for (const Property property : kProperties) {
        const auto found = table.formulas.find(property);
        if (found == table.formulas.end()) {
            continue;
        }
        const ChosenFormula& formula = found->second;
        const auto add = [&](const std::string& name, const Deviation& deviation) {
            if (deviation.count > 0) {
                entries.push_back(
                    {table.name, name, Origin(formula), deviation,
                     Points(deviation, formula.fitted, "points") + ", " + formula.checkSource,
                     LargestAccepted(property)});
            }
        };
        add(PropertyName(property), formula.deviation);
        if (const auto above = table.aboveLiquid.find(property);
            above != table.aboveLiquid.end() && table.liquid) {
            add(std::string(PropertyName(property)) + " above the liquid range", above->second);
        }
    }
    const VaporDensity& vapor = table.vaporDensity;
    if (table.vapor && vapor.deviation.count > 0) {
        entries.push_back({table.name, kGasDensity, EquationName(vapor.equation), vapor.deviation,
                           Points(vapor.deviation, false, "states") + ", " + vapor.checkSource,
                           kGasDensityLimit});
    }
    return entries;
}

std::vector<Entry> AllEntries(std::span<const FluidTable> tables) {
    std::vector<Entry> all;
    for (const FluidTable& table : tables) {
        const std::vector<Entry> entries = EntriesOf(table);
        all.insert(all.end(), entries.begin(), entries.end());
    }
    return all;
}

std::string Introduction(std::span<const FluidTable> tables, std::span<const LeftOut> leftOut) {
    const auto count = [&](bool liquid, bool vapor) {
        return std::count_if(tables.begin(), tables.end(), [&](const FluidTable& table) {
            return table.liquid.has_value() == liquid && table.vapor.has_value() == vapor;
        });
    };
    const auto refused = std::count_if(leftOut.begin(), leftOut.end(),
                                       [](const LeftOut& row) { return row.part == "table"; });
    return fmt::format(
        "# The fluid tables and their accuracy\n\n"
        "Written by `hydrofacts_table_writer` from the data in `tables/fluids`; a test holds this\n"
        "page to the tables. {} fluids are installed: {} as liquid and vapor, {} as liquid only,\n"
        "{} as vapor only. {} are left out, with the reason at the end of the page.\n\n"
        "Deviations are in percent of the check value, from points computed with reference\n"
        "equations of state (`tables/fluids/README.md`). A formula that was fitted to such points "
        "is\n"
        "compared only with those that the fit has not seen; a published formula with all that "
        "lie\n"
        "in its range. What is not listed as compared is *not compared*: there are no independent\n"
        "data for it here, and it is as good as its source. Handbook formulas are commonly good "
        "to\n"
        "1 to 2% in vapor pressure above 1 kPa, 1% in liquid density, 2 to 10% in liquid "
        "viscosity,\n"
        "1 to 5% in gas viscosity and 1 to 2% in heat capacity.\n\n",
        tables.size(), count(true, true), count(true, false), count(false, true), refused);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : 0.5 * (values[middle - 1] + values[middle]);
}

std::string Summary(const std::vector<Entry>& entries) {
    std::string text =
        "## In short\n\n"
        "| Property | Fluids compared | Within | Median of the largest deviations, % "
        "| Median of the mean deviations, % | Worst |\n|---|---:|---|---:|---:|---|\n";
    std::vector<std::string> names;
    for (const Property property : kProperties) {
        names.emplace_back(PropertyName(property));
    }
    names.emplace_back(kGasDensity);
    for (const std::string& name : names) {
        std::vector<double> largest;
        std::vector<double> mean;
        const Entry* worst = nullptr;
        std::size_t within = 0;
        for (const Entry& entry : entries) {
            if (entry.property != name) {
                continue;
            }
            largest.push_back(entry.deviation.largest);
            mean.push_back(entry.deviation.mean);
            within += entry.deviation.largest <= entry.limit ? 1 : 0;
            if (worst == nullptr || entry.deviation.largest > worst->deviation.largest) {
                worst = &entry;
            }
        }
        if (worst != nullptr) {
            text +=
                fmt::format("| {} | {} | {} within {}% | {} | {} | {}, {}% |\n", name,
                            largest.size(), within, Percent(worst->limit), Percent(Median(largest)),
                            Percent(Median(mean)), worst->fluid, Percent(worst->deviation.largest));
        }
    }
    return text + "\n";
}

std::string EntryRows(const std::vector<Entry>& entries) {
    std::string text =
        "| Fluid | Property | Compared from, to, K | Formula | Largest, % | at K | Mean, % | "
        "Against "
        "|\n|---|---|---|---|---:|---:|---:|---|\n";
    for (const Entry& entry : entries) {
        text += fmt::format("| {} | {} | {} | {} | {} | {} | {} | {} |\n", entry.fluid,
                            entry.property, Kelvins(entry.deviation.range), entry.formula,
                            Percent(entry.deviation.largest),
                            RoundedNumber(entry.deviation.largestAt, 4),
                            Percent(entry.deviation.mean), entry.against);
    }
    return text + "\n";
}

std::string BeyondLimits(const std::vector<Entry>& entries) {
    std::vector<Entry> beyond;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(beyond),
                 [](const Entry& entry) { return entry.deviation.largest > entry.limit; });
    const std::string heading = "## Beyond the limits\n\n";
    if (beyond.empty()) {
        return heading + "None.\n\n";
    }
    return heading +
           "No formula of the format that keeps the way of nature does better over the range; "
           "look\n"
           "at where the largest deviation lies.\n\n" +
           EntryRows(beyond);
}

std::string OriginOf(const FluidTable& table, Property property) {
    const auto found = table.formulas.find(property);
    if (found == table.formulas.end()) {
        return "";
    }
    return Origin(found->second) + (found->second.deviation.count > 0 ? " (c)" : "");
}

// The vapor pressure at the normal boiling point against one atmosphere, percent.
std::string AtBoilingPoint(const FluidTable& table) {
    const double boiling = table.constants.boilingTemperature;
    const ChosenFormula& formula = table.formulas.at(Property::VaporPressure);
    if (boiling <= 0.0 || !formula.range.Holds(boiling)) {
        return "";
    }
    const double pressure = Evaluate(formula.formula, table.constants, boiling);
    const double percent = RoundToDigits(100.0 * (pressure / kAtmosphere - 1.0), 2);
    return std::fabs(percent) < 0.005 ? "0" : fmt::format("{:+.2f}", percent);
}

std::string AllFluids(std::span<const FluidTable> tables) {
    std::string text =
        "## All fluids\n\n"
        "Where each formula comes from; `(c)`: compared above, all others are not compared. "
        "`fit`:\n"
        "fitted to check data. `refitted`: the published vapor pressure misses the critical point, "
        "so\n"
        "a formula was fitted to its lower part and to that point. *At boiling point* is the "
        "vapor\n"
        "pressure at the normal boiling point of another source against one atmosphere, in "
        "percent\n"
        "(the collection of data left out boiling points where the published formula was off by "
        "more\n"
        "than 6%). ChemSep's data are second class: mostly unchecked otherwise.\n\n"
        "| Fluid | Liquid, K | Vapor, K | Vapor to, kPa | Vapor pressure | At boiling point, % "
        "| Liquid density | Liquid viscosity | Equation of state | Gas viscosity | Heat capacity "
        "|\n"
        "|---|---|---|---:|---|---:|---|---|---|---|---|\n";
    for (const FluidTable& table : tables) {
        const VaporDensity& vapor = table.vaporDensity;
        text += fmt::format(
            "| {} | {} | {} | {} | {} | {} | {} | {} | {} | {} | {} |\n", table.name,
            table.liquid ? Kelvins(*table.liquid) : "", table.vapor ? Kelvins(*table.vapor) : "",
            table.vapor ? RoundedNumber(vapor.maxPressure, 4) : "",
            OriginOf(table, Property::VaporPressure), AtBoilingPoint(table),
            OriginOf(table, Property::LiquidDensity), OriginOf(table, Property::LiquidViscosity),
            table.vapor ? std::string(EquationName(vapor.equation)) +
                              (vapor.deviation.count > 0 ? " (c)" : "")
                        : "",
            OriginOf(table, Property::GasViscosity), OriginOf(table, Property::GasHeatCapacity));
    }
    return text + "\n";
}

std::string LeftOutRows(std::span<const LeftOut> leftOut) {
    std::string text = "## Left out\n\n| Fluid | What | Why |\n|---|---|---|\n";
    for (const LeftOut& row : leftOut) {
        text += fmt::format("| {} | {} | {} |\n", row.name,
                            row.part == "table" ? "the whole table" : row.part, row.reason);
    }
    return text;
}

}  // namespace

std::string ReportText(std::span<const FluidTable> tables, std::span<const LeftOut> leftOut) {
    const std::vector<Entry> entries = AllEntries(tables);
    return Introduction(tables, leftOut) + Summary(entries) + BeyondLimits(entries) +
           "## Compared\n\n" + EntryRows(entries) + AllFluids(tables) + LeftOutRows(leftOut);
}

}  // namespace hydrofacts::tables
