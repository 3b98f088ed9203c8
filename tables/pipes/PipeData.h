#ifndef HYDROFACTS_TABLES_PIPES_PIPEDATA_H
#define HYDROFACTS_TABLES_PIPES_PIPEDATA_H

#include <filesystem>
#include <string>
#include <vector>

namespace hydrofacts::tables {

/// One length as each of the two columns gives it. They need not be each other's conversion: pipe
/// of 18 in. is 457 mm wide, not 457.2.
struct TwoLengths {
    double inches = 0.0;
    double millimetres = 0.0;
};

struct PipeSize {
    TwoLengths nominal;
    TwoLengths outside;
    TwoLengths inside;
};

struct PipeSchedule {
    std::string name;
    std::vector<PipeSize> sizes;
};

struct PipeMaterial {
    std::string name;
    std::string title;
    TwoLengths roughness;
    double hazenWilliamsC = 0.0;
    std::string dimensionsSource;
    std::string roughnessSource;
    std::string cSource;
    std::vector<PipeSchedule> schedules;
};

/// Reads materials.csv and sizes.csv of a folder and checks every row. What must hold is told in
/// the README beside them. Throws InputError that names the file, line and field of the first row
/// that does not.
std::vector<PipeMaterial> ReadPipes(const std::filesystem::path& folder);

}  // namespace hydrofacts::tables

#endif
