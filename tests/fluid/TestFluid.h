#ifndef HYDROFACTS_TESTS_FLUID_TESTFLUID_H
#define HYDROFACTS_TESTS_FLUID_TESTFLUID_H

#include <array>
#include <string>

#include "hydrofacts/fluid/CFluid.h"
#include "tests/support/TempFolder.h"

/// A fluid whose protected members are open to the tests.
class TestFluid : public CFluid {
  public:
    using CFluid::CalcDen;
    using CFluid::CalcSG;
    using CFluid::CFluid;
    using CFluid::CheckNewAtmPressure;
    using CFluid::ClearFluid;
    using CFluid::FindFluidState;
    using CFluid::FormulasAreValid;
    using CFluid::FormulasExist;
    using CFluid::LoadFluidTable;
    using CFluid::m_criticalTemp;
    using CFluid::m_formulas;
    using CFluid::m_molecularWt;
    using CFluid::m_pressure;
    using CFluid::m_pUnits;
    using CFluid::m_state;
    using CFluid::m_vaporMaxPres;
};

/// The text of a fluid table. As it stands its properties are easily worked out by hand: saturation
/// pressure 10 T − 2900 kPa (100 kPa at 300 K), critical point 400 K and 1100 kPa, liquid from 295
/// to 395 K with 1200 − T kg/m³ and 2.123456 − T / 1000 cP, vapor from 295 to 500 K up to 5000 kPa,
/// an ideal gas as heavy as air with 0.01 + T / 100000 cP and a ratio of specific heats of 4/3.
struct FluidText {
    std::string title = "S\t\"Plain\"";
    std::string version = "V\t\"1.0\"\tx\t3\t5";
    std::string constants = "D\t28.9586\t400\t1100\t295\t395\t295\t500\t5000";
    std::array<std::string, 7> formulas = {
        "P1\t1\t-2900\t10",        "P2\t0", "P3\t1\t1200\t-1",
        "P4\t1\t2.123456\t-0.001", "P5\t1", "P6\t1\t0.01\t0.00001",
        "P7\t1\t33.2576",
    };

    std::string Text() const {
        std::string text = title + "\r\n" + version + "\r\n" + constants + "\r\n";
        for (const std::string& formula : formulas) text += formula + "\r\n";
        return text;
    }
};

/// The dew side of a blend, 50 kPa below the bubble side.
inline constexpr const char* kDewSide = "P2\t1\t-2950\t10";
/// The vapor as a Peng-Robinson gas.
inline constexpr const char* kPengRobinson = "P5\t2\t0.2";

/// A folder of fluid tables.
class TableFolder : public TempFolder {
  public:
    std::string path = Path();

    void Add(const std::string& name, const FluidText& table) const {
        Write(name + ".FTBL", table.Text());
    }

    /// A table fluid of this folder at a set point in kelvin and absolute kPa.
    TestFluid Fluid(const FluidText& table, double t, double p) {
        Add("Plain", table);
        TestFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
        EXPECT_EQ(fluid.SetFluid(path.data(), "Plain", t, p), 0);
        return fluid;
    }
};

#endif
