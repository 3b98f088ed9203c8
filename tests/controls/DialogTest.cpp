#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/dialogs/TestDialog.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
        HWND first = nullptr;
        BOOL visible = TRUE;
        LPARAM parameter = 0;
        INT_PTR answer = FALSE;
        HWND focus = nullptr;
    };
    static Seen seen;
    const auto procedure = [](HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        if (message != WM_INITDIALOG) return FALSE;
        seen.first = reinterpret_cast<HWND>(wParam);
        seen.visible = IsWindowVisible(dialog);
        seen.parameter = lParam;
        return seen.answer;
    };
    const win32::DialogBuilder form = Form();
    for (const INT_PTR answer : {FALSE, TRUE}) {
        SetFocus(nullptr);
        seen = {};
        seen.answer = answer;
        const HWND dialog =
            CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, procedure, 7);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(seen.first, GetDlgItem(dialog, kFirst));
        EXPECT_FALSE(seen.visible);
        EXPECT_EQ(seen.parameter, 7);
        EXPECT_EQ(GetFocus(), answer != FALSE ? GetDlgItem(dialog, kFirst) : nullptr);
        DestroyWindow(dialog);
    }
}

TEST(DialogWindow, PassesOverWhatItDoesNotHave) {
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
    EXPECT_THAT(dialog.TakeLog(), IsEmpty());
}

TEST(DialogWindow, NeedsATemplate) {
    SetLastError(0);
    EXPECT_EQ(
        CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(321), nullptr, nullptr, 0),
        nullptr);
    EXPECT_THAT(GetLastError(), testing::AnyOf(1812U, 1813U, 1814U));
    EXPECT_EQ(
        DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(321), nullptr, nullptr, 0), -1);
}

TEST(DialogWindow, IsDrivenByKeys) {
    TestDialog dialog(Form());
    SetFocus(dialog.Item(kFirst));
    dialog.TakeLog();
    win32::user::PressTab(dialog.Handle());
    EXPECT_THAT(dialog.TakeLog(), ElementsAre(Notification{kFirst, EN_KILLFOCUS},
                                              Notification{kSecond, EN_SETFOCUS}));
    win32::user::PressTab(dialog.Handle(), true);
    EXPECT_EQ(GetFocus(), dialog.Item(kFirst));
    dialog.TakeLog();
    win32::user::PressKey(dialog.Handle(), VK_RETURN);
    win32::user::PressKey(dialog.Handle(), VK_ESCAPE);
    EXPECT_TRUE(win32::user::Close(dialog.Handle()));
    EXPECT_THAT(dialog.TakeLog(),
                ElementsAre(Notification{kBox, BN_CLICKED}, Notification{IDCANCEL, BN_CLICKED},
                            Notification{IDCANCEL, BN_CLICKED}));
    EXPECT_TRUE(IsWindow(dialog.Handle())) << "only its procedure ends it";
    win32::user::PressTab(dialog.Handle(), true);
    EXPECT_EQ(GetFocus(), dialog.Item(IDCANCEL)) << "round the end";
}

TEST(DialogWindow, MovesTheFocusWithAWordToBothSides) {
    TestDialog dialog(Form());
    SetFocus(dialog.Item(kFirst));
    dialog.TakeLog();
    EXPECT_EQ(SetFocus(dialog.Item(kSecond)), dialog.Item(kFirst));
    EXPECT_THAT(dialog.TakeLog(), ElementsAre(Notification{kFirst, EN_KILLFOCUS},
                                              Notification{kSecond, EN_SETFOCUS}));
    SetFocus(dialog.Item(kSecond));
    EXPECT_THAT(dialog.TakeLog(), IsEmpty());
    EXPECT_FALSE(EnableWindow(dialog.Item(kSecond), FALSE));
    EXPECT_TRUE(EnableWindow(dialog.Item(kSecond), FALSE));
    EXPECT_THAT(dialog.TakeLog(), ElementsAre(Notification{kSecond, EN_KILLFOCUS}));
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_TRUE(EnableWindow(dialog.Item(kSecond), TRUE));
}

// A page that stands in a dialog, with a radio group between two edits.
enum : int { kPageEdit = 201, kPageFirst, kPageSecond, kPageButton };

HWND MakePage(HWND dialog, HWND control) {
    win32::DialogBuilder form("", WS_CHILD | DS_CONTROL, {70, 5, 100, 40}, WS_EX_CONTROLPARENT);
    form.Edit(kPageEdit, {0, 0, 60, 12});
    form.RadioButton(kPageFirst, "O&ne", {0, 14, 40, 10}, WS_GROUP | WS_TABSTOP);
    form.RadioButton(kPageSecond, "&Two", {45, 14, 40, 10});
    form.Button(kPageButton, "Go", {0, 26, 40, 12}, WS_GROUP);
    const auto procedure = [](HWND page, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message != WM_COMMAND || HIWORD(wParam) != BN_CLICKED) return message == WM_INITDIALOG;
        SetPropA(page, "pressed", reinterpret_cast<HANDLE>(UINT_PTR{LOWORD(wParam)}));
        return TRUE;
    };
    const HWND page = CreateDialogIndirectParamA(nullptr, form.Template(), dialog, procedure, 0);
    EXPECT_EQ(GetFocus(), control) << "a page comes up hidden and takes no focus";
    ShowWindow(page, SW_SHOW);
    return page;
}

TEST(DialogWindow, LeadsThroughItsPages) {
    TestDialog dialog(Form());
    const HWND handle = dialog.Handle();
    SetFocus(dialog.Item(IDCANCEL));
    const HWND page = MakePage(handle, dialog.Item(IDCANCEL));
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

struct Modal {
    HWND owner = nullptr;
    BOOL ownerEnabled = TRUE;
    int result = 77;
};

INT_PTR CALLBACK EndAtOnceWhenPosted(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        PostMessageA(dialog, WM_APP, 0, 0);
        return TRUE;
    }
    if (message != WM_APP) return FALSE;
    auto& modal = *reinterpret_cast<Modal*>(GetWindowLongPtrA(dialog, DWLP_USER));
    modal.ownerEnabled = IsWindowEnabled(modal.owner);
    EndDialog(dialog, modal.result);
    return TRUE;
}

TEST(DialogWindow, RunsModallyUntilItIsEnded) {
    TestDialog owner(Form());
    ShowWindow(owner.Handle(), SW_SHOW);
    SetFocus(owner.Item(kSecond));
    owner.TakeLog();
    Modal modal{owner.Handle()};
    const win32::DialogBuilder form = Form();
    EXPECT_EQ(DialogBoxIndirectParamA(nullptr, form.Template(), owner.Handle(),
                                      &EndAtOnceWhenPosted, reinterpret_cast<LPARAM>(&modal)),
              77);
    EXPECT_FALSE(modal.ownerEnabled);
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
    EXPECT_EQ(GetFocus(), owner.Item(kSecond));
    EXPECT_THAT(owner.TakeLog(), ElementsAre(Notification{kSecond, EN_KILLFOCUS},
                                             Notification{kSecond, EN_SETFOCUS}));
}

TEST(DialogWindow, CallsATimerUntilItIsStopped) {
    TestDialog dialog(Form());
    static int calls = 0;
    const UINT_PTR timer =
        SetTimer(dialog.Handle(), 5, 10, [](HWND window, UINT, UINT_PTR id, DWORD) {
            if (++calls == 2) KillTimer(window, id);
        });
    EXPECT_NE(timer, 0U);
    MSG message;
    while (calls < 2 && GetMessageA(&message, nullptr, 0, 0) != FALSE) DispatchMessageA(&message);
    EXPECT_EQ(calls, 2);
    EXPECT_FALSE(KillTimer(dialog.Handle(), 5));
}

TEST(DialogWindow, EndsWithItsControls) {
    TestDialog dialog(Form());
    const HWND handle = dialog.Handle();
    const HWND edit = dialog.Item(kFirst);
    SetFocus(edit);
    dialog.TakeLog();
    EXPECT_TRUE(DestroyWindow(handle));
    EXPECT_THAT(dialog.TakeLog(), ElementsAre(Notification{kFirst, EN_KILLFOCUS}));
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_FALSE(IsWindow(edit));
    EXPECT_EQ(SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_FALSE(PostMessageA(handle, WM_APP, 0, 0));
}

}  // namespace
