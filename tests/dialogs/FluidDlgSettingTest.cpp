// Fluid dialogs as their hosts work them: fluids set and read back.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "tests/dialogs/FluidHost.h"

namespace {

using ::testing::ElementsAre;

TEST_F(FluidDialog, ControllerIsAnObjectAndInitKeepsItsFluidUnlessAStateIsAskedFor) {
    fluid.SetDlgFluid("Plain", 300.0, 200.0);
    {
        CFluidDlg copy(HF_DEG_F, HF_PSI, 0, 14.696, 0);
        copy = CFluidDlg(fluid);
        copy.SetDlgFluid("Plain", 300.0, 50.0);
        EXPECT_EQ(host.Properties(), kVaporAt50) << "the copy has the same dialog";
    }
    fluid.InitFluids(host.dialog.Handle(), tables.path.c_str());
    EXPECT_EQ(host.Listed(), (Texts{"Gas", "Oil", "Plain"})) << "and not twice";
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    fluid.InitFluids(host.dialog.Handle(), tables.path.c_str(), FLUID_LIQUID);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE);
}

TEST_F(FluidDialog, TableFluidsAtASetPoint) {
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
        {"Plain", 100.0, "Plain", FLUID_NONE, kNoProperties, kNothing},
        {"Nowhere", 200.0, "none", FLUID_NONE, "Fluid Table for Nowhere is Invalid.", kNothing},
    };
    for (const auto& c : kCases) {
        host.Type(ID_NAME, "Typed");
        EXPECT_TRUE(fluid.Changed());
        fluid.SetDlgFluid(c.name, 300.0, c.pressure);
        EXPECT_FALSE(fluid.Changed()) << "though every write came back as a notification";
        EXPECT_EQ(host.Selected(), c.row);
        EXPECT_EQ(fluid.GetFluidState(), c.state);
        EXPECT_EQ(host.Note(), c.note);
        EXPECT_EQ(host.dialog.Text(ID_NAME), "");
        EXPECT_EQ(host.Properties(), c.properties);
    }
    fluid.SetDlgFluid("Plain", 290.0);
    EXPECT_EQ(host.Note(), kNoLiquid);
    EXPECT_EQ(fluid.GetPressure(), 0.0);
    EXPECT_EQ(host.dialog.Text(ID_TEMPERATURE), "290");
    EXPECT_EQ(host.dialog.Text(ID_PRESSURE), "200") << "the temperature alone is shown";
}

TEST_F(FluidDialog, FluidsOfTheHost) {
    CFluid given = tables.Fluid({}, 300.0, 200.0);
    fluid.SetDlgFluid(given);
    EXPECT_EQ(host.Properties(), kLiquidAt200);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_EQ(host.Selected(), "Plain");

    // Its table is in the list no more: its values are what there is.
    host.dialog.Send(ID_LIST, LB_RESETCONTENT);
    for (const bool liquid : {true, false}) {
        given.SetFluid(tables.path.data(), "Plain", 300.0, liquid ? 200.0 : 50.0);
        fluid.SetDlgFluid(given);
        EXPECT_EQ(fluid.GetFluidState(), liquid ? FLUID_USER_LIQUID : FLUID_USER_VAPOR);
        EXPECT_EQ(host.Properties(), liquid ? kLiquidAt200 : kVaporAt50);
        EXPECT_EQ(host.dialog.Text(ID_NAME), "Plain");
        EXPECT_FALSE(fluid.Changed());
        EXPECT_TRUE(host.Checked(liquid ? ID_LIQUID : ID_VAPOR));
    }
    fluid.SetDlgFluid(fluid);
    EXPECT_EQ(host.Properties(), kVaporAt50) << "itself";

    CFluid none;
    fluid.SetDlgFluid(none);
    for (const int id : {ID_NAME, ID_TEMPERATURE, ID_PRESSURE}) EXPECT_EQ(host.dialog.Text(id), "");
    EXPECT_EQ(host.Properties(), kNothing);
    EXPECT_TRUE(host.Checked(ID_LIQUID));
    EXPECT_FALSE(fluid.Changed());
}

TEST_F(FluidDialog, GivenPropertiesAreShownAsTheyAre) {
    host.Pick("Plain");
    fluid.SetDlgProperties("Brine", FLUID_USER_LIQUID, 300.0, 200.0, 1025.0, 1.1, 0.0, 1.3, 0.0,
                           5000.0, 500.0, 18.0);
    EXPECT_EQ(host.Properties(), (Texts{"1025", "1.1", "18", "", "", "500", "5000"}));
    EXPECT_EQ(host.dialog.Text(ID_NAME), "Brine");
    EXPECT_EQ(host.Selected(), "none");
    EXPECT_EQ(host.Note(), "");
    EXPECT_FALSE(fluid.Changed());
    FluidHost bySG(tables.path, {}, 1);
    bySG.fluid.SetDlgProperties("Fog", FLUID_USER_VAPOR, 300.0, 200.0, 1.5, 0.02, 3.5, 1.3, 0.7,
                                5000.0, 500.0, 20.0);
    EXPECT_EQ(bySG.Properties(), (Texts{"0.7", "0.02", "20", "1.3", "", "", ""}));
    EXPECT_EQ(bySG.dialog.Text(ID_FIXED_NAME), "Fog");
    EXPECT_EQ(bySG.dialog.Text(ID_NAME), "");
}

TEST_F(FluidDialog, PropertiesOfOneStateAreDisabledWhereTheFormHasBoth) {
    const std::pair<int, Ids> kDisabledWithout[] = {
        {ID_FIXED_NAME, {10012, 10013, 10014, 10015, 10016, 10017, 10018, 10026, 10027, 10028}},
        {ID_CRITICAL_PRESSURE, {10012, 10013, 10014, 10015, 10016, 10017, 10018}},
        {ID_SPHEAT, {}},
        {ID_VAPOR_PRESSURE, {}},
    };
    for (const auto& [missing, expected] : kDisabledWithout) {
        FluidHost form(tables.path, {missing});
        form.fluid.ClearDlgProperties();
        Ids disabled;
        for (int id = ID_LIST; id <= ID_CAPTION; ++id) {
            const HWND control = form.dialog.Item(id);
            if (control != nullptr && IsWindowEnabled(control) == FALSE) disabled.push_back(id);
        }
        EXPECT_EQ(disabled, expected);
    }
}

// Types a whole fluid, vapor or liquid, with one edit left empty.
void TypeAll(const FluidHost& host, int butFor = 0) {
    constexpr std::pair<int, const char*> kTyped[] = {
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
    for (const auto& [id, text] : kTyped) {
        EnableWindow(host.dialog.Item(id), TRUE);
        win32::user::TypeOver(host.dialog.Item(id), id == butFor ? "" : text);
    }
    host.Leave();
}

TEST_F(FluidDialog, TypedPropertiesAreReadBack) {
    host.Type(ID_NAME, "Brine");
    TypeAll(host);
    EXPECT_TRUE(fluid.GetProperties(FLUID_USER_LIQUID));
    EXPECT_STREQ(fluid.GetFluidName(), "Brine");
    // A specific gravity of 800 / 997.2.
    EXPECT_THAT((std::array{fluid.GetTemperature(), fluid.GetPressure(), fluid.GetUDensity(),
                            fluid.GetSG(), fluid.GetViscosity(), fluid.GetUVaporPres(),
                            fluid.GetCriticalTemp(), fluid.GetCriticalPres()}),
                ElementsAre(300.0, 50.0, 800.0, 0.802, 2.0, 10.0, 500.0, 5000.0));
    EXPECT_TRUE(fluid.GetProperties(FLUID_USER_VAPOR));
    EXPECT_THAT((std::array{fluid.GetUDensity(), fluid.GetSG(), fluid.GetSpHeat()}),
                ElementsAre(800.0, 1.0, 1.3));  // as heavy as air
    EXPECT_FALSE(fluid.IsIdealGas());

    FluidHost bySG(tables.path, {ID_FIXED_NAME}, 1);
    TypeAll(bySG);
    bySG.Type(ID_DENSITY, "0.8");
    bySG.fluid.GetProperties(FLUID_USER_LIQUID);
    EXPECT_EQ(bySG.fluid.GetSG(), 0.8);
    EXPECT_EQ(bySG.fluid.GetUDensity(), 797.8);  // 0.8 × 997.2, four digits

    FluidHost ideal(tables.path, {ID_DENSITY});
    SetDlgItemTextA(ideal.dialog.Handle(), ID_FIXED_NAME, "Fog");
    TypeAll(ideal);
    EXPECT_TRUE(ideal.fluid.GetProperties(FLUID_USER_VAPOR));
    EXPECT_STREQ(ideal.fluid.GetFluidName(), "Fog");
    EXPECT_TRUE(ideal.fluid.IsIdealGas());
    EXPECT_NEAR(ideal.fluid.GetDensity(), 0.580491, 1e-6);  // 50 M / (8.3144 × 300)
}

TEST_F(FluidDialog, WhatTheStateNeedsAndTheFormHasMustBeThere) {
    // Whether the fluid is complete with an edit left empty, and on a form that doesn't have it.
    const struct {
        int missing;
        bool liquid, liquidWithout;
        bool vapor, vaporWithout;
    } kCases[] = {
        {ID_PRESSURE, false, true, false, true},
        {ID_DENSITY, false, false, false, true},
        {ID_VISCOSITY, false, false, false, false},
        {ID_VAPOR_PRESSURE, false, true, true, true},
        {ID_CRITICAL_PRESSURE, false, true, true, true},
        {ID_SPHEAT, true, true, false, true},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.missing);
        TypeAll(host, c.missing);
        EXPECT_EQ(fluid.GetProperties(FLUID_USER_LIQUID), c.liquid);
        EXPECT_EQ(fluid.GetProperties(FLUID_USER_VAPOR), c.vapor);
        EXPECT_EQ(fluid.GetFluidState(), FLUID_USER_VAPOR) << "what was read is kept";
        FluidHost without(tables.path, {ID_FIXED_NAME, c.missing});
        TypeAll(without);
        EXPECT_EQ(without.fluid.GetProperties(FLUID_USER_LIQUID), c.liquidWithout);
        EXPECT_EQ(without.fluid.GetProperties(FLUID_USER_VAPOR), c.vaporWithout);
    }
    FluidHost gauge(tables.path, {ID_FIXED_NAME}, 0, 0);
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
    }
    ASSERT_EQ(dialog.Send(5, CB_GETCOUNT), 2) << "an id of no unit is passed over";
    EXPECT_EQ(dialog.Send(5, CB_GETITEMDATA, 1), HF_IN_H2O) << "the id, not the row";

    units.SetDlgItemDoubleUF(dialog.Handle(), 6, 123.4567891, HF_PRESSURE, HF_KPA, nullptr);
    EXPECT_EQ(dialog.Text(6), "1.23457") << "bar, rounded for display";
    units.SetDlgItemDoubleUF(dialog.Handle(), 6, 0.0, HF_PRESSURE, HF_KPA, nullptr);
    EXPECT_EQ(dialog.Text(6), "");
}

}  // namespace
