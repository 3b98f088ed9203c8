#ifndef TOOLS_PLOT_GNUPLOT_H
#define TOOLS_PLOT_GNUPLOT_H

#include <string>

namespace hydrofacts::command {

/// Has gnuplot carry out a script and gives what it writes to its standard output. No shell takes
/// part, and no file stays behind. Failure, with gnuplot's own words, if there is no gnuplot on the
/// search path or it fails.
std::string RunGnuplot(const std::string& script);

}  // namespace hydrofacts::command

#endif
