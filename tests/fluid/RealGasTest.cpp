#include <gtest/gtest.h>

#include "tests/fluid/TestFluid.h"

namespace {

class RealGas : public ::testing::Test {
  protected:
    RealGas() {
        real_.formulas[4] = kPengRobinson;
        fluid_ = folder_.Fluid(real_, 350.0, 300.0);
    }

    // What the equation of state gives at a pressure, without any limit.
    double Equation(double t, double p, double tc = 400.0) const {
        return fluid_.m_formulas[4].CalcZ(t, p, tc);
    }

    TableFolder folder_;
    FluidText real_;
    TestFluid fluid_{HF_KELVIN, HF_KPA, 1, 0.0};
};

TEST_F(RealGas, HighestVaporPressureIsBelowSaturationAndTheTablesLimit) {
    // Saturation is 600 kPa at 350 K and 1100 kPa at the critical 400 K.
    EXPECT_DOUBLE_EQ(fluid_.MaxCompressiblePressure(350.0), 594.0);
    EXPECT_DOUBLE_EQ(fluid_.MaxCompressiblePressure(400.0), 1089.0);
    EXPECT_EQ(fluid_.MaxCompressiblePressure(400.1), 2500.0);
    fluid_.m_vaporMaxPres = 200.0;
    EXPECT_DOUBLE_EQ(fluid_.MaxCompressiblePressure(350.0), 198.0);
    fluid_.SetUnits(HF_KELVIN, HF_BAR, 0, 1.0);
    EXPECT_NEAR(fluid_.MaxCompressiblePressure(350.0), 0.98, 1e-14);  // gauge

    real_.formulas[1] = kDewSide;
    EXPECT_DOUBLE_EQ(folder_.Fluid(real_, 350.0, 300.0).MaxCompressiblePressure(350.0), 544.5);
    real_.formulas[1] = "P2\t1\t-3500\t10";  // zero at 350 K: the liquid side stands in
    EXPECT_DOUBLE_EQ(folder_.Fluid(real_, 350.0, 300.0).MaxCompressiblePressure(350.0), 594.0);
}

TEST_F(RealGas, VaporIsForcedAtALowerPressureIfNeedBe) {
    constexpr double kCases[][3] = {{350.0, 300.0, 300.0},
                                    {350.0, 700.0, 594.0},
                                    {350.0, 600.0, 594.0},
                                    {450.0, 4000.0, 4000.0},
                                    {450.0, 6000.0, 2500.0}};
    for (const auto& [t, given, taken] : kCases) {
        fluid_.SetFluid(folder_.path.data(), "Plain", t, 1.0);
        fluid_.SetFluidVapor(given);
        EXPECT_EQ(fluid_.GetFluidState(), FLUID_VAPOR);
        EXPECT_DOUBLE_EQ(fluid_.GetPressure(), taken);
    }
    fluid_.SetFluidProperties("x", FLUID_USER_VAPOR, 300.0, 100.0, 2.0, 1.0, 0.0, 1.4, 1.0, 0.0,
                              0.0, 29.0);
    fluid_.SetFluidVapor(123.0);
    EXPECT_EQ(fluid_.GetFluidState(), FLUID_USER_VAPOR);
    EXPECT_EQ(fluid_.GetPressure(), 123.0);
}

TEST_F(RealGas, IdealGasIsPutOnAndTakenOff) {
    const double density = fluid_.GetDensity();
    fluid_.SetIdealGas(true);
    EXPECT_TRUE(fluid_.IsIdealGas());
    EXPECT_LT(fluid_.GetDensity(), density);
    fluid_.SetIdealGas(false);
    EXPECT_EQ(fluid_.GetDensity(), density);
    fluid_.SetIdealGas(true);
    fluid_.SetIdealGas(true);  // puts aside the ideal gas
    fluid_.SetIdealGas(false);
    EXPECT_TRUE(fluid_.IsIdealGas());
    TestFluid never = folder_.Fluid(real_, 350.0, 300.0);
    never.SetIdealGas(false);  // nothing was put aside
    EXPECT_TRUE(never.IsIdealGas());
}

TEST_F(RealGas, CompressibilityIsHeldBelowSaturation) {
    EXPECT_EQ(fluid_.CalcZ(350.0, 0.0, true), 1.0);
    EXPECT_EQ(fluid_.CalcZ(350.0, -5.0, false), 1.0);
    const double capped = Equation(350.0, 594.0);
    EXPECT_LT(capped, 0.95);
    for (int i = 0; i < 2; ++i) EXPECT_DOUBLE_EQ(fluid_.CalcZ(350.0, 900.0, false), capped);
    EXPECT_EQ(fluid_.CalcZ(350.0, 300.0, true), Equation(350.0, 300.0));
    // Above the critical temperature the saturation formula still sets the limit, 1600 kPa at 450
    // K, and the table's limit where that is lower.
    EXPECT_DOUBLE_EQ(fluid_.CalcZ(450.0, 4000.0, true), Equation(450.0, 1584.0));
    fluid_.m_vaporMaxPres = 1000.0;
    EXPECT_DOUBLE_EQ(fluid_.CalcZ(450.0, 4000.0, true), Equation(450.0, 990.0));
}

TEST_F(RealGas, CapAndCriticalTemperatureAreKeptUntilTheReset) {
    CFormula& saturation = fluid_.m_formulas[0];
    fluid_.CalcZ(300.0, 50.0, true);         // cap 99 kPa
    saturation.m_coefficients[0] = -3100.0;  // 200 kPa less: an evaluation would show
    fluid_.m_criticalTemp = 380.0;
    EXPECT_EQ(fluid_.CalcZ(330.0, 99.0, false), Equation(330.0, 99.0));
    EXPECT_DOUBLE_EQ(fluid_.CalcZ(330.0, 250.0, false), Equation(330.0, 198.0));
    saturation.m_coefficients[0] = -2900.0;
    EXPECT_DOUBLE_EQ(fluid_.CalcZ(295.0, 60.0, false), Equation(295.0, 49.5));  // colder
    saturation.m_coefficients[0] = -3100.0;
    EXPECT_DOUBLE_EQ(fluid_.CalcZ(312.0, 60.0, false), Equation(312.0, 19.8));
    EXPECT_DOUBLE_EQ(fluid_.CalcZ(312.0, 40.0, true), Equation(312.0, 19.8, 380.0));
}

}  // namespace
