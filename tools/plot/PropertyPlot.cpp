#include "tools/plot/PropertyPlot.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <map>

#include "tools/Failure.h"
#include "tools/Measures.h"
#include "tools/Names.h"
#include "tools/Numbers.h"

namespace hydrofacts::command {
namespace {

constexpr int kSteps = 200;
constexpr int kPressureDigits = 4;
constexpr std::size_t kMostPressures = 7;  // curves that a legend can hold apart
constexpr int kFewestPoints = 3;           // check points that make a pressure worth a curve
constexpr double kSamePressure = 1e-4;     // relative
constexpr std::array kPartsOfHighest = {0.01, 0.1, 0.5, 1.0};

struct Property {
    const char* name;
    const char* key;     ///< in check_points.csv
    const char* words;   ///< in titles
    const char* symbol;  ///< at the axis, if it has no unit
    bool ofLiquid;
    bool ofVapor;
    bool byPressure;
};

// clang-format off
constexpr Property kProperties[] = {
    {"density",         "density",             "density",                 "",  true,  true,  true},
    {"viscosity",       "viscosity",           "viscosity",               "",  true,  true,  false},
    {"vapor-pressure",  "vapor_pressure",      "vapor pressure",          "",  false, false, false},
    {"k",               "specific_heat_ratio", "ratio of specific heats", "k", false, true,  false},
    {"compressibility", "compressibility",     "compressibility factor",  "Z", false, true,  true},
};
// clang-format on

const Property& RequireProperty(std::string_view name) {
    std::string wanted = LowerCase(name);
    std::replace(wanted.begin(), wanted.end(), '_', '-');
    std::replace(wanted.begin(), wanted.end(), ' ', '-');
    for (const Property& property : kProperties) {
        if (wanted == property.name) return property;
    }
    throw Failure(fmt::format("unknown property \"{}\"; the properties are {}", name,
                              JoinNames(PlotProperties(), "and")));
}

/// The units of the formulas.
class FormulaUnits : public Units {
  public:
    FormulaUnits() {
        SetSystem(HF_METRIC, true);
        SetUserUnit(HF_TEMPERATURE, HF_KELVIN);
        SetUserUnit(HF_PRESSURE, HF_KPA);
        SetAbsolute(true);
    }
};

struct Pressure {
    double kPa;
    std::string text;
};

/// A curve to be drawn and the check points that it is to go through.
struct Line {
    std::size_t color;
    std::string label;
    TemperatureRange range;
    std::function<double(double kelvin)> value;  ///< not-a-number where there is nothing
    std::function<bool(const CheckPoint&)> checkedBy;
};

/// Makes the panels of one fluid and property. The fluid is computed in the units of its formulas
/// and the results are converted.
class PlotMaker {
  public:
    PlotMaker(const TableDirectory& directory, const TableName& table, const PlotRequest& request,
              const Units& units)
        : m_fluid(m_formulaUnits),
          m_name(table.name),
          m_property(RequireProperty(request.property)),
          m_request(request),
          m_units(units) {
        if (!m_fluid.Load(directory, table)) throw directory.NotUsable(table);
        for (CheckPoint& point : ReadCheckPoints(table.file.parent_path(), table.name)) {
            if (point.property == m_property.key) m_check.push_back(std::move(point));
        }
    }

    PropertyPlot Make() {
        if (IsVaporPressure()) {
            AddVaporPressure();
        } else {
            if (m_property.ofLiquid && Wants("liquid") && m_fluid.HasLiquid()) AddLiquid();
            if (m_property.ofVapor && Wants("vapor") && m_fluid.HasVapor()) AddVapor();
        }
        if (m_request.deviation) std::erase_if(m_plot.panels, HasNoCheckPoints);
        if (m_plot.panels.empty()) throw Failure(WhyNothing());
        m_plot.temperatureLabel =
            "temperature, " + UnitText(HF_TEMPERATURE, m_units.GetUserUnit(HF_TEMPERATURE));
        return std::move(m_plot);
    }

  private:
    bool IsVaporPressure() const { return std::string_view(m_property.name) == "vapor-pressure"; }
    bool Wants(std::string_view state) const {
        return m_request.state.empty() || EqualIgnoringCase(m_request.state, state);
    }

    static bool HasNoCheckPoints(const Panel& panel) {
        return std::all_of(panel.series.begin(), panel.series.end(),
                           [](const Series& series) { return series.kind == SeriesKind::Curve; });
    }

    std::string WhyNothing() const {
        std::string states = m_property.ofLiquid && Wants("liquid") ? "liquid" : "";
        if (m_property.ofVapor && Wants("vapor")) states += states.empty() ? "vapor" : " or vapor";
        if (states.empty() && !IsVaporPressure()) {
            return fmt::format("{} is not a property of a {}", m_property.words, m_request.state);
        }
        if (m_request.deviation) {
            return fmt::format("there are no check points of the {} of {}", m_property.words,
                               m_name);
        }
        return fmt::format("the table of {} has no {} formulas", m_name, states);
    }

    Panel NewPanel(const std::string& what) const {
        return {.title = m_name + ": " + what, .valueLabel = ValueLabel(), .series = {}};
    }

    std::string ValueLabel() const {
        if (m_request.deviation) return "deviation of the table, %";
        if (*m_property.symbol != '\0') return m_property.symbol;
        if (IsVaporPressure()) return "pressure, " + AbsoluteUnit(m_units);
        const std::string_view name = m_property.name;
        return fmt::format(
            "{}, {}", name,
            name == "density" ? UnitText(HF_DENSITY, DensityUnit()) : UnitText(HF_VISCOSITY, 0));
    }

    int DensityUnit() const { return m_units.bUS() ? 0 : 1; }

    // From the unit of the formula.
    double InUserUnits(double value) const {
        if (IsVaporPressure()) return m_units.Convert(HF_PRESSURE, value, HF_KPA, nullptr);
        if (std::string_view(m_property.name) != "density") return value;
        return m_units.Convert(HF_DENSITY, value, 1, DensityUnit(), nullptr);
    }

    double InUserTemperature(double kelvin) const {
        return m_units.Convert(HF_TEMPERATURE, kelvin, HF_KELVIN, nullptr);
    }

    void AddLine(Panel& panel, const Line& line) const {
        panel.series.push_back(Curve(line));
        AddCheckPoints(panel, line);
    }

    Series Curve(const Line& line) const {
        Series series = {SeriesKind::Curve, line.color, line.label, {}};
        const auto [lowest, highest] = line.range;
        for (int i = 0; i <= kSteps; ++i) {
            const double kelvin = i == kSteps ? highest : lowest + (highest - lowest) * i / kSteps;
            const double value = line.value(kelvin);
            if (!std::isfinite(value)) continue;
            series.points.push_back(
                {InUserTemperature(kelvin), m_request.deviation ? 0.0 : InUserUnits(value)});
        }
        return series;
    }

    // One series for each source, and for fitted and others.
    void AddCheckPoints(Panel& panel, const Line& line) const {
        std::map<std::string, Series> bySource;
        for (const CheckPoint& point : m_check) {
            if (!line.checkedBy(point)) continue;
            const double value =
                m_request.deviation ? DeviationFrom(point, line) : InUserUnits(point.value);
            if (!std::isfinite(value)) continue;
            const std::string label =
                point.source + (point.fitted ? ", fitted to" : ", not fitted to");
            Series& series = bySource[label];
            series.kind = point.fitted ? SeriesKind::Fitted : SeriesKind::NotFitted;
            series.color = line.color;
            series.label = label;
            series.points.push_back({InUserTemperature(point.temperature), value});
        }
        for (auto& [label, series] : bySource) panel.series.push_back(std::move(series));
    }

    // In percent of the check point.
    static double DeviationFrom(const CheckPoint& point, const Line& line) {
        constexpr double kPercent = 100.0;
        return kPercent * (line.value(point.temperature) / point.value - 1.0);
    }

    void AddVaporPressure() {
        const bool both = m_fluid.Formula(SLOT_VAPOR_SAT_PRES).m_type != 0;
        Panel panel = NewPanel(m_property.words);
        if (!both) {
            AddSaturation(panel, 0, SLOT_LIQUID_SAT_PRES, "table", "liquid");
        } else {
            if (Wants("liquid")) {
                AddSaturation(panel, 0, SLOT_LIQUID_SAT_PRES, "bubble point", "liquid");
            }
            if (Wants("vapor")) AddSaturation(panel, 1, SLOT_VAPOR_SAT_PRES, "dew point", "vapor");
        }
        m_plot.panels.push_back(std::move(panel));
    }

    // From the lowest temperature of either state up to the critical one.
    void AddSaturation(Panel& panel, std::size_t color, FORMULASLOT slot, const char* label,
                       std::string_view state) {
        const double critical = m_fluid.GetCriticalTemp();
        double lowest = critical;
        if (m_fluid.HasLiquid()) lowest = std::min(lowest, m_fluid.LiquidTemperatures().lowest);
        if (m_fluid.HasVapor()) lowest = std::min(lowest, m_fluid.VaporTemperatures().lowest);
        AddLine(panel, OfFormula(slot, {lowest, critical}, state, color, label));
    }

    Line OfFormula(FORMULASLOT slot, const TemperatureRange& range, std::string_view state,
                   std::size_t color = 0, const char* label = "table") const {
        return {
            .color = color,
            .label = label,
            .range = range,
            .value = [this, slot](double kelvin) { return m_fluid.FormulaAt(slot, kelvin, 0.0); },
            .checkedBy = [state](const CheckPoint& point) { return point.state == state; }};
    }

    // A liquid has its properties up to the critical temperature, whatever its range says.
    void AddLiquid() {
        const FORMULASLOT slot =
            m_property.byPressure ? SLOT_LIQUID_DENSITY : SLOT_LIQUID_VISCOSITY;
        TemperatureRange range = m_fluid.LiquidTemperatures();
        range.highest = std::min(range.highest, m_fluid.GetCriticalTemp());
        Panel panel = NewPanel(fmt::format("{} of the liquid", m_property.words));
        AddLine(panel, OfFormula(slot, range, "liquid"));
        m_plot.panels.push_back(std::move(panel));
    }

    void AddVapor() {
        Panel panel =
            NewPanel(fmt::format("{} of the {}", m_property.words,
                                 m_property.byPressure ? "vapor" : "vapor at low pressure"));
        if (m_property.byPressure) {
            AddIsobars(panel);
        } else {
            const bool viscosity = std::string_view(m_property.name) == "viscosity";
            AddLine(panel, OfFormula(viscosity ? SLOT_VAPOR_VISCOSITY : SLOT_VAPOR_SPHEAT,
                                     m_fluid.VaporTemperatures(), "vapor"));
        }
        m_plot.panels.push_back(std::move(panel));
    }

    void AddIsobars(Panel& panel) {
        std::size_t color = 0;
        for (const Pressure& pressure : m_request.given.empty() ? OwnPressures() : Given()) {
            const Line line = Isobar(pressure, color);
            if (Curve(line).points.empty()) {
                if (m_request.given.empty()) continue;
                throw Failure(NoVapor(pressure), kOutside);
            }
            AddLine(panel, line);
            ++color;
        }
    }

    Line Isobar(const Pressure& pressure, std::size_t color) {
        const bool density = std::string_view(m_property.name) == "density";
        const double kPa = pressure.kPa;
        return {.color = color,
                .label = pressure.text,
                .range = m_fluid.VaporTemperatures(),
                .value =
                    [this, density, kPa](double kelvin) {
                        m_fluid.MoveTo(kelvin, kPa);
                        if (m_fluid.GetFluidState() != FLUID_VAPOR) return std::nan("");
                        return density ? m_fluid.GetDensity() : m_fluid.Compressibility();
                    },
                .checkedBy =
                    [kPa](const CheckPoint& point) {
                        return point.state == "vapor" &&
                               std::abs(point.pressure - kPa) <= kSamePressure * kPa;
                    }};
    }

    std::string NoVapor(const Pressure& pressure) const {
        return fmt::format(
            "{} is no vapor at {} at any temperature of its table; the vapor formulas go up to {} "
            "{}",
            m_name, pressure.text,
            ShortNumber(
                m_units.Convert(HF_PRESSURE, m_fluid.HighestVaporPressure(), HF_KPA, nullptr),
                kPressureDigits),
            AbsoluteUnit(m_units));
    }

    std::vector<Pressure> Given() const {
        std::vector<Pressure> pressures;
        const double atmosphere =
            m_units.GetAbsolute() ? 0.0 : m_units.GetAtmosphere(HF_USER_UNIT, true);
        for (const double value : m_request.given) {
            pressures.push_back(
                {m_units.Convert(HF_PRESSURE, value + atmosphere, HF_USER_UNIT, HF_KPA, nullptr),
                 fmt::format("{} {}", ShortNumber(value), UserPressureUnit(m_units))});
        }
        return pressures;
    }

    // Those at which there is something to compare with; without such, parts of the highest.
    std::vector<Pressure> OwnPressures() const {
        std::map<double, int> counts;
        for (const CheckPoint& point : m_check) {
            if (point.state == "vapor") ++counts[point.pressure];
        }
        std::vector<double> kPa;
        for (const auto& [pressure, count] : counts) {
            if (count >= kFewestPoints) kPa.push_back(pressure);
        }
        if (kPa.empty()) {
            for (const double part : kPartsOfHighest) {
                kPa.push_back(part * m_fluid.HighestVaporPressure());
            }
        }
        const std::size_t shown = std::min(kPa.size(), kMostPressures);
        std::vector<Pressure> pressures;
        for (std::size_t i = 0; i < shown; ++i) {
            const double pressure = kPa[i * (kPa.size() - 1) / std::max<std::size_t>(shown - 1, 1)];
            const double user = m_units.Convert(HF_PRESSURE, pressure, HF_KPA, nullptr);
            pressures.push_back({pressure, fmt::format("{} {}", ShortNumber(user, kPressureDigits),
                                                       AbsoluteUnit(m_units))});
        }
        return pressures;
    }

    FormulaUnits m_formulaUnits;
    TableFluid m_fluid;
    std::string m_name;
    const Property& m_property;
    const PlotRequest& m_request;
    const Units& m_units;
    std::vector<CheckPoint> m_check;
    PropertyPlot m_plot;
};

}  // namespace

std::vector<std::string> PlotProperties() {
    std::vector<std::string> names;
    for (const Property& property : kProperties) names.emplace_back(property.name);
    return names;
}

bool DependsOnPressure(std::string_view property) { return RequireProperty(property).byPressure; }

PropertyPlot MakePlot(const TableDirectory& directory, const TableName& table,
                      const PlotRequest& request, const Units& units) {
    return PlotMaker(directory, table, request, units).Make();
}

}  // namespace hydrofacts::command
