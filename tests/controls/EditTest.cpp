#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>

#include "tests/dialogs/TestDialog.h"

namespace {

using Log = std::vector<Notification>;

enum : int { kEdit = 101, kOther, kLines, kDigits };

class EditControl : public testing::Test {
  protected:
    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Edits", WS_POPUP | WS_CAPTION, {0, 0, 200, 100});
        form.Edit(kEdit, {5, 5, 60, 12}).Edit(kOther, {5, 20, 60, 12});
        form.Edit(kLines, {5, 35, 60, 30}, ES_MULTILINE | ES_WANTRETURN);
        form.Edit(kDigits, {5, 70, 60, 12}, ES_NUMBER);
        return form;
    }

    void Set(const char* text) const { SetDlgItemTextA(dialog_.Handle(), kEdit, text); }
    std::string Text() const { return dialog_.Text(kEdit); }
    void Replace(int id, const char* text) const {
        dialog_.Send(id, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    }

    const Log kChanged{{kEdit, EN_UPDATE}, {kEdit, EN_CHANGE}};
    TestDialog dialog_{Form()};
    const HWND edit_ = dialog_.Item(kEdit);
};

TEST_F(EditControl, TellsOfEveryTextSetByAProgramExceptInManyLines) {
    for (const char* text : {"7", "7", "", "", static_cast<const char*>(nullptr)}) {
        Set(text);
        EXPECT_EQ(dialog_.TakeLog(), kChanged);
        EXPECT_EQ(Text(), text == nullptr ? "" : text);
    }
    SendMessageA(edit_, EM_SETREADONLY, TRUE, 0);
    EnableWindow(edit_, FALSE);
    ShowWindow(edit_, SW_HIDE);
    dialog_.TakeLog();
    EXPECT_TRUE(SetWindowTextA(edit_, "still"));
    EXPECT_EQ(dialog_.TakeLog(), kChanged);

    SetDlgItemTextA(dialog_.Handle(), kLines, "a\r\nb");
    EXPECT_EQ(dialog_.TakeLog(), Log{});
    Replace(kLines, "c");
    EXPECT_EQ(dialog_.TakeLog(), (Log{{kLines, EN_UPDATE}, {kLines, EN_CHANGE}}));
}

TEST_F(EditControl, HasItsNewTextWhenItTellsAndMayBeSetAgainFromThere) {
    std::string seen;
    dialog_.Forward([&](int, int code) {
        if (code != EN_CHANGE) return;
        seen += Text() + ";";
        if (seen == "first;") Set("second");
    });
    Set("first");
    EXPECT_EQ(seen, "first;second;");
    EXPECT_EQ(Text(), "second");
}

TEST_F(EditControl, LimitsWhatIsTypedAndNotWhatIsSet) {
    dialog_.Send(kEdit, EM_SETLIMITTEXT, 3);
    Set("abcdef");
    EXPECT_EQ(Text(), "abcdef");
    Set("");
    win32::user::Type(edit_, "xyz");
    dialog_.TakeLog();
    win32::user::Type(edit_, "!");
    EXPECT_EQ(Text(), "xyz");
    EXPECT_EQ(dialog_.TakeLog().at(0), (Notification{kEdit, EN_MAXTEXT}));

    Set("");
    dialog_.TakeLog();
    Replace(kEdit, "123456");
    EXPECT_EQ(Text(), "123");
    EXPECT_EQ(dialog_.TakeLog(),
              (Log{{kEdit, EN_MAXTEXT}, {kEdit, EN_UPDATE}, {kEdit, EN_CHANGE}}));
}

TEST_F(EditControl, GivesAtMostWhatFitsTheBuffer) {
    Set("abcdef");
    for (const auto& [size, fitting] : {std::pair{0, "??"}, {1, ""}, {4, "abc"}, {7, "abcdef"}}) {
        char text[16] = "??";
        const UINT length = GetDlgItemTextA(dialog_.Handle(), kEdit, text, size);
        EXPECT_EQ(length, size == 0 ? 0 : std::strlen(fitting));
        EXPECT_STREQ(text, fitting);
    }
}

TEST_F(EditControl, ReadsWholeNumbers) {
    const std::tuple<const char*, int, BOOL> kCases[] = {
        {"12abc", 12, TRUE}, {"  9", 9, TRUE}, {"99999999999999", 0, FALSE},
        {"+5", 5, TRUE},     {"-7", -7, TRUE}, {"", 0, FALSE}};
    for (const auto& [text, value, isNumber] : kCases) {
        Set(text);
        BOOL good = 2;
        EXPECT_EQ(GetDlgItemInt(dialog_.Handle(), kEdit, &good, TRUE), static_cast<UINT>(value));
        EXPECT_EQ(good, isNumber) << text;
    }
}

TEST_F(EditControl, IsTypedIntoAtTheCaret) {
    Set("bd");
    SendMessageA(edit_, EM_SETSEL, 1, 1);
    win32::user::Type(edit_, "c");
    EXPECT_EQ(Text(), "bcd");
    SendMessageA(edit_, EM_SETSEL, 0, 2);
    win32::user::Type(edit_, "a");
    EXPECT_EQ(Text(), "ad");
    win32::user::Type(edit_, "\b\b");
    EXPECT_EQ(Text(), "d");
    win32::user::TypeOver(edit_, "abc");
    EXPECT_EQ(Text(), "abc");
    for (const int key : {VK_END, VK_LEFT, VK_DELETE, VK_HOME}) {
        win32::user::PressKey(dialog_.Handle(), key);
    }
    win32::user::Type(edit_, "_");
    EXPECT_EQ(Text(), "_ab");
}

TEST_F(EditControl, TakesFromAUserOnlyWhatItsStyleAllows) {
    SendMessageA(edit_, EM_SETREADONLY, TRUE, 0);
    win32::user::Type(edit_, "x");
    EXPECT_EQ(Text(), "");
    win32::user::Type(dialog_.Item(kDigits), "1a2");
    EXPECT_EQ(dialog_.Text(kDigits), "12");
    EnableWindow(dialog_.Item(kOther), FALSE);
    EXPECT_FALSE(win32::user::Type(dialog_.Item(kOther), "x"));
}

}  // namespace
