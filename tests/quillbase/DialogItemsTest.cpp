#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include "quillbase/CLanguage.h"
#include "quillbase/CTableReader.h"
#include "quillbase/DialogItems.h"
#include "tests/dialogs/TestDialog.h"

namespace {

constexpr int kEdit = 10;
constexpr int kOther = 11;
constexpr int kList = 12;
constexpr int kMissing = 99;
constexpr unsigned long kGerman = 1031;

win32::DialogBuilder Form() {
    win32::DialogBuilder form("Numbers", WS_POPUP, {0, 0, 100, 100});
    form.Edit(kEdit, {0, 0, 50, 12}).Edit(kOther, {0, 20, 50, 12});
    form.ListBox(kList, {0, 40, 50, 50}, LBS_SORT);
    return form;
}

class DialogItems : public ::testing::Test {
  protected:
    DialogItems() { german_.SetLanguage(kGerman); }
    ~DialogItems() override { quillbase::SetNumberLanguage(nullptr); }

    HWND Handle() const { return dialog_.Handle(); }
    void Put(const std::string& text) { SetDlgItemTextA(Handle(), kEdit, text.c_str()); }

    CLanguage german_;
    TestDialog dialog_{Form()};
};

TEST_F(DialogItems, NumbersAreTakenWithThePointAndWithTheLanguagesSign) {
    const struct {
        const char* text;
        double number;
        bool good;
        double german;
        bool goodInGerman;
    } kCases[] = {
        {"", 0.0, true, 0.0, true},          {"  ", 0.0, true, 0.0, true},
        {"72", 72.0, true, 72.0, true},      {" -1.5e2 ", -150.0, true, -150.0, true},
        {"+.5", 0.5, true, 0.5, true},       {"5.", 5.0, true, 5.0, true},
        {"1,5", 1.0, false, 1.5, true},      {"1.234,5", 1.234, false, 1234.5, true},
        {"12abc", 12.0, false, 12.0, false}, {"abc", 0.0, false, 0.0, false},
        {"-", 0.0, false, 0.0, false},       {"1e", 1.0, false, 1.0, false},
        {"--1", 0.0, false, 0.0, false},     {"inf", 0.0, false, 0.0, false},
        {"nan", 0.0, false, 0.0, false},     {"1e999", 0.0, false, 0.0, false},
    };
    for (const auto& c : kCases) {
        Put(c.text);
        quillbase::SetNumberLanguage(nullptr);
        EXPECT_EQ(GetDlgItemDouble(Handle(), kEdit), c.number) << c.text;
        EXPECT_EQ(GoodNumber(Handle(), kEdit, true, true, true), c.good) << c.text;
        quillbase::SetNumberLanguage(&german_);
        EXPECT_EQ(GetDlgItemDouble(Handle(), kEdit), c.german) << c.text;
        EXPECT_EQ(GoodNumber(Handle(), kEdit, true, true, true), c.goodInGerman) << c.text;
        EXPECT_EQ(dialog_.Text(kEdit), c.text) << "the text stays";
    }
    Put(std::string(40000, '1'));
    EXPECT_GT(GetDlgItemDouble(Handle(), kEdit), 1e100);
}

TEST_F(DialogItems, NumbersAreShownInTheLanguagesForm) {
    const struct {
        double number;
        const char* text;
        const char* german;
    } kCases[] = {
        {0.0, "0", "0"},
        {-0.0, "0", "0"},
        {-459.67, "-459.67", "-459,67"},
        {0.1 + 0.2, "0.3", "0,3"},
        {14.6959487755, "14.6959487755", "14,6959487755"},
        {1500000.0, "1500000", "1500000"},
        {0.00001234, "1.234e-05", "1,234e-05"},
        {std::numeric_limits<double>::infinity(), "", ""},
        {std::nan(""), "", ""},
    };
    for (const auto& c : kCases) {
        quillbase::SetNumberLanguage(nullptr);
        SetDlgItemDouble(Handle(), kEdit, c.number);
        EXPECT_EQ(dialog_.Text(kEdit), c.text);
        quillbase::SetNumberLanguage(&german_);
        SetDlgItemDouble(Handle(), kEdit, c.number);
        EXPECT_EQ(dialog_.Text(kEdit), c.german);
    }
    SetDlgItemNull(Handle(), kEdit);
    EXPECT_EQ(dialog_.Text(kEdit), "");
}

TEST_F(DialogItems, LimitHoldsForTypingOnlyAndMissingControlsArePassedOver) {
    SetDlgItemLimit(Handle(), kEdit, 3);
    win32::user::Type(dialog_.Item(kEdit), "12345");
    EXPECT_EQ(dialog_.Text(kEdit), "123");
    SetDlgItemDouble(Handle(), kEdit, 12345.0);
    EXPECT_EQ(dialog_.Text(kEdit), "12345");

    SetDlgItemLimit(Handle(), kMissing, 3);
    SetDlgItemDouble(Handle(), kMissing, 1.0);
    SetDlgItemNull(Handle(), kMissing);
    MakeKeyPressDelay(Handle(), kMissing, 10);
    ClearKeyPress(Handle(), kMissing);
    ClearKeyPress(nullptr, kEdit);
    EXPECT_EQ(GetDlgItemDouble(Handle(), kMissing), 0.0);
    EXPECT_TRUE(GoodNumber(Handle(), kMissing, true, true, true));
}

TEST_F(DialogItems, ListIsFilledAnewWithTheItemsOfAText) {
    for (const char* items : {"b\ta\tc\t", "b\t\ta\tc"}) {
        CTableReader::Fill(false, dialog_.Item(kList), items, '\t', true);
        ASSERT_EQ(dialog_.Send(kList, LB_GETCOUNT), 3) << items;
        char text[10];
        dialog_.Send(kList, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(text, "a") << "the order is the list box's";
    }
    CTableReader::Fill(false, dialog_.Item(kList), "", '\t', true);
    EXPECT_EQ(dialog_.Send(kList, LB_GETCOUNT), 0);
}

// The delay after the last key.

class KeyPressDelay : public DialogItems {
  protected:
    using Log = std::vector<Notification>;

    static constexpr long kDelay = 150;

    // Handles messages for a part of the delay, or for more than all of it.
    void Wait(double delays) {
        const auto end = std::chrono::steady_clock::now() +
                         std::chrono::milliseconds(static_cast<int>(kDelay * delays));
        while (std::chrono::steady_clock::now() < end) {
            win32::user::HandleMessages(Handle());
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }

    Log Left() {
        Log left;
        for (const Notification& n : dialog_.TakeLog()) {
            if (n.code == EN_KILLFOCUS) left.push_back(n);
        }
        return left;
    }

    const Log kOnce{{kEdit, EN_KILLFOCUS}};
};

TEST_F(KeyPressDelay, EndsAsIfTheUserHadLeftTheEditOnceAfterTheLastKey) {
    MakeKeyPressDelay(Handle(), kEdit, kDelay);
    win32::user::Type(dialog_.Item(kEdit), "1");
    Wait(0.6);
    win32::user::Type(dialog_.Item(kEdit), "2");
    Wait(0.6);
    EXPECT_EQ(Left(), Log{}) << "each key begins it again";
    Wait(1.5);
    EXPECT_EQ(Left(), kOnce);
    EXPECT_EQ(GetFocus(), dialog_.Item(kEdit));
    Wait(1.5);
    EXPECT_EQ(Left(), Log{});
}

TEST_F(KeyPressDelay, OnlyTypingBeginsItAndLeavingEndsIt) {
    MakeKeyPressDelay(Handle(), kEdit, kDelay);
    SetFocus(dialog_.Item(kEdit));
    Put("7");
    SetDlgItemDouble(Handle(), kEdit, 8.0);
    win32::user::PressKey(Handle(), VK_LEFT);
    win32::user::Type(dialog_.Item(kOther), "1");
    Left();
    Wait(1.5);
    EXPECT_EQ(Left(), Log{});

    win32::user::Type(dialog_.Item(kEdit), "1");
    win32::user::PressTab(Handle());
    const Log bothLeft{{kOther, EN_KILLFOCUS}, {kEdit, EN_KILLFOCUS}};
    EXPECT_EQ(Left(), bothLeft);
    Wait(1.5);
    EXPECT_EQ(Left(), Log{});
}

TEST_F(KeyPressDelay, IsClearedByTheHostAndByTheEndOfEditOrDialog) {
    MakeKeyPressDelay(Handle(), kEdit, kDelay);
    MakeKeyPressDelay(Handle(), kEdit, kDelay);
    win32::user::Type(dialog_.Item(kEdit), "1");
    ClearKeyPress(Handle(), kEdit);
    win32::user::Type(dialog_.Item(kEdit), "2");
    Wait(1.5);
    EXPECT_EQ(Left(), Log{});
    EXPECT_EQ(dialog_.Text(kEdit), "12");

    MakeKeyPressDelay(Handle(), kEdit, kDelay);
    MakeKeyPressDelay(Handle(), kOther, kDelay);
    win32::user::Type(dialog_.Item(kEdit), "3");
    DestroyWindow(dialog_.Item(kEdit));
    win32::user::Type(dialog_.Item(kOther), "3");
    DestroyWindow(Handle());
    Left();
    Wait(1.5);
    ClearKeyPress(Handle(), kOther);
    EXPECT_EQ(Left(), Log{});
}

TEST_F(KeyPressDelay, DialogMayEndWithinTheKeyOrTheDelay) {
    for (const WORD code : {EN_CHANGE, EN_KILLFOCUS}) {
        TestDialog dialog(Form());
        MakeKeyPressDelay(dialog.Handle(), kEdit, 10);
        dialog.Forward([&](int, int told) {
            if (told == code) DestroyWindow(dialog.Handle());
        });
        win32::user::Type(dialog.Item(kEdit), "1");
        Wait(1.0);
        EXPECT_FALSE(IsWindow(dialog.Handle())) << code;
    }
}

LRESULT CALLBACK HandOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto former = reinterpret_cast<WNDPROC>(GetPropA(window, "former"));
    return CallWindowProcA(former, window, message, wParam, lParam);
}

// The host's procedure goes on calling the one that it found.
TEST_F(KeyPressDelay, StaysBehindAProcedureThatTheHostPutInFrontLater) {
    MakeKeyPressDelay(Handle(), kEdit, kDelay);
    const HWND edit = dialog_.Item(kEdit);
    SetPropA(edit, "former", reinterpret_cast<HANDLE>(GetWindowLongPtrA(edit, GWLP_WNDPROC)));
    SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HandOn));
    ClearKeyPress(Handle(), kEdit);
    win32::user::Type(edit, "1");
    Wait(1.5);
    EXPECT_EQ(Left(), Log{});
    EXPECT_EQ(dialog_.Text(kEdit), "1");

    MakeKeyPressDelay(Handle(), kEdit, kDelay);
    win32::user::Type(edit, "2");
    Wait(1.5);
    EXPECT_EQ(Left(), kOnce);
}

}  // namespace
