// Fluid dialogs as their hosts work them: fluids set and read back.

#include <gtest/gtest.h>

#include <string>

#include "tests/dialogs/FluidHost.h"

namespace {

class FluidSetting : public ::testing::Test {
  protected:
    FluidSetting() {
        ForgetFluidTables();
        folder_.Add("Plain", {});
    }

    TableFolder folder_;
};

TEST_F(FluidSetting, ControllerIsAnObjectAndInitKeepsItsFluidUnlessAStateIsAskedFor) {
    FluidHost host(folder_.path);
    host.fluid.SetDlgFluid("Plain", 300.0, 200.0);
    {
        CFluidDlg copy(HF_DEG_F, HF_PSI, 0, 14.696, 0);
        copy = CFluidDlg(host.fluid);
        copy.SetChanged(true);
        EXPECT_TRUE(copy.Changed());
        copy.SetDlgFluid("Plain", 300.0, 50.0);
        EXPECT_EQ(host.Properties(), kVaporAt50) << "the copy has the same dialog";
    }
    host.fluid.InitFluids(host.dialog.Handle(), folder_.path.c_str());
    EXPECT_EQ(host.Listed(), Texts{"Plain"}) << "and not twice";
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
    host.fluid.InitFluids(host.dialog.Handle(), folder_.path.c_str(), FLUID_LIQUID);
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_NONE);
    EXPECT_STREQ(host.fluid.GetFluidName(), "");
}

TEST_F(FluidSetting, TableFluidsAtASetPoint) {
    FluidHost host(folder_.path);
    const struct {
        const char* name;
        double pressure;
        const char* row;
        FLUIDSTATE state;
        const char* note;
        Texts properties;
    } kCases[] = {
        {"Plain", 200.0, "Plain", FLUID_LIQUID, "", kLiquidAt200},
        {"Plain", 50.0, "Plain", FLUID_VAPOR, "", kVaporAt50},
        {"Plain", 100.0, "Plain", FLUID_NONE,
         "Fluid properties are not available at the specified temperature and pressure. ",
         kNothing},
        {"Nowhere", 200.0, "none", FLUID_NONE, "Fluid Table for Nowhere is Invalid.", kNothing},
    };
    for (const auto& c : kCases) {
        host.Type(ID_NAME, "Typed");
        EXPECT_TRUE(host.fluid.Changed());
        host.fluid.SetDlgFluid(c.name, 300.0, c.pressure);
        EXPECT_FALSE(host.fluid.Changed()) << "though every write came back as a notification";
        EXPECT_EQ(host.Selected(), c.row);
        EXPECT_EQ(host.fluid.GetFluidState(), c.state);
        EXPECT_STREQ(host.fluid.GetFluidName(), c.name);
        EXPECT_EQ(host.Note(), c.note);
        EXPECT_EQ(host.dialog.Text(ID_NAME), "");
        EXPECT_EQ(host.Properties(), c.properties);
    }
    host.fluid.SetDlgFluid("Plain", 290.0);
    EXPECT_EQ(host.Note(), "Liquid properties are not available at the specified temperature.");
    EXPECT_EQ(host.fluid.GetPressure(), 0.0);
    EXPECT_EQ(host.dialog.Text(ID_TEMPERATURE), "290");
    EXPECT_EQ(host.dialog.Text(ID_PRESSURE), "200") << "the temperature alone is shown";
}

TEST_F(FluidSetting, FluidsOfTheHost) {
    FluidHost host(folder_.path);
    CFluid fluid = folder_.Fluid({}, 300.0, 200.0);
    host.fluid.SetDlgFluid(fluid);
    EXPECT_EQ(host.Properties(), kLiquidAt200);
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_EQ(host.Selected(), "Plain");

    // Its table is in the list no more: its values are what there is.
    host.dialog.Send(ID_LIST, LB_RESETCONTENT);
    for (const bool liquid : {true, false}) {
        fluid.SetFluid(folder_.path.data(), "Plain", 300.0, liquid ? 200.0 : 50.0);
        host.fluid.SetDlgFluid(fluid);
        EXPECT_EQ(host.fluid.GetFluidState(), liquid ? FLUID_USER_LIQUID : FLUID_USER_VAPOR);
        EXPECT_EQ(host.Properties(), liquid ? kLiquidAt200 : kVaporAt50);
        EXPECT_EQ(host.dialog.Text(ID_NAME), "Plain");
        EXPECT_FALSE(host.fluid.Changed());
        EXPECT_TRUE(host.Checked(liquid ? ID_LIQUID : ID_VAPOR));
    }
    host.fluid.SetDlgFluid(host.fluid);
    EXPECT_EQ(host.Properties(), kVaporAt50) << "itself";

    CFluid none;
    host.fluid.SetDlgFluid(none);
    for (const int id : {ID_NAME, ID_TEMPERATURE, ID_PRESSURE}) EXPECT_EQ(host.dialog.Text(id), "");
    EXPECT_EQ(host.Properties(), kNothing);
    EXPECT_TRUE(host.Checked(ID_LIQUID));
    EXPECT_FALSE(host.fluid.Changed());
}

TEST_F(FluidSetting, GivenPropertiesAreShownAsTheyAre) {
    FluidHost host(folder_.path);
    host.Pick("Plain");
    for (const double vaporPressure : {3.5, 0.0}) {
        SetDlgItemTextA(host.dialog.Handle(), ID_VAPOR_PRESSURE, "left");
        host.fluid.SetDlgProperties("Brine", FLUID_USER_LIQUID, 300.0, 200.0, 1025.0, 1.1,
                                    vaporPressure, 1.3, 0.0, 5000.0, 500.0, 18.0);
        const char* shown = vaporPressure == 0.0 ? "left" : "3.5";
        EXPECT_EQ(host.Properties(), (Texts{"1025", "1.1", "18", "", shown, "500", "5000"}));
        EXPECT_EQ(host.dialog.Text(ID_NAME), "Brine");
        EXPECT_EQ(host.Selected(), "none");
        EXPECT_EQ(host.Note(), "");
        EXPECT_FALSE(host.fluid.Changed());
        host.dialog.Forward({});  // a host that forwards nothing leaves the old text alone
    }
    FluidHost bySG(folder_.path, {}, 1);
    bySG.fluid.SetDlgProperties("Fog", FLUID_USER_VAPOR, 300.0, 200.0, 1.5, 0.02, 3.5, 1.3, 0.7,
                                5000.0, 500.0, 20.0);
    EXPECT_EQ(bySG.Properties(), (Texts{"0.7", "0.02", "20", "1.3", "", "", ""}));
    EXPECT_EQ(bySG.dialog.Text(ID_FIXED_NAME), "Fog");
    EXPECT_EQ(bySG.dialog.Text(ID_NAME), "");
}

TEST_F(FluidSetting, PropertiesOfOneStateAreDisabledWhereTheFormHasBoth) {
    const struct {
        Ids without;
        bool phase;
        bool critical;
    } kCases[] = {
        {{}, false, false},
        {{ID_CRITICAL_PRESSURE}, false, true},
        {{ID_SPHEAT}, true, true},
        {{ID_VAPOR_PRESSURE}, true, true},
    };
    for (const auto& c : kCases) {
        FluidHost host(folder_.path, c.without);
        host.fluid.ClearDlgProperties();
        const auto enabled = [&](int id) { return IsWindowEnabled(host.dialog.Item(id)) != FALSE; };
        for (const int id : {10012, 10013, 10015, 10016, 10018}) EXPECT_EQ(enabled(id), c.phase);
        for (const int id : {10026, 10028}) EXPECT_EQ(enabled(id), c.critical);
        EXPECT_TRUE(enabled(ID_DENSITY));
    }
}

// Types a whole fluid, vapor or liquid, with one edit left empty.
void TypeAll(const FluidHost& host, int butFor = 0) {
    const struct {
        int id;
        const char* text;
    } kTyped[] = {
        {ID_TEMPERATURE, "300"},
        {ID_PRESSURE, "50"},
        {ID_DENSITY, "800"},
        {ID_VISCOSITY, "2"},
        {ID_VAPOR_PRESSURE, "10"},
        {ID_SPHEAT, "1.3"},
        {ID_CRITICAL_TEMPERATURE, "500"},
        {ID_CRITICAL_PRESSURE, "5000"},
        {ID_MOLECULAR_WEIGHT, "28.9586"},
    };
    for (const auto& typed : kTyped) {
        EnableWindow(host.dialog.Item(typed.id), TRUE);
        win32::user::TypeOver(host.dialog.Item(typed.id), typed.id == butFor ? "" : typed.text);
    }
    host.Leave();
}

TEST_F(FluidSetting, TypedPropertiesAreReadBack) {
    FluidHost host(folder_.path);
    host.Type(ID_NAME, "Brine");
    TypeAll(host);
    EXPECT_TRUE(host.fluid.GetProperties(FLUID_USER_LIQUID));
    EXPECT_STREQ(host.fluid.GetFluidName(), "Brine");
    EXPECT_EQ(host.fluid.GetTemperature(), 300.0);
    EXPECT_EQ(host.fluid.GetPressure(), 50.0);
    EXPECT_EQ(host.fluid.GetUDensity(), 800.0);
    EXPECT_EQ(host.fluid.GetSG(), 0.802);  // 800 / 997.2
    EXPECT_EQ(host.fluid.GetViscosity(), 2.0);
    EXPECT_EQ(host.fluid.GetUVaporPres(), 10.0);
    EXPECT_EQ(host.fluid.GetCriticalTemp(), 500.0);
    EXPECT_EQ(host.fluid.GetCriticalPres(), 5000.0);

    EXPECT_TRUE(host.fluid.GetProperties(FLUID_USER_VAPOR));
    EXPECT_EQ(host.fluid.GetUDensity(), 800.0);
    EXPECT_EQ(host.fluid.GetSG(), 1.0);  // as heavy as air
    EXPECT_EQ(host.fluid.GetSpHeat(), 1.3);
    EXPECT_FALSE(host.fluid.IsIdealGas());

    FluidHost bySG(folder_.path, {ID_FIXED_NAME}, 1);
    TypeAll(bySG);
    bySG.Type(ID_DENSITY, "0.8");
    bySG.fluid.GetProperties(FLUID_USER_LIQUID);
    EXPECT_EQ(bySG.fluid.GetSG(), 0.8);
    EXPECT_EQ(bySG.fluid.GetUDensity(), 797.8);  // 0.8 × 997.2, four digits

    FluidHost ideal(folder_.path, {ID_DENSITY});
    SetDlgItemTextA(ideal.dialog.Handle(), ID_FIXED_NAME, "Fog");
    TypeAll(ideal);
    EXPECT_TRUE(ideal.fluid.GetProperties(FLUID_USER_VAPOR));
    EXPECT_STREQ(ideal.fluid.GetFluidName(), "Fog");
    EXPECT_TRUE(ideal.fluid.IsIdealGas());
    EXPECT_NEAR(ideal.fluid.GetDensity(), 0.580491, 1e-6);  // 50 M / (8.3144 × 300)
}

TEST_F(FluidSetting, WhatTheStateNeedsAndTheFormHasMustBeThere) {
    const struct {
        FLUIDSTATE state;
        int missing;
        bool complete;        // with the edit left empty
        bool withoutControl;  // on a form that doesn't have it
    } kCases[] = {
        {FLUID_USER_LIQUID, ID_PRESSURE, false, true},
        {FLUID_USER_LIQUID, ID_DENSITY, false, false},
        {FLUID_USER_LIQUID, ID_VISCOSITY, false, false},
        {FLUID_USER_LIQUID, ID_VAPOR_PRESSURE, false, true},
        {FLUID_USER_LIQUID, ID_CRITICAL_PRESSURE, false, true},
        {FLUID_USER_LIQUID, ID_SPHEAT, true, true},
        {FLUID_USER_VAPOR, ID_PRESSURE, false, true},
        {FLUID_USER_VAPOR, ID_DENSITY, false, true},
        {FLUID_USER_VAPOR, ID_VISCOSITY, false, false},
        {FLUID_USER_VAPOR, ID_SPHEAT, false, true},
        {FLUID_USER_VAPOR, ID_VAPOR_PRESSURE, true, true},
        {FLUID_USER_VAPOR, ID_CRITICAL_PRESSURE, true, true},
    };
    for (const auto& c : kCases) {
        FluidHost host(folder_.path);
        TypeAll(host, c.missing);
        EXPECT_EQ(host.fluid.GetProperties(c.state), c.complete) << c.state << " " << c.missing;
        EXPECT_EQ(host.fluid.GetFluidState(), c.state) << "what was read is kept";
        FluidHost without(folder_.path, {ID_FIXED_NAME, c.missing});
        TypeAll(without);
        EXPECT_EQ(without.fluid.GetProperties(c.state), c.withoutControl) << c.missing;
    }
    FluidHost gauge(folder_.path, {ID_FIXED_NAME}, 0, 0);
    TypeAll(gauge, ID_PRESSURE);
    EXPECT_TRUE(gauge.fluid.GetProperties(FLUID_USER_LIQUID)) << "no pressure is the atmosphere";
}

TEST(UnitControls, ComboBoxHoldsIdsAndZeroIsAnEmptyField) {
    win32::DialogBuilder form("Units", WS_POPUP, {0, 0, 100, 100});
    form.ComboBox(5, {0, 0, 50, 50}).Edit(6, {0, 60, 50, 12});
    const TestDialog dialog(form);
    Units units(HF_METRIC);
    for (const int id : {int{HF_PSI}, 99, int{HF_IN_H2O}}) {
        units.AddItemToComboList(dialog.Handle(), 5, HF_PRESSURE, id);
        units.AddItemToComboList(dialog.Handle(), 7, HF_PRESSURE, id);
    }
    ASSERT_EQ(dialog.Send(5, CB_GETCOUNT), 2) << "an id of no unit is passed over";
    EXPECT_EQ(dialog.Send(5, CB_GETITEMDATA, 1), HF_IN_H2O) << "the id, not the row";

    units.SetDlgItemDoubleUF(dialog.Handle(), 6, 123.4567891, HF_PRESSURE, HF_KPA, nullptr);
    EXPECT_EQ(dialog.Text(6), "1.23457") << "bar, rounded for display";
    units.SetDlgItemDoubleUF(dialog.Handle(), 6, 0.0, HF_PRESSURE, HF_KPA, nullptr);
    EXPECT_EQ(dialog.Text(6), "");
}

}  // namespace
