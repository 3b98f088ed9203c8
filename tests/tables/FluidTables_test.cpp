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

// Saturated water: the common steam tables (IAPWS), and rows of check_saturation.csv
// (CoolProp 8.0.1) that the fits of water leave out.
TEST(FluidTables, WaterAgreesWithTheSteamTables) {
    struct Row {
        double kelvin, kPa, density, viscosity;
    };
    constexpr Row kRows[] = {
        {273.16, 0.61165, 999.79, 1.7911},        {293.15, 2.3393, 998.16, 1.0016},
        {298.15, 3.1699, 997.00, 0.89004},        {323.15, 12.352, 988.00, 0.54652},
        {348.15, 38.595, 974.83, 0.37740},        {373.15, 101.42, 958.35, 0.28158},
        {423.15, 476.16, 917.01, 0.18261},        {288.2024, 1.711558, 999.0482, 1.13605},
        {303.2438, 4.269892, 995.5778, 0.795634}, {318.2851, 9.661855, 990.1162, 0.594328},
        {333.3265, 20.10993, 983.0694, 0.464774}, {348.3679, 38.9486, 974.6848, 0.376326},
        {363.4093, 70.87577, 965.1211, 0.313238}, {378.4506, 122.1666, 954.4816, 0.266673},
        {393.492, 200.836, 942.8308, 0.231328},   {408.5334, 316.7382, 930.2036, 0.203857},
        {438.6162, 709.072, 902.0394, 0.164434},  {468.6989, 1415.332, 869.8029, 0.137805},
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
        {"Ethane", 184.57, 101.325, 543.8, 1.0},   {"Propylene", 225.53, 101.325, 609.0, 0.5},
        {"Argon", 87.302, 101.325, 1395.4, 0.5},   {"Chlorine", 239.11, 101.325, 0.0, 1.5},
        {"R-123", 300.97, 101.325, 0.0, 0.5},      {"R-125", 225.06, 101.325, 0.0, 0.5},
        {"Hydrogen", 20.369, 101.325, 70.8, 1.0},  {"Hydrogen sulfide", 212.85, 101.325, 0.0, 1.0},
        {"Hexane", 341.87, 101.325, 0.0, 1.0},     {"Chloroform", 298.15, 0.0, 1478.8, 1.0},
        {"Benzene", 293.15, 0.0, 876.5, 0.5},      {"Ethylene glycol", 293.15, 0.0, 1113.5, 1.0},
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
    constexpr std::pair<const char*, double> kRows[] = {
        {"Methanol", 0.544}, {"Ethanol", 1.074}, {"Toluene", 0.560},  {"R-134a", 0.195},
        {"Benzene", 0.604},  {"Hexane", 0.300},  {"1-Butanol", 2.54}, {"Ethylene glycol", 16.1}};
    for (const auto& [name, viscosity] : kRows) {
        TableFluid fluid(name);
        ASSERT_EQ(FLUID_LIQUID, fluid.At(298.15, 800.0)) << name;
        ExpectWithin(5.0, viscosity, fluid.GetViscosity(), name);
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

/// Calls use(fluid) for each installed fluid, loaded.
template <class Use>
void ForEachFluid(Use use) {
    for (const std::string& name : InstalledFluids()) {
        SCOPED_TRACE(name);
        TableFluid fluid(name);
        fluid.At(300.0, 100.0);
        use(fluid, name);
        if (::testing::Test::HasFailure()) {
            FAIL() << "at " << name << "; the fluids behind it are not tested";
        }
    }
}

// The state is what the saturation curves say, wherever the formulas of that state hold; inside the
// ranges and around them.
TEST(FluidTables, TheStateFoundIsTheOneThatIsValid) {
    constexpr int kSteps = 40;
    ForEachFluid([](TableFluid& fluid, const std::string&) {
        const double tc = fluid.GetCriticalTemp();
        const double pc = fluid.GetCriticalPres();
        const bool hasLiquid = fluid.Has(FLUID_LIQUID);
        const double first = hasLiquid ? fluid.LiquidMin() : fluid.VaporMin();
        const double last = fluid.Has(FLUID_VAPOR) ? fluid.VaporMax() : fluid.LiquidMax();
        for (int i = 0; i <= kSteps; ++i) {
            // Not round, since exactly at the critical temperature a pure fluid has no state.
            const double t = std::lerp(0.95 * first, 1.05 * last, (i + 0.0123) / kSteps);
            const bool outside = (hasLiquid && t < first) || t > last;
            for (double pressure = 1e-3 * pc; pressure < 2.0 * pc; pressure *= 1.7) {
                FLUIDSTATE expected = FLUID_NONE;
                if (t > tc || pressure < 0.999 * fluid.DewPressure(t)) {
                    expected = FLUID_VAPOR;
                } else if (pressure > 1.001 * fluid.BubblePressure(t) && pressure < pc) {
                    expected = FLUID_LIQUID;
                } else if (pressure < pc) {
                    continue;  // On the curve or between the curves.
                }
                if (outside || fluid.SetPointIsValid(t, pressure, expected) == 0) {
                    expected = FLUID_NONE;
                }
                ASSERT_EQ(expected, fluid.At(t, pressure)) << t << " K, " << pressure << " kPa";
            }
        }
        if (fluid.Has(FLUID_VAPOR) && last > tc) {
            EXPECT_EQ(FLUID_VAPOR, fluid.At(last, fluid.VaporMaxPressure()));
            EXPECT_EQ(FLUID_NONE, fluid.At(last, 1.001 * fluid.VaporMaxPressure()));
        }
    });
}

TEST(FluidTables, AreTheSameFluidInUSUnits) {
    constexpr double kPsi = 6.894757293168361;  // kPa
    ForEachFluid([](TableFluid& metric, const std::string& name) {
        TableFluid us(name, HF_DEG_F, HF_PSI);
        const auto compare = [&](FLUIDSTATE state, double kelvin, double kPa) {
            ASSERT_EQ(state, metric.At(kelvin, kPa)) << kelvin << ' ' << kPa;
            ASSERT_EQ(state, us.At(kelvin * 1.8 - 459.67, kPa / kPsi)) << kelvin << ' ' << kPa;
            ExpectWithin(0.1, metric.GetUDensity() / 16.018463, us.GetUDensity(), "density");
            ExpectWithin(0.1, metric.GetViscosity(), us.GetViscosity(), "viscosity");
            if (state == FLUID_LIQUID) {
                ExpectWithin(0.1, metric.GetUVaporPres() / kPsi, us.GetUVaporPres(),
                             "vapor pressure");
            } else {
                ExpectWithin(0.1, metric.GetSpHeat(), us.GetSpHeat(), "ratio of specific heats");
                // A gas of one atom has 5/3, none has more.
                EXPECT_LT(metric.GetSpHeat(), 1.68);
            }
        };
        for (const double share : {0.1, 0.5, 0.9}) {
            if (metric.Has(FLUID_LIQUID)) {
                const double t = std::lerp(metric.LiquidMin(), metric.LiquidMax(), share);
                compare(FLUID_LIQUID, t, 1.02 * metric.BubblePressure(t));
            }
            if (metric.Has(FLUID_VAPOR)) {
                const double t = std::lerp(metric.VaporMin(), metric.VaporMax(), share);
                const double end =
                    t < metric.GetCriticalTemp() ? 0.99 * metric.DewPressure(t) : INFINITY;
                compare(FLUID_VAPOR, t, 0.9 * std::min(end, metric.VaporMaxPressure()));
            }
        }
    });
}

}  // namespace
