#include <gtest/gtest.h>

#include "tests/fluid/TestFluid.h"

namespace {

struct Given {
    FLUIDSTATE state = FLUID_USER_LIQUID;
    double density = 0.0;
    double sg = 0.0;
    double molecularWt = 0.0;
};

// At 20 °C and 1 bar gauge over 1 bar, so 293.15 K and 200 kPa; density in kg/m³.
TestFluid Make(const Given& given) {
    TestFluid fluid(HF_DEG_C, HF_BAR, 0, 1.0);
    fluid.SetFluidProperties("Mine", given.state, 20.0, 1.0, given.density, 1.23456, 0.345678,
                             1.4567, given.sg, 50.0, 100.0, given.molecularWt);
    return fluid;
}

TEST(UserFluid, DensityAndSpecificGravityFillEachOther) {
    constexpr double kGasLaw = 200.0 / (8.3144 * 293.15);  // kmol/m³
    const struct {
        Given given;
        double shown;
        double sg;
        double density;
    } kCases[] = {
        {{FLUID_USER_LIQUID, 800.0, 0.0}, 800.0, 0.802, 800.0},  // 800 / 997.2
        {{FLUID_USER_LIQUID, 0.0, 0.8}, 797.8, 0.8, 797.8},      // 797.76
        {{FLUID_USER_LIQUID, 800.12345, 0.7}, 800.12345, 0.7, 800.12345},
        {{FLUID_USER_LIQUID, 0.0, 0.0}, 0.0, 0.0, 0.0},
        {{FLUID_USER_LIQUID, -5.0, 0.0}, -5.0, 0.0, -5.0},
        {{FLUID_USER_VAPOR, 2.0, 0.0, 44.01}, 2.0, 1.52, 2.0},  // 44.01 / 28.9586
        {{FLUID_USER_VAPOR, 2.0, 0.0, 2.016}, 2.0, 0.0696, 2.0},
        {{FLUID_USER_VAPOR, 2.0}, 2.0, 0.842, 2.0},         // 2.0 / kGasLaw = 24.374 kg/kmol
        {{FLUID_USER_VAPOR, 0.0, 1.0}, 2.377, 1.0, 2.377},  // 200 × 348.3956 / 100 / 293.15
        // A vapor of no density has that of its molecular weight; so has one of a negative density.
        {{FLUID_USER_VAPOR, 0.0, 0.0, 44.01}, 0.0, 0.0, 44.01 * kGasLaw},
        {{FLUID_USER_VAPOR, -1.0, 0.0, 28.9586}, 0.0, 1.0, 28.9586 * kGasLaw},
        {{FLUID_LIQUID, 2.0, 1.1}, 2.0, 1.1, 2.0},  // anything but a user liquid is a vapor
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(::testing::Message() << c.given.density << ", " << c.given.sg);
        TestFluid fluid = Make(c.given);
        EXPECT_EQ(fluid.GetFluidState(),
                  c.given.state == FLUID_USER_LIQUID ? FLUID_USER_LIQUID : FLUID_USER_VAPOR);
        EXPECT_EQ(fluid.GetUDensity(), c.shown);
        EXPECT_EQ(fluid.GetSG(), c.sg);
        EXPECT_DOUBLE_EQ(fluid.GetDensity(), c.density);
        EXPECT_FALSE(fluid.IsTableFluid());
        EXPECT_EQ(fluid.IsIdealGas(), c.given.density == -1.0);
    }
}

TEST(UserFluid, EachStateHasPropertiesOfItsOwn) {
    TestFluid liquid = Make({FLUID_USER_LIQUID, 800.0});
    EXPECT_EQ(liquid.GetViscosity(), 1.23456);
    EXPECT_EQ(liquid.GetUVaporPres(), 0.345678);
    EXPECT_DOUBLE_EQ(liquid.GetVaporPres(), 34.5678);  // absolute: no atmosphere added
    EXPECT_EQ(liquid.GetSpHeat(), 0.0);
    EXPECT_EQ(liquid.SetPointIsValid(20.0, 1.0), 0);
    EXPECT_TRUE(liquid.CheckNewAtmPressure());

    TestFluid vapor = Make({FLUID_USER_VAPOR, 2.0, 1.1});
    EXPECT_EQ(vapor.GetViscosity(400.0), 1.23456);
    EXPECT_EQ(vapor.GetSpHeat(), 1.4567);
    EXPECT_EQ(vapor.GetSpHeat(400.0), 1.4567);
    EXPECT_EQ(vapor.GetUVaporPres(), 0.0);
}

TEST(UserFluid, VaporWithoutAMolecularWeightGetsItFromTheDensityOnce) {
    const TestFluid fluid = Make({FLUID_USER_VAPOR, 2.0});
    EXPECT_EQ(fluid.CalcSG(4.0), 0.842);
    EXPECT_DOUBLE_EQ(fluid.GetMolecularWt(), 2.0 * 8.3144 * 293.15 / 200.0);
}

TEST(UserFluid, DensityIsReadInTheSystemInForce) {
    TestFluid fluid = Make({FLUID_USER_LIQUID, 62.26});
    fluid.SetEnglishOrMetric(HF_US);
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 62.26 * 16.01794);
    EXPECT_EQ(fluid.GetDensityUS(), 62.26);
    EXPECT_EQ(fluid.CalcSG(62.26), 1.0);  // 997.2 / 16.01794, four digits
    EXPECT_EQ(fluid.CalcDen(1.0), 62.26);
}

TEST(UserFluid, TableOfTheSameNameIsReadAfterwards) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    fluid.SetFluidProperties("Plain", FLUID_USER_VAPOR, 300.0, 500.0, 2.0, 1.0, 0.0, 1.4, 1.0, 0.0,
                             0.0, 29.0);
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), "Plain", 300.0, 500.0), 0);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_EQ(fluid.GetMolecularWt(), 28.9586);
}

}  // namespace
