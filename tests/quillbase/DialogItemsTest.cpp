#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <thread>

#include "quillbase/CLanguage.h"
#include "quillbase/DialogItems.h"
#include "tests/dialogs/TestDialog.h"

namespace {

constexpr int kEdit = 10;
constexpr int kOther = 11;

win32::DialogBuilder Form() {
    win32::DialogBuilder form("Numbers", WS_POPUP, {0, 0, 100, 100});
    form.Edit(kEdit, {0, 0, 50, 12}).Edit(kOther, {0, 20, 50, 12});
    return form;
}

class DialogItems : public ::testing::Test {
  protected:
    DialogItems() { german_.SetLanguage(1031); }
    ~DialogItems() override { quillbase::SetNumberLanguage(nullptr); }

    HWND Handle() const { return dialog_.Handle(); }

    CLanguage german_;
    TestDialog dialog_{Form()};
};

TEST_F(DialogItems, NumbersAreTakenWithThePointAndWithTheLanguagesSign) {
    const struct {
        bool german;
        const char* text;
        double number;
        bool good;
    } kCases[] = {
        {false, "", 0.0, true},          {false, " -1.5e2 ", -150.0, true},
        {false, "+.5", 0.5, true},       {false, "1,5", 1.0, false},
        {false, "12abc", 12.0, false},   {false, "--1", 0.0, false},
        {false, "inf", 0.0, false},      {false, "1e999", 0.0, false},
        {true, "1.234,5", 1234.5, true}, {true, "-1.5e2", -150.0, true},
    };
    for (const auto& c : kCases) {
        SetDlgItemTextA(Handle(), kEdit, c.text);
        quillbase::SetNumberLanguage(c.german ? &german_ : nullptr);
        EXPECT_EQ(GetDlgItemDouble(Handle(), kEdit), c.number) << c.text;
        EXPECT_EQ(GoodNumber(Handle(), kEdit, true, true, true), c.good) << c.text;
        EXPECT_EQ(dialog_.Text(kEdit), c.text) << "the text stays";
    }
    SetDlgItemTextA(Handle(), kEdit, std::string(40000, '1').c_str());
    EXPECT_GT(GetDlgItemDouble(Handle(), kEdit), 1e100);
}

TEST_F(DialogItems, NumbersAreShownInTheLanguagesForm) {
    const struct {
        bool german;
        double number;
        const char* text;
    } kCases[] = {
        {false, -0.0, "0"},           {false, 14.6959487755, "14.6959487755"},
        {false, HUGE_VAL, ""},        {true, 0.1 + 0.2, "0,3"},
        {true, 1500000.0, "1500000"}, {true, 0.00001234, "1,234e-05"},
    };
    for (const auto& c : kCases) {
        quillbase::SetNumberLanguage(c.german ? &german_ : nullptr);
        SetDlgItemDouble(Handle(), kEdit, c.number);
        EXPECT_EQ(dialog_.Text(kEdit), c.text);
    }
}

class KeyPressDelay : public DialogItems {
  protected:
    static constexpr long kDelay = 150;

    void Begin() const { MakeKeyPressDelay(Handle(), kEdit, kDelay); }
    void Type() const { win32::user::Type(dialog_.Item(kEdit), "1"); }

    // How often edits have been left since the last call, at the end of a time in delays.
    std::ptrdiff_t Left(double delays) {
        const auto end = std::chrono::steady_clock::now() +
                         std::chrono::milliseconds(static_cast<int>(kDelay * delays));
        while (std::chrono::steady_clock::now() < end) {
            win32::user::HandleMessages(Handle());
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return std::ranges::count(dialog_.TakeLog(), EN_KILLFOCUS, &Notification::code);
    }
};

TEST_F(KeyPressDelay, EndsAsIfTheUserHadLeftTheEditOnceAfterTheLastKey) {
    Begin();
    Type();
    EXPECT_EQ(Left(0.6), 0);
    Type();
    EXPECT_EQ(Left(0.6), 0) << "each key begins it again";
    EXPECT_EQ(Left(2.5), 1);
    EXPECT_EQ(GetFocus(), dialog_.Item(kEdit));

    SetDlgItemDouble(Handle(), kEdit, 8.0);
    win32::user::PressKey(Handle(), VK_LEFT);
    EXPECT_EQ(Left(1.5), 0) << "only typing begins it";

    Type();
    win32::user::PressTab(Handle());
    EXPECT_EQ(Left(1.5), 1) << "leaving ends it";
}

TEST_F(KeyPressDelay, IsClearedByTheHostAndByTheEndOfEditOrDialog) {
    Begin();
    Begin();
    Type();
    ClearKeyPress(Handle(), kEdit);
    Type();
    EXPECT_EQ(Left(1.5), 0);

    Begin();
    MakeKeyPressDelay(Handle(), kOther, kDelay);
    Type();
    DestroyWindow(dialog_.Item(kEdit));
    win32::user::Type(dialog_.Item(kOther), "1");
    DestroyWindow(Handle());
    Left(0.0);
    EXPECT_EQ(Left(1.5), 0);
    ClearKeyPress(Handle(), kOther);
}

TEST_F(KeyPressDelay, DialogMayEndWithinTheKeyOrTheDelay) {
    for (const WORD code : {EN_CHANGE, EN_KILLFOCUS}) {
        TestDialog dialog(Form());
        MakeKeyPressDelay(dialog.Handle(), kEdit, 10);
        dialog.Forward([&](int, int told) {
            if (told == code) DestroyWindow(dialog.Handle());
        });
        win32::user::Type(dialog.Item(kEdit), "1");
        Left(1.0);
        EXPECT_FALSE(IsWindow(dialog.Handle())) << code;
    }
}

LRESULT CALLBACK HandOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto former = reinterpret_cast<WNDPROC>(GetPropA(window, "former"));
    return CallWindowProcA(former, window, message, wParam, lParam);
}

// The host's procedure goes on calling the one that it found.
TEST_F(KeyPressDelay, StaysBehindAProcedureThatTheHostPutInFrontLater) {
    Begin();
    const HWND edit = dialog_.Item(kEdit);
    SetPropA(edit, "former", reinterpret_cast<HANDLE>(GetWindowLongPtrA(edit, GWLP_WNDPROC)));
    SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HandOn));
    ClearKeyPress(Handle(), kEdit);
    Type();
    EXPECT_EQ(Left(1.5), 0);
    Begin();
    Type();
    EXPECT_EQ(Left(1.5), 1);
}

}  // namespace
