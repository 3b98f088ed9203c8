#ifndef HYDROFACTS_TESTS_DIALOGS_FLUIDHOST_H
#define HYDROFACTS_TESTS_DIALOGS_FLUIDHOST_H

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <mutex>
#include <string>
#include <vector>

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/FluidNames.h"
#include "hydrofacts/frame/Language.h"
#include "hydrofacts/frame/Module.h"
#include "tests/dialogs/TestDialog.h"
#include "tests/fluid/TestFluid.h"

/// Controls of a fluid dialog, as hosts number them.
enum : int {
    ID_LIST = 10001,
    ID_TEMPERATURE = 10002,
    ID_PRESSURE = 10004,
    ID_VISCOSITY = 10006,
    ID_DENSITY = 10008,
    ID_LIQUID = 10010,
    ID_VAPOR = 10011,
    ID_SPHEAT = 10014,
    ID_VAPOR_PRESSURE = 10017,
    ID_NAME = 10024,
    ID_NOTE = 10025,
    ID_CRITICAL_PRESSURE = 10027,
    ID_CRITICAL_TEMPERATURE = 10030,
    ID_MOLECULAR_WEIGHT = 10032,
    ID_FIXED_NAME = 10034,
    ID_CAPTION = 10035,
};

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

/// A host's fluid dialog with every control that a controller knows, except those of `without`.
inline win32::DialogBuilder FluidForm(const Ids& without) {
    win32::DialogBuilder form("Fluid", WS_POPUP | WS_CAPTION, {0, 0, 300, 300});
    const win32::DialogPlace place{0, 0, 100, 12};
    const auto has = [&](int id) { return std::ranges::find(without, id) == without.end(); };
    form.ListBox(ID_LIST, {0, 20, 100, 60}, LBS_SORT);
    for (const int id :
         {ID_NAME, ID_TEMPERATURE, ID_PRESSURE, ID_DENSITY, ID_VISCOSITY, ID_MOLECULAR_WEIGHT,
          ID_CRITICAL_TEMPERATURE, ID_SPHEAT, ID_VAPOR_PRESSURE, ID_CRITICAL_PRESSURE}) {
        if (has(id)) form.Edit(id, place);
    }
    for (const int id :
         Ids{ID_CAPTION, ID_NOTE, ID_FIXED_NAME, 10012, 10013, 10015, 10016, 10018, 10026, 10028}) {
        if (has(id)) form.Static(id, "", place, WS_GROUP);
    }
    form.RadioButton(ID_LIQUID, "Liquid", place, WS_GROUP | WS_TABSTOP);
    form.RadioButton(ID_VAPOR, "Vapor", place);
    form.DefaultButton(IDOK, "OK", place).Button(IDCANCEL, "Cancel", place);
    return form;
}

/// Takes back what the process has found out about fluid tables.
inline void ForgetFluidTables() {
    const auto names = hydrofacts::FluidTableCache();
    const std::lock_guard lock(names->mutex);
    names->text.clear();
}

/// A host with one fluid dialog, in kelvin and kPa, that forwards every notification. As it stands,
/// it isn't the form for conditions only.
class FluidHost {
  public:
    explicit FluidHost(const std::string& tables, const Ids& without = {ID_FIXED_NAME},
                       int useSG = 0, int absolute = 1)
        : fluid(HF_KELVIN, HF_KPA, absolute, 100.0, useSG), dialog(FluidForm(without)) {
        dialog.Forward([this](int id, int code) { fluid.DlgCommand(id, code); });
        EXPECT_EQ(fluid.InitFluids(dialog.Handle(), tables.c_str()), 1);
    }

    Texts Listed() const { return dialog.Rows(ID_LIST); }

    std::string Selected() const {
        const LRESULT row = dialog.Send(ID_LIST, LB_GETCURSEL);
        return row == -1 ? "none" : Listed()[static_cast<std::size_t>(row)];
    }

    void Pick(const std::string& name) const {
        const Texts rows = Listed();
        const auto row = std::ranges::find(rows, name) - rows.begin();
        ASSERT_TRUE(win32::user::PickRow(dialog.Item(ID_LIST), static_cast<int>(row))) << name;
    }

    void Type(int id, const char* text) const {
        ASSERT_TRUE(win32::user::TypeOver(dialog.Item(id), text)) << id;
    }

    /// Goes to another control, where nothing happens.
    void Leave() const { SetFocus(dialog.Item(IDCANCEL)); }

    void TypeConditions(const char* temperature, const char* pressure) const {
        Type(ID_TEMPERATURE, temperature);
        if (pressure != nullptr) Type(ID_PRESSURE, pressure);
        Leave();
    }

    /// Density, viscosity, molecular weight; ratio of specific heats; vapor pressure, critical
    /// temperature and pressure.
    Texts Properties() const {
        Texts texts;
        for (const int id : {ID_DENSITY, ID_VISCOSITY, ID_MOLECULAR_WEIGHT, ID_SPHEAT,
                             ID_VAPOR_PRESSURE, ID_CRITICAL_TEMPERATURE, ID_CRITICAL_PRESSURE}) {
            texts.push_back(dialog.Text(id));
        }
        return texts;
    }

    std::string Note() const { return dialog.Text(ID_NOTE); }
    bool Checked(int id) const { return IsDlgButtonChecked(dialog.Handle(), id) != 0; }

    CFluidDlg fluid;
    TestDialog dialog;
};

inline FluidText Without(std::size_t slot) {
    FluidText table;
    table.formulas.at(slot) = table.formulas.at(slot).substr(0, 2) + "\t0";
    return table;
}

/// A folder with the table of FluidText, and the same for one state only.
struct PlainTables : TableFolder {
    PlainTables() {
        Add("Plain", {});
        Add("Oil", Without(SLOT_VAPOR_DENSITY));
        Add("Gas", Without(SLOT_LIQUID_DENSITY));
        ForgetFluidTables();
    }
    void RemovePlain() const { std::filesystem::remove(Path("Plain.FTBL")); }
};

class FluidDialog : public ::testing::Test {
  protected:
    ~FluidDialog() override { Hydrofacts_SetLanguage(1033); }

    PlainTables tables;
    FluidHost host{tables.path};
    CFluidDlg& fluid = host.fluid;
};

inline constexpr const char* kNoProperties =
    "Fluid properties are not available at the specified temperature and pressure. ";
inline constexpr const char* kNoLiquid =
    "Liquid properties are not available at the specified temperature.";

/// What the table of FluidText gives at 300 K, worked out by hand: a liquid at 200 kPa (density
/// 1200 - T, viscosity 2.123456 - T / 1000, saturation 10 T - 2900), a vapor at 50 kPa (density
/// p M / (8.3144 T) with M = 28.9586, viscosity 0.01 + T / 100000, Cp 4 R).
inline const Texts kNothing(7);
inline const Texts kLiquidAt200 = {"900", "1.823", "28.9586", "", "100", "400", "1100"};
inline const Texts kVaporAt50 = {"0.5805", "0.013", "28.9586", "1.333", "", "", ""};

#endif
