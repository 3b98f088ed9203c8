#include <gtest/gtest.h>

#include "tests/fluid/TestFluid.h"

namespace {

constexpr double kR = 8.3144;

// The unrounded properties are compared for all installed tables; here is what users see of them.
TEST(FluidProperties, AreRoundedInTheUsersUnits) {
    const struct {
        HF_TUNITS temperatureUnit;
        HF_PUNITS pressureUnit;
        int absolute;
        double t;
        double p;
        FLUIDSTATE state;
        double density;
        double densityUS;
        double sg;
        double viscosity;
        double spHeat;
        double vaporPressure;
        double centistokes;
    } kCases[] = {
        // 899.8766 kg/m³ of 997.2; 1.8233326 cP are 1.823 / 899.8766 × 999.93656 = 2.0257 cSt.
        {HF_KELVIN, HF_KPA, 1, 300.1234, 500.0, FLUID_LIQUID, 899.9, 899.8766 * 0.06243, 0.902,
         1.823, 0.0, 101.2, 2.0},
        // 300 K: 900 / 16.01794 = 56.187 lb/ft³, 100 kPa = 14.504 psi.
        {HF_DEG_F, HF_PSI, 0, 80.33, 30.0, FLUID_LIQUID, 56.19, 56.19, 0.903, 1.823, 0.0, 14.5,
         2.0},
        // 2.98539 kg/m³ by the gas law
        {HF_KELVIN, HF_KPA, 1, 350.0, 300.0, FLUID_VAPOR, 2.985,
         300.0 * 28.9586 / (kR * 350.0) * 0.06243, 1.0, 0.0135, 1.333, 600.0, 4.5},
    };
    TableFolder folder;
    folder.Add("Plain", {});
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.t);
        TestFluid fluid(c.temperatureUnit, c.pressureUnit, c.absolute, 14.696);
        ASSERT_EQ(fluid.SetFluid(folder.path.data(), "Plain", c.t, c.p), 0);
        ASSERT_EQ(fluid.GetFluidState(), c.state);
        EXPECT_EQ(fluid.GetUDensity(), c.density);
        EXPECT_DOUBLE_EQ(fluid.GetDensityUS(), c.densityUS);
        EXPECT_EQ(fluid.GetSG(), c.sg);
        EXPECT_EQ(fluid.GetViscosity(), c.viscosity);
        EXPECT_EQ(fluid.GetSpHeat(), c.spHeat);
        EXPECT_EQ(fluid.GetUVaporPres(), c.vaporPressure);
        EXPECT_EQ(fluid.CentistokesRounded(), c.centistokes);
        EXPECT_DOUBLE_EQ(fluid.GetViscosity(310.0), fluid.IsLiquid() ? 1.813456 : 0.0131);
        EXPECT_DOUBLE_EQ(fluid.GetSpHeat(310.0), fluid.IsLiquid() ? 0.0 : 4.0 / 3.0);
        EXPECT_EQ(fluid.GetUDenSG(1), c.sg);
        for (int unit = 0; unit < 4; ++unit) {
            fluid.m_pUnits->SetUserUnit(HF_DENSITY, unit);
            EXPECT_EQ(fluid.GetUDenSG(), unit == 2 ? c.sg : c.density) << unit;
        }
    }
}

TEST(FluidProperties, CentistokesHaveOneDecimalBelowTen) {
    // A liquid of 999.93656 kg/m³, for which the numbers of cP and cSt are the same.
    for (const auto& [viscosity, rounded] :
         {std::pair{9.94, 9.9}, {9.96, 10.0}, {10.4, 10.0}, {10.6, 11.0}, {0.04, 0.0}}) {
        CFluid fluid(HF_DEG_C, HF_BAR, 1, 0.0);
        fluid.SetFluidProperties("x", FLUID_USER_LIQUID, 20.0, 1.0, 999.93656, viscosity, 0.0, 0.0,
                                 0.0, 0.0, 0.0, 0.0);
        EXPECT_EQ(fluid.CentistokesRounded(), rounded) << viscosity;
    }
}

// Getters take the set point to base units on a way of their own. Whatever the units, heads and ids
// of no unit included, it leads to the same bits as Units.
TEST(FluidProperties, SetPointsCrossToBaseUnitsAsUnitsConvertThem) {
    constexpr double kTemperature = 80.33;
    constexpr double kPressure = 31.7;
    TestFluid fluid(HF_DEG_C, HF_KPA, 0, 98.7);
    Units& units = *fluid.m_pUnits;
    const auto kPa = [&units](double pressure) {
        return units.Convert(HF_PRESSURE, pressure, HF_USER_UNIT, HF_KPA, nullptr);
    };
    for (const int tunit : {-1, 0, 1, 2, 3, 4, int{HF_USER_UNIT}}) {
        for (int punit = HF_USER_UNIT; punit <= HF_M_H2O + 1; ++punit) {
            for (const bool absolute : {false, true}) {
                SCOPED_TRACE(::testing::Message() << tunit << ", " << punit << ", " << absolute);
                units.SetUserUnit(HF_TEMPERATURE, tunit);
                units.SetUserUnit(HF_PRESSURE, punit);
                units.SetAbsolute(absolute);
                EXPECT_EQ(
                    fluid.KTemp(kTemperature),
                    units.Convert(HF_TEMPERATURE, kTemperature, HF_USER_UNIT, HF_KELVIN, nullptr));
                EXPECT_EQ(fluid.kPaPres(kPressure, 0),
                          kPa(kPressure + units.GetAtmosphere(HF_USER_UNIT, false)));
                EXPECT_EQ(fluid.kPaPres(kPressure, 1), kPa(kPressure));
            }
        }
    }
}

TEST(FluidProperties, ChangesOfUnitsAndAtmosphereAreSeenAtOnce) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 350.0, 300.0);
    Units& units = *fluid.m_pUnits;
    units.SetAbsolute(false);
    units.SetAtmosphere(90.0, HF_KPA);
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 390.0 * 28.9586 / (kR * 350.0));
    units.SetUserUnit(HF_TEMPERATURE, HF_DEG_C);
    EXPECT_DOUBLE_EQ(fluid.GetVaporPres(), 10.0 * 623.15 - 2900.0);
    units.SetUserUnit(HF_PRESSURE, HF_HEAD_M);
    EXPECT_EQ(fluid.GetDensity(), 0.0);
}

TEST(FluidProperties, TaggedValuesCarryTheirUnits) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    EXPECT_NEAR(fluid.GetTemperatureValue().value_in(HF_DEG_C), 26.85, 1e-12);
    EXPECT_EQ(fluid.GetPressureValue().value_in(HF_BAR), 5.0);
    EXPECT_EQ(fluid.GetAbsPressureValue().value_in(HF_BAR), 5.0);
    EXPECT_EQ(fluid.GetVaporPresValue().value_in(HF_BAR), 1.0);
    EXPECT_EQ(fluid.GetCriticalPresValue().value_in(HF_BAR), 11.0);
    EXPECT_EQ(fluid.GetDensityValue().value_in(1), 900.0);
    EXPECT_EQ(fluid.GetViscosityValue().value_in(0), fluid.GetViscosity());
    fluid.m_pUnits->SetUserUnit(HF_VISCOSITY, 1);
    const auto viscosity = fluid.GetViscosityValue();
    EXPECT_DOUBLE_EQ(viscosity.raw_value(), 1.823 / 900.0 * 999.93656);
    EXPECT_NEAR(viscosity.value_in(0), 1.823, 1e-15);
    fluid.SetEnglishOrMetric(HF_US);
    EXPECT_EQ(fluid.GetDensityValue().unit, 0);
    EXPECT_EQ(fluid.GetDensityValue().raw_value(), 56.19);
}

}  // namespace
