#include <gtest/gtest.h>

#include "tests/fluid/TestFluid.h"

namespace {

constexpr double kR = 8.3144;

TEST(FluidProperties, LiquidInMetricUnits) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.1234, 500.0);
    ASSERT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_TRUE(fluid.IsLiquid() && fluid.IsTableFluid());
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 899.8766);
    EXPECT_EQ(fluid.GetUDensity(), 899.9);
    EXPECT_DOUBLE_EQ(fluid.GetDensityUS(), 899.8766 * 0.06243);
    EXPECT_EQ(fluid.GetSG(), 0.902);         // 899.9 / 997.2
    EXPECT_EQ(fluid.GetViscosity(), 1.823);  // 1.8233326 cP
    EXPECT_DOUBLE_EQ(fluid.GetViscosity(310.0), 1.813456);
    EXPECT_NEAR(fluid.GetVaporPres(), 101.234, 1e-12);
    EXPECT_EQ(fluid.GetUVaporPres(), 101.2);
    EXPECT_EQ(fluid.GetUVaporPresKTX(), 101.2);
    EXPECT_EQ(fluid.GetSpHeat(), 0.0);
    EXPECT_EQ(fluid.GetSpHeat(300.0), 0.0);
    EXPECT_EQ(fluid.CentistokesRounded(), 2.0);  // 1.823 / 899.8766 × 999.93656 = 2.0257
}

TEST(FluidProperties, LiquidInUsUnits) {
    TableFolder folder;
    folder.Add("Plain", {});
    TestFluid fluid(HF_DEG_F, HF_PSI, 0, 14.696);
    // 80.33 °F is 300 K.
    ASSERT_EQ(fluid.SetFluid(folder.path.data(), "Plain", 80.33, 30.0), 0);
    ASSERT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_NEAR(fluid.GetDensity(), 900.0, 1e-10);
    EXPECT_EQ(fluid.GetUDensity(), 56.19);  // 900 / 16.01794 = 56.187
    EXPECT_EQ(fluid.GetDensityUS(), 56.19);
    EXPECT_EQ(fluid.GetSG(), 0.903);         // 56.19 × 16.01794 / 997.2
    EXPECT_EQ(fluid.GetUVaporPres(), 14.5);  // 100 kPa = 14.504 psi
    EXPECT_EQ(fluid.GetDensityValue().unit, 0);
    EXPECT_EQ(fluid.GetDensityValue().raw_value(), 56.19);
}

TEST(FluidProperties, VaporFollowsTheGasLawAndKeepsItsVaporPressure) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 350.0, 300.0);
    ASSERT_EQ(fluid.GetFluidState(), FLUID_VAPOR);
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 300.0 * 28.9586 / (kR * 350.0));
    EXPECT_EQ(fluid.GetUDensity(), 2.985);  // 2.98539
    EXPECT_EQ(fluid.GetSG(), 1.0);
    EXPECT_EQ(fluid.GetViscosity(), 0.0135);
    EXPECT_EQ(fluid.GetSpHeat(), 1.333);
    EXPECT_DOUBLE_EQ(fluid.GetSpHeat(360.0), 4.0 / 3.0);
    EXPECT_DOUBLE_EQ(fluid.GetVaporPres(), 600.0);
    EXPECT_EQ(fluid.GetUVaporPres(), 600.0);
}

TEST(FluidProperties, DensityOrSpecificGravityByTheUserUnit) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    EXPECT_EQ(fluid.GetUDenSG(0), 900.0);
    EXPECT_EQ(fluid.GetUDenSG(1), 0.903);
    for (const auto& [unit, expected] : {std::pair{0, 900.0}, {1, 900.0}, {2, 0.903}, {3, 900.0}}) {
        fluid.m_pUnits->SetUserUnit(HF_DENSITY, unit);
        EXPECT_EQ(fluid.GetUDenSG(), expected) << unit;
    }
}

TEST(FluidProperties, CentistokesHaveOneDecimalBelowTen) {
    // A liquid of 999.93656 kg/m³, for which the numbers of cP and cSt are the same.
    for (const auto& [viscosity, rounded] : {std::pair{9.94, 9.9},
                                             {9.96, 10.0},
                                             {9.9999, 10.0},
                                             {10.0, 10.0},
                                             {10.4, 10.0},
                                             {10.6, 11.0},
                                             {0.04, 0.0}}) {
        CFluid fluid(HF_DEG_C, HF_BAR, 1, 0.0);
        fluid.SetFluidProperties("x", FLUID_USER_LIQUID, 20.0, 1.0, 999.93656, viscosity, 0.0, 0.0,
                                 0.0, 0.0, 0.0, 0.0);
        EXPECT_EQ(fluid.CentistokesRounded(), rounded) << viscosity;
    }
}

TEST(FluidProperties, TemperaturesAndPressuresCrossToBaseUnitsUnrounded) {
    TestFluid fluid(HF_DEG_C, HF_BAR, 0, 0.98765432);
    EXPECT_DOUBLE_EQ(fluid.KTemp(20.123456), 293.273456);
    EXPECT_DOUBLE_EQ(fluid.kPaPres(0.0, 0), 98.765432);
    EXPECT_DOUBLE_EQ(fluid.kPaPres(1.5, 0), 248.765432);
    EXPECT_EQ(fluid.kPaPres(1.5, 1), 150.0);
    EXPECT_EQ(fluid.UserTemp(300.0), 26.85);
    EXPECT_EQ(fluid.UserTemp(1234.567), 961.4);
    EXPECT_EQ(fluid.UserPres(123.456, 1), 1.235);
    EXPECT_EQ(fluid.UserPres(123.456, 0), 0.2469);  // gauge
    const TestFluid absolute(HF_DEG_C, HF_BAR, 1, 1.0);
    EXPECT_EQ(absolute.kPaPres(1.5, 0), absolute.kPaPres(1.5, 1));
}

// Getters take the set point to base units on a way of their own. Whatever the units, heads and ids
// of no unit included, it leads to the same bits as Units.
TEST(FluidProperties, SetPointsCrossToBaseUnitsAsUnitsConvertThem) {
    constexpr double kTemperature = 80.33;
    constexpr double kPressure = 31.7;
    for (const int tunit : {-1, 0, 1, 2, 3, 4, int{HF_USER_UNIT}}) {
        for (int punit = HF_USER_UNIT; punit <= HF_M_H2O + 1; ++punit) {
            for (const bool absolute : {false, true}) {
                SCOPED_TRACE(::testing::Message() << tunit << ", " << punit << ", " << absolute);
                TestFluid fluid(HF_DEG_C, HF_KPA, 0, 98.7);
                Units& units = *fluid.m_pUnits;
                units.SetUserUnit(HF_TEMPERATURE, tunit);
                units.SetUserUnit(HF_PRESSURE, punit);
                units.SetAbsolute(absolute);
                const auto kPa = [&units](double pressure) {
                    return units.Convert(HF_PRESSURE, pressure, HF_USER_UNIT, HF_KPA, nullptr);
                };
                const double atmosphere = units.GetAtmosphere(HF_USER_UNIT, false);
                EXPECT_EQ(
                    fluid.KTemp(kTemperature),
                    units.Convert(HF_TEMPERATURE, kTemperature, HF_USER_UNIT, HF_KELVIN, nullptr));
                EXPECT_EQ(fluid.kPaPres(kPressure, 0), kPa(kPressure + atmosphere));
                EXPECT_EQ(fluid.kPaPres(kPressure, 1), kPa(kPressure));
            }
        }
    }
}

TEST(FluidProperties, ChangesOfUnitsAndAtmosphereAreSeenAtOnce) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 350.0, 300.0);
    ASSERT_EQ(fluid.GetFluidState(), FLUID_VAPOR);
    const auto expect = [&fluid](double kPa, double kelvin) {
        EXPECT_DOUBLE_EQ(fluid.GetDensity(), kPa * 28.9586 / (kR * kelvin));
        EXPECT_DOUBLE_EQ(fluid.GetVaporPres(), 100.0 + 10.0 * (kelvin - 300.0));
    };
    expect(300.0, 350.0);
    Units& units = *fluid.m_pUnits;
    units.SetAbsolute(false);
    units.SetAtmosphere(90.0, HF_KPA);
    expect(390.0, 350.0);
    units.SetUserUnit(HF_PRESSURE, HF_BAR);
    expect(30090.0, 350.0);
    units.SetUserUnit(HF_TEMPERATURE, HF_DEG_C);
    expect(30090.0, 623.15);
    units.SetUserUnit(HF_PRESSURE, HF_HEAD_M);
    EXPECT_EQ(fluid.GetDensity(), 0.0);
}

TEST(FluidProperties, TaggedValuesCarryTheirUnits) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    EXPECT_EQ(fluid.GetTemperatureValue().unit, HF_KELVIN);
    EXPECT_NEAR(fluid.GetTemperatureValue().value_in(HF_DEG_C), 26.85, 1e-12);
    EXPECT_EQ(fluid.GetPressureValue().value_in(HF_BAR), 5.0);
    EXPECT_EQ(fluid.GetAbsPressureValue().raw_value(), 500.0);
    EXPECT_EQ(fluid.GetVaporPresValue().raw_value(), 100.0);
    EXPECT_EQ(fluid.GetCriticalPresValue().value_in(HF_KPA), 1100.0);
    EXPECT_EQ(fluid.GetDensityValue().unit, 1);
    EXPECT_EQ(fluid.GetDensityValue().raw_value(), 900.0);
    EXPECT_EQ(fluid.GetViscosityValue().raw_value(), fluid.GetViscosity());
    fluid.m_pUnits->SetUserUnit(HF_VISCOSITY, 1);
    const auto viscosity = fluid.GetViscosityValue();
    EXPECT_EQ(viscosity.unit, 1);
    EXPECT_DOUBLE_EQ(viscosity.raw_value(), 1.823 / 900.0 * 999.93656);
    EXPECT_NEAR(viscosity.value_in(0), 1.823, 1e-15);
    EXPECT_TRUE(*viscosity.fluid == fluid);
}

}  // namespace
