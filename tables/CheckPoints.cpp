#include "tables/CheckPoints.h"

#include <algorithm>
#include <tuple>

#include "hydrofacts/formula/Constants.h"
#include "tables/Csv.h"
#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

constexpr int kDigits = 8;

struct Row {
    std::string property;
    std::string state;
    double temperature;
    double pressure;
    double value;
    bool fitted;
    std::string source;
};

class CheckPointRows {
  public:
    CheckPointRows(const FluidTable& table, const FluidData& fluid)
        : m_table(table), m_fluid(fluid) {}

    std::vector<Row> Rows() {
        const Range saturation{SaturationStart(), m_fluid.constants.criticalTemperature};
        AddProperty(Property::VaporPressure, "vapor_pressure", "liquid", saturation);
        if (m_table.liquid) {
            AddProperty(Property::LiquidDensity, "density", "liquid", *m_table.liquid);
            AddProperty(Property::LiquidViscosity, "viscosity", "liquid", *m_table.liquid);
        }
        if (m_table.vapor) {
            AddProperty(Property::DewPressure, "vapor_pressure", "vapor", saturation);
            AddProperty(Property::GasViscosity, "viscosity", "vapor", *m_table.vapor);
            AddProperty(Property::GasHeatCapacity, "specific_heat_ratio", "vapor", *m_table.vapor);
            AddGasStates();
        }
        std::sort(m_rows.begin(), m_rows.end(), [](const Row& a, const Row& b) {
            return std::tie(a.property, a.state, a.temperature, a.pressure) <
                   std::tie(b.property, b.state, b.temperature, b.pressure);
        });
        return std::move(m_rows);
    }

  private:
    double SaturationStart() const {
        return m_table.liquid ? m_table.liquid->min : m_table.vapor->min;
    }

    // Liquids stand at their saturation pressure, which the check data give at the same
    // temperature.
    double PressureOf(Property property, double temperature) const {
        if (property != Property::LiquidDensity && property != Property::LiquidViscosity) {
            return 0.0;
        }
        const CheckPoints& saturation = m_fluid.check.at(Property::VaporPressure);
        for (const std::vector<Point>* const list : {&saturation.fit, &saturation.judge}) {
            for (const Point& point : *list) {
                if (point.temperature == temperature) {
                    return point.value;
                }
            }
        }
        return 0.0;
    }

    void AddProperty(Property property, const char* name, const char* state, const Range& range) {
        const auto check = m_fluid.check.find(property);
        const auto formula = m_table.formulas.find(property);
        if (check == m_fluid.check.end() || formula == m_table.formulas.end()) {
            return;
        }
        const auto add = [&](const std::vector<Point>& points, bool fitted) {
            for (const Point& point : points) {
                if (range.Holds(point.temperature)) {
                    const double value = property == Property::GasHeatCapacity
                                             ? point.value / (point.value - kGasConstant)
                                             : point.value;
                    m_rows.push_back({name, state, point.temperature,
                                      PressureOf(property, point.temperature), value, fitted,
                                      check->second.source});
                }
            }
        };
        add(check->second.fit, formula->second.fitted);
        add(check->second.judge, false);
    }

    void AddGasStates() {
        for (const GasState& gas : m_fluid.gasStates) {
            if (!m_table.vapor->Holds(gas.temperature) ||
                gas.pressure > m_table.vaporDensity.maxPressure) {
                continue;
            }
            const double z = gas.pressure * m_fluid.constants.molecularWeight /
                             (gas.density * kGasConstant * gas.temperature);
            const std::string& source = m_table.vaporDensity.checkSource;
            m_rows.push_back(
                {"density", "vapor", gas.temperature, gas.pressure, gas.density, false, source});
            m_rows.push_back(
                {"compressibility", "vapor", gas.temperature, gas.pressure, z, false, source});
        }
    }

    const FluidTable& m_table;
    const FluidData& m_fluid;
    std::vector<Row> m_rows;
};

}  // namespace

std::string CheckPointHeading() {
    return "name,property,state,temperature_K,pressure_kPa,value,use,source\n";
}

std::string CheckPointLines(const FluidTable& table, const FluidData& fluid) {
    std::string text;
    for (const Row& row : CheckPointRows(table, fluid).Rows()) {
        text += CsvField(table.name) + ',' + row.property + ',' + row.state;
        for (const double number : {row.temperature, row.pressure, row.value}) {
            text += ',' + RoundedNumber(number, kDigits);
        }
        text += std::string(row.fitted ? ",fit," : ",check,") + CsvField(row.source) + '\n';
    }
    return text;
}

}  // namespace hydrofacts::tables
