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

    /// Puts another equation of state in, with the fluid's own constants.
    void UseEquation(int type) {
        std::string record = "P5\t" + std::to_string(type) + "\t" +
                             std::to_string(m_formulas[SLOT_VAPOR_DENSITY].m_coefficients[0]);
        EXPECT_EQ(0, m_formulas[SLOT_VAPOR_DENSITY].LoadFormula(SLOT_VAPOR_DENSITY, record.data(),
                                                                m_criticalTemp, m_criticalPres));
    }

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
    struct Row {
        const char* name;
        double viscosity;
    };
    for (const Row& row : {Row{"Methanol", 0.544}, Row{"Ethanol", 1.074}, Row{"Toluene", 0.560},
                           Row{"R-134a", 0.195}, Row{"Benzene", 0.604}, Row{"Hexane", 0.300},
                           Row{"1-Butanol", 2.54}, Row{"Ethylene glycol", 16.1}}) {
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

/// Calls use(temperature) at temperatures over a range, both ends included. The steps are not
/// round, since exactly at the critical temperature a pure fluid has no state.
template <class Use>
void Over(double from, double to, Use use) {
    constexpr int kSteps = 40;
    use(from);
    for (int i = 1; i < kSteps; ++i) {
        use(from + (to - from) * (i + 0.0123) / kSteps);
    }
    use(to);
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

/// The highest pressure of a vapor at a temperature, kPa.
double VaporEnd(const TableFluid& fluid, double kelvin) {
    return kelvin < fluid.GetCriticalTemp()
               ? std::min(fluid.VaporMaxPressure(), 0.99 * fluid.DewPressure(kelvin))
               : fluid.VaporMaxPressure();
}

TEST(FluidTables, StatesFillTheRangesAndEndWithThem) {
    ForEachFluid([](TableFluid& fluid, const std::string&) {
        if (fluid.Has(FLUID_LIQUID)) {
            Over(fluid.LiquidMin(), fluid.LiquidMax(), [&](double t) {
                const double pressure = 1.01 * fluid.BubblePressure(t);
                ASSERT_EQ(FLUID_LIQUID, fluid.At(t, pressure)) << t;
                ASSERT_EQ(1, fluid.SetPointIsValid(t, pressure)) << t;
            });
            EXPECT_EQ(FLUID_NONE, fluid.At(fluid.LiquidMin() - 0.01, 100.0));
        }
        if (fluid.Has(FLUID_VAPOR)) {
            Over(fluid.VaporMin(), fluid.VaporMax(), [&](double t) {
                const double end = VaporEnd(fluid, t);
                for (const double pressure : {0.01 * end, 0.5 * end, end}) {
                    ASSERT_EQ(FLUID_VAPOR, fluid.At(t, pressure)) << t << ' ' << pressure;
                    ASSERT_EQ(1, fluid.SetPointIsValid(t, pressure)) << t << ' ' << pressure;
                }
            });
            const double hot = fluid.VaporMax();
            EXPECT_EQ(FLUID_NONE, fluid.At(hot, 1.001 * fluid.VaporMaxPressure()));
            EXPECT_EQ(FLUID_NONE, fluid.At(hot + 0.01, 100.0));
        }
    });
}

// The state is what the saturation curves say, wherever the formulas of that state hold; inside the
// ranges and around them.
TEST(FluidTables, TheStateFoundIsTheOneThatIsValid) {
    ForEachFluid([](TableFluid& fluid, const std::string&) {
        const double tc = fluid.GetCriticalTemp();
        const double pc = fluid.GetCriticalPres();
        const bool hasLiquid = fluid.Has(FLUID_LIQUID);
        const double first = hasLiquid ? fluid.LiquidMin() : fluid.VaporMin();
        const double last = fluid.Has(FLUID_VAPOR) ? fluid.VaporMax() : fluid.LiquidMax();
        Over(0.95 * first, 1.05 * last, [&](double t) {
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
        });
    });
}

TEST(FluidTables, LiquidsGoTheWayOfNature) {
    ForEachFluid([](TableFluid& fluid, const std::string& name) {
        double lastPressure = 0.0;
        double lastDensity = INFINITY;
        double lastViscosity = INFINITY;
        if (!fluid.Has(FLUID_LIQUID)) {
            return;
        }
        Over(fluid.LiquidMin(), fluid.LiquidMax(), [&](double t) {
            ASSERT_EQ(FLUID_LIQUID, fluid.At(t, 1.01 * fluid.BubblePressure(t))) << t;
            EXPECT_GT(fluid.GetVaporPres(), lastPressure) << t;
            EXPECT_LT(fluid.GetViscosity(t), lastViscosity) << t;
            EXPECT_GT(fluid.GetViscosity(t), 0.0) << t;
            // Water is densest at 4 degrees Celsius.
            EXPECT_TRUE(fluid.GetDensity() < lastDensity || (name == "Water" && t < 282.2)) << t;
            EXPECT_GT(fluid.GetDensity(), 0.0) << t;
            lastPressure = fluid.GetVaporPres();
            lastViscosity = fluid.GetViscosity(t);
            lastDensity = fluid.GetDensity();
        });
    });
}

TEST(FluidTables, VaporsGoTheWayOfNature) {
    ForEachFluid([](TableFluid& fluid, const std::string&) {
        double lastViscosity = 0.0;
        if (!fluid.Has(FLUID_VAPOR)) {
            return;
        }
        Over(fluid.VaporMin(), fluid.VaporMax(), [&](double t) {
            const double pressure = 1e-4 * std::min(fluid.VaporMaxPressure(), fluid.DewPressure(t));
            ASSERT_EQ(FLUID_VAPOR, fluid.At(t, pressure)) << t;
            EXPECT_GT(fluid.GetViscosity(t), lastViscosity) << t;
            EXPECT_GT(fluid.GetSpHeat(t), 1.0) << t;
            // A gas of one atom has 5/3, none has more.
            EXPECT_LT(fluid.GetSpHeat(t), 1.68) << t;
            // A thin gas is ideal: p M / (R T).
            const double ideal = pressure * fluid.GetMolecularWt() / (8.3144 * t);
            ExpectWithin(0.1, ideal, fluid.GetDensity(), "density of a thin gas");
            lastViscosity = fluid.GetViscosity(t);
        });
    });
}

// Whatever the equation, the nearer to no pressure, the nearer to an ideal gas.
TEST(FluidTables, CompressibilityTendsToOneWithEveryEquation) {
    ForEachFluid([](TableFluid& fluid, const std::string&) {
        if (!fluid.Has(FLUID_VAPOR)) {
            return;
        }
        for (int type = 1; type <= 4; ++type) {
            fluid.UseEquation(type);
            Over(fluid.VaporMin(), fluid.VaporMax(), [&](double t) {
                const double end = std::min(fluid.VaporMaxPressure(), fluid.DewPressure(t));
                EXPECT_NEAR(1.0, fluid.CalcZ(t, 1e-3 * end, true), 2e-3) << type << ' ' << t;
                EXPECT_NEAR(1.0, fluid.CalcZ(t, 1e-6 * end, true), 3e-5) << type << ' ' << t;
                EXPECT_EQ(1.0, fluid.CalcZ(t, 0.0, true)) << type << ' ' << t;
            });
        }
    });
}

TEST(FluidTables, AreTheSameFluidInUSUnits) {
    constexpr double kPsi = 6.894757293168361;  // kPa
    ForEachFluid([](TableFluid& metric, const std::string& name) {
        TableFluid us(name, HF_DEG_F, HF_PSI);
        const auto compare = [&](double kelvin, double kPa) {
            const FLUIDSTATE state = metric.At(kelvin, kPa);
            ASSERT_EQ(state, us.At(kelvin * 1.8 - 459.67, kPa / kPsi)) << kelvin << ' ' << kPa;
            ASSERT_NE(FLUID_NONE, state) << kelvin << ' ' << kPa;
            ExpectWithin(0.1, metric.GetUDensity() / 16.018463, us.GetUDensity(), "density");
            ExpectWithin(0.1, metric.GetViscosity(), us.GetViscosity(), "viscosity");
            if (state == FLUID_LIQUID) {
                ExpectWithin(0.1, metric.GetUVaporPres() / kPsi, us.GetUVaporPres(),
                             "vapor pressure");
            } else {
                ExpectWithin(0.1, metric.GetSpHeat(), us.GetSpHeat(), "ratio of specific heats");
            }
        };
        for (const double share : {0.1, 0.3, 0.5, 0.7, 0.9}) {
            if (metric.Has(FLUID_LIQUID)) {
                const double t =
                    metric.LiquidMin() + share * (metric.LiquidMax() - metric.LiquidMin());
                compare(t, 1.02 * metric.BubblePressure(t));
            }
            if (metric.Has(FLUID_VAPOR)) {
                const double t =
                    metric.VaporMin() + share * (metric.VaporMax() - metric.VaporMin());
                compare(t, 0.9 * VaporEnd(metric, t));
            }
        }
    });
}

}  // namespace
