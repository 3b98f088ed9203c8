#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/dialogs/TestDialog.h"

namespace {

using Log = std::vector<Notification>;

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
    std::string Rows(int id) {
        std::string rows;
        for (LRESULT i = 0; i < dialog_.Send(id, LB_GETCOUNT); ++i) {
            char text[64] = "";
            dialog_.Send(id, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            rows += std::string(text) + " ";
        }
        return rows;
    }

    TestDialog dialog_{Form()};
};

TEST_F(ListBoxControl, TellsOfWhatAUserPicks) {
    Add(kList, {"a", "b", "c", "d", "e", "f", "g", "h"});
    for (const int row : {7, 7, 0}) {
        EXPECT_TRUE(win32::user::PickRow(dialog_.Item(kList), row));
        EXPECT_THAT(dialog_.TakeLog(),
                    testing::Contains(Notification{kList, LBN_SELCHANGE}).Times(1));
        EXPECT_EQ(Send(LB_GETCURSEL), row);
    }
    win32::user::PressKey(dialog_.Handle(), VK_DOWN);
    EXPECT_EQ(dialog_.TakeLog(), (Log{{kList, LBN_SELCHANGE}}));
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_FALSE(win32::user::PickRow(dialog_.Item(kList), 8));
}

TEST_F(ListBoxControl, FindsRowsWithoutRegardToCase) {
    Add(kList, {"Water", "\xC4ther", "water vapor", "Ather", ""});
    const std::tuple<UINT, int, const char*, LRESULT> kCases[] = {
        {LB_FINDSTRINGEXACT, -1, "WATER", 0},
        {LB_FINDSTRINGEXACT, 0, "water", 0},  // round the end
        {LB_FINDSTRINGEXACT, -1, "\xE4ther", 1},
        {LB_FINDSTRINGEXACT, -1, "ather", 3},
        {LB_FINDSTRINGEXACT, -1, "wat", -1},
        {LB_FINDSTRINGEXACT, -1, "", -1},
        {LB_FINDSTRING, -1, "wat", 0},
        {LB_FINDSTRING, 0, "wat", 2},
        {LB_SELECTSTRING, -1, "WATER V", 2},
        {LB_SELECTSTRING, -1, "none", -1},
    };
    for (const auto& [message, after, text, row] : kCases) {
        EXPECT_EQ(Send(message, after, Address(text)), row) << text << " " << after;
    }
    EXPECT_EQ(Send(LB_GETCURSEL), 2);
    EXPECT_EQ(dialog_.TakeLog(), Log{});
}

TEST_F(ListBoxControl, IsFilledAndSelectedByAProgramWithoutAWord) {
    Add(kList, {"a", "b", "c"});
    EXPECT_EQ(Send(LB_GETCURSEL), -1);
    EXPECT_EQ(Send(LB_SETCURSEL, 1), 1);
    EXPECT_EQ(Send(LB_SETCURSEL, 3), -1);
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
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
    EXPECT_EQ(Rows(kList), "a c last ");

    EnableWindow(dialog_.Item(kList), FALSE);
    EXPECT_EQ(Send(LB_SETCURSEL, 2), 2);
    EXPECT_EQ(Send(LB_SETCURSEL, -1), -1);
    EXPECT_EQ(Send(LB_GETCURSEL), -1);
    char text[16] = "untouched";
    EXPECT_EQ(Send(LB_GETTEXT, 3, reinterpret_cast<LPARAM>(text)), -1);
    EXPECT_STREQ(text, "untouched");
    EXPECT_EQ(Send(LB_GETITEMDATA, 3), -1);
    EXPECT_EQ(Send(LB_DELETESTRING, 3), -1);
    EXPECT_EQ(dialog_.TakeLog(), Log{});
}

TEST_F(ListBoxControl, SortsByLanguage) {
    Add(kSorted, {"b", "9", "10", "_x", "\xC4pfel", "apfel", "az", "a-b", "C"});
    dialog_.Send(kSorted, LB_INSERTSTRING, 0, Address("zz"));
    EXPECT_EQ(Rows(kSorted), "zz _x 10 9 a-b apfel \xC4pfel az b C ") << "an inserted row stays";
}

}  // namespace
