#ifndef TOOLS_PLOT_PROPERTYPLOT_H
#define TOOLS_PLOT_PROPERTYPLOT_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/TableFluid.h"
#include "tools/plot/CheckPoints.h"

namespace hydrofacts::command {

enum class SeriesKind {
    Curve,      ///< what the table gives
    Fitted,     ///< check points to which its formula was fitted
    NotFitted,  ///< check points that it has not seen
};

struct PlotPoint {
    double temperature;
    double value;
};

/// Points of one colour in a panel.
struct Series {
    SeriesKind kind;
    std::size_t color;  ///< a number; check points have that of their curve
    std::string label;
    std::vector<PlotPoint> points;
};

/// One pair of axes.
struct Panel {
    std::string title;
    std::string valueLabel;  ///< of the vertical axis, with its unit
    std::vector<Series> series;
};

/// A property of a fluid over temperature, one panel for the liquid and one for the vapor, in the
/// user's units.
struct PropertyPlot {
    std::string temperatureLabel;
    std::vector<Panel> panels;
};

/// What to plot.
struct PlotRequest {
    std::string_view property;      ///< one of PlotProperties()
    std::string_view state;         ///< "liquid" or "vapor"; empty: both
    std::span<const double> given;  ///< pressures for the vapor in the user's unit; empty: the
                                    ///< pressures of the check points, or parts of the highest
    bool deviation;  ///< in place of values, how far the table is off the check points, in percent
};

/// The names of the properties that can be plotted.
std::vector<std::string> PlotProperties();

/// Whether a property of the vapor changes with the pressure.
bool DependsOnPressure(std::string_view property);

/// Works out a plot. `table` names the fluid, which is loaded anew. Failure if there is nothing to
/// be seen.
PropertyPlot MakePlot(const TableDirectory& directory, const TableName& table,
                      const PlotRequest& request, const Units& units);

}  // namespace hydrofacts::command

#endif
