// The installed fluid tables through the library: figures of the literature, and what is true of
// every fluid.

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "InstalledTables.h"
#include "hydrofacts/fluid/CFluid.h"

namespace {

/// A table fluid in kelvin and absolute kPa, or in other units, with its ranges in reach.
class TableFluid : public CFluid {
  public:
    explicit TableFluid(std::string name, HF_TUNITS tunit = HF_KELVIN, HF_PUNITS punit = HF_KPA)
        : CFluid(tunit, punit, 1, 0.0), m_folder(TableFolder()), m_fluid(std::move(name)) {}

    FLUIDSTATE At(double temperature, double pressure) {
        EXPECT_EQ(0, SetFluid(m_folder.data(), m_fluid.c_str(), temperature, pressure)) << m_fluid;
        return GetFluidState();
    }

    bool Has(FLUIDSTATE state) { return FormulasExist(state); }
    double LiquidMin() const { return m_liquidMinTemp; }
    double LiquidMax() const { return m_liquidMaxTemp; }
    double VaporMin() const { return m_vaporMinTemp; }
    double VaporMax() const { return m_vaporMaxTemp; }
    double VaporMaxPressure() const { return m_vaporMaxPres; }

    /// Of the vapor side, kPa.
    double DewPressure(double kelvin) const {
        const CFormula& dew = m_formulas[SLOT_VAPOR_SAT_PRES];
        return (dew.m_type == 0 ? m_formulas[SLOT_LIQUID_SAT_PRES] : dew)
            .CalcResult(kelvin, 0.0, 0.0, 0.0, 0.0);
    }
    double BubblePressure(double kelvin) const {
        return m_formulas[SLOT_LIQUID_SAT_PRES].CalcResult(kelvin, 0.0, 0.0, 0.0, 0.0);
    }

  private:
    std::string m_folder;
    std::string m_fluid;
};

void ExpectWithin(double percent, double expected, double actual, const char* what) {
    EXPECT_NEAR(expected, actual, std::fabs(expected) * percent / 100.0) << what;
}

// Saturated water after the formulations of IAPWS, as the common steam tables print it:
// temperature, vapor pressure, density, viscosity.
TEST(FluidTables, WaterAgreesWithTheSteamTables) {
    struct Row {
        double celsius, kPa, density, viscosity;
    };
    constexpr Row kRows[] = {
        {0.01, 0.61165, 999.79, 1.7911},  {20.0, 2.3393, 998.16, 1.0016},
        {25.0, 3.1699, 997.00, 0.89004},  {50.0, 12.352, 988.00, 0.54652},
        {75.0, 38.595, 974.83, 0.37740},  {100.0, 101.42, 958.35, 0.28158},
        {150.0, 476.16, 917.01, 0.18261},
    };
    TableFluid water("Water");
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.celsius);
        const double kelvin = row.celsius + 273.15;
        ASSERT_EQ(FLUID_LIQUID, water.At(kelvin, 1.01 * row.kPa));
        ExpectWithin(0.05, row.kPa, water.GetVaporPres(), "vapor pressure");
        ExpectWithin(0.05, row.density, water.GetDensity(), "density");
        ExpectWithin(0.5, row.viscosity, water.GetViscosity(kelvin), "viscosity");
    }
}

// Rows of check_saturation.csv (CoolProp 8.0.1), which the fits of water leave out.
TEST(FluidTables, WaterKeepsItsAccuracyWhereTheFitHadNoPoints) {
    struct Row {
        double kelvin, kPa, density, viscosity;
    };
    constexpr Row kRows[] = {
        {288.2024, 1.711558457, 999.0482031, 1.136045831},
        {303.2438, 4.269892097, 995.5778249, 0.7956339801},
        {318.2851, 9.661855404, 990.1162183, 0.5943283736},
        {333.3265, 20.10993319, 983.0693908, 0.4647744702},
        {348.3679, 38.9485977, 974.684773, 0.3763262907},
        {363.4093, 70.87576774, 965.1211116, 0.3132383143},
        {378.4506, 122.1665756, 954.4816435, 0.2666727087},
        {393.492, 200.8359681, 942.8307781, 0.2313277406},
        {408.5334, 316.7381509, 930.2036212, 0.2038568188},
        {438.6162, 709.0719578, 902.0393994, 0.1644340754},
        {468.6989, 1415.331939, 869.8028985, 0.1378046686},
    };
    TableFluid water("Water");
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.kelvin);
        ASSERT_EQ(FLUID_LIQUID, water.At(row.kelvin, 1.01 * row.kPa));
        ExpectWithin(0.02, row.kPa, water.GetVaporPres(), "vapor pressure");
        ExpectWithin(0.03, row.density, water.GetDensity(), "density");
        ExpectWithin(0.3, row.viscosity, water.GetViscosity(row.kelvin), "viscosity");
    }
}

// Saturated liquids: handbook figures (CRC Handbook of Chemistry and Physics, NIST Chemistry
// WebBook, ASHRAE Fundamentals for R-134a). A pressure or a density of 0 is not compared.
TEST(FluidTables, LiquidsAgreeWithTheHandbooks) {
    struct Row {
        const char* name;
        double kelvin, kPa, density, percent;
    };
    constexpr Row kRows[] = {
        {"Nitrogen", 77.355, 101.325, 806.1, 0.5}, {"Oxygen", 90.188, 101.325, 1141.2, 0.5},
        {"Methane", 111.667, 101.325, 422.4, 0.5}, {"Carbon dioxide", 293.15, 5729.0, 773.4, 0.5},
        {"Ammonia", 239.82, 101.325, 682.0, 0.5},  {"Propane", 231.04, 101.325, 580.9, 0.5},
        {"n-Butane", 272.66, 101.325, 601.3, 0.5}, {"R-134a", 298.15, 665.4, 1206.7, 0.5},
        {"Methanol", 337.7, 101.325, 0.0, 1.0},    {"Methanol", 293.15, 0.0, 791.4, 1.0},
        {"Ethanol", 351.44, 101.325, 0.0, 1.0},    {"Ethanol", 293.15, 0.0, 789.3, 0.5},
        {"Toluene", 383.75, 101.325, 0.0, 0.5},    {"Toluene", 293.15, 0.0, 866.8, 0.5},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        TableFluid fluid(row.name);
        ASSERT_EQ(FLUID_LIQUID, fluid.At(row.kelvin, row.kPa == 0.0 ? 200.0 : 1.02 * row.kPa));
        if (row.kPa != 0.0) {
            ExpectWithin(row.percent, row.kPa, fluid.GetVaporPres(), "vapor pressure");
        }
        if (row.density != 0.0) {
            ExpectWithin(row.percent, row.density, fluid.GetDensity(), "density");
        }
    }
}

// Viscosity of liquids at 25 degrees Celsius, CRC Handbook, and of R-134a, ASHRAE Fundamentals.
TEST(FluidTables, LiquidViscosityAgreesWithTheHandbooks) {
    struct Row {
        const char* name;
        double viscosity;
    };
    for (const Row& row : {Row{"Methanol", 0.544}, Row{"Ethanol", 1.074}, Row{"Toluene", 0.560},
                           Row{"R-134a", 0.195}}) {
        TableFluid fluid(row.name);
        ASSERT_EQ(FLUID_LIQUID, fluid.At(298.15, 800.0)) << row.name;
        ExpectWithin(5.0, row.viscosity, fluid.GetViscosity(), row.name);
    }
}

// Gases at 25 degrees Celsius and one atmosphere, NIST Chemistry WebBook: density, viscosity, ratio
// of specific heats of the ideal gas.
TEST(FluidTables, GasesAgreeWithTheHandbooks) {
    struct Row {
        const char* name;
        double density, viscosity, ratio;
    };
    constexpr Row kRows[] = {
        {"Air", 1.184, 0.01849, 1.400},      {"Nitrogen", 1.145, 0.01781, 1.400},
        {"Oxygen", 1.309, 0.02057, 1.395},   {"Carbon dioxide", 1.808, 0.01493, 1.289},
        {"Methane", 0.6568, 0.01107, 1.304}, {"Propane", 1.832, 0.00812, 1.127},
        {"Ammonia", 0.7032, 0.01009, 1.304},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        TableFluid fluid(row.name);
        ASSERT_EQ(FLUID_VAPOR, fluid.At(298.15, 101.325));
        ExpectWithin(0.5, row.density, fluid.GetDensity(), "density");
        ExpectWithin(2.0, row.viscosity, fluid.GetViscosity(), "viscosity");
        ExpectWithin(1.0, row.ratio, fluid.GetSpHeat(), "ratio of specific heats");
    }
}

// Between the dew and the bubble pressure air has no state.
TEST(FluidTables, AirHasABandOfTwoPhases) {
    TableFluid air("Air");
    EXPECT_EQ(FLUID_LIQUID, air.At(100.0, 680.0));
    EXPECT_EQ(FLUID_NONE, air.At(100.0, 610.0));
    EXPECT_EQ(FLUID_VAPOR, air.At(100.0, 540.0));
}

TEST(FluidTables, StatesFillTheRangesAndEndWithThem) {
    for (const std::string& name : InstalledFluids()) {
        SCOPED_TRACE(name);
        TableFluid fluid(name);
        fluid.At(300.0, 100.0);
        const double tc = fluid.GetCriticalTemp();
        if (fluid.Has(FLUID_LIQUID)) {
            const double middle = 0.5 * (fluid.LiquidMin() + fluid.LiquidMax());
            for (const double t : {fluid.LiquidMin(), middle, fluid.LiquidMax()}) {
                const double pressure = 1.01 * fluid.BubblePressure(t) + 1e-6;
                EXPECT_EQ(FLUID_LIQUID, fluid.At(t, pressure)) << t;
                EXPECT_EQ(1, fluid.SetPointIsValid(t, pressure)) << t;
            }
            EXPECT_EQ(FLUID_NONE, fluid.At(fluid.LiquidMin() - 0.01, 100.0));
        }
        if (fluid.Has(FLUID_VAPOR)) {
            for (double t = fluid.VaporMin(); t <= fluid.VaporMax(); t += 7.3) {
                const double end =
                    t < tc ? std::min(fluid.VaporMaxPressure(), 0.99 * fluid.DewPressure(t))
                           : fluid.VaporMaxPressure();
                for (const double pressure : {0.01 * end, 0.5 * end, end}) {
                    EXPECT_EQ(FLUID_VAPOR, fluid.At(t, pressure)) << t << ' ' << pressure;
                    EXPECT_EQ(1, fluid.SetPointIsValid(t, pressure)) << t << ' ' << pressure;
                }
            }
            const double hot = fluid.VaporMax();
            EXPECT_EQ(FLUID_NONE, fluid.At(hot, 1.001 * fluid.VaporMaxPressure()));
            EXPECT_EQ(FLUID_NONE, fluid.At(hot + 0.01, 100.0));
        }
    }
}

TEST(FluidTables, PropertiesGoTheWayOfNature) {
    for (const std::string& name : InstalledFluids()) {
        SCOPED_TRACE(name);
        TableFluid fluid(name);
        fluid.At(300.0, 100.0);
        double lastPressure = 0.0;
        double lastDensity = INFINITY;
        double lastViscosity = INFINITY;
        for (double t = fluid.LiquidMin(); t < fluid.LiquidMax(); t += 0.77) {
            ASSERT_EQ(FLUID_LIQUID, fluid.At(t, 1.01 * fluid.BubblePressure(t)));
            EXPECT_GT(fluid.GetVaporPres(), lastPressure) << t;
            EXPECT_LT(fluid.GetViscosity(t), lastViscosity) << t;
            EXPECT_GT(fluid.GetViscosity(t), 0.0) << t;
            // Water is densest at 4 degrees Celsius.
            EXPECT_TRUE(fluid.GetDensity() < lastDensity || (name == "Water" && t < 277.2)) << t;
            lastPressure = fluid.GetVaporPres();
            lastViscosity = fluid.GetViscosity(t);
            lastDensity = fluid.GetDensity();
        }
        double lastGasViscosity = 0.0;
        for (double t = fluid.VaporMin(); t < fluid.VaporMax(); t += 3.1) {
            const double pressure = 1e-4 * std::min(fluid.VaporMaxPressure(), fluid.DewPressure(t));
            ASSERT_EQ(FLUID_VAPOR, fluid.At(t, pressure)) << t;
            EXPECT_GT(fluid.GetViscosity(t), lastGasViscosity) << t;
            EXPECT_GT(fluid.GetSpHeat(t), 1.0) << t;
            // A thin gas is ideal: p M / (R T).
            const double ideal = pressure * fluid.GetMolecularWt() / (8.3144 * t);
            ExpectWithin(0.1, ideal, fluid.GetDensity(), "density of a thin gas");
            lastGasViscosity = fluid.GetViscosity(t);
        }
    }
}

TEST(FluidTables, AreTheSameFluidInUSUnits) {
    for (const std::string& name : InstalledFluids()) {
        SCOPED_TRACE(name);
        TableFluid metric(name);
        metric.At(300.0, 100.0);
        const bool liquid = metric.Has(FLUID_LIQUID);
        const double kelvin =
            liquid ? 0.5 * (metric.LiquidMin() + metric.LiquidMax()) : metric.VaporMax();
        const double kPa = liquid ? 2.0 * metric.BubblePressure(kelvin) : 100.0;
        const FLUIDSTATE state = metric.At(kelvin, kPa);
        TableFluid us(name, HF_DEG_F, HF_PSI);
        EXPECT_EQ(state, us.At(kelvin * 1.8 - 459.67, kPa / 6.894757293168361));
        ExpectWithin(0.1, metric.GetUDensity() / 16.018463, us.GetUDensity(), "density");
        ExpectWithin(0.1, metric.GetViscosity(), us.GetViscosity(), "viscosity");
        ExpectWithin(0.1, metric.GetUVaporPres() / 6.894757293168361, us.GetUVaporPres(),
                     "vapor pressure");
    }
}

}  // namespace
