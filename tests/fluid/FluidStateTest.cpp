#include <gtest/gtest.h>

#include <cmath>

#include "tests/fluid/TestFluid.h"

namespace {

// Below 400 K and 1100 kPa liquid lies above 10 T − 2900 kPa and vapor below it; with a dew side
// vapor lies below 10 T − 2950 kPa.
TEST(FluidState, RegionsMeetAtTheSaturationCurvesAndTheCriticalPoint) {
    const struct {
        double t;
        double p;
        FLUIDSTATE withoutDewSide;
        FLUIDSTATE withDewSide;
    } kCases[] = {
        {350.0, 700.0, FLUID_LIQUID, FLUID_LIQUID},
        {350.0, 600.001, FLUID_LIQUID, FLUID_LIQUID},
        {350.0, 600.0, FLUID_NONE, FLUID_NONE},  // on the curve
        {350.0, 599.999, FLUID_VAPOR, FLUID_NONE},
        {350.0, 550.0, FLUID_VAPOR, FLUID_NONE},
        {350.0, 549.999, FLUID_VAPOR, FLUID_VAPOR},
        {350.0, 0.0, FLUID_NONE, FLUID_NONE},     // no vapor has a density of zero
        {350.0, 1100.0, FLUID_NONE, FLUID_NONE},  // compressed beyond the critical pressure
        {400.0, 100.0, FLUID_NONE, FLUID_VAPOR},  // at the critical temperature exactly
        {400.0, 1050.0, FLUID_NONE, FLUID_NONE},
        {400.1, 5000.0, FLUID_VAPOR, FLUID_VAPOR},
        {400.1, 5000.1, FLUID_NONE, FLUID_NONE},
        {500.0, 1.0, FLUID_VAPOR, FLUID_VAPOR},
        {500.1, 1.0, FLUID_NONE, FLUID_NONE},
        {295.0, 1000.0, FLUID_LIQUID, FLUID_LIQUID},
        {294.9, 1000.0, FLUID_NONE, FLUID_NONE},
        {294.9, 1.0, FLUID_NONE, FLUID_NONE},
        {395.1, 1090.0, FLUID_NONE, FLUID_NONE},  // liquid beyond its range
        {std::nan(""), 1000.0, FLUID_NONE, FLUID_NONE},
    };
    TableFolder folder;
    TestFluid single = folder.Fluid({}, 300.0, 500.0);
    FluidText blend;
    blend.formulas[1] = kDewSide;
    TestFluid mixed = folder.Fluid(blend, 300.0, 500.0);
    for (const auto& c : kCases) {
        EXPECT_EQ(single.FindFluidState(c.t, c.p), c.withoutDewSide) << c.t << " K " << c.p;
        EXPECT_EQ(mixed.FindFluidState(c.t, c.p), c.withDewSide) << c.t << " K " << c.p;
    }
}

TEST(FluidState, LiquidIsTriedFirstAndSaturationPressuresAreRounded) {
    // A dew side 100 kPa above the bubble side, which leaves a band where both states would do.
    constexpr const char* kCrossed = "P2\t1\t-2800\t10";
    const struct {
        const char* dewSide;
        double t;
        double p;
        FLUIDSTATE state;
    } kCases[] = {
        // 334.567 kPa, which reads 334.6 in user units
        {"P2\t0", 323.4567, 334.58, FLUID_VAPOR},  {"P2\t0", 323.4567, 334.6, FLUID_NONE},
        {"P2\t0", 323.4567, 334.61, FLUID_LIQUID}, {kCrossed, 350.0, 650.0, FLUID_LIQUID},
        {kCrossed, 395.0, 1140.0, FLUID_VAPOR},  // beyond the critical pressure
    };
    TableFolder folder;
    for (const auto& c : kCases) {
        FluidText table;
        table.formulas[1] = c.dewSide;
        EXPECT_EQ(folder.Fluid(table, c.t, c.p).GetFluidState(), c.state) << c.t << " K " << c.p;
    }
}

TEST(FluidState, GaugePressuresStandOnTheAtmosphere) {
    TableFolder folder;
    folder.Add("Plain", {});
    TestFluid gauge(HF_KELVIN, HF_KPA, 0, 100.0);
    // Saturation at 305 K is 150 kPa absolute, 50 kPa gauge.
    for (const auto& [pressure, state] :
         {std::pair{0.0, FLUID_VAPOR}, {49.9, FLUID_VAPOR}, {50.1, FLUID_LIQUID}}) {
        EXPECT_EQ(gauge.SetFluid(folder.path.data(), "Plain", 305.0, pressure), 0);
        EXPECT_EQ(gauge.GetFluidState(), state) << pressure;
    }
    EXPECT_TRUE(gauge.UpdateAtmPressure(90.0));
    EXPECT_EQ(gauge.GetFluidState(), FLUID_LIQUID);
    EXPECT_FALSE(gauge.CheckNewAtmPressure());
    EXPECT_EQ(gauge.GetFluidState(), FLUID_VAPOR);
    EXPECT_TRUE(gauge.CheckNewAtmPressure());

    TestFluid nameless(HF_KELVIN, HF_KPA, 0, 100.0);
    nameless.UpdateAtmPressure(90.0);
    EXPECT_EQ(nameless.GetAbsPressure(), 100.0);
}

TEST(FluidState, PropertiesMustBePositive) {
    TableFolder folder;
    const struct {
        int slot;
        const char* formula;
        int liquid;
        int vapor;
    } kCases[] = {
        {1, "P2\t0", 1, 1},
        {0, "P1\t1\t-3500\t10", 0, 1},  // zero at 350 K
        {2, "P3\t1\t350\t-1", 0, 1},
        {3, "P4\t1\t-2", 0, 1},
        {2, "P3\t2\t1\t0.2\t300\t0.3", 0, 1},  // not a number above 300 K
        {5, "P6\t1\t350\t-1", 1, 0},
        {6, "P7\t1\t5", 1, 0},  // less than R
    };
    for (const auto& c : kCases) {
        FluidText table;
        table.formulas[static_cast<std::size_t>(c.slot)] = c.formula;
        TestFluid fluid = folder.Fluid(table, 350.0, 500.0);
        EXPECT_EQ(fluid.SetPointIsValid(350.0, 500.0, FLUID_LIQUID), c.liquid) << c.formula;
        EXPECT_EQ(fluid.SetPointIsValid(350.0, 500.0, FLUID_VAPOR), c.vapor) << c.formula;
        EXPECT_EQ(fluid.SetPointIsValid(350.0, 500.0, FLUID_NONE), 0);
        EXPECT_EQ(fluid.SetPointIsValid(350.0, 500.0, FLUID_USER_LIQUID), 0);
    }
}

}  // namespace
