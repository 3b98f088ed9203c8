// Fluid dialogs as their users live them: picking, typing conditions, leaving.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "hydrofacts/frame/Language.h"
#include "tests/dialogs/FluidHost.h"

namespace {

constexpr const char* kInvalid = "Fluid Table for Plain is Invalid.";
constexpr const char* kNoProperties =
    "Fluid properties are not available at the specified temperature and pressure. ";
constexpr const char* kNoLiquid =
    "Liquid properties are not available at the specified temperature.";
constexpr const char* kNoVapor =
    "Vapor properties are not available at the specified temperature. ";
constexpr const char* kOtherState =
    "Fluid changes state at these conditions.  Enter new state in the main fluid dialog box.";

class FluidDialog : public ::testing::Test {
  protected:
    FluidDialog() {
        ForgetFluidTables();
        FluidText oil;
        oil.formulas[4] = "P5\t0";
        FluidText gas;
        gas.formulas[2] = "P3\t0";
        folder_.Add("Plain", {});
        folder_.Add("Oil", oil);
        folder_.Add("Gas", gas);
    }
    ~FluidDialog() override { Hydrofacts_SetLanguage(1033); }

    void RemovePlain() const { std::filesystem::remove(folder_.Path("Plain.FTBL")); }

    TableFolder folder_;
};

// The way of one event, from the click to the note: the pick is told, the table loads, its note
// shows, the state is found, the properties are there, and the host reads what the user sees.
TEST_F(FluidDialog, PickedFluidIsCalculatedAtTheTypedConditions) {
    FluidHost host(folder_.path);
    EXPECT_EQ(host.Listed(), (Texts{"Gas", "Oil", "Plain"}));
    EXPECT_EQ(host.dialog.Text(ID_CAPTION), "&Installed fluid tables:");
    host.TypeConditions("300", "200");
    EXPECT_EQ(host.Properties(), kNothing);

    host.dialog.TakeLog();
    host.Pick("Plain");
    const auto log = host.dialog.TakeLog();
    EXPECT_NE(std::ranges::find(log, Notification{ID_LIST, LBN_SELCHANGE}), log.end());
    EXPECT_EQ(host.Note(), "Plain - vers 1.0");
    EXPECT_EQ(host.Properties(), kLiquidAt200);
    EXPECT_TRUE(host.Checked(ID_LIQUID));
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_STREQ(host.fluid.GetFluidName(), "Plain");
    EXPECT_EQ(host.fluid.GetDensity(), 900.0);
}

TEST_F(FluidDialog, PickWithoutConditionsShowsTheNoteAlone) {
    FluidHost host(folder_.path);
    const struct {
        const char* name;
        int checked;
    } kPicks[] = {{"Oil", ID_LIQUID}, {"Plain", ID_LIQUID}, {"Gas", ID_VAPOR}, {"Plain", ID_VAPOR}};
    host.Type(ID_TEMPERATURE, "300");
    for (const auto& pick : kPicks) {
        host.Pick(pick.name);
        EXPECT_EQ(host.Note(), "Plain - vers 1.0");
        EXPECT_TRUE(host.Checked(pick.checked)) << pick.name;
        EXPECT_EQ(host.Properties(), kNothing);
        EXPECT_EQ(host.fluid.GetFluidState(), FLUID_NONE);
    }
    RemovePlain();
    host.Pick("Plain");
    EXPECT_EQ(host.Note(), kInvalid);
}

TEST_F(FluidDialog, EachOutcomeOfAConditionHasItsNoteAndState) {
    FluidHost host(folder_.path);
    host.Pick("Plain");
    const struct {
        const char* temperature;
        const char* pressure;
        const char* note;
        FLUIDSTATE state;
        Texts properties;
    } kCases[] = {
        {"300", "200", "", FLUID_LIQUID, kLiquidAt200},
        {"300", "100", kNoProperties, FLUID_NONE, kNothing},  // on the saturation curve
        {"300", "50", "", FLUID_VAPOR, kVaporAt50},
        {"290", "200", kNoProperties, FLUID_NONE, kNothing},  // colder than the table
        {"300", "", "", FLUID_LIQUID, kNothing},  // at 300 and 200 on the way to no pressure
        {"gone", "200", kInvalid, FLUID_NONE, kNothing},
    };
    for (const auto& c : kCases) {
        if (std::string(c.temperature) == "gone") RemovePlain();
        host.TypeConditions(c.temperature, c.pressure);
        EXPECT_EQ(host.Note(), c.note) << c.temperature << " " << c.pressure;
        EXPECT_EQ(host.fluid.GetFluidState(), c.state) << c.temperature << " " << c.pressure;
        EXPECT_EQ(host.Properties(), c.properties) << c.temperature << " " << c.pressure;
        EXPECT_STREQ(host.fluid.GetFluidName(), "Plain");
    }
}

TEST_F(FluidDialog, TypingTakesThePropertiesAwayAndLeavingCalculatesAgain) {
    FluidHost host(folder_.path);
    for (const int id : {ID_TEMPERATURE, ID_PRESSURE}) {
        host.fluid.SetDlgFluid("Plain", 300.0, 200.0);
        SetDlgItemTextA(host.dialog.Handle(), ID_NOTE, "note");
        win32::user::Type(host.dialog.Item(id), "1");
        EXPECT_EQ(host.Note(), "");
        EXPECT_EQ(host.Properties(), kNothing);
        EXPECT_FALSE(host.fluid.Changed());
        host.Leave();
        EXPECT_TRUE(host.fluid.Changed());
    }
    host.fluid.SetDlgFluid("No such", 300.0, 200.0);
    host.TypeConditions("310", "200");
    EXPECT_FALSE(host.fluid.Changed()) << "without a row there is nothing to calculate";
    EXPECT_EQ(host.fluid.GetTemperature(), 300.0);

    host.Pick("Plain");
    host.Type(ID_TEMPERATURE, "300");
    const DWORD start = GetTickCount();
    while (host.Properties() == kNothing && GetTickCount() - start < 5000) {
        win32::user::HandleMessages(host.dialog.Handle());
    }
    EXPECT_EQ(host.Properties(), kLiquidAt200) << "a pause counts as leaving";
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), ID_TEMPERATURE);
}

TEST_F(FluidDialog, LeavingThePressureForwardGoesToTheDefaultButton) {
    FluidHost host(folder_.path);
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
    FluidHost host(folder_.path);
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

    host.fluid.SetChanged(false);
    host.Type(ID_NAME, "Brine");
    host.Leave();
    EXPECT_EQ(host.dialog.Text(ID_NAME), "Brine");
    EXPECT_TRUE(host.fluid.Changed());
    host.Pick("Plain");
    EXPECT_EQ(host.dialog.Text(ID_NAME), "");
    EXPECT_EQ(host.Selected(), "Plain") << "emptying the name leaves the selection alone";
}

TEST_F(FluidDialog, TemperatureOnlyFormTakesTheStateFromTheButtons) {
    FluidHost host(folder_.path, {ID_FIXED_NAME, ID_PRESSURE});
    const Texts justBelowSaturation = {"1.149", "0.013", "28.9586", "1.333", "", "", ""};
    const struct {
        int button;
        const char* temperature;
        const char* note;
        FLUIDSTATE state;
        double pressure;
        Texts properties;
    } kCases[] = {
        {ID_LIQUID, "300", "", FLUID_LIQUID, 0.0, kLiquidAt200},
        {ID_LIQUID, "290", kNoLiquid, FLUID_NONE, 0.0, kNothing},
        {ID_VAPOR, "300", "", FLUID_VAPOR, 99.0, justBelowSaturation},  // 99 M / (8.3144 × 300)
        {ID_VAPOR, "600", kNoVapor, FLUID_NONE, 2500.0, kNothing},
    };
    host.Pick("Plain");
    for (const auto& c : kCases) {
        win32::user::Click(host.dialog.Item(c.button));
        host.Type(ID_TEMPERATURE, c.temperature);
        host.Leave();
        EXPECT_EQ(host.Note(), c.note) << c.button << " " << c.temperature;
        EXPECT_EQ(host.fluid.GetFluidState(), c.state);
        EXPECT_DOUBLE_EQ(host.fluid.GetPressure(), c.pressure);
        EXPECT_EQ(host.Properties(), c.properties);
    }
    host.fluid.SetDlgFluid("Plain", 300.0);
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID) << "whatever the buttons say";
}

TEST_F(FluidDialog, ConditionsFormKeepsTheStateThatWasChosenElsewhere) {
    FluidHost host(folder_.path, {});
    host.fluid.SetDlgFluid("Plain", 300.0, 200.0);
    EXPECT_EQ(host.dialog.Text(ID_FIXED_NAME), "Plain");
    const struct {
        const char* pressure;
        const char* note;
        Texts properties;
    } kCases[] = {
        {"50", kOtherState, kNothing},
        {"100", kNoProperties, kNothing},
        {"200", "", kLiquidAt200},
        {"gone", kInvalid, kNothing},
    };
    for (const auto& c : kCases) {
        if (std::string(c.pressure) == "gone") RemovePlain();
        host.TypeConditions("300", c.pressure);
        EXPECT_EQ(host.Note(), c.note);
        EXPECT_EQ(host.Properties(), c.properties);
        EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
    }
}

TEST_F(FluidDialog, LanguageWithADecimalComma) {
    Hydrofacts_SetLanguage(1031);
    FluidHost host(folder_.path);
    EXPECT_EQ(host.dialog.Text(ID_CAPTION), "Tabellen &installierter Fl\xFCssigkeiten:");
    host.Pick("Plain");
    host.TypeConditions("300,5", "200.5");
    EXPECT_EQ(host.fluid.GetTemperature(), 300.5);
    EXPECT_EQ(host.fluid.GetPressure(), 200.5);
    // 1200 - 300.5, and so on: as the table says.
    EXPECT_EQ(host.Properties(), (Texts{"899,5", "1,823", "28,9586", "", "105", "400", "1100"}));
    RemovePlain();
    host.Pick("Plain");
    EXPECT_EQ(host.Note(), "Fl\xFCssigkeitstabelle f\xFCr Plain ist ung\xFCltig.");
}

TEST_F(FluidDialog, NamesAndDirectoriesThatDontFitAreInvalidTables) {
    const std::string longest(63, 'n');
    folder_.Add(longest, {});
    FluidHost host(folder_.path);
    host.fluid.SetDlgFluid(longest.c_str(), 300.0, 200.0);
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);

    // One that begins with it is another table, though it is cut to that name.
    const std::string tooLong = longest + "n";
    folder_.Add(tooLong, {});
    host.dialog.Send(ID_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(tooLong.c_str()));
    const std::string message = "Fluid Table for " + longest + " is Invalid.";
    host.fluid.SetDlgFluid(tooLong.c_str(), 300.0, 200.0);
    EXPECT_EQ(host.Note(), message);
    host.Pick(tooLong);
    EXPECT_EQ(host.Note(), message);
    host.Type(ID_TEMPERATURE, "");
    host.Pick(tooLong);
    EXPECT_EQ(host.Note(), message.substr(0, 63));

    FluidHost lost(folder_.path + std::string(250, '/'));
    lost.fluid.SetDlgFluid("Plain", 300.0, 200.0);
    EXPECT_EQ(lost.Note(), kInvalid);
}

TEST_F(FluidDialog, HostMayEndTheDialogAtAnyNotification) {
    int steps = 0;
    for (bool ended = true; ended; ++steps) {
        FluidHost host(folder_.path);
        host.TypeConditions("300", "200");
        int left = steps;
        host.dialog.Forward([&](int id, int code) {
            if (left-- == 0) DestroyWindow(host.dialog.Handle());
            host.fluid.DlgCommand(id, code);
        });
        win32::user::TypeOver(host.dialog.Item(ID_NAME), "Plain");
        host.Leave();
        ended = left < 0;
        EXPECT_EQ(IsWindow(host.dialog.Handle()) == FALSE, ended);
    }
    EXPECT_GT(steps, 10);
}

}  // namespace
