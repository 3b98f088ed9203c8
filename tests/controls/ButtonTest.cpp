#include <gtest/gtest.h>

#include <string>

#include "tests/dialogs/TestDialog.h"

namespace {

using Log = std::vector<Notification>;

enum : int { kLiquid = 101, kVapor, kSolid, kNext, kCheck, kMissing = 999 };

class ButtonControl : public testing::Test {
  protected:
    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Buttons", WS_POPUP | WS_CAPTION, {0, 0, 200, 100});
        form.RadioButton(kLiquid, "&Liquid", {5, 5, 60, 12}, WS_GROUP | WS_TABSTOP);
        form.RadioButton(kVapor, "&Vapor", {5, 20, 60, 12});
        form.RadioButton(kSolid, "s", {5, 35, 60, 12});
        form.Button(kNext, "&Next", {5, 50, 60, 14}, WS_GROUP);
        form.CheckBox(kCheck, "check", {5, 70, 60, 12});
        return form;
    }

    std::string Checked() {
        std::string checked;
        for (const int id : {kLiquid, kVapor, kSolid}) {
            checked += IsDlgButtonChecked(dialog_.Handle(), id) != 0 ? 'x' : '.';
        }
        return checked;
    }

    TestDialog dialog_{Form()};
};

TEST_F(ButtonControl, IsCheckedByAProgramWithoutAWord) {
    CheckRadioButton(dialog_.Handle(), kLiquid, kSolid, kVapor);
    EXPECT_EQ(Checked(), ".x.");
    CheckDlgButton(dialog_.Handle(), kLiquid, BST_CHECKED);
    EXPECT_EQ(Checked(), "xx.");
    CheckRadioButton(dialog_.Handle(), kLiquid, kSolid, kMissing);
    EXPECT_EQ(Checked(), "...");
    EXPECT_EQ(IsDlgButtonChecked(dialog_.Handle(), kMissing), 0U);
    SetFocus(dialog_.Item(kVapor));
    EXPECT_EQ(dialog_.TakeLog(), Log{});
}

TEST_F(ButtonControl, TellsOfAClickWhenItsStateHasChanged) {
    std::string seen;
    dialog_.Forward([&](int, int) { seen += Checked() + " "; });
    for (const int id : {kVapor, kVapor, kSolid}) {
        SendMessageA(dialog_.Item(id), BM_CLICK, 0, 0);
        EXPECT_EQ(dialog_.TakeLog(), (Log{{id, BN_CLICKED}}));
        EXPECT_EQ(GetFocus(), dialog_.Item(id));
    }
    EXPECT_EQ(seen, ".x. .x. ..x ");
    for (const UINT checked : {1U, 0U}) {
        EXPECT_TRUE(win32::user::Click(dialog_.Item(kCheck)));
        EXPECT_EQ(IsDlgButtonChecked(dialog_.Handle(), kCheck), checked);
    }
    dialog_.TakeLog();
    EnableWindow(dialog_.Item(kNext), FALSE);
    EXPECT_FALSE(win32::user::Click(dialog_.Item(kNext)));
    EXPECT_EQ(dialog_.TakeLog(), Log{});
}

TEST_F(ButtonControl, IsReachedByKeys) {
    win32::user::Click(dialog_.Item(kLiquid));
    dialog_.TakeLog();
    win32::user::PressKey(dialog_.Handle(), VK_DOWN);
    EXPECT_EQ(dialog_.TakeLog(), (Log{{kVapor, BN_CLICKED}}));
    win32::user::PressKey(dialog_.Handle(), VK_UP);
    win32::user::PressKey(dialog_.Handle(), VK_UP);
    EXPECT_EQ(Checked(), "..x");  // round the group
    win32::user::PressTab(dialog_.Handle());
    EXPECT_EQ(GetFocus(), dialog_.Item(kNext));
    win32::user::PressTab(dialog_.Handle(), true);
    EXPECT_EQ(GetFocus(), dialog_.Item(kSolid)) << "Tab goes to the checked one";
    win32::user::PressTab(dialog_.Handle());
    dialog_.TakeLog();
    win32::user::PressKey(dialog_.Handle(), VK_SPACE);
    EXPECT_EQ(dialog_.TakeLog(), (Log{{kNext, BN_CLICKED}}));
}

}  // namespace
