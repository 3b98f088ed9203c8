#include <gtest/gtest.h>

#include "tests/fluid/TestFluid.h"

namespace {

TEST(FluidObject, UnitsFollowTheTemperatureUnitAndAbsoluteMode) {
    const struct {
        HF_TUNITS unit;
        int absolute;
        bool us;
        double atmosphere;
    } kCases[] = {{HF_DEG_F, 0, true, 98.0},
                  {HF_DEG_R, 1, true, 0.0},
                  {HF_DEG_C, 1, false, 0.0},
                  {HF_KELVIN, 0, false, 98.0}};
    for (const auto& c : kCases) {
        TestFluid fluid(c.unit, HF_KPA, c.absolute, 98.0);
        EXPECT_STREQ(fluid.GetPresUnits(), "kPa");
        EXPECT_EQ(fluid.m_pUnits->bUS(), c.us);
        EXPECT_EQ(fluid.m_pUnits->GetAbsolute(), c.absolute != 0);
        EXPECT_EQ(fluid.m_pUnits->GetAtmosphere(HF_KPA, true), c.atmosphere);
        EXPECT_EQ(fluid.GetAbsPressure(), c.atmosphere);
        fluid.SetEnglishOrMetric(HF_METRIC);
        EXPECT_TRUE(fluid.m_pUnits->bMetric());
        EXPECT_EQ(fluid.GetTunit(), c.unit);
    }
}

TEST(FluidObject, BorrowedUnitsAreSharedAndOwnedOnesAreNot) {
    Units lent(HF_METRIC);
    TestFluid borrower(&lent);
    borrower.SetUnits(HF_DEG_F, HF_BAR, 0, 0.9);
    EXPECT_EQ(lent.GetUserUnit(HF_PRESSURE), HF_BAR);

    const TestFluid copy(borrower);
    TestFluid owner;
    owner = borrower;
    lent.SetUserUnit(HF_PRESSURE, HF_KPA);
    EXPECT_EQ(borrower.GetPunit(), HF_KPA);
    EXPECT_EQ(copy.GetPunit(), HF_BAR);
    EXPECT_EQ(copy.m_pUnits->GetAtmosphere(HF_BAR, true), 0.9);
    EXPECT_EQ(owner.GetPunit(), HF_BAR);

    Units others;
    TestFluid second(&others);
    second = borrower;
    EXPECT_EQ(second.m_pUnits, &lent);
    owner.SetUnits(&others);  // gives its own object back
    EXPECT_EQ(owner.m_pUnits, &others);
    EXPECT_EQ(TestFluid(nullptr).GetAbsPressure(), 0.0);
}

TEST(FluidObject, EqualityIgnoresStateAndUnits) {
    TableFolder folder;
    const TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    TestFluid other(fluid);
    other.m_state = FLUID_NONE;
    other.SetUnits(HF_DEG_F, HF_PSI, 0, 14.7);
    EXPECT_TRUE(fluid == other);
    for (double CFluid::*number :
         {&TestFluid::m_pressure, &TestFluid::m_vaporMaxPres, &TestFluid::m_molecularWt}) {
        other = fluid;
        other.*number += 0.001;
        EXPECT_FALSE(fluid == other);
    }
    other = fluid;
    other.m_formulas[6].m_coefficients[4] = 1.0;
    EXPECT_FALSE(fluid == other);
    folder.Add("plain", {});
    other = fluid;
    other.SetFluid(folder.path.data(), "plain", 300.0, 500.0);
    EXPECT_FALSE(fluid == other);
}

TEST(FluidObject, ClearingLeavesFormulasAndUnits) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    fluid.ClearFluid();
    EXPECT_STREQ(fluid.GetFluidName(), "");
    EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE);
    EXPECT_EQ(fluid.GetMolecularWt(), 0.0);
    EXPECT_EQ(fluid.GetTunit(), HF_KELVIN);
    EXPECT_EQ(fluid.EqnState(), 1);
}

}  // namespace
