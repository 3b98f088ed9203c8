#ifndef HYDROFACTS_BENCH_TOLUENE_H
#define HYDROFACTS_BENCH_TOLUENE_H

#include <string>

#include "hydrofacts/hydrofacts.h"
#include "tests/support/TempFolder.h"

namespace bench {

// Toluene after Perry's Chemical Engineers' Handbook, 8th edition, tables 2-8, 2-32, 2-141, 2-312,
// 2-313 and 2-156: every form with exp or pow in it.
// clang-format off
inline constexpr double kMolecularWeight = 92.138;
inline constexpr double kCriticalTemp = 591.75;
inline constexpr double kCriticalPres = 4108.0;
inline constexpr double kAcentricFactor = 0.264;
inline constexpr double kVaporPressure[5]    = {76.945, -6729.8, -8.179, 5.3017e-6, 2.0};
inline constexpr double kLiquidDensity[5]    = {0.8792, 0.27136, 591.75, 0.29241, 0.0};
inline constexpr double kLiquidViscosity[5]  = {-226.08, 6805.7, 37.542, -0.060853, 1.0};
// clang-format on

inline const char* const kTable =
    "S\t\"Toluene\"\r\n"
    "V\t\"1.0\"\tbenchmark\t1\t7\r\n"
    "* Perry's Chemical Engineers' Handbook, 8th edition\r\n"
    "D\t92.138\t591.75\t4108\t178.18\t560\t300\t900\t2000\r\n"
    "P1\t2\t76.945\t-6729.8\t-8.179\t5.3017e-6\t2\r\n"
    "P2\t0\r\n"
    "P3\t2\t0.8792\t0.27136\t591.75\t0.29241\t0\r\n"
    "P4\t2\t-226.08\t6805.7\t37.542\t-0.060853\t1\r\n"
    "P5\t2\t0.264\r\n"
    "P6\t2\t8.7268e-7\t0.49397\t323.79\t0\t0\r\n"
    "P7\t2\t58140\t286300\t1440.6\t189800\t650.43\r\n";

/// A folder with the table in it, kept until the program ends.
class TableFolder : public TempFolder {
  public:
    TableFolder() { Write("Toluene.FTBL", kTable); }

    std::string File() const { return Path("Toluene.FTBL"); }
};

inline const TableFolder& Tables() {
    static const TableFolder folder;
    return folder;
}

/// Toluene at a set point in °C and kPa gauge.
inline CFluid Toluene(double temperature, double pressure) {
    CFluid fluid(HF_DEG_C, HF_KPA, 0, 101.325);
    std::string folder = Tables().Path();
    fluid.SetFluid(folder.data(), "Toluene", temperature, pressure);
    return fluid;
}

}  // namespace bench

#endif
