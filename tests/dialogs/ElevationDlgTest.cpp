// The elevation dialog, driven from within its modal loop, as its user and its caller see it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "hydrofacts/dialogs/Atmospheric_Pressure_From_Elevation_Dialog.h"
#include "hydrofacts/frame/Language.h"
#include "hydrofacts/frame/Module.h"
#include "quillbase/DialogItems.h"
#include "tests/dialogs/TestDialog.h"

namespace {

using ::testing::ElementsAre;
using Calculator = Atmospheric_Pressure_From_Elevation_Dialog;
using Texts = std::vector<std::string>;

enum : int { ID_UNIT = 505, ID_ELEVATION = 1318, ID_LABEL = 1410, ID_RESULT = 2001, ID_ACT = 2002 };

win32::DialogBuilder SiteForm() {
    win32::DialogBuilder form("Site", WS_POPUP | WS_CAPTION, {0, 0, 120, 40});
    form.Edit(ID_RESULT, {5, 5, 50, 12}).Button(ID_ACT, "Elevation", {60, 5, 50, 14});
    return form;
}

std::string TextOf(HWND dialog, int id) {
    char text[64] = "";
    GetDlgItemTextA(dialog, id, text, sizeof text);
    return text;
}

/// A host whose result control says "before", with what a user does in the dialog.
class ElevationDlg : public ::testing::Test {
  protected:
    ElevationDlg() { SetDlgItemTextA(host.Handle(), ID_RESULT, "before"); }
    ~ElevationDlg() override { Hydrofacts_SetLanguage(1033); }

    /// Shows the dialog, lets `act` work on it, and closes it if that hasn't.
    bool Show(HF_PUNITS pressure, HF_LENGTH_UNITS length, const std::function<void(HWND)>& act,
              POINT position = {10, 20}) {
        const auto calculator = Calculator::new_Atmospheric_Pressure_From_Elevation_Dialog(
            position, pressure, length, host.Handle(), ID_RESULT);
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
    Texts results;
    std::size_t writes = 0;
    EXPECT_FALSE(Show(HF_PSI, HF_LEN_FT, [&](HWND dialog) {
        host.TakeLog();
        for (const char* key : {"5", "0", "0", "0"}) {
            win32::user::Type(GetDlgItem(dialog, ID_ELEVATION), key);
            results.push_back(Result());
        }
        for (const Notification& told : host.TakeLog()) {
            writes += told == Notification{ID_RESULT, EN_CHANGE} ? 1 : 0;
        }
        win32::user::PressKey(dialog, VK_ESCAPE);
    }));
    EXPECT_THAT(results, ElementsAre("14.6943", "14.6705", "14.4333", "12.2283"));
    EXPECT_EQ(writes, 4U);
    EXPECT_EQ(Result(), "12.2283") << "it stays when the dialog is left";
}

TEST_F(ElevationDlg, CalculatesInTheUnitsOfTheCaller) {
    const struct {
        HF_PUNITS pressure;
        HF_LENGTH_UNITS length;
        const char* label;
        const char* elevation;
        const char* result;
    } kCases[] = {
        {HF_PSI, HF_LEN_FT, "feet", "0", "14.697"},
        {HF_KPA, HF_LEN_IN, "feet", "0", "101.332"},
        {HF_KPA, HF_LEN_M, "meters", "0", "101.332"},
        {HF_BAR, HF_LEN_YD, "feet", "5000", "0.843111"},
        {HF_BAR, HF_LEN_MI, "feet", "1000", "0.977231"},  // not miles
        {HF_PSI, HF_LEN_KM, "meters", "1609", "12.1012"},
        {HF_KPA, HF_LEN_CM, "meters", "100", "100.136"},
        {HF_KPA, HF_LEN_MM, "meters", "+1.0e2", "100.136"},
        {HF_PSI, HF_LEN_OTHER, "meters", "4571", "8.29454"},
        {HF_PSI, HF_LEN_FT, "feet", "-10000", "20.8464"},
        {HF_PSI, HF_LEN_FT, "feet", "-10000.1", ""},
        {HF_PSI, HF_LEN_FT, "feet", "15000", "8.29344"},
        {HF_PSI, HF_LEN_FT, "feet", "15000.1", ""},
        {HF_PSI, HF_LEN_M, "meters", "4572.1", ""},  // 15000 ft are 4572 m
        {HF_PSI, HF_LEN_M, "meters", "1e300", ""},
        {HF_PSI, HF_LEN_FT, "feet", "", "14.697"},
        {HF_PSI, HF_LEN_FT, "feet", "12 ft", "before"},
        {HF_PSI, HF_LEN_FT, "feet", "nan", "before"},
    };
    for (const auto& c : kCases) {
        SetDlgItemTextA(host.Handle(), ID_RESULT, "before");
        Show(c.pressure, c.length, [&](HWND dialog) {
            EXPECT_EQ(TextOf(dialog, ID_UNIT), c.label);
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
    SetDlgItemTextA(host.Handle(), ID_RESULT, "before");
    EXPECT_TRUE(Show(HF_KPA, HF_LEN_M, [&](HWND dialog) {
        SetDlgItemTextA(dialog, ID_ELEVATION, "high");
        win32::user::PressKey(dialog, VK_RETURN);
    }));
    EXPECT_EQ(Result(), "before");
    EXPECT_FALSE(Show(HF_KPA, HF_LEN_M, &win32::user::Close));
}

TEST_F(ElevationDlg, ReadsAndWritesWithAPointInEveryLanguage) {
    Hydrofacts_SetLanguage(1031);
    Texts results;
    Show(HF_PSI, HF_LEN_FT, [&](HWND dialog) {
        for (const char* elevation : {"1000.9", "1000,9", "1.000,9"}) {
            SetDlgItemTextA(dialog, ID_ELEVATION, elevation);
            results.push_back(Result());
        }
    });
    // 1000.9 ft, then 1000 and 1 ft: the number ends at the comma, and the point is no separator.
    EXPECT_THAT(results, ElementsAre("14.1731", "14.1735", "14.6965"));
}

// Whatever is typed, the result is that of the number at the head of the text, worked out here, or
// stays as it was.
// With a point, whatever the locale; 0.0 if there is none.
double NumberAtTheHeadOf(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

TEST_F(ElevationDlg, FollowsAnyTyping) {
    constexpr std::string_view kKeys = "0123456789.,-+e x\b\b";
    constexpr unsigned kSeed = 109;
    constexpr int kTexts = 5000;
    std::mt19937 random(kSeed);
    int numbers = 0;
    Show(HF_PSI, HF_LEN_FT, [&](HWND dialog) {
        const HWND edit = GetDlgItem(dialog, ID_ELEVATION);
        std::string expected = Result();
        for (int i = 0; i < kTexts && !HasFailure(); ++i) {
            const char key[] = {kKeys[random() % kKeys.size()], '\0'};
            const std::string before = TextOf(dialog, ID_ELEVATION);
            if (random() % 10 == 0) {
                SetDlgItemTextA(dialog, ID_ELEVATION, "");
            } else {
                win32::user::Type(edit, key);
            }
            const std::string text = TextOf(dialog, ID_ELEVATION);
            if (text != before && GoodNumber(dialog, ID_ELEVATION, true, true, true)) {
                const double feet = NumberAtTheHeadOf(text);
                char psi[32] = "";
                if (feet >= -10000.0 && feet <= 15000.0) {
                    std::to_chars(psi, std::end(psi) - 1,
                                  14.697 * std::pow(1.0 - feet / 145422.156, 5.255879746),
                                  std::chars_format::general, 6);
                }
                expected = psi;
                ++numbers;
            }
            EXPECT_EQ(Result(), expected) << text;
        }
    });
    EXPECT_GT(numbers, kTexts / 4);
}

TEST_F(ElevationDlg, OpensAtItsPlaceInTheSizeOfTheTemplate) {
    const HWND plain = CreateDialogParamA(
        hydrofacts::ModuleHandle(), MAKEINTRESOURCEA(109), nullptr,
        [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
    ASSERT_NE(plain, nullptr);
    RECT size{};
    GetWindowRect(plain, &size);
    DestroyWindow(plain);
    RECT place{};
    Show(HF_PSI, HF_LEN_FT, [&](HWND dialog) { GetWindowRect(dialog, &place); }, {123, 77});
    EXPECT_THAT((std::vector{place.left, place.top, place.right, place.bottom}),
                ElementsAre(123, 77, 123 + size.right - size.left, 77 + size.bottom - size.top));
}

// The template as it is given, in dialog units from the place of the first control. The border of
// the edit is left out: the system's own control makes another one of it.
TEST_F(ElevationDlg, HasTheControlsOfItsTemplate) {
    const struct {
        int id;
        const char* className;
        const char* text;
        LONG_PTR style;
        RECT place;
    } kControls[] = {
        {ID_ELEVATION, "Edit", "", 0x50010080, {0, 0, 46, 12}},
        {ID_UNIT, "Static", "feet", 0x50020000, {56, 1, 27, 10}},
        {ID_LABEL, "Static", "Elevation", 0x50020000, {-34, 1, 33, 10}},
        {IDOK, "Button", "OK", 0x50010000, {0, 14, 44, 16}},
    };
    Show(HF_PSI, HF_LEN_FT, [&](HWND dialog) {
        char title[40] = "";
        GetWindowTextA(dialog, title, sizeof title);
        EXPECT_STREQ(title, "Atm Pressure Calc");
        constexpr LONG_PTR kStyle = 0x80C00048;
        EXPECT_EQ(GetWindowLongPtrA(dialog, GWL_STYLE) & kStyle, kStyle);
        EXPECT_EQ(GetWindowLongPtrA(dialog, GWL_EXSTYLE) & WS_EX_TOOLWINDOW, WS_EX_TOOLWINDOW);
        RECT origin{};
        GetWindowRect(GetDlgItem(dialog, ID_ELEVATION), &origin);
        for (const auto& expected : kControls) {
            const HWND control = GetDlgItem(dialog, expected.id);
            char name[20] = "";
            GetClassNameA(control, name, sizeof name);
            EXPECT_STREQ(name, expected.className);
            EXPECT_EQ(TextOf(dialog, expected.id), expected.text);
            EXPECT_EQ(GetWindowLongPtrA(control, GWL_STYLE) & expected.style, expected.style);
            RECT pixels = expected.place;
            MapDialogRect(dialog, &pixels);
            RECT place{};
            GetWindowRect(control, &place);
            // Places are rounded to pixels each by itself.
            EXPECT_NEAR(place.left - origin.left, pixels.left, 1) << expected.id;
            EXPECT_NEAR(place.top - origin.top, pixels.top, 1) << expected.id;
            EXPECT_NEAR(place.right - place.left, pixels.right, 1) << expected.id;
            EXPECT_NEAR(place.bottom - place.top, pixels.bottom, 1) << expected.id;
        }
    });
}

}  // namespace
