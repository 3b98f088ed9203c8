#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

#include "win32/DialogBuilder.h"
#include "win32/Win32.h"

namespace {

win32::DialogBuilder Form() {
    win32::DialogBuilder form("Queue", WS_POPUP, {0, 0, 100, 50});
    form.Edit(1, {0, 0, 40, 12});
    return form;
}

INT_PTR CALLBACK Quiet(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

TEST(MessageLoop, EndsWhereNothingCanComeAnyMore) {
    MSG message;
    EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, WM_QUIT);
    PostQuitMessage(3);
    PostMessageA(nullptr, WM_APP, 1, 2);
    EXPECT_TRUE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.wParam, 3U);
    const win32::DialogBuilder form = Form();
    EXPECT_EQ(DialogBoxIndirectParamA(nullptr, form.Template(), nullptr, &Quiet, 0), -1);
}

TEST(MessageLoop, AnswersOtherThreads) {
    std::atomic<HWND> dialog{nullptr};
    std::thread owner([&] {
        const win32::DialogBuilder form = Form();
        const HWND own = CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, &Quiet, 0);
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
    EXPECT_EQ(SendMessageA(dialog, WM_GETTEXTLENGTH, 0, 0), 0);
}

TEST(MessageLoop, ThreadsHaveTheirOwnWindows) {
    const auto work = [] {
        const win32::DialogBuilder form = Form();
        for (int i = 0; i < 200; ++i) {
            const HWND own =
                CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, &Quiet, 0);
            SetDlgItemInt(own, 1, static_cast<UINT>(i), FALSE);
            EXPECT_EQ(GetDlgItemInt(own, 1, nullptr, FALSE), static_cast<UINT>(i));
            EXPECT_TRUE(DestroyWindow(own));
        }
    };
    std::thread first(work);
    std::thread second(work);
    first.join();
    second.join();
}

/// Types as a user would whenever the program waits, and keeps a log of what it was told to draw.
class TypingView : public win32::View {
  public:
    void Created(HWND) override { ++created; }
    void Changed(HWND window) override {
        if (GetDlgCtrlID(window) == 1) ++changed;
    }
    void Destroyed(HWND) override { ++destroyed; }
    bool Wait(DWORD) override {
        if (keys.empty()) return false;
        PostMessageA(GetFocus(), WM_CHAR, static_cast<unsigned char>(keys.front()), 1);
        keys.erase(0, 1);
        return true;
    }

    std::string keys = "42";
    int created = 0;
    int changed = 0;
    int destroyed = 0;
};

TEST(View, FeedsALoopAndSeesWhatChanges) {
    TypingView view;
    EXPECT_EQ(win32::SetView(&view), nullptr);
    const win32::DialogBuilder form = Form();
    static std::string typed;
    const auto procedure = [](HWND dialog, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE) {
            char text[16] = "";
            GetDlgItemTextA(dialog, 1, text, sizeof text);
            typed = text;
        }
        return message == WM_INITDIALOG;
    };
    EXPECT_EQ(DialogBoxIndirectParamA(nullptr, form.Template(), nullptr, procedure, 0), -1)
        << "the view has no more to bring";
    EXPECT_EQ(typed, "42");
    EXPECT_EQ(view.created, 2);
    EXPECT_GE(view.changed, 2);
    EXPECT_EQ(view.destroyed, 2);
    EXPECT_EQ(win32::SetView(nullptr), &view);
}

}  // namespace
