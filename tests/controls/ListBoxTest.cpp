#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/dialogs/TestDialog.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kList = 101;
constexpr int kSorted = 102;

LPARAM Address(const char* text) { return reinterpret_cast<LPARAM>(text); }

class ListBoxControl : public testing::Test {
  protected:
    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Lists", WS_POPUP | WS_CAPTION, {0, 0, 200, 100});
        form.ListBox(kList, {5, 5, 60, 40}).ListBox(kSorted, {70, 5, 60, 40}, LBS_SORT);
        return form;
    }

    void Add(int id, std::initializer_list<const char*> rows) {
        for (const char* row : rows) dialog_.Send(id, LB_ADDSTRING, 0, Address(row));
    }
    LRESULT Send(UINT message, int row = 0, LPARAM lParam = 0) {
        return dialog_.Send(kList, message, static_cast<WPARAM>(row), lParam);
    }
    std::vector<std::string> Rows(int id) {
        std::vector<std::string> rows;
        for (LRESULT i = 0; i < dialog_.Send(id, LB_GETCOUNT); ++i) {
            char text[64] = "";
            dialog_.Send(id, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            rows.emplace_back(text);
        }
        return rows;
    }

    TestDialog dialog_{Form()};
};

TEST_F(ListBoxControl, IsSelectedByAProgramWithoutAWord) {
    Add(kList, {"a", "b", "c"});
    EXPECT_EQ(Send(LB_GETCURSEL), -1);
    EXPECT_EQ(Send(LB_SETCURSEL, 1), 1);
    EXPECT_EQ(Send(LB_SETCURSEL, 3), -1);
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_EQ(Send(LB_SETCURSEL, -1), -1);
    EXPECT_EQ(Send(LB_GETCURSEL), -1);
    EnableWindow(dialog_.Item(kList), FALSE);
    EXPECT_EQ(Send(LB_SETCURSEL, 2), 2);
    EXPECT_THAT(dialog_.TakeLog(), IsEmpty());
}

TEST_F(ListBoxControl, TellsOfWhatAUserPicks) {
    Add(kList, {"a", "b", "c", "d", "e", "f", "g", "h"});
    for (const int row : {7, 7, 0}) {
        EXPECT_TRUE(win32::user::PickRow(dialog_.Item(kList), row));
        EXPECT_THAT(dialog_.TakeLog(), Contains(Notification{kList, LBN_SELCHANGE}).Times(1));
        EXPECT_EQ(Send(LB_GETCURSEL), row);
    }
    win32::user::PressKey(dialog_.Handle(), VK_DOWN);
    EXPECT_THAT(dialog_.TakeLog(), ElementsAre(Notification{kList, LBN_SELCHANGE}));
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_FALSE(win32::user::PickRow(dialog_.Item(kList), 8));
}

TEST_F(ListBoxControl, FindsRowsWithoutRegardToCase) {
    Add(kList, {"Water", "\xC4ther", "water vapor", "Ather", ""});
    struct Case {
        UINT message;
        int after;
        const char* text;
        LRESULT row;
    };
    for (const Case& c : {
             Case{LB_FINDSTRINGEXACT, -1, "WATER", 0},
             Case{LB_FINDSTRINGEXACT, 0, "water", 0},  // round the end
             Case{LB_FINDSTRINGEXACT, -1, "\xE4ther", 1},
             Case{LB_FINDSTRINGEXACT, -1, "ather", 3},
             Case{LB_FINDSTRINGEXACT, -1, "wat", -1},
             Case{LB_FINDSTRINGEXACT, -1, "", -1},
             Case{LB_FINDSTRING, -1, "wat", 0},
             Case{LB_FINDSTRING, 0, "wat", 2},
             Case{LB_FINDSTRING, -1, "steam", -1},
         }) {
        EXPECT_EQ(Send(c.message, c.after, Address(c.text)), c.row) << c.text << " " << c.after;
    }
    EXPECT_EQ(Send(LB_SELECTSTRING, -1, Address("WATER V")), 2);
    EXPECT_EQ(Send(LB_SELECTSTRING, -1, Address("none")), -1);
    EXPECT_EQ(Send(LB_GETCURSEL), 2);
    EXPECT_THAT(dialog_.TakeLog(), IsEmpty());
}

TEST_F(ListBoxControl, KeepsSelectionAndDataWithTheirRow) {
    Add(kList, {"a", "b", "c"});
    Send(LB_SETCURSEL, 1);
    EXPECT_EQ(Send(LB_GETITEMDATA, 1), 0);
    Send(LB_SETITEMDATA, 1, 42);
    EXPECT_EQ(Send(LB_INSERTSTRING, 0, Address("first")), 0);
    EXPECT_EQ(Send(LB_INSERTSTRING, -1, Address("last")), 4);
    EXPECT_EQ(Send(LB_INSERTSTRING, 9, Address("none")), -1);
    EXPECT_EQ(Send(LB_GETCURSEL), 2);
    EXPECT_EQ(Send(LB_GETITEMDATA, 2), 42);
    EXPECT_EQ(Send(LB_DELETESTRING, 0), 4);
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_EQ(Send(LB_DELETESTRING, 1), 3);
    EXPECT_EQ(Send(LB_GETCURSEL), -1);
    EXPECT_THAT(Rows(kList), ElementsAre("a", "c", "last"));
    EXPECT_THAT(dialog_.TakeLog(), IsEmpty());
}

TEST_F(ListBoxControl, RefusesRowsThatItDoesNotHave) {
    char text[16] = "untouched";
    EXPECT_EQ(Send(LB_GETTEXT, 0, reinterpret_cast<LPARAM>(text)), -1);
    EXPECT_STREQ(text, "untouched");
    EXPECT_EQ(Send(LB_GETITEMDATA, 3), -1);
    EXPECT_EQ(Send(LB_DELETESTRING, 0), -1);
    EXPECT_EQ(Send(LB_RESETCONTENT), 0);
}

TEST_F(ListBoxControl, SortsByLanguage) {
    Add(kSorted, {"b", "9", "10", "_x", "\xC4pfel", "apfel", "az", "a-b", "C"});
    EXPECT_THAT(Rows(kSorted),
                ElementsAre("_x", "10", "9", "a-b", "apfel", "\xC4pfel", "az", "b", "C"));
    dialog_.Send(kSorted, LB_INSERTSTRING, 0, Address("zz"));
    EXPECT_EQ(Rows(kSorted).front(), "zz");
}

}  // namespace
