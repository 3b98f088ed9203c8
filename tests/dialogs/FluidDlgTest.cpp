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

FluidText LiquidOnly() {
    FluidText table;
    table.title = "S\t\"Oil\"";
    table.formulas[4] = "P5\t0";
    return table;
}

FluidText VaporOnly() {
    FluidText table;
    table.title = "S\t\"Gas\"";
    table.formulas[2] = "P3\t0";
    return table;
}

class FluidDialog : public ::testing::Test {
  protected:
    FluidDialog() {
        ForgetFluidTables();
        folder_.Add("Plain", {});
        folder_.Add("Oil", LiquidOnly());
        folder_.Add("Gas", VaporOnly());
    }
    ~FluidDialog() override { Hydrofacts_SetLanguage(1033); }

    void Remove(const char* name) const {
        std::filesystem::remove(folder_.Path(std::string(name) + ".FTBL"));
    }

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
    EXPECT_NE(std::find(log.begin(), log.end(), Notification{ID_LIST, LBN_SELCHANGE}), log.end());
    EXPECT_EQ(host.Note(), "Plain - vers 1.0");
    EXPECT_EQ(host.Properties(), kLiquidAt200);
    EXPECT_TRUE(host.LiquidChecked());
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_STREQ(host.fluid.GetFluidName(), "Plain");
    EXPECT_EQ(host.fluid.GetDensity(), 900.0);

    host.TypeConditions("300", "50");
    EXPECT_EQ(host.Properties(), kVaporAt50);
    EXPECT_EQ(host.Note(), "") << "typing has emptied it";
    EXPECT_TRUE(host.VaporChecked());
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_VAPOR);
    EXPECT_EQ(host.fluid.GetPressure(), 50.0);
}

TEST_F(FluidDialog, PickWithoutConditionsShowsTheNoteAlone) {
    FluidHost host(folder_.path);
    const struct {
        const char* name;
        int checked;
    } kPicks[] = {{"Oil", ID_LIQUID}, {"Plain", ID_LIQUID}, {"Gas", ID_VAPOR}, {"Plain", ID_VAPOR}};
    for (const char* temperature : {"", "300"}) {
        host.Type(ID_TEMPERATURE, temperature);
        for (const auto& pick : kPicks) {
            host.Pick(pick.name);
            EXPECT_EQ(host.Note(), std::string(pick.name) + " - vers 1.0");
            EXPECT_EQ(host.VaporChecked(), pick.checked == ID_VAPOR) << pick.name;
            EXPECT_EQ(host.LiquidChecked(), pick.checked == ID_LIQUID) << pick.name;
            EXPECT_EQ(host.Properties(), kNothing);
            EXPECT_EQ(host.fluid.GetFluidState(), FLUID_NONE);
        }
    }
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
        {"300", "200", "", FLUID_LIQUID, kLiquidAt200},
    };
    for (const auto& c : kCases) {
        host.TypeConditions(c.temperature, c.pressure);
        EXPECT_EQ(host.Note(), c.note) << c.temperature << " " << c.pressure;
        EXPECT_EQ(host.fluid.GetFluidState(), c.state) << c.temperature << " " << c.pressure;
        EXPECT_EQ(host.Properties(), c.properties) << c.temperature << " " << c.pressure;
    }
    Remove("Plain");
    host.TypeConditions("300", "50");
    EXPECT_EQ(host.Note(), kInvalid);
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_NONE);
    EXPECT_STREQ(host.fluid.GetFluidName(), "Plain");
}

TEST_F(FluidDialog, TypingAConditionTakesThePropertiesAwayAndChangesNothing) {
    FluidHost host(folder_.path);
    host.fluid.SetDlgFluid("Plain", 300.0, 200.0);
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
    host.Type(ID_TEMPERATURE, "310");
    host.Leave();
    EXPECT_FALSE(host.fluid.Changed()) << "without a row there is nothing to calculate";
    EXPECT_EQ(host.fluid.GetTemperature(), 300.0);
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

    FluidHost bare(folder_.path, {ID_FIXED_NAME, IDOK});
    bare.Pick("Plain");
    SetFocus(bare.dialog.Item(ID_PRESSURE));
    win32::user::PressTab(bare.dialog.Handle());
    EXPECT_NE(GetFocus(), bare.dialog.Item(ID_PRESSURE));
}

TEST_F(FluidDialog, TypedNameOfAnInstalledFluidPicksIt) {
    FluidHost host(folder_.path);
    host.TypeConditions("300", "200");
    host.Pick("Oil");
    host.Type(ID_NAME, "pl");
    EXPECT_EQ(host.Selected(), -1);
    EXPECT_EQ(host.Note(), "");
    EXPECT_EQ(host.Properties(), kNothing);
    host.Type(ID_NAME, "plAin");
    win32::user::PressTab(host.dialog.Handle(), true);
    EXPECT_EQ(host.Selected(), 2);
    EXPECT_EQ(host.dialog.Text(ID_NAME), "");
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), ID_TEMPERATURE);
    EXPECT_EQ(host.Note(), "Plain - vers 1.0");
    EXPECT_EQ(host.Properties(), kLiquidAt200);

    host.fluid.SetChanged(false);
    host.Type(ID_NAME, "Brine");
    host.Leave();
    EXPECT_EQ(host.dialog.Text(ID_NAME), "Brine");
    EXPECT_EQ(host.Selected(), -1);
    EXPECT_TRUE(host.fluid.Changed());
    host.Pick("Plain");
    EXPECT_EQ(host.dialog.Text(ID_NAME), "");
    EXPECT_EQ(host.Selected(), 2) << "emptying the name leaves the selection alone";
}

TEST_F(FluidDialog, TemperatureOnlyFormTakesTheStateFromTheButtons) {
    FluidHost host(folder_.path, {ID_FIXED_NAME, ID_PRESSURE});
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
        // A vapor at 99 % of saturation: 99 M / (8.3144 × 300).
        {ID_VAPOR,
         "300",
         "",
         FLUID_VAPOR,
         99.0,
         {"1.149", "0.013", "28.9586", "1.333", "", "", ""}},
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
    win32::user::Click(host.dialog.Item(ID_VAPOR));
    host.fluid.SetDlgFluid("Plain", 300.0);
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_EQ(host.Properties(), kLiquidAt200);

    FluidHost noButtons(folder_.path, {ID_FIXED_NAME, ID_PRESSURE, ID_VAPOR});
    noButtons.Pick("Plain");
    noButtons.Type(ID_TEMPERATURE, "300");
    noButtons.Leave();
    EXPECT_EQ(noButtons.Properties(), kLiquidAt200);
}

TEST_F(FluidDialog, ConditionsFormKeepsTheStateThatWasChosenElsewhere) {
    FluidHost host(folder_.path, {});
    host.fluid.SetDlgFluid("Plain", 300.0, 200.0);
    EXPECT_EQ(host.dialog.Text(ID_FIXED_NAME), "Plain");
    EXPECT_EQ(host.Properties(), kLiquidAt200);
    const struct {
        const char* pressure;
        const char* note;
        Texts properties;
    } kCases[] = {
        {"50", kOtherState, kNothing},
        {"100", kNoProperties, kNothing},
        {"200", "", kLiquidAt200},
    };
    for (const auto& c : kCases) {
        host.TypeConditions("300", c.pressure);
        EXPECT_EQ(host.Note(), c.note);
        EXPECT_EQ(host.Properties(), c.properties);
        EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
    }
    Remove("Plain");
    host.TypeConditions("300", "200");
    EXPECT_EQ(host.Note(), kInvalid);
    EXPECT_EQ(host.fluid.GetFluidState(), FLUID_LIQUID);
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
    host.fluid.SetDlgFluid("Plain", 310.25, 2.5);
    EXPECT_EQ(host.dialog.Text(ID_TEMPERATURE), "310,25");
    EXPECT_EQ(host.dialog.Text(ID_PRESSURE), "2,5");
    Remove("Plain");
    host.Pick("Plain");
    EXPECT_EQ(host.Note(), "Fl\xFCssigkeitstabelle f\xFCr Plain ist ung\xFCltig.");
}

TEST_F(FluidDialog, StaleAndDamagedTablesAreToldAndCalculateNothing) {
    FluidHost host(folder_.path);
    host.TypeConditions("300", "200");
    Remove("Plain");
    FluidText damaged = LiquidOnly();
    damaged.formulas[0] = "P2\t1\t1";
    folder_.Add("Oil", damaged);
    for (const char* name : {"Plain", "Oil"}) {
        host.Pick("Gas");
        host.Pick(name);
        EXPECT_EQ(host.Note(), "Fluid Table for " + std::string(name) + " is Invalid.");
        EXPECT_EQ(host.Properties(), kNothing);
        EXPECT_EQ(host.fluid.GetFluidState(), FLUID_NONE);
        EXPECT_TRUE(host.fluid.Changed());
    }
    folder_.Write("Gas.FTBL", "no title\r\n" + VaporOnly().Text());
    host.Pick("Gas");
    EXPECT_EQ(host.Note(), kNoProperties) << "a table without a title has no note";
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
    host.fluid.SetDlgFluid(tooLong.c_str(), 300.0);
    EXPECT_EQ(host.Note(), message);
    host.Pick(tooLong.c_str());
    EXPECT_EQ(host.Note(), message) << "after a pick it is calculated";
    host.Type(ID_TEMPERATURE, "");
    host.Pick(tooLong.c_str());
    EXPECT_EQ(host.Note(), message.substr(0, 63));

    FluidHost lost;
    const std::string deep = folder_.path + std::string(250, '/');
    EXPECT_EQ(lost.fluid.InitFluids(lost.dialog.Handle(), deep.c_str(), FLUID_VAPOR), 1);
    lost.fluid.SetDlgFluid("Plain", 300.0, 200.0);
    EXPECT_EQ(lost.Note(), kInvalid);
}

TEST_F(FluidDialog, EditsTakeTheirLengthsAndAPauseInTypingCountsAsLeaving) {
    FluidHost host(folder_.path);
    EXPECT_EQ(host.dialog.Send(ID_NAME, EM_GETLIMITTEXT), 62);
    for (const int id :
         {ID_TEMPERATURE, ID_PRESSURE, ID_VISCOSITY, ID_DENSITY, ID_SPHEAT, ID_VAPOR_PRESSURE,
          ID_CRITICAL_PRESSURE, ID_CRITICAL_TEMPERATURE, ID_MOLECULAR_WEIGHT}) {
        EXPECT_EQ(host.dialog.Send(id, EM_GETLIMITTEXT), 7) << id;
    }
    host.Pick("Plain");
    host.Type(ID_PRESSURE, "200");
    host.Type(ID_TEMPERATURE, "300");
    const DWORD start = GetTickCount();
    while (host.Properties() == kNothing && GetTickCount() - start < 5000) {
        win32::user::HandleMessages(host.dialog.Handle());
    }
    EXPECT_EQ(host.Properties(), kLiquidAt200);
    EXPECT_GE(GetTickCount() - start, 900U);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), ID_TEMPERATURE);
}

TEST_F(FluidDialog, OtherNotificationsAreTheHosts) {
    CFluidDlg unattached(HF_DEG_F, HF_PSI, 0, 14.696, 0);
    FluidHost host(folder_.path);
    host.dialog.Forward({});
    const struct {
        int id;
        int code;
        bool taken;
    } kCases[] = {
        {ID_LIST, LBN_SELCHANGE, true},     {ID_LIST, LBN_DBLCLK, false},
        {ID_TEMPERATURE, EN_CHANGE, true},  {ID_TEMPERATURE, EN_KILLFOCUS, true},
        {ID_PRESSURE, EN_CHANGE, true},     {ID_PRESSURE, EN_KILLFOCUS, true},
        {ID_NAME, EN_CHANGE, true},         {ID_NAME, EN_KILLFOCUS, true},
        {ID_TEMPERATURE, EN_UPDATE, false}, {ID_NAME, EN_SETFOCUS, false},
        {ID_LIQUID, BN_CLICKED, false},     {ID_VAPOR, BN_CLICKED, false},
        {ID_DENSITY, EN_CHANGE, false},     {IDOK, BN_CLICKED, false},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(host.fluid.DlgCommand(c.id, c.code), c.taken) << c.id << " " << c.code;
        EXPECT_EQ(unattached.DlgCommand(c.id, c.code), c.taken) << c.id << " " << c.code;
    }
}

TEST_F(FluidDialog, HostMayEndTheDialogAtAnyNotification) {
    for (int steps = 1;; ++steps) {
        FluidHost host(folder_.path);
        host.TypeConditions("300", "200");
        int left = steps;
        host.dialog.Forward([&](int id, int code) {
            if (--left == 0) DestroyWindow(host.dialog.Handle());
            host.fluid.DlgCommand(id, code);
        });
        win32::user::TypeOver(host.dialog.Item(ID_NAME), "Plain");
        host.Leave();
        if (left <= 0) {
            EXPECT_FALSE(IsWindow(host.dialog.Handle()));
            continue;
        }
        EXPECT_GT(steps, 10);
        break;
    }
}

}  // namespace
