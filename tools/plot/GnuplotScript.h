#ifndef TOOLS_PLOT_GNUPLOTSCRIPT_H
#define TOOLS_PLOT_GNUPLOTSCRIPT_H

#include <string>

#include "tools/plot/PropertyPlot.h"

namespace hydrofacts::command {

/// The commands, in UTF-8 and with the data among them, by which gnuplot (5.0 or later) writes a
/// plot as SVG to its standard output.
std::string GnuplotScript(const PropertyPlot& plot);

}  // namespace hydrofacts::command

#endif
