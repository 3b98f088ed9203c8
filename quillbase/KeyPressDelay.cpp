// The delay after the last key that was pressed in an edit. The edit carries what belongs to it
// under a name, and its own end takes that along, so that nothing is left to be followed.

#include <algorithm>
#include <memory>
#include <string>

#include "quillbase/DialogItems.h"

namespace {

struct Delay {
    WNDPROC former;
    HWND dialog;  // null once the delay is ended
    unsigned control;
    UINT milliseconds;
    bool running;
};

constexpr const char* kName = "quillbase.KeyPressDelay";

// The edit has timers of its own, with small numbers.
UINT_PTR TimerId() { return reinterpret_cast<UINT_PTR>(kName); }

Delay* DelayOf(HWND edit) { return static_cast<Delay*>(GetPropA(edit, kName)); }

void Stop(HWND edit, Delay& delay) {
    if (delay.running) KillTimer(edit, TimerId());
    delay.running = false;
}

void CALLBACK Elapsed(HWND edit, UINT, UINT_PTR, DWORD) {
    Delay* delay = DelayOf(edit);
    if (delay == nullptr) return;
    Stop(edit, *delay);
    // Last, since the dialog may end the edit meanwhile.
    SendMessageA(delay->dialog, WM_COMMAND, MAKEWPARAM(delay->control, EN_KILLFOCUS),
                 reinterpret_cast<LPARAM>(edit));
}

std::string TextOf(HWND edit) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(edit)) + 1, '\0');
    text.resize(
        static_cast<std::size_t>(GetWindowTextA(edit, text.data(), static_cast<int>(text.size()))));
    return text;
}

LRESULT KeyPressed(HWND edit, WNDPROC former, UINT message, WPARAM wParam, LPARAM lParam) {
    const std::string before = TextOf(edit);
    const LRESULT result = CallWindowProcA(former, edit, message, wParam, lParam);
    // What the key led to may have ended the delay, or the edit.
    Delay* delay = DelayOf(edit);
    if (delay == nullptr || delay->dialog == nullptr) return result;
    if (delay->running || TextOf(edit) != before) {
        delay->running = SetTimer(edit, TimerId(), delay->milliseconds, &Elapsed) != 0;
    }
    return result;
}

LRESULT CALLBACK Watch(HWND edit, UINT message, WPARAM wParam, LPARAM lParam);

// Where somebody has put a procedure in front of ours, ours stays in the row and only hands on.
void EndDelay(HWND edit, bool editEnds) {
    Delay* delay = DelayOf(edit);
    if (delay == nullptr) return;
    Stop(edit, *delay);
    const auto watch = reinterpret_cast<LONG_PTR>(&Watch);
    if (!editEnds && GetWindowLongPtrA(edit, GWLP_WNDPROC) != watch) {
        delay->dialog = nullptr;
        return;
    }
    if (!editEnds) {
        SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(delay->former));
    }
    RemovePropA(edit, kName);
    const std::unique_ptr<Delay> ended(delay);
}

LRESULT CALLBACK Watch(HWND edit, UINT message, WPARAM wParam, LPARAM lParam) {
    Delay* delay = DelayOf(edit);
    if (delay == nullptr) return DefWindowProcA(edit, message, wParam, lParam);
    const WNDPROC former = delay->former;
    if (message == WM_NCDESTROY) {
        EndDelay(edit, true);
    } else if (message == WM_KILLFOCUS) {
        Stop(edit, *delay);
    } else if ((message == WM_CHAR || message == WM_KEYDOWN) && delay->dialog != nullptr) {
        return KeyPressed(edit, former, message, wParam, lParam);
    }
    return CallWindowProcA(former, edit, message, wParam, lParam);
}

}  // namespace

void MakeKeyPressDelay(HWND dialog, unsigned control, long ms) {
    const HWND edit = GetDlgItem(dialog, static_cast<int>(control));
    if (edit == nullptr) return;
    const auto milliseconds = static_cast<UINT>(std::max(ms, 1L));
    if (Delay* present = DelayOf(edit); present != nullptr) {
        present->dialog = dialog;
        present->milliseconds = milliseconds;
        return;
    }
    auto delay = std::make_unique<Delay>(Delay{nullptr, dialog, control, milliseconds, false});
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a procedure comes as a number
    delay->former = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(edit, GWLP_WNDPROC));
    if (SetPropA(edit, kName, delay.get()) == FALSE) return;
    static_cast<void>(delay.release());  // the edit's, which EndDelay gives back
    SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Watch));
}

void ClearKeyPress(HWND dialog, unsigned control) {
    EndDelay(GetDlgItem(dialog, static_cast<int>(control)), false);
}
