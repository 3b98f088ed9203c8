#include "tables/TableFile.h"

#include <fmt/core.h>

#include <algorithm>
#include <span>
#include <vector>

#include "hydrofacts/formula/Constants.h"
#include "tables/Numbers.h"
#include "tables/TableLines.h"
#include "tables/VaporDensity.h"

namespace hydrofacts::tables {
namespace {

constexpr std::size_t kLongestLine = 258;  // characters, with a carriage return 259

// "Against 12 points of SOURCE that the fit has not seen".
std::string Against(const std::string& source, std::size_t count, const char* what, bool fitted) {
    return fmt::format("Against {} {}{} of {}{}", count, what, count == 1 ? "" : "s", source,
                       fitted ? " that the fit has not seen" : "");
}

std::string Kelvins(const Range& range) {
    return fmt::format("{} to {} K", RoundedNumber(range.min, 5), RoundedNumber(range.max, 5));
}

std::string Figures(const Deviation& deviation) {
    return fmt::format("largest {}% at {} K, mean {}%", RoundedNumber(deviation.largest, 2),
                       RoundedNumber(deviation.largestAt, 4), RoundedNumber(deviation.mean, 2));
}

class TableWriter {
  public:
    explicit TableWriter(const FluidTable& table)
        : m_table(table), m_lines(table.name + ".FTBL", kLongestLine) {}

    std::string Text() {
        WriteHead();
        WriteConstants();
        WriteFormula(1, Property::VaporPressure, "Saturation pressure");
        WriteFormula(2, Property::DewPressure, "Dew pressure");
        WriteFormula(3, Property::LiquidDensity, "Liquid density");
        WriteFormula(4, Property::LiquidViscosity, "Liquid viscosity");
        WriteEquationOfState();
        WriteFormula(6, Property::GasViscosity, "Gas viscosity at low pressure");
        WriteFormula(7, Property::GasHeatCapacity, "Heat capacity of the ideal gas");
        return m_lines.Text();
    }

  private:
    void WriteHead() {
        const char* const states = !m_table.vapor    ? "liquid"
                                   : !m_table.liquid ? "vapor"
                                                     : "liquid and vapor";
        m_lines.Head(fmt::format("{}, {}", m_table.name, states));
    }

    void WriteConstants() {
        const FluidConstants& constants = m_table.constants;
        const Range none{0.0, 0.0};
        const Range liquid = m_table.liquid.value_or(none);
        const Range vapor = m_table.vapor.value_or(none);
        // A fluid without vapor formulas needs a pressure in the last field too.
        const double maxPressure =
            m_table.vapor ? m_table.vaporDensity.maxPressure : constants.criticalPressure;
        m_lines.Remark(fmt::format("Constants: {}.", constants.source));
        m_lines.Remark(
            "Molecular weight (kg/kmol), critical temperature (K) and pressure (kPa), liquid from "
            "and to (K), vapor from and to (K), vapor up to (kPa).");
        std::vector<std::string> record = {"D"};
        for (const double value :
             {constants.molecularWeight, constants.criticalTemperature, constants.criticalPressure,
              liquid.min, liquid.max, vapor.min, vapor.max, maxPressure}) {
            record.push_back(ExactNumber(value));
        }
        m_lines.Record(record);
    }

    void WriteDeviation(Property property, const ChosenFormula& formula) {
        if (formula.checkSource.empty()) {
            m_lines.Remark("Not compared: there are no check data.");
            return;
        }
        const Deviation& deviation = formula.deviation;
        if (deviation.count == 0) {
            m_lines.Remark("Not compared: there are no check data in its range.");
        } else {
            m_lines.Remark(
                fmt::format("{}, {}: {}.",
                            Against(formula.checkSource, deviation.count, "point", formula.fitted),
                            Kelvins(deviation.range), Figures(deviation)));
        }
        const auto above = m_table.aboveLiquid.find(property);
        if (above != m_table.aboveLiquid.end() && above->second.count > 0) {
            m_lines.Remark(fmt::format(
                "{}, above the liquid range, {}: {}.",
                Against(formula.checkSource, above->second.count, "point", formula.fitted),
                Kelvins(above->second.range), Figures(above->second)));
        }
    }

    void WriteFormula(int number, Property property, const char* title) {
        const auto found = m_table.formulas.find(property);
        if (found == m_table.formulas.end()) {
            m_lines.Record({fmt::format("P{}", number), "0"});
            return;
        }
        m_lines.Remark(fmt::format("{}: {}.", title, found->second.source));
        WriteDeviation(property, found->second);
        const CFormula& formula = found->second.formula;
        std::vector<std::string> record = {fmt::format("P{}", number),
                                           std::to_string(formula.m_type)};
        // Coefficients of zero at the end may be left out; a library of tables loads faster
        // without.
        const std::span<const double> all = formula.m_coefficients;
        const auto last = std::find_if(all.rbegin(), all.rend(), [](double c) { return c != 0.0; });
        for (const double coefficient : all.first(static_cast<std::size_t>(all.rend() - last))) {
            record.push_back(ExactNumber(coefficient));
        }
        m_lines.Record(record);
    }

    void WriteEquationOfState() {
        if (!m_table.vapor) {
            m_lines.Record({"P5", "0"});
            return;
        }
        const VaporDensity& vapor = m_table.vaporDensity;
        m_lines.Remark(fmt::format("Vapor density: {}{}{}.", EquationName(vapor.equation),
                                   vapor.reason.empty() ? "" : "; ", vapor.reason));
        if (vapor.checkSource.empty()) {
            m_lines.Remark("Not compared: there are no check data in its range.");
        } else {
            m_lines.Remark(
                fmt::format("{}, {}: {} (the largest at {} kPa).",
                            Against(vapor.checkSource, vapor.deviation.count, "state", false),
                            Kelvins(vapor.deviation.range), Figures(vapor.deviation),
                            RoundedNumber(vapor.largestAtPressure, 3)));
        }
        // The loader works out the other coefficients.
        m_lines.Record(
            {"P5", std::to_string(vapor.equation), ExactNumber(m_table.constants.acentricFactor)});
    }

    const FluidTable& m_table;
    TableLines m_lines;
};

}  // namespace

std::string TableText(const FluidTable& table) { return TableWriter(table).Text(); }

}  // namespace hydrofacts::tables
