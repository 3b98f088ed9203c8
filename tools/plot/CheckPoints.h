#ifndef TOOLS_PLOT_CHECKPOINTS_H
#define TOOLS_PLOT_CHECKPOINTS_H

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace hydrofacts::command {

/// A value of a fluid's property from elsewhere, to compare its formula with.
struct CheckPoint {
    std::string property;  ///< "density"
    std::string state;     ///< "liquid" or "vapor"
    double temperature;    ///< K
    double pressure;       ///< kPa absolute; 0 where it plays no part
    double value;          ///< in the unit of the formula
    bool fitted;           ///< whether the formula was fitted to it
    std::string source;
};

/// The check points of a fluid in a directory's check_points.csv; none if there is no such file.
/// Failure, with the line, if one of the fluid's rows can't be read.
std::vector<CheckPoint> ReadCheckPoints(const std::filesystem::path& directory,
                                        std::string_view fluid);

}  // namespace hydrofacts::command

#endif
