#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/dialogs/TestDialog.h"

namespace {

using Log = std::vector<Notification>;

enum : int { kFirst = 101, kSecond, kLabel, kBox, kMissing = 999 };

win32::DialogBuilder Form() {
    win32::DialogBuilder form("Form", WS_POPUP | WS_CAPTION, {0, 0, 200, 100});
    form.Static(kLabel, "&Second", {5, 5, 60, 12}).Edit(kFirst, {5, 20, 60, 12});
    form.Edit(kSecond, {5, 35, 60, 12}).DefaultButton(kBox, "Run", {5, 50, 60, 14});
    form.Button(IDCANCEL, "Cancel", {70, 50, 60, 14});
    return form;
}

TEST(DialogWindow, IsCompleteButHiddenWhenItIsInitialized) {
    struct Seen {
        INT_PTR answer = FALSE;
        HWND first = nullptr;
        BOOL visible = TRUE;
    };
    const auto procedure = [](HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        if (message != WM_INITDIALOG) return FALSE;
        auto& seen = *reinterpret_cast<Seen*>(lParam);
        seen.first = reinterpret_cast<HWND>(wParam);
        seen.visible = IsWindowVisible(dialog);
        return seen.answer;
    };
    const win32::DialogBuilder form = Form();
    for (const INT_PTR answer : {FALSE, TRUE}) {
        SetFocus(nullptr);
        Seen seen{answer};
        const HWND dialog = CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, procedure,
                                                       reinterpret_cast<LPARAM>(&seen));
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(seen.first, GetDlgItem(dialog, kFirst));
        EXPECT_FALSE(seen.visible);
        EXPECT_EQ(GetFocus(), answer != FALSE ? GetDlgItem(dialog, kFirst) : nullptr);
        DestroyWindow(dialog);
    }
}

TEST(DialogWindow, PassesOverWhatItDoesNotHaveButNeedsATemplate) {
    TestDialog dialog(Form());
    const HWND handle = dialog.Handle();
    char text[8] = "rest";
    EXPECT_EQ(GetDlgItem(handle, kMissing), nullptr);
    EXPECT_FALSE(SetDlgItemTextA(handle, kMissing, "x"));
    EXPECT_EQ(SendDlgItemMessageA(handle, kMissing, LB_GETCURSEL, 0, 0), 0);
    EXPECT_EQ(GetDlgItemTextA(handle, kMissing, text, sizeof text), 0U);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(dialog.Send(kFirst, LB_GETCOUNT), 0) << "a message of another kind of control";
    SetLastError(0);
    EXPECT_EQ(SendMessageA(nullptr, WM_GETTEXT, 0, 0), 0);
    EXPECT_FALSE(SetWindowTextA(nullptr, "x"));
    EXPECT_EQ(GetLastError(), 1400U);
    EXPECT_EQ(dialog.TakeLog(), Log{});
    const HMODULE program = GetModuleHandleA(nullptr);
    EXPECT_EQ(CreateDialogParamA(program, MAKEINTRESOURCEA(321), nullptr, nullptr, 0), nullptr);
    EXPECT_THAT(GetLastError(), testing::AnyOf(1812U, 1813U, 1814U));
    EXPECT_EQ(DialogBoxParamA(program, MAKEINTRESOURCEA(321), nullptr, nullptr, 0), -1);
}

TEST(DialogWindow, MovesTheFocusWithAWordToBothSides) {
    TestDialog dialog(Form());
    SetFocus(dialog.Item(kFirst));
    dialog.TakeLog();
    EXPECT_EQ(SetFocus(dialog.Item(kSecond)), dialog.Item(kFirst));
    EXPECT_EQ(dialog.TakeLog(), (Log{{kFirst, EN_KILLFOCUS}, {kSecond, EN_SETFOCUS}}));
    SetFocus(dialog.Item(kSecond));
    EXPECT_EQ(dialog.TakeLog(), Log{});
    win32::user::PressTab(dialog.Handle(), true);
    EXPECT_EQ(dialog.TakeLog(), (Log{{kSecond, EN_KILLFOCUS}, {kFirst, EN_SETFOCUS}}));
    win32::user::PressTab(dialog.Handle());
    EXPECT_EQ(GetFocus(), dialog.Item(kSecond));
    dialog.TakeLog();
    EXPECT_FALSE(EnableWindow(dialog.Item(kSecond), FALSE));
    EXPECT_TRUE(EnableWindow(dialog.Item(kSecond), FALSE));
    EXPECT_EQ(dialog.TakeLog(), (Log{{kSecond, EN_KILLFOCUS}}));
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST(DialogWindow, TakesEnterAndEscapeForItsButtonsAndEndsWithItsControls) {
    TestDialog dialog(Form());
    const HWND edit = dialog.Item(kFirst);
    SetFocus(edit);
    dialog.TakeLog();
    win32::user::PressKey(dialog.Handle(), VK_RETURN);
    win32::user::PressKey(dialog.Handle(), VK_ESCAPE);
    EXPECT_TRUE(win32::user::Close(dialog.Handle()));
    EXPECT_EQ(dialog.TakeLog(),
              (Log{{kBox, BN_CLICKED}, {IDCANCEL, BN_CLICKED}, {IDCANCEL, BN_CLICKED}}));
    win32::user::PressTab(dialog.Handle(), true);
    EXPECT_EQ(GetFocus(), dialog.Item(IDCANCEL)) << "round the end";
    SetFocus(edit);
    dialog.TakeLog();
    EXPECT_TRUE(DestroyWindow(dialog.Handle())) << "only its procedure ends it";
    EXPECT_EQ(dialog.TakeLog(), (Log{{kFirst, EN_KILLFOCUS}}));
    EXPECT_FALSE(IsWindow(edit));
    EXPECT_EQ(SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_FALSE(PostMessageA(dialog.Handle(), WM_APP, 0, 0));
}

enum : int { kPageEdit = 201, kPageFirst, kPageSecond, kPageButton };

TEST(DialogWindow, LeadsThroughItsPages) {
    TestDialog dialog(Form());
    const HWND handle = dialog.Handle();
    SetFocus(dialog.Item(IDCANCEL));
    win32::DialogBuilder form("", WS_CHILD | DS_CONTROL, {70, 5, 100, 40}, WS_EX_CONTROLPARENT);
    form.Edit(kPageEdit, {0, 0, 60, 12});
    form.RadioButton(kPageFirst, "O&ne", {0, 14, 40, 10}, WS_GROUP | WS_TABSTOP);
    form.RadioButton(kPageSecond, "&Two", {45, 14, 40, 10});
    form.Button(kPageButton, "Go", {0, 26, 40, 12}, WS_GROUP);
    const auto procedure = [](HWND, UINT message, WPARAM, LPARAM) -> INT_PTR {
        return message == WM_INITDIALOG;
    };
    const HWND page = CreateDialogIndirectParamA(nullptr, form.Template(), handle, procedure, 0);
    EXPECT_EQ(GetFocus(), dialog.Item(IDCANCEL)) << "a page comes up hidden and takes no focus";
    ShowWindow(page, SW_SHOW);
    win32::user::PressTab(handle);
    EXPECT_EQ(GetFocus(), GetDlgItem(page, kPageEdit));
    win32::user::PressTab(handle);
    EXPECT_EQ(GetFocus(), GetDlgItem(page, kPageFirst));
    win32::user::PressKey(handle, VK_DOWN);
    EXPECT_EQ(GetFocus(), GetDlgItem(page, kPageSecond));
    EXPECT_EQ(IsDlgButtonChecked(page, kPageSecond), UINT{BST_CHECKED});
    win32::user::PressKey(handle, VK_DOWN);
    EXPECT_EQ(GetFocus(), GetDlgItem(page, kPageFirst)) << "the group ends on its page";

    EXPECT_EQ(GetNextDlgTabItem(handle, GetDlgItem(page, kPageButton), FALSE), dialog.Item(kFirst));
    EXPECT_EQ(GetNextDlgTabItem(handle, dialog.Item(kFirst), TRUE), GetDlgItem(page, kPageButton));
    ShowWindow(page, SW_HIDE);
    EXPECT_EQ(GetNextDlgTabItem(handle, dialog.Item(kFirst), TRUE), dialog.Item(IDCANCEL));
    ShowWindow(page, SW_SHOW);
    EnableWindow(page, FALSE);
    EXPECT_EQ(GetNextDlgTabItem(handle, dialog.Item(kFirst), TRUE), dialog.Item(IDCANCEL));
}

TEST(DialogWindow, KeepsToTheSizesItAllows) {
    static SIZE told;
    const auto procedure = [](HWND, UINT message, WPARAM, LPARAM lParam) -> INT_PTR {
        if (message == WM_SIZE) told = {LOWORD(lParam), HIWORD(lParam)};
        if (message != WM_GETMINMAXINFO) return FALSE;
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {300, 200};
        return TRUE;
    };
    const win32::DialogBuilder form("Form", WS_POPUP | WS_THICKFRAME, {0, 0, 300, 200});
    const HWND dialog = CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, procedure, 0);
    for (const SIZE wanted : {SIZE{100, 500}, SIZE{500, 100}, SIZE{400, 300}}) {
        MoveWindow(dialog, 0, 0, wanted.cx, wanted.cy, TRUE);
        RECT place{};
        RECT client{};
        GetWindowRect(dialog, &place);
        GetClientRect(dialog, &client);
        EXPECT_EQ(place.right - place.left, std::max<LONG>(wanted.cx, 300));
        EXPECT_EQ(place.bottom - place.top, std::max<LONG>(wanted.cy, 200));
        EXPECT_EQ(told.cx, client.right);
        EXPECT_EQ(told.cy, client.bottom);
    }
    DestroyWindow(dialog);
}

// Ends with its own message, which carries the owner on.
INT_PTR CALLBACK EndWhenPosted(HWND dialog, UINT message, WPARAM, LPARAM owner) {
    if (message == WM_INITDIALOG) PostMessageA(dialog, WM_APP, 0, owner);
    if (message == WM_APP) {
        EndDialog(dialog, IsWindowEnabled(reinterpret_cast<HWND>(owner)) != FALSE ? 1 : 77);
    }
    return message == WM_INITDIALOG || message == WM_APP;
}

TEST(DialogWindow, RunsModallyUntilItIsEnded) {
    TestDialog owner(Form());
    ShowWindow(owner.Handle(), SW_SHOW);
    SetFocus(owner.Item(kSecond));
    owner.TakeLog();
    const win32::DialogBuilder form = Form();
    EXPECT_EQ(DialogBoxIndirectParamA(nullptr, form.Template(), owner.Handle(), &EndWhenPosted,
                                      reinterpret_cast<LPARAM>(owner.Handle())),
              77)
        << "its owner is disabled until then";
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
    EXPECT_EQ(GetFocus(), owner.Item(kSecond));
    EXPECT_EQ(owner.TakeLog(), (Log{{kSecond, EN_KILLFOCUS}, {kSecond, EN_SETFOCUS}}));
}

}  // namespace
