#include "tables/TableFile.h"

#include "hydrofacts/formula/Constants.h"
#include "tables/Numbers.h"
#include "tables/VaporDensity.h"

namespace hydrofacts::tables {
namespace {

constexpr std::size_t kLongestLine = 258;      // characters, with a carriage return 259
constexpr std::size_t kLongestHeadLine = 100;  // shown in a dialog
constexpr const char* kVersion = "1.0";
// Every host's limits of levels let the tables pass: 1 for the lowest, 7 for the highest.
constexpr const char* kLevels = "1\t7";

class TableWriter {
  public:
    explicit TableWriter(const FluidTable& table) : m_table(table) {}

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
        return std::move(m_text);
    }

  private:
    void Line(const std::string& line, std::size_t longest = kLongestLine) {
        if (line.size() > longest) {
            throw DesignError(m_table.name + ": a line of the table is too long: " + line);
        }
        m_text += line + "\r\n";
    }

    void WriteHead() {
        const char* const states = !m_table.vapor    ? "liquid"
                                   : !m_table.liquid ? "vapor"
                                                     : "liquid and vapor";
        Line("S\t\"" + m_table.name + ", " + states + "\"", kLongestHeadLine);
        Line(std::string("V\t\"") + kVersion + "\"\tHydrofacts\t" + kLevels, kLongestHeadLine);
    }

    void WriteConstants() {
        const FluidConstants& constants = m_table.constants;
        const Range none{0.0, 0.0};
        const Range liquid = m_table.liquid.value_or(none);
        const Range vapor = m_table.vapor.value_or(none);
        // A fluid without vapor formulas needs a pressure in the last field too.
        const double maxPressure =
            m_table.vapor ? m_table.vaporDensity.maxPressure : constants.criticalPressure;
        Line("* Constants: " + constants.source +
             ". Molecular weight, critical temperature (K) and pressure (kPa),");
        Line("* liquid from and to (K), vapor from and to (K), vapor up to (kPa).");
        std::string record = "D";
        for (const double value :
             {constants.molecularWeight, constants.criticalTemperature, constants.criticalPressure,
              liquid.min, liquid.max, vapor.min, vapor.max, maxPressure}) {
            record += "\t" + ExactNumber(value);
        }
        Line(record);
    }

    static std::string Against(const std::string& source, std::size_t count, const char* what,
                               bool fitted) {
        return "* Against " + std::to_string(count) + " " + what + " of " + source +
               (fitted ? " that the fit has not seen" : "");
    }

    static std::string Kelvins(const Range& range) {
        return RoundedNumber(range.min, 5) + " to " + RoundedNumber(range.max, 5) + " K";
    }

    static std::string Figures(const Deviation& deviation) {
        return "largest " + RoundedNumber(deviation.largest, 2) + "% at " +
               RoundedNumber(deviation.largestAt, 4) + " K, mean " +
               RoundedNumber(deviation.mean, 2) + "%";
    }

    void WriteDeviation(Property property, const ChosenFormula& formula) {
        if (formula.checkSource.empty()) {
            Line("* Not compared: there are no check data.");
            return;
        }
        const Deviation& deviation = formula.deviation;
        if (deviation.count > 0) {
            Line(Against(formula.checkSource, deviation.count, "points", formula.fitted) + ", " +
                 Kelvins(deviation.range) + ": " + Figures(deviation) + ".");
        }
        const auto above = m_table.aboveLiquid.find(property);
        if (above != m_table.aboveLiquid.end() && above->second.count > 0) {
            Line(Against(formula.checkSource, above->second.count, "points", formula.fitted) +
                 " above the liquid range, " + Kelvins(above->second.range) + ": " +
                 Figures(above->second) + ".");
        }
    }

    void WriteRecord(int number, const CFormula& formula) {
        std::string record = "P" + std::to_string(number) + "\t" + std::to_string(formula.m_type);
        for (const double coefficient : formula.m_coefficients) {
            record += "\t" + ExactNumber(coefficient);
        }
        Line(record);
    }

    void WriteFormula(int number, Property property, const char* title) {
        const auto found = m_table.formulas.find(property);
        if (found == m_table.formulas.end()) {
            Line("P" + std::to_string(number) + "\t0");
            return;
        }
        Line(std::string("* ") + title + ": " + found->second.source + ".");
        WriteDeviation(property, found->second);
        WriteRecord(number, found->second.formula);
    }

    void WriteEquationOfState() {
        if (!m_table.vapor) {
            Line("P5\t0");
            return;
        }
        constexpr const char* kNames[] = {"", "ideal gas", "Peng-Robinson", "Redlich-Kwong",
                                          "Soave-Redlich-Kwong"};
        const VaporDensity& vapor = m_table.vaporDensity;
        Line(std::string("* Vapor density: ") + kNames[vapor.equation] + ", acentric factor: " +
             m_table.constants.source + (vapor.reason.empty() ? "" : "; " + vapor.reason) + ".");
        if (vapor.checkSource.empty()) {
            Line("* Not compared: there are no check data.");
        } else {
            Line(Against(vapor.checkSource, vapor.deviation.count, "states", false) + ", " +
                 Kelvins(vapor.deviation.range) + ": " + Figures(vapor.deviation) +
                 " (the largest at " + RoundedNumber(vapor.largestAtPressure, 3) + " kPa).");
        }
        // The loader works out the other coefficients.
        Line("P5\t" + std::to_string(vapor.equation) + "\t" +
             ExactNumber(m_table.constants.acentricFactor));
    }

    const FluidTable& m_table;
    std::string m_text;
};

}  // namespace

std::string TableText(const FluidTable& table) { return TableWriter(table).Text(); }

}  // namespace hydrofacts::tables
