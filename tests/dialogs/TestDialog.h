#ifndef HYDROFACTS_TESTS_DIALOGS_TESTDIALOG_H
#define HYDROFACTS_TESTS_DIALOGS_TESTDIALOG_H

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "win32/DialogBuilder.h"
#include "win32/User.h"
#include "win32/Win32.h"

/// What a control told its dialog.
struct Notification {
    int id;
    int code;
    bool operator==(const Notification&) const = default;
};

/// A host's dialog, modeless and hidden: keeps a log of what its controls tell it, and hands each
/// notification on while it arrives, as hosts do that forward them all to a controller.
class TestDialog {
  public:
    using Handler = std::function<void(int id, int code)>;

    explicit TestDialog(const win32::DialogBuilder& form, Handler handler = {})
        : handler_(std::move(handler)) {
        handle_ = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), form.Template(), nullptr,
                                             &Procedure, reinterpret_cast<LPARAM>(this));
    }
    ~TestDialog() {
        if (IsWindow(handle_) != FALSE) DestroyWindow(handle_);
    }
    TestDialog(const TestDialog&) = delete;
    TestDialog& operator=(const TestDialog&) = delete;

    HWND Handle() const { return handle_; }
    HWND Item(int id) const { return GetDlgItem(handle_, id); }

    std::string Text(int id) const {
        std::array<char, 1024> text{};
        GetDlgItemTextA(handle_, id, text.data(), static_cast<int>(text.size()));
        return text.data();
    }

    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendDlgItemMessageA(handle_, id, message, wParam, lParam);
    }

    /// The rows of a list box; of a combo box with its messages.
    std::vector<std::string> Rows(int id, UINT count = LB_GETCOUNT, UINT get = LB_GETTEXT) const {
        std::vector<std::string> rows;
        for (LRESULT row = 0; row < Send(id, count); ++row) {
            std::array<char, 260> text{};
            Send(id, get, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
            rows.emplace_back(text.data());
        }
        return rows;
    }

    /// From here on each notification goes to `handler`.
    void Forward(Handler handler) { handler_ = std::move(handler); }

    /// What has been told since the last call.
    std::vector<Notification> TakeLog() { return std::exchange(log_, {}); }

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrA(dialog, DWLP_USER, lParam);
            return FALSE;
        }
        auto* self = reinterpret_cast<TestDialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
        if (self == nullptr) return FALSE;
        if (message == WM_COMMAND) {
            self->Told({static_cast<int>(LOWORD(wParam)), static_cast<int>(HIWORD(wParam))});
            return TRUE;
        }
        if (message == WM_NOTIFY) {
            const auto* header = reinterpret_cast<const NMHDR*>(lParam);
            self->Told({static_cast<int>(header->idFrom), static_cast<int>(header->code)});
        }
        return FALSE;
    }

    void Told(Notification what) {
        log_.push_back(what);
        if (handler_) handler_(what.id, what.code);
    }

    HWND handle_ = nullptr;
    Handler handler_;
    std::vector<Notification> log_;
};

#endif
