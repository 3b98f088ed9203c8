#ifndef HYDROFACTS_TESTS_FAULTS_FAULTTABLES_H
#define HYDROFACTS_TESTS_FAULTS_FAULTTABLES_H

#include <mutex>
#include <string>
#include <tuple>

#include "hydrofacts/dialogs/CFluidScan.h"
#include "hydrofacts/dialogs/FluidNames.h"
#include "hydrofacts/frame/Module.h"
#include "hydrofacts/pipe/CPipeTable.h"
#include "hydrofacts/valve/CValveTable.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

// A table of each kind, small enough to be seen at a glance.

/// A liquid with 1200 − T kg/m³ at T in K, from 295 to 395 K.
inline const std::string kFluidTable = TableText(
    "S|\"Plain\"\nV|\"1.0\"|x|3|5\nD|28.9586|400|1100|295|395|295|500|5000\n"
    "P1|1|-2900|10\nP2|0\nP3|1|1200|-1\nP4|1|2.1|-0.001\nP5|1\nP6|1|0.01|0.00001\nP7|1|33.2576\n");

/// Schedule 40 in three sizes.
inline const std::string kPipeTable = TableText(
    "S|\"Steel\"\nV|\"1.0\"|x|1|9\nR|0.0018|0.0457|140\nZ|40|1|25|1.049|0.133|26.64|3.38\n"
    "Z|40|2|50|2.067|0.154|52.48|3.91\nZ|40|3|80|3.068|0.216|77.92|5.49\n");

/// Two devices, one of them in several rows.
inline const std::string kValveTable = TableText(
    "S|\"Standard\"\nV|\"1\"\nZ|Valve|\"Gate\"|1|8|0|0|6\n"
    "Z|Bend|\"Elbow\"|9|0.5|2|50|4\nZ|Bend|\"Elbow\"|9|0.4|6|150|4\n");

inline constexpr int kManyTables = 250;
inline constexpr int kFormulas[] = {1, 9, 0};

/// The list of fluid tables holds for the whole process; here it begins anew.
inline void ForgetFluidTables() {
    const auto names = hydrofacts::FluidTableCache();
    const std::lock_guard lock(names->mutex);
    names->text.clear();
}

inline void ScanAnew(const std::string& folder) {
    ForgetFluidTables();
    CFluidScan().LoadFluidNames(folder.c_str(), FLUID_NONE, 0.0, 0.0);
}

/// A folder with room for a table of each kind.
class Tables : public TempFolder {
  public:
    std::string path = Path();

    void WriteAll(const std::string& fluid = kFluidTable, const std::string& pipe = kPipeTable,
                  const std::string& valve = kValveTable) const {
        Write("Plain.FTBL", fluid);
        Write("Steel.PTBL", pipe);
        Write("Standard.VTBL", valve);
    }
    /// Adds fluid tables until there are so many that a scan has threads of its own.
    void FillUp() const {
        for (int i = 1; i < kManyTables; ++i) Write(std::to_string(i) + ".FTBL", kFluidTable);
    }
};

/// What is read of the three tables of a folder, each -1 if it is refused: kg/m³ at 300 K and 900
/// kPa, the inside diameter of schedule 40, size 3, and how many of the two devices there are.
using Found = std::tuple<double, double, int>;
inline const Found kAll{900.0, 3.068, 2};
inline const Found kNone{-1.0, -1.0, -1};

inline Found Read(const Tables& tables) {
    Found found = kNone;
    auto& [density, diameter, devices] = found;
    CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
    std::string path = tables.path;
    if (fluid.SetFluid(path.data(), "Plain", 300.0, 900.0) == 0) {
        density = fluid.GetDensity();
    }
    CPipeTable pipe(HF_US);
    if (pipe.LoadMaterial(path.c_str(), "Steel") && pipe.LoadPipeList("40", nullptr)) {
        diameter = pipe.PipeDia(3.0);
    }
    CValveTable valves;
    if (valves.LoadValveTable(path.c_str(), "Standard", HF_US, kFormulas) != 0) {
        devices =
            (valves.Find("Gate") != nullptr ? 1 : 0) + (valves.Find("Elbow") != nullptr ? 1 : 0);
    }
    return found;
}

#endif
