#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "win32/DialogBuilder.h"
#include "win32/Win32.h"

namespace {

INT_PTR CALLBACK Quiet(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

win32::DialogBuilder Form() {
    win32::DialogBuilder form("Queue", WS_POPUP, {0, 0, 100, 50});
    form.Edit(1, {0, 0, 40, 12});
    return form;
}
HWND MakeDialog() {
    return CreateDialogIndirectParamA(nullptr, Form().Template(), nullptr, &Quiet, 0);
}
INT_PTR RunDialog() {
    return DialogBoxIndirectParamA(nullptr, Form().Template(), nullptr, &Quiet, 0);
}

/// Lets the program wait twice.
class ShortView : public win32::View {
  public:
    void Created(HWND) override {}
    void Changed(HWND) override {}
    void Destroyed(HWND) override {}
    bool Wait(DWORD) override { return ++waits < 3; }

    int waits = 0;
};

TEST(MessageLoop, EndsWhereNothingCanComeAnyMore) {
    MSG message;
    EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, WM_QUIT);
    PostQuitMessage(3);
    PostMessageA(nullptr, WM_APP, 1, 2);
    EXPECT_TRUE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.wParam, 3U);
    EXPECT_EQ(RunDialog(), -1);
    ShortView view;
    EXPECT_EQ(win32::SetView(&view), nullptr);
    EXPECT_EQ(RunDialog(), -1);
    EXPECT_EQ(view.waits, 3);
    EXPECT_EQ(win32::SetView(nullptr), &view);
}

TEST(MessageLoop, AnswersOtherThreads) {
    std::atomic<HWND> dialog{nullptr};
    std::thread owner([&] {
        const HWND own = MakeDialog();
        SetTimer(own, 1, 10, nullptr);  // keeps the loop waiting
        dialog = own;
        MSG message;
        while (GetMessageA(&message, nullptr, 0, 0) != FALSE) {
            if (message.message == WM_APP) PostQuitMessage(0);
            DispatchMessageA(&message);
        }
    });
    while (dialog == nullptr) std::this_thread::yield();
    EXPECT_TRUE(SetDlgItemTextA(dialog, 1, "from afar"));
    char text[16] = "";
    GetDlgItemTextA(dialog, 1, text, sizeof text);
    EXPECT_STREQ(text, "from afar");
    EXPECT_FALSE(DestroyWindow(dialog)) << "only its own thread may";
    EXPECT_EQ(SetFocus(dialog), nullptr);
    EXPECT_TRUE(PostMessageA(dialog, WM_APP, 0, 0));
    owner.join();
    EXPECT_FALSE(IsWindow(dialog)) << "its windows go with a thread";
}

TEST(MessageLoop, ThreadsHaveTheirOwnWindows) {
    const auto work = [] {
        for (int i = 0; i < 200; ++i) {
            const HWND own = MakeDialog();
            SetDlgItemInt(own, 1, static_cast<UINT>(i), FALSE);
            EXPECT_EQ(GetDlgItemInt(own, 1, nullptr, FALSE), static_cast<UINT>(i));
            EXPECT_TRUE(DestroyWindow(own));
        }
    };
    const std::jthread first(work);
    const std::jthread second(work);
}

}  // namespace
