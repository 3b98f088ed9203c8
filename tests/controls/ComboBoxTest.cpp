#include <gtest/gtest.h>

#include "tests/dialogs/TestDialog.h"

namespace {

using Log = std::vector<Notification>;

enum : int { kList = 101, kTyped, kOther };

class ComboBoxControl : public testing::Test {
  protected:
    ComboBoxControl() {
        for (const int id : {kList, kTyped}) {
            for (const char* row : {"10", "2", "25", "Water"}) Send(id, CB_ADDSTRING, 0, row);
        }
        SetFocus(dialog_.Item(kOther));
        dialog_.TakeLog();
    }

    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Combos", WS_POPUP | WS_CAPTION, {0, 0, 200, 100});
        form.ComboBox(kList, {5, 5, 60, 80});
        form.ComboBox(kTyped, {70, 5, 60, 80}, CBS_DROPDOWN | CBS_AUTOHSCROLL);
        form.Button(kOther, "other", {5, 70, 40, 14});
        return form;
    }

    LRESULT Send(int id, UINT message, int row = 0, const char* text = nullptr) {
        return dialog_.Send(id, message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
    }

    TestDialog dialog_{Form()};
};

TEST_F(ComboBoxControl, IsSetByAProgramWithoutAWord) {
    for (const int id : {kList, kTyped}) {
        EXPECT_EQ(Send(id, CB_SETCURSEL, 1), 1);
        EXPECT_EQ(dialog_.Text(id), "2");
        EXPECT_EQ(Send(id, CB_SETCURSEL, 9), -1);
        EXPECT_EQ(Send(id, WM_SETTEXT, 0, "any"), id == kList ? -1 : 1);
        EXPECT_EQ(dialog_.Text(id), id == kList ? "2" : "any") << "for an edit only";
        EXPECT_EQ(Send(id, CB_GETCURSEL), 1);
        EXPECT_EQ(Send(id, CB_SETCURSEL, -1), -1);
        EXPECT_EQ(dialog_.Text(id), "");
        // A prefix counts for one message, the whole row for the other.
        EXPECT_EQ(Send(id, CB_SELECTSTRING, -1, "wa"), 3);
        EXPECT_EQ(dialog_.Text(id), "Water");
        EXPECT_EQ(Send(id, CB_FINDSTRINGEXACT, -1, "wat"), -1);
        EXPECT_EQ(Send(id, CB_FINDSTRING, -1, "2"), 1);
        EXPECT_EQ(Send(id, CB_DELETESTRING, 0), 3);
        EXPECT_EQ(Send(id, CB_GETCURSEL), 2);
        EXPECT_EQ(Send(id, CB_RESETCONTENT), 1);
        EXPECT_EQ(dialog_.Text(id), "");
    }
    EXPECT_EQ(dialog_.TakeLog(), Log{});
}

TEST_F(ComboBoxControl, TellsOfTypingPickingAndLeaving) {
    Send(kTyped, CB_SETCURSEL, 1);
    win32::user::TypeOver(dialog_.Item(kTyped), "7");
    EXPECT_EQ(dialog_.TakeLog(),
              (Log{{kTyped, CBN_SETFOCUS}, {kTyped, CBN_EDITUPDATE}, {kTyped, CBN_EDITCHANGE}}));
    EXPECT_EQ(Send(kTyped, CB_GETCURSEL), -1);
    EXPECT_EQ(dialog_.Text(kTyped), "7");

    EXPECT_TRUE(win32::user::PickRow(dialog_.Item(kTyped), 2));
    EXPECT_EQ(dialog_.TakeLog(), (Log{{kTyped, CBN_DROPDOWN},
                                      {kTyped, CBN_SELENDOK},
                                      {kTyped, CBN_CLOSEUP},
                                      {kTyped, CBN_SELCHANGE}}));
    EXPECT_EQ(dialog_.Text(kTyped), "25");

    SetFocus(dialog_.Item(kOther));
    EXPECT_EQ(dialog_.TakeLog(), (Log{{kTyped, CBN_SELENDCANCEL}, {kTyped, CBN_KILLFOCUS}}));
}

TEST_F(ComboBoxControl, ShowsTheNewRowToAHostThatHearsOfAnArrowKey) {
    for (const int id : {kList, kTyped}) {
        Send(id, CB_SETCURSEL, 0);
        SetFocus(dialog_.Item(id));
        dialog_.TakeLog();
        LRESULT row = -1;
        std::string text;
        dialog_.Forward([&](int, int code) {
            if (code != CBN_SELCHANGE) return;
            row = Send(id, CB_GETCURSEL);
            text = dialog_.Text(id);
        });
        win32::user::PressKey(dialog_.Handle(), VK_DOWN);
        EXPECT_EQ(dialog_.TakeLog(), (Log{{id, CBN_SELENDOK}, {id, CBN_SELCHANGE}}));
        EXPECT_EQ(row, 1);
        EXPECT_EQ(text, id == kList ? "2" : "10");  // an edit follows afterwards
        EXPECT_EQ(dialog_.Text(id), "2");
        dialog_.Forward({});
    }
}

}  // namespace
