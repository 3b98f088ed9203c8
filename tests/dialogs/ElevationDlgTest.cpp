// The elevation dialog, driven from within its modal loop, as its user and its caller see it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "hydrofacts/dialogs/Atmospheric_Pressure_From_Elevation_Dialog.h"
#include "hydrofacts/frame/Language.h"
#include "hydrofacts/frame/Module.h"
#include "tests/dialogs/TestDialog.h"

namespace {

using ::testing::ElementsAre;
using Calculator = Atmospheric_Pressure_From_Elevation_Dialog;

enum : int { ID_UNIT = 505, ID_ELEVATION = 1318, ID_LABEL = 1410, ID_RESULT = 2001, ID_ACT = 2002 };

win32::DialogBuilder SiteForm() {
    win32::DialogBuilder form("Site", WS_POPUP | WS_CAPTION, {0, 0, 120, 40});
    form.Edit(ID_RESULT, {5, 5, 50, 12}).Button(ID_ACT, "Elevation", {60, 5, 50, 14});
    return form;
}

std::string TextOf(HWND window) {
    char text[64] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

class ElevationDlg : public ::testing::Test {
  protected:
    ~ElevationDlg() override { Hydrofacts_SetLanguage(1033); }

    /// Shows the dialog over a result of "before", lets `act` work on it, and closes it if that
    /// hasn't.
    bool Show(HF_PUNITS pressure, HF_LENGTH_UNITS length, const std::function<void(HWND)>& act) {
        const auto calculator = Calculator::new_Atmospheric_Pressure_From_Elevation_Dialog(
            {123, 77}, pressure, length, host.Handle(), ID_RESULT);
        SetDlgItemTextA(host.Handle(), ID_RESULT, "before");
        bool acted = false;
        host.Forward([&](int id, int) {
            if (id != ID_ACT) return;
            acted = true;
            act(calculator->handle());
            if (IsWindow(calculator->handle()) != FALSE) calculator->close();
        });
        PostMessageA(host.Handle(), WM_COMMAND, ID_ACT, 0);
        const bool applied = calculator->showModal(host.Handle());
        EXPECT_TRUE(acted);
        EXPECT_EQ(calculator->handle(), nullptr);
        return applied;
    }

    std::string Result() const { return host.Text(ID_RESULT); }

    TestDialog host{SiteForm()};
};

// Worked out from the equation with another program; 12.228 and 8.294 psi are the U.S. Standard
// Atmosphere's at 5000 and 15000 ft.
TEST_F(ElevationDlg, WritesThePressureAtEachChange) {
    std::vector<std::string> results;
    EXPECT_FALSE(Show(HF_PSI, HF_LEN_FT, [&](HWND dialog) {
        host.TakeLog();
        for (const char* key : {"5", "0", "0", "0", "x"}) {
            win32::user::Type(GetDlgItem(dialog, ID_ELEVATION), key);
            results.push_back(Result());
        }
        const auto log = host.TakeLog();
        EXPECT_EQ(std::ranges::count(log, Notification{ID_RESULT, EN_CHANGE}), 4);
        win32::user::PressKey(dialog, VK_ESCAPE);
    }));
    EXPECT_THAT(results, ElementsAre("14.6943", "14.6705", "14.4333", "12.2283", "12.2283"));
    EXPECT_EQ(Result(), "12.2283") << "it stays when the dialog is left";
}

TEST_F(ElevationDlg, CalculatesInTheUnitsOfTheCallerWithAPointInEveryLanguage) {
    constexpr unsigned long kGerman = 1031;
    const struct {
        HF_PUNITS pressure;
        HF_LENGTH_UNITS length;
        const char* label;
        const char* elevation;
        const char* result;
        unsigned long language = 1033;
    } kCases[] = {
        {HF_KPA, HF_LEN_IN, "feet", "0", "101.332"},
        {HF_BAR, HF_LEN_YD, "feet", "5000", "0.843111"},
        {HF_BAR, HF_LEN_MI, "feet", "1000", "0.977231"},  // not miles
        {HF_PSI, HF_LEN_KM, "meters", "1609", "12.1012"},
        {HF_KPA, HF_LEN_MM, "meters", "+1.0e2", "100.136"},
        {HF_PSI, HF_LEN_OTHER, "meters", "4571", "8.29454"},
        {HF_PSI, HF_LEN_FT, "feet", "-10000", "20.8464"},
        {HF_PSI, HF_LEN_FT, "feet", "-10000.1", ""},
        {HF_PSI, HF_LEN_M, "meters", "4572.1", ""},  // 15000 ft are 4572 m
        {HF_PSI, HF_LEN_FT, "feet", "", "14.697"},
        {HF_PSI, HF_LEN_FT, "feet", "12 ft", "before"},
        {HF_PSI, HF_LEN_FT, "feet", "1000.9", "14.1731", kGerman},
        // The number ends at the comma, and the point is no separator.
        {HF_PSI, HF_LEN_FT, "feet", "1000,9", "14.1735", kGerman},
        {HF_PSI, HF_LEN_FT, "feet", "1.000,9", "14.6965", kGerman},
    };
    for (const auto& c : kCases) {
        Hydrofacts_SetLanguage(c.language);
        Show(c.pressure, c.length, [&](HWND dialog) {
            EXPECT_EQ(TextOf(GetDlgItem(dialog, ID_UNIT)), c.label);
            SetDlgItemTextA(dialog, ID_ELEVATION, c.elevation);
        });
        EXPECT_EQ(Result(), c.result) << c.elevation << " " << c.label;
    }
}

TEST_F(ElevationDlg, OkCalculatesOnceMoreAndCloses) {
    EXPECT_TRUE(Show(HF_KPA, HF_LEN_M, [&](HWND dialog) {
        EXPECT_EQ(Result(), "before") << "nothing is written as it opens";
        EXPECT_EQ(IsWindowEnabled(host.Handle()), FALSE);
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, ID_ELEVATION));
        win32::user::Click(GetDlgItem(dialog, IDOK));
    }));
    EXPECT_EQ(Result(), "101.332");
    EXPECT_NE(IsWindowEnabled(host.Handle()), FALSE);

    // What is no number closes the dialog all the same, by the Enter key too.
    EXPECT_TRUE(Show(HF_KPA, HF_LEN_M, [&](HWND dialog) {
        SetDlgItemTextA(dialog, ID_ELEVATION, "high");
        win32::user::PressKey(dialog, VK_RETURN);
    }));
    EXPECT_EQ(Result(), "before");
    EXPECT_FALSE(Show(HF_KPA, HF_LEN_M, &win32::user::Close));
}

// In dialog units from the place of the first control. The border of the edit is left out: the
// system's own control makes another one of it.
TEST_F(ElevationDlg, OpensAtItsPlaceWithTheControlsOfItsTemplate) {
    const struct {
        int id;
        const char* text;
        LONG_PTR style;
        RECT place;
    } kControls[] = {
        {ID_ELEVATION, "", 0x50010080, {0, 0, 46, 12}},
        {ID_UNIT, "feet", 0x50020000, {56, 1, 27, 10}},
        {ID_LABEL, "Elevation", 0x50020000, {-34, 1, 33, 10}},
        {IDOK, "OK", 0x50010000, {0, 14, 44, 16}},
    };
    Show(HF_PSI, HF_LEN_FT, [&](HWND dialog) {
        EXPECT_EQ(TextOf(dialog), "Atm Pressure Calc");
        constexpr LONG_PTR kStyle = 0x80C00048;
        EXPECT_EQ(GetWindowLongPtrA(dialog, GWL_STYLE) & kStyle, kStyle);
        EXPECT_EQ(GetWindowLongPtrA(dialog, GWL_EXSTYLE) & WS_EX_TOOLWINDOW, WS_EX_TOOLWINDOW);
        RECT size{0, 0, 123, 38};
        MapDialogRect(dialog, &size);
        RECT client{};
        GetClientRect(dialog, &client);
        const RECT window = PlaceOf(dialog);
        EXPECT_THAT((std::vector{window.left, window.top, client.right, client.bottom}),
                    ElementsAre(123, 77, size.right, size.bottom));
        const HWND modeless = CreateDialogParamA(hydrofacts::ModuleHandle(), MAKEINTRESOURCEA(109),
                                                 dialog, nullptr, 0);
        const RECT same = PlaceOf(modeless);
        EXPECT_EQ(same.right - same.left, window.right - window.left);
        DestroyWindow(modeless);
        const RECT origin = PlaceOf(GetDlgItem(dialog, ID_ELEVATION));
        for (const auto& expected : kControls) {
            SCOPED_TRACE(expected.id);
            const HWND control = GetDlgItem(dialog, expected.id);
            EXPECT_EQ(TextOf(control), expected.text);
            EXPECT_EQ(GetWindowLongPtrA(control, GWL_STYLE) & expected.style, expected.style);
            RECT pixels = expected.place;
            MapDialogRect(dialog, &pixels);
            const RECT place = PlaceOf(control);
            // Places are rounded to pixels each by itself.
            EXPECT_NEAR(place.left - origin.left, pixels.left, 1);
            EXPECT_NEAR(place.top - origin.top, pixels.top, 1);
            EXPECT_NEAR(place.right - place.left, pixels.right, 1);
            EXPECT_NEAR(place.bottom - place.top, pixels.bottom, 1);
        }
    });
}

}  // namespace
