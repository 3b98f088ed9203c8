#include <gtest/gtest.h>

#include <string>

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
    constexpr double kAirFactor = 200.0 * 348.3956 / 100.0 / 293.15;  // 2.3769 kg/m³
    const struct {
        Given given;
        double density;
        double sg;
    } kCases[] = {
        {{FLUID_USER_LIQUID, 800.0, 0.0}, 800.0, 0.802},  // 800 / 997.2
        {{FLUID_USER_LIQUID, 0.0, 0.8}, 797.8, 0.8},      // 797.76
        {{FLUID_USER_LIQUID, 800.12345, 0.7}, 800.12345, 0.7},
        {{FLUID_USER_LIQUID, 0.0, 0.0}, 0.0, 0.0},
        {{FLUID_USER_LIQUID, -5.0, 0.0}, -5.0, 0.0},
        {{FLUID_USER_VAPOR, 2.0, 0.0, 44.01}, 2.0, 1.52},  // 44.01 / 28.9586
        {{FLUID_USER_VAPOR, 2.0, 0.0, 2.016}, 2.0, 0.0696},
        {{FLUID_USER_VAPOR, 0.0, 1.0}, 2.377, 1.0},
        {{FLUID_USER_VAPOR, 0.0, 0.0}, 0.0, 0.0},
        {{FLUID_LIQUID, 2.0, 1.1}, 2.0, 1.1},  // anything but a user liquid is a vapor
    };
    EXPECT_NEAR(kAirFactor, 2.377, 5e-4);
    for (const auto& c : kCases) {
        TestFluid fluid = Make(c.given);
        EXPECT_EQ(fluid.GetFluidState(),
                  c.given.state == FLUID_USER_LIQUID ? FLUID_USER_LIQUID : FLUID_USER_VAPOR);
        EXPECT_EQ(fluid.GetUDensity(), c.density);
        EXPECT_EQ(fluid.GetDensity(), c.density);
        EXPECT_EQ(fluid.GetSG(), c.sg);
        EXPECT_FALSE(fluid.IsTableFluid() || fluid.IsIdealGas());
        EXPECT_EQ(fluid.EqnState(), 0);
    }
}

TEST(UserFluid, GettersGiveWhatWasStored) {
    TestFluid liquid = Make({FLUID_USER_LIQUID, 800.0});
    EXPECT_EQ(liquid.GetViscosity(), 1.23456);
    EXPECT_EQ(liquid.GetViscosity(400.0), 1.23456);
    EXPECT_EQ(liquid.GetUVaporPres(), 0.345678);
    EXPECT_DOUBLE_EQ(liquid.GetVaporPres(), 34.5678);  // absolute: no atmosphere added
    EXPECT_EQ(liquid.GetSpHeat(), 0.0);
    EXPECT_EQ(liquid.GetCriticalTemp(), 100.0);
    EXPECT_EQ(liquid.GetCriticalPres(), 50.0);
    EXPECT_EQ(liquid.SetPointIsValid(20.0, 1.0), 0);
    EXPECT_FALSE(liquid.FormulasExist(FLUID_USER_LIQUID));
    EXPECT_TRUE(liquid.CheckNewAtmPressure());

    TestFluid vapor = Make({FLUID_USER_VAPOR, 2.0, 1.1});
    EXPECT_EQ(vapor.GetViscosity(), 1.23456);
    EXPECT_EQ(vapor.GetSpHeat(), 1.4567);
    EXPECT_EQ(vapor.GetSpHeat(400.0), 1.4567);
    EXPECT_EQ(vapor.GetVaporPres(), 0.0);
    EXPECT_EQ(vapor.GetUVaporPres(), 0.0);
}

TEST(UserFluid, VaporOfNoDensityHasThatOfItsMolecularWeight) {
    TestFluid fluid = Make({FLUID_USER_VAPOR, 0.0, 0.0, 44.01});
    EXPECT_EQ(fluid.GetUDensity(), 0.0);
    EXPECT_EQ(fluid.GetSG(), 0.0);
    EXPECT_FALSE(fluid.IsIdealGas());
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 200.0 * 44.01 / (8.3144 * 293.15));
}

TEST(UserFluid, StoredDensityIsReadInTheSystemInForce) {
    TestFluid fluid = Make({FLUID_USER_LIQUID, 50.0, 0.9});
    fluid.SetEnglishOrMetric(HF_US);
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 50.0 * 16.01794);
    EXPECT_EQ(fluid.GetUDensity(), 50.0);
    EXPECT_EQ(fluid.GetDensityUS(), 50.0);
}

TEST(UserFluid, NegativeVaporDensityFollowsTheGasLaw) {
    TestFluid fluid = Make({FLUID_USER_VAPOR, -1.0, 0.0, 28.9586});
    EXPECT_TRUE(fluid.IsIdealGas());
    EXPECT_EQ(fluid.EqnState(), 1);
    EXPECT_EQ(fluid.GetSG(), 1.0);
    EXPECT_EQ(fluid.GetUDensity(), 0.0);
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 200.0 * 28.9586 / (8.3144 * 293.15));
    fluid.m_pressure = 3.0;
    EXPECT_DOUBLE_EQ(fluid.GetDensity(), 400.0 * 28.9586 / (8.3144 * 293.15));
}

TEST(UserFluid, VaporWithoutAMolecularWeightGetsItFromTheDensityOnce) {
    const TestFluid fluid = Make({FLUID_USER_VAPOR, 2.0});
    const double weight = 2.0 * 8.3144 * 293.15 / 200.0;  // 24.374 kg/kmol
    EXPECT_DOUBLE_EQ(fluid.GetMolecularWt(), weight);
    EXPECT_EQ(fluid.GetSG(), 0.842);
    EXPECT_EQ(fluid.CalcSG(4.0), 0.842);
    EXPECT_DOUBLE_EQ(fluid.GetMolecularWt(), weight);
}

TEST(UserFluid, SpecificGravityOfAMetricAndAUsLiquidAgree) {
    TestFluid metric = Make({FLUID_USER_LIQUID, 997.2});
    EXPECT_EQ(metric.GetSG(), 1.0);
    metric.SetEnglishOrMetric(HF_US);
    EXPECT_EQ(metric.CalcSG(62.26), 1.0);  // 997.2 / 16.01794, four digits
    EXPECT_EQ(metric.CalcDen(1.0), 62.26);
}

TEST(UserFluid, NameIsCutTo62Characters) {
    TestFluid fluid;
    fluid.SetFluidProperties(std::string(100, 'n').c_str(), FLUID_USER_LIQUID, 0, 0, 1, 1, 1, 1, 1,
                             1, 1, 1);
    EXPECT_EQ(fluid.GetFluidName(), std::string(62, 'n'));
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
