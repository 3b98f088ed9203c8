#include <gtest/gtest.h>

#include <memory>

#include "tests/fluid/TestFluid.h"

namespace {

TEST(FluidObject, NewFluidHasNoNameNoStateAndNoProperties) {
    CFluid fluid;
    EXPECT_STREQ(fluid.GetFluidName(), "");
    EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE);
    EXPECT_FALSE(fluid.IsLiquid() || fluid.IsTableFluid() || fluid.IsIdealGas());
    EXPECT_EQ(fluid.EqnState(), 0);
    for (const double property :
         {fluid.GetDensity(), fluid.GetUDensity(), fluid.GetDensityUS(), fluid.GetSG(),
          fluid.GetViscosity(), fluid.GetViscosity(300.0), fluid.GetSpHeat(),
          fluid.GetSpHeat(300.0), fluid.GetVaporPres(), fluid.GetUVaporPres(),
          fluid.CentistokesRounded(), fluid.GetUDenSG(), fluid.GetCriticalTemp(),
          fluid.GetCriticalPres(), fluid.GetMolecularWt(), fluid.GetTemperature(),
          fluid.GetPressure()}) {
        EXPECT_EQ(property, 0.0);
    }
}

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
        const TestFluid fluid(c.unit, HF_KPA, c.absolute, 98.0);
        EXPECT_EQ(fluid.GetTunit(), c.unit);
        EXPECT_EQ(fluid.GetPunit(), HF_KPA);
        EXPECT_STREQ(fluid.GetPresUnits(), "kPa");
        EXPECT_EQ(fluid.m_pUnits->bUS(), c.us);
        EXPECT_EQ(fluid.m_pUnits->GetAbsolute(), c.absolute != 0);
        EXPECT_EQ(fluid.m_pUnits->GetAtmosphere(HF_KPA, true), c.atmosphere);
        EXPECT_EQ(fluid.GetAbsPressure(), c.atmosphere);
    }
    TestFluid fluid;
    fluid.SetEnglishOrMetric(HF_METRIC);
    EXPECT_TRUE(fluid.m_pUnits->bMetric());
    EXPECT_STREQ(fluid.GetTempUnits(),
                 "\xB0"
                 "F");
}

TEST(FluidObject, BorrowedUnitsAreSharedAndOwnedOnesAreNot) {
    Units lent(HF_METRIC);
    lent.SetAtmosphere(90.0, HF_KPA);
    TestFluid borrower(&lent);
    lent.SetUserUnit(HF_PRESSURE, HF_PA);
    EXPECT_EQ(borrower.GetPunit(), HF_PA);
    borrower.SetUnits(HF_DEG_F, HF_BAR, 0, 0.9);
    EXPECT_EQ(lent.GetUserUnit(HF_PRESSURE), HF_BAR);

    const TestFluid copy(borrower);
    EXPECT_TRUE(copy.m_bOwnsUnits);
    EXPECT_NE(copy.m_pUnits, &lent);
    EXPECT_EQ(copy.m_pUnits->GetAtmosphere(HF_BAR, true), 0.9);

    TestFluid owner;
    owner = borrower;
    lent.SetUserUnit(HF_PRESSURE, HF_KPA);
    EXPECT_EQ(owner.GetPunit(), HF_BAR);

    Units others;
    TestFluid second(&others);
    second = borrower;
    EXPECT_EQ(second.m_pUnits, &lent);
    EXPECT_FALSE(second.m_bOwnsUnits);
    second = owner;
    EXPECT_EQ(second.m_pUnits, owner.m_pUnits);

    owner.SetUnits(&others);  // gives its own object back
    EXPECT_EQ(owner.m_pUnits, &others);
    second = borrower;
    const TestFluid& self = second;
    second = self;
    EXPECT_EQ(second.m_pUnits, &lent);
    TestFluid noUnits(nullptr);
    EXPECT_EQ(noUnits.GetAbsPressure(), 0.0);
}

TEST(FluidObject, EqualityIgnoresStateAndUnits) {
    TableFolder folder;
    const TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    TestFluid other(fluid);
    other.m_state = FLUID_NONE;
    other.SetUnits(HF_DEG_F, HF_PSI, 0, 14.7);
    EXPECT_TRUE(fluid == other);
    const auto differs = [&fluid](auto change) {
        TestFluid changed(fluid);
        change(changed);
        return !(fluid == changed);
    };
    EXPECT_TRUE(differs([](TestFluid& f) { f.m_pressure = 500.001; }));
    EXPECT_TRUE(differs([](TestFluid& f) { f.m_vaporMaxPres += 1.0; }));
    EXPECT_TRUE(differs([](TestFluid& f) { f.m_molecularWt = 29.0; }));
    EXPECT_TRUE(differs([](TestFluid& f) { f.m_formulas[6].m_coefficients[4] = 1.0; }));
    EXPECT_TRUE(differs([&](TestFluid& f) {
        folder.Add("plain", {});
        f.SetFluid(folder.path.data(), "plain", 300.0, 500.0);
    }));
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
    for (int i = 0; i < 7; ++i) EXPECT_EQ(fluid.m_formulas[i].m_slot, i);
}

TEST(FluidObject, IdealGasIsPutOnAndTakenOff) {
    TableFolder folder;
    FluidText real;
    real.formulas[4] = kPengRobinson;
    TestFluid fluid = folder.Fluid(real, 450.0, 500.0);
    fluid.SetIdealGas(false);  // nothing was put aside
    EXPECT_EQ(fluid.EqnState(), 1);
    fluid = folder.Fluid(real, 450.0, 500.0);
    const double density = fluid.GetDensity();
    fluid.SetIdealGas(true);
    EXPECT_TRUE(fluid.IsIdealGas());
    EXPECT_GT(density, fluid.GetDensity());
    fluid.SetIdealGas(false);
    EXPECT_EQ(fluid.EqnState(), 2);
    EXPECT_EQ(fluid.GetDensity(), density);
    fluid.SetIdealGas();
    fluid.SetIdealGas(false);
    EXPECT_EQ(fluid.EqnState(), 2);  // put aside before
    fluid.SetIdealGas(true);
    fluid.SetIdealGas(true);
    fluid.SetIdealGas(false);
    EXPECT_EQ(fluid.EqnState(), 1);
    fluid.m_formulas[4].m_type = 7;
    fluid.SetIdealGas(true);
    fluid.SetIdealGas(false);
    EXPECT_EQ(fluid.EqnState(), 1);
}

}  // namespace
