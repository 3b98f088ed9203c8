#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/dialogs/TestDialog.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kList = 101;
constexpr int kTyped = 102;
constexpr int kOther = 103;

LPARAM Address(const char* text) { return reinterpret_cast<LPARAM>(text); }

class ComboBoxControl : public testing::Test {
  protected:
    ComboBoxControl() {
        for (const int id : {kList, kTyped}) {
            for (const char* row : {"10", "2", "25", "Water"}) {
                dialog_.Send(id, CB_ADDSTRING, 0, Address(row));
            }
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

    TestDialog dialog_{Form()};
};

TEST_F(ComboBoxControl, IsSetByAProgramWithoutAWord) {
    for (const int id : {kList, kTyped}) {
        EXPECT_EQ(dialog_.Send(id, CB_SETCURSEL, 1), 1);
        EXPECT_EQ(dialog_.Text(id), "2");
        EXPECT_EQ(dialog_.Send(id, CB_SETCURSEL, 9), -1);
        EXPECT_EQ(dialog_.Send(id, CB_GETCURSEL), 1);
        EXPECT_EQ(dialog_.Send(id, CB_SETCURSEL, static_cast<WPARAM>(-1)), -1);
        EXPECT_EQ(dialog_.Text(id), "");
        // A prefix counts for one message, the whole row for the other.
        EXPECT_EQ(dialog_.Send(id, CB_SELECTSTRING, static_cast<WPARAM>(-1), Address("wa")), 3);
        EXPECT_EQ(dialog_.Text(id), "Water");
        EXPECT_EQ(dialog_.Send(id, CB_SELECTSTRING, static_cast<WPARAM>(-1), Address("x")), -1);
        EXPECT_EQ(dialog_.Send(id, CB_GETCURSEL), 3);
        EXPECT_EQ(dialog_.Send(id, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), Address("wat")),
                  -1);
        EXPECT_EQ(dialog_.Send(id, CB_FINDSTRING, static_cast<WPARAM>(-1), Address("2")), 1);
        EXPECT_EQ(dialog_.Send(id, CB_DELETESTRING, 0), 3);
        EXPECT_EQ(dialog_.Send(id, CB_GETCURSEL), 2);
        EXPECT_EQ(dialog_.Send(id, CB_RESETCONTENT), 1);
        EXPECT_EQ(dialog_.Text(id), "");
        EXPECT_EQ(dialog_.Send(id, CB_GETCOUNT), 0);
    }
    EXPECT_THAT(dialog_.TakeLog(), IsEmpty());
}

TEST_F(ComboBoxControl, TakesATextOnlyIntoAnEdit) {
    dialog_.Send(kList, CB_SETCURSEL, 0);
    dialog_.Send(kTyped, CB_SETCURSEL, 0);
    EXPECT_EQ(dialog_.Send(kList, WM_SETTEXT, 0, Address("any")), -1);
    EXPECT_EQ(dialog_.Text(kList), "10");
    EXPECT_EQ(dialog_.Send(kTyped, WM_SETTEXT, 0, Address("any")), 1);
    EXPECT_EQ(dialog_.Text(kTyped), "any");
    EXPECT_EQ(dialog_.Send(kTyped, CB_GETCURSEL), 0);
    EXPECT_THAT(dialog_.TakeLog(), IsEmpty());
}

TEST_F(ComboBoxControl, TellsOfTypingPickingAndLeaving) {
    dialog_.Send(kTyped, CB_SETCURSEL, 1);
    win32::user::TypeOver(dialog_.Item(kTyped), "7");
    EXPECT_THAT(dialog_.TakeLog(), ElementsAre(Notification{kTyped, CBN_SETFOCUS},
                                               Notification{kTyped, CBN_EDITUPDATE},
                                               Notification{kTyped, CBN_EDITCHANGE}));
    EXPECT_EQ(dialog_.Send(kTyped, CB_GETCURSEL), -1);
    EXPECT_EQ(dialog_.Text(kTyped), "7");

    EXPECT_TRUE(win32::user::PickRow(dialog_.Item(kTyped), 2));
    EXPECT_THAT(
        dialog_.TakeLog(),
        ElementsAre(Notification{kTyped, CBN_DROPDOWN}, Notification{kTyped, CBN_SELENDOK},
                    Notification{kTyped, CBN_CLOSEUP}, Notification{kTyped, CBN_SELCHANGE}));
    EXPECT_EQ(dialog_.Text(kTyped), "25");

    SetFocus(dialog_.Item(kOther));
    EXPECT_THAT(dialog_.TakeLog(), ElementsAre(Notification{kTyped, CBN_SELENDCANCEL},
                                               Notification{kTyped, CBN_KILLFOCUS}));
}

TEST_F(ComboBoxControl, ShowsTheNewRowToAHostThatHearsOfAnArrowKey) {
    for (const int id : {kList, kTyped}) {
        dialog_.Send(id, CB_SETCURSEL, 0);
        SetFocus(dialog_.Item(id));
        dialog_.TakeLog();
        LRESULT row = -1;
        std::string text;
        dialog_.Forward([&](int, int code) {
            if (code != CBN_SELCHANGE) return;
            row = dialog_.Send(id, CB_GETCURSEL);
            text = dialog_.Text(id);
        });
        win32::user::PressKey(dialog_.Handle(), VK_DOWN);
        EXPECT_THAT(dialog_.TakeLog(),
                    ElementsAre(Notification{id, CBN_SELENDOK}, Notification{id, CBN_SELCHANGE}));
        EXPECT_EQ(row, 1);
        EXPECT_EQ(text, id == kList ? "2" : "10");  // an edit follows afterwards
        EXPECT_EQ(dialog_.Text(id), "2");
        dialog_.Forward({});
    }
}

}  // namespace
