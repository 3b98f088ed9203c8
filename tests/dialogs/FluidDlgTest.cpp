// Fluid dialogs as their users live them: picking, typing conditions, leaving.

#include <gtest/gtest.h>

#include <string>

#include "tests/dialogs/FluidHost.h"

namespace {

constexpr const char* kInvalid = "Fluid Table for Plain is Invalid.";

TEST_F(FluidDialog, PickedFluidShowsItsNoteAndIsCalculatedAtTheTypedConditions) {
    EXPECT_EQ(host.Listed(), (Texts{"Gas", "Oil", "Plain"}));
    EXPECT_EQ(host.dialog.Text(ID_CAPTION), "&Installed fluid tables:");
    host.Type(ID_TEMPERATURE, "300");
    const std::pair<const char*, int> kPicks[] = {
        {"Oil", ID_LIQUID}, {"Plain", ID_LIQUID}, {"Gas", ID_VAPOR}, {"Plain", ID_VAPOR}};
    for (const auto& [name, checked] : kPicks) {
        host.Pick(name);
        EXPECT_EQ(host.Note(), "Plain - vers 1.0");
        EXPECT_TRUE(host.Checked(checked)) << name;
        EXPECT_EQ(host.Properties(), kNothing) << "without a pressure";
        EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE);
    }
    host.TypeConditions("300", "200");
    host.Pick("Oil");
    EXPECT_EQ(host.Note(), "Plain - vers 1.0");
    EXPECT_EQ(host.Properties(), kLiquidAt200);
    EXPECT_TRUE(host.Checked(ID_LIQUID));
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_STREQ(fluid.GetFluidName(), "Oil");
    EXPECT_EQ(fluid.GetDensity(), 900.0);
}

// Without a pressure on the form its buttons say the state; on one for conditions only it stays
// that which was chosen elsewhere.
TEST_F(FluidDialog, EachOutcomeOfAConditionHasItsNoteAndState) {
    constexpr const char* kNoVapor =
        "Vapor properties are not available at the specified temperature. ";
    constexpr const char* kOtherState =
        "Fluid changes state at these conditions.  Enter new state in the main fluid dialog box.";
    const Texts belowSaturation = {"1.149", "0.013", "28.9586", "1.333", "", "", ""};
    FluidHost byState(tables.path, {ID_FIXED_NAME, ID_PRESSURE});
    FluidHost fixed(tables.path, {});
    host.Pick("Plain");
    byState.Pick("Plain");
    fixed.fluid.SetDlgFluid("Plain", 300.0, 200.0);
    EXPECT_EQ(fixed.dialog.Text(ID_FIXED_NAME), "Plain");
    const struct {
        FluidHost& host;
        const char* temperature;
        const char* pressure;
        const char* note;
        FLUIDSTATE state;
        Texts properties;
        int button = 0;
    } kCases[] = {
        {host, "300", "200", "", FLUID_LIQUID, kLiquidAt200},
        {host, "300", "100", kNoProperties, FLUID_NONE, kNothing},  // on the saturation curve
        {host, "300", "50", "", FLUID_VAPOR, kVaporAt50},
        {host, "290", "200", kNoProperties, FLUID_NONE, kNothing},  // colder than the table
        {host, "300", "", "", FLUID_LIQUID, kNothing},  // at 300 and 200 on the way to no pressure
        {host, "gone", "200", kInvalid, FLUID_NONE, kNothing},
        {byState, "290", nullptr, kNoLiquid, FLUID_NONE, kNothing},
        {byState, "600", nullptr, kNoVapor, FLUID_NONE, kNothing, ID_VAPOR},
        {byState, "300", nullptr, "", FLUID_VAPOR, belowSaturation},  // 99 M / (8.3144 × 300)
        {byState, "300", nullptr, "", FLUID_LIQUID, kLiquidAt200, ID_LIQUID},
        {fixed, "300", "200", kInvalid, FLUID_LIQUID, kNothing},
        {fixed, "300", "50", kOtherState, FLUID_LIQUID, kNothing},
        {fixed, "300", "100", kNoProperties, FLUID_LIQUID, kNothing},
        {fixed, "300", "200", "", FLUID_LIQUID, kLiquidAt200},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(::testing::Message() << &c - kCases << ": " << c.temperature);
        if (c.note == kInvalid) tables.RemovePlain();
        if (c.button != 0) win32::user::Click(c.host.dialog.Item(c.button));
        c.host.TypeConditions(c.temperature, c.pressure);
        EXPECT_EQ(c.host.Note(), c.note);
        EXPECT_EQ(c.host.fluid.GetFluidState(), c.state);
        EXPECT_EQ(c.host.Properties(), c.properties);
        EXPECT_STREQ(c.host.fluid.GetFluidName(), "Plain");
        tables.Add("Plain", {});
    }
}

TEST_F(FluidDialog, TypingTakesThePropertiesAwayAndLeavingCalculatesAgain) {
    for (const int id : {ID_TEMPERATURE, ID_PRESSURE}) {
        fluid.SetDlgFluid("Plain", 300.0, 200.0);
        SetDlgItemTextA(host.dialog.Handle(), ID_NOTE, "note");
        win32::user::Type(host.dialog.Item(id), "1");
        EXPECT_EQ(host.Note(), "");
        EXPECT_EQ(host.Properties(), kNothing);
        EXPECT_FALSE(fluid.Changed());
        host.Leave();
        EXPECT_TRUE(fluid.Changed());
    }
    fluid.SetDlgFluid("Plain", 300.0, 200.0);
    host.Type(ID_TEMPERATURE, "300");
    const DWORD start = GetTickCount();
    while (host.Properties() == kNothing && GetTickCount() - start < 5000) {
        win32::user::HandleMessages(host.dialog.Handle());
    }
    EXPECT_EQ(host.Properties(), kLiquidAt200) << "a pause counts as leaving";
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), ID_TEMPERATURE);
}

TEST_F(FluidDialog, LeavingThePressureForwardGoesToTheDefaultButton) {
    const auto from = [&](int id, bool back) {
        SetFocus(host.dialog.Item(id));
        win32::user::PressTab(host.dialog.Handle(), back);
        return GetDlgCtrlID(GetFocus());
    };
    EXPECT_EQ(from(ID_PRESSURE, false), ID_DENSITY) << "no row, nothing to do";
    host.Pick("Plain");
    EXPECT_EQ(from(ID_PRESSURE, false), IDOK);
    EXPECT_EQ(from(ID_PRESSURE, true), ID_TEMPERATURE);
    EXPECT_EQ(from(ID_TEMPERATURE, false), ID_PRESSURE);
}

TEST_F(FluidDialog, TypedNameOfAnInstalledFluidPicksIt) {
    host.TypeConditions("300", "200");
    host.Pick("Oil");
    host.Type(ID_NAME, "plAin");
    EXPECT_EQ(host.Selected(), "none");
    EXPECT_EQ(host.Note(), "");
    EXPECT_EQ(host.Properties(), kNothing);
    win32::user::PressTab(host.dialog.Handle(), true);
    EXPECT_EQ(host.Selected(), "Plain");
    EXPECT_EQ(host.dialog.Text(ID_NAME), "");
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), ID_TEMPERATURE);
    EXPECT_EQ(host.Note(), "Plain - vers 1.0");
    EXPECT_EQ(host.Properties(), kLiquidAt200);

    fluid.SetChanged(false);
    host.Type(ID_NAME, "Brine");
    host.Leave();
    EXPECT_EQ(host.dialog.Text(ID_NAME), "Brine");
    EXPECT_TRUE(fluid.Changed());
    host.Pick("Plain");
    EXPECT_EQ(host.dialog.Text(ID_NAME), "");
    EXPECT_EQ(host.Selected(), "Plain") << "emptying the name leaves the selection alone";
}

TEST_F(FluidDialog, LanguageWithADecimalComma) {
    Hydrofacts_SetLanguage(1031);
    fluid.InitFluids(host.dialog.Handle(), tables.path.c_str());
    EXPECT_EQ(host.dialog.Text(ID_CAPTION), "Tabellen &installierter Fl\xFCssigkeiten:");
    host.Pick("Plain");
    host.TypeConditions("300,5", "200.5");
    EXPECT_EQ(fluid.GetTemperature(), 300.5);
    EXPECT_EQ(fluid.GetPressure(), 200.5);
    // 1200 - 300.5, and so on: as the table says.
    EXPECT_EQ(host.Properties(), (Texts{"899,5", "1,823", "28,9586", "", "105", "400", "1100"}));
    tables.RemovePlain();
    host.Pick("Plain");
    EXPECT_EQ(host.Note(), "Fl\xFCssigkeitstabelle f\xFCr Plain ist ung\xFCltig.");
}

TEST_F(FluidDialog, NamesAndDirectoriesThatDontFitAreInvalidTables) {
    const std::string longest(63, 'n');
    // One that begins with it is another table, though it is cut to that name.
    const std::string tooLong = longest + "n";
    tables.Add(longest, {});
    tables.Add(tooLong, {});
    fluid.SetDlgFluid(longest.c_str(), 300.0, 200.0);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    fluid.SetDlgFluid(tooLong.c_str(), 300.0, 200.0);
    EXPECT_EQ(host.Note(), "Fluid Table for " + longest + " is Invalid.");

    FluidHost lost(tables.path + std::string(250, '/'));
    lost.fluid.SetDlgFluid("Plain", 300.0, 200.0);
    EXPECT_EQ(lost.Note(), kInvalid);
}

TEST_F(FluidDialog, HostMayEndTheDialogAtAnyNotification) {
    int steps = 0;
    for (bool ended = true; ended; ++steps) {
        FluidHost each(tables.path);
        each.TypeConditions("300", "200");
        int left = steps;
        each.dialog.Forward([&](int id, int code) {
            if (left-- == 0) DestroyWindow(each.dialog.Handle());
            each.fluid.DlgCommand(id, code);
        });
        win32::user::TypeOver(each.dialog.Item(ID_NAME), "Plain");
        each.Leave();
        ended = left < 0;
        EXPECT_EQ(IsWindow(each.dialog.Handle()) == FALSE, ended);
    }
    EXPECT_GT(steps, 10);
}

}  // namespace
