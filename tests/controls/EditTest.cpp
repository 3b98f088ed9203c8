#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "tests/dialogs/TestDialog.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kEdit = 101;
constexpr int kOther = 102;
constexpr int kLines = 103;
constexpr int kDigits = 104;

class EditControl : public testing::Test {
  protected:
    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Edits", WS_POPUP | WS_CAPTION, {0, 0, 200, 100});
        form.Edit(kEdit, {5, 5, 60, 12}).Edit(kOther, {5, 20, 60, 12});
        form.Edit(kLines, {5, 35, 60, 30}, ES_MULTILINE | ES_WANTRETURN);
        form.Edit(kDigits, {5, 70, 60, 12}, ES_NUMBER);
        return form;
    }

    std::vector<Notification> Changed(int id) { return {{id, EN_UPDATE}, {id, EN_CHANGE}}; }

    TestDialog dialog_{Form()};
};

TEST_F(EditControl, TellsOfEveryTextSetByAProgramExceptInManyLines) {
    const HWND edit = dialog_.Item(kEdit);
    for (const char* text : {"7", "7", "", "", static_cast<const char*>(nullptr)}) {
        SetDlgItemTextA(dialog_.Handle(), kEdit, text);
        EXPECT_EQ(dialog_.TakeLog(), Changed(kEdit));
        EXPECT_EQ(dialog_.Text(kEdit), text == nullptr ? "" : text);
    }
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    EnableWindow(edit, FALSE);
    ShowWindow(edit, SW_HIDE);
    dialog_.TakeLog();
    EXPECT_TRUE(SetWindowTextA(edit, "still"));
    EXPECT_EQ(dialog_.TakeLog(), Changed(kEdit));

    SetDlgItemTextA(dialog_.Handle(), kLines, "a\r\nb");
    EXPECT_THAT(dialog_.TakeLog(), IsEmpty());
    dialog_.Send(kLines, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("c"));
    EXPECT_EQ(dialog_.TakeLog(), Changed(kLines));
}

TEST_F(EditControl, HasItsNewTextWhenItTellsAndMayBeSetAgainFromThere) {
    std::string seen;
    dialog_.Forward([&](int id, int code) {
        if (id != kEdit || code != EN_CHANGE) return;
        seen += dialog_.Text(kEdit) + ";";
        if (seen == "first;") SetDlgItemTextA(dialog_.Handle(), kEdit, "second");
    });
    SetDlgItemTextA(dialog_.Handle(), kEdit, "first");
    EXPECT_EQ(seen, "first;second;");
    EXPECT_EQ(dialog_.Text(kEdit), "second");
}

TEST_F(EditControl, LimitsWhatIsTypedAndNotWhatIsSet) {
    SetDlgItemTextA(dialog_.Handle(), kEdit, "12345");
    dialog_.Send(kEdit, EM_SETLIMITTEXT, 3);
    EXPECT_EQ(dialog_.Text(kEdit), "12345");
    SetDlgItemTextA(dialog_.Handle(), kEdit, "abcdef");
    EXPECT_EQ(dialog_.Text(kEdit), "abcdef");
    SetDlgItemTextA(dialog_.Handle(), kEdit, "");
    win32::user::Type(dialog_.Item(kEdit), "xyz");
    dialog_.TakeLog();
    win32::user::Type(dialog_.Item(kEdit), "!");
    EXPECT_EQ(dialog_.Text(kEdit), "xyz");
    EXPECT_EQ(dialog_.TakeLog().at(0), (Notification{kEdit, EN_MAXTEXT}));

    SetDlgItemTextA(dialog_.Handle(), kEdit, "");
    dialog_.TakeLog();
    dialog_.Send(kEdit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("123456"));
    EXPECT_EQ(dialog_.Text(kEdit), "123");
    EXPECT_THAT(dialog_.TakeLog(),
                ElementsAre(Notification{kEdit, EN_MAXTEXT}, Notification{kEdit, EN_UPDATE},
                            Notification{kEdit, EN_CHANGE}));
}

TEST_F(EditControl, GivesAtMostWhatFitsTheBuffer) {
    SetDlgItemTextA(dialog_.Handle(), kEdit, "abcdef");
    struct Case {
        int size;
        UINT length;
        const char* text;
    };
    for (const Case& c :
         {Case{0, 0, "??"}, Case{1, 0, ""}, Case{4, 3, "abc"}, Case{7, 6, "abcdef"}}) {
        char text[16] = "??";
        EXPECT_EQ(GetDlgItemTextA(dialog_.Handle(), kEdit, text, c.size), c.length) << c.size;
        EXPECT_STREQ(text, c.text) << c.size;
    }
}

TEST_F(EditControl, ReadsWholeNumbers) {
    struct Case {
        const char* text;
        UINT value;
        BOOL good;
    };
    for (const Case& c :
         {Case{"12abc", 12, TRUE}, Case{"  9", 9, TRUE}, Case{"+5", 5, TRUE}, Case{"", 0, FALSE},
          Case{"99999999999999", 0, FALSE}, Case{"-7", static_cast<UINT>(-7), TRUE}}) {
        SetDlgItemTextA(dialog_.Handle(), kEdit, c.text);
        BOOL good = 2;
        EXPECT_EQ(GetDlgItemInt(dialog_.Handle(), kEdit, &good, TRUE), c.value) << c.text;
        EXPECT_EQ(good, c.good) << c.text;
    }
    SetDlgItemInt(dialog_.Handle(), kEdit, static_cast<UINT>(INT_MIN), TRUE);
    EXPECT_EQ(dialog_.Text(kEdit), "-2147483648");
}

TEST_F(EditControl, IsTypedIntoAtTheCaret) {
    const HWND edit = dialog_.Item(kEdit);
    SetWindowTextA(edit, "bd");
    SendMessageA(edit, EM_SETSEL, 1, 1);
    win32::user::Type(edit, "c");
    EXPECT_EQ(dialog_.Text(kEdit), "bcd");
    SendMessageA(edit, EM_SETSEL, 0, 2);
    DWORD first = 9;
    DWORD last = 9;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                 reinterpret_cast<LPARAM>(&last));
    EXPECT_EQ(first, 0U);
    EXPECT_EQ(last, 2U);
    win32::user::Type(edit, "a");
    EXPECT_EQ(dialog_.Text(kEdit), "ad");
    win32::user::Type(edit, "\b\b");
    EXPECT_EQ(dialog_.Text(kEdit), "d");
    win32::user::TypeOver(edit, "new");
    EXPECT_EQ(dialog_.Text(kEdit), "new");
    EXPECT_NE(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
    SetWindowTextA(edit, "set");
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);

    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    win32::user::Type(edit, "x");
    EXPECT_EQ(dialog_.Text(kEdit), "set");
    win32::user::Type(dialog_.Item(kDigits), "1a2");
    EXPECT_EQ(dialog_.Text(kDigits), "12");
    SetDlgItemTextA(dialog_.Handle(), kDigits, "any");
    EXPECT_EQ(dialog_.Text(kDigits), "any");
    EnableWindow(dialog_.Item(kOther), FALSE);
    EXPECT_FALSE(win32::user::Type(dialog_.Item(kOther), "x"));
}

TEST_F(EditControl, MovesItsCaretByKeys) {
    const HWND edit = dialog_.Item(kEdit);
    SetWindowTextA(edit, "abc");
    SetFocus(edit);
    for (const int key : {VK_END, VK_LEFT, VK_DELETE, VK_HOME}) {
        win32::user::PressKey(dialog_.Handle(), key);
    }
    win32::user::Type(edit, "_");
    EXPECT_EQ(dialog_.Text(kEdit), "_ab");
}

}  // namespace
