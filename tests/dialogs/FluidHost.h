#ifndef HYDROFACTS_TESTS_DIALOGS_FLUIDHOST_H
#define HYDROFACTS_TESTS_DIALOGS_FLUIDHOST_H

#include <gtest/gtest.h>

#include <initializer_list>
#include <mutex>
#include <string>
#include <vector>

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/FluidNames.h"
#include "hydrofacts/frame/Module.h"
#include "tests/dialogs/FluidFormTemplate.h"
#include "tests/dialogs/TestDialog.h"
#include "tests/fluid/TestFluid.h"

/// Takes back what the process has found out about fluid tables.
inline void ForgetFluidTables() {
    const auto names = hydrofacts::FluidTableCache();
    const std::lock_guard lock(names->mutex);
    names->text.clear();
}

/// A host with one fluid dialog, in kelvin and absolute kPa, that forwards every notification. The
/// dialog goes before the controller.
class FluidHost {
  public:
    explicit FluidHost(std::initializer_list<int> without = {ID_FIXED_NAME}, int useSG = 0,
                       int absolute = 1)
        : fluid(HF_KELVIN, HF_KPA, absolute, 100.0, useSG), dialog(FluidForm(without)) {
        dialog.Forward([this](int id, int code) { fluid.DlgCommand(id, code); });
    }
    FluidHost(const std::string& tables, std::initializer_list<int> without = {ID_FIXED_NAME})
        : FluidHost(without) {
        EXPECT_EQ(fluid.InitFluids(dialog.Handle(), tables.c_str()), 1);
    }

    std::vector<std::string> Listed() const {
        std::vector<std::string> rows;
        for (int row = 0; row < dialog.Send(ID_LIST, LB_GETCOUNT); ++row) {
            char text[260];
            dialog.Send(ID_LIST, LB_GETTEXT, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(text));
            rows.emplace_back(text);
        }
        return rows;
    }

    LRESULT Selected() const { return dialog.Send(ID_LIST, LB_GETCURSEL); }

    void Pick(const char* name) const {
        const LRESULT row = dialog.Send(ID_LIST, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                        reinterpret_cast<LPARAM>(name));
        ASSERT_NE(row, -1) << name;
        ASSERT_TRUE(win32::user::PickRow(dialog.Item(ID_LIST), static_cast<int>(row)));
    }

    void Type(int id, const char* text) const {
        ASSERT_TRUE(win32::user::TypeOver(dialog.Item(id), text)) << id;
    }

    /// Goes to another control that nothing happens in.
    void Leave() const { SetFocus(dialog.Item(IDCANCEL)); }

    void TypeConditions(const char* temperature, const char* pressure) const {
        Type(ID_TEMPERATURE, temperature);
        Type(ID_PRESSURE, pressure);
        Leave();
    }

    /// Density, viscosity, molecular weight; ratio of specific heats; vapor pressure, critical
    /// temperature and pressure.
    std::vector<std::string> Properties() const {
        std::vector<std::string> texts;
        for (const int id : {ID_DENSITY, ID_VISCOSITY, ID_MOLECULAR_WEIGHT, ID_SPHEAT,
                             ID_VAPOR_PRESSURE, ID_CRITICAL_TEMPERATURE, ID_CRITICAL_PRESSURE}) {
            texts.push_back(dialog.Text(id));
        }
        return texts;
    }

    std::string Note() const { return dialog.Text(ID_NOTE); }
    bool VaporChecked() const { return IsDlgButtonChecked(dialog.Handle(), ID_VAPOR) != 0; }
    bool LiquidChecked() const { return IsDlgButtonChecked(dialog.Handle(), ID_LIQUID) != 0; }

    CFluidDlg fluid;
    TestDialog dialog;
};

/// What the table of FluidText gives at 300 K, worked out by hand: a liquid at 200 kPa (density
/// 1200 - T, viscosity 2.123456 - T / 1000, saturation 10 T - 2900), a vapor at 50 kPa (density
/// p M / (8.3144 T) with M = 28.9586, viscosity 0.01 + T / 100000, Cp 4 R).
using Texts = std::vector<std::string>;
inline const Texts kNothing(7);
inline const Texts kLiquidAt200 = {"900", "1.823", "28.9586", "", "100", "400", "1100"};
inline const Texts kVaporAt50 = {"0.5805", "0.013", "28.9586", "1.333", "", "", ""};

#endif
