#include "win32/Focus.h"

#include "win32/Model.h"
#include "win32/Queue.h"

namespace {

using win32::Find;
using win32::ThisThread;

bool CanHaveFocus(HWND window) {
    for (auto found = Find(window); found; found = Find(found->parent)) {
        if (found->Has(WS_DISABLED)) return false;
        if (found->IsTopLevel()) return true;
    }
    return false;
}

// The new window counts as the one with the focus before the old one hears of it.
void MoveFocus(HWND window) {
    win32::ThreadState& thread = ThisThread();
    const HWND before = thread.focus;
    if (before == window) return;
    thread.focus = window;
    if (before != nullptr) {
        SendMessageA(before, WM_KILLFOCUS, reinterpret_cast<WPARAM>(window), 0);
    }
    if (window != nullptr && thread.focus == window) {
        SendMessageA(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(before), 0);
    }
}

bool IsWithin(HWND outer, HWND inside) {
    return inside != nullptr && (inside == outer || IsChild(outer, inside) != FALSE);
}

}  // namespace

namespace win32 {

void LeaveWindow(const Window& window) {
    ThreadState& thread = ThisThread();
    const HWND self = window.Self();
    if (window.IsTopLevel() && thread.active == self) {
        const HWND owner = window.parent;
        SetActiveWindow(owner != nullptr && CanHaveFocus(owner) ? owner : nullptr);
    }
    if (!IsWithin(self, thread.focus)) return;
    const auto parent = window.IsTopLevel() ? nullptr : Find(window.parent);
    MoveFocus(parent && !parent->dying ? window.parent : nullptr);
}

}  // namespace win32

HWND SetFocus(HWND window) {
    win32::ThreadState& thread = ThisThread();
    const HWND before = thread.focus;
    if (window == before) return before;
    if (window != nullptr) {
        const auto found = Find(window);
        if (!found || found->queue != thread.queue || !CanHaveFocus(window)) return nullptr;
        SetActiveWindow(GetAncestor(window, GA_ROOT));
        if (IsWindow(window) == FALSE) return before;
    }
    MoveFocus(window);
    return before;
}

HWND GetFocus() { return ThisThread().focus; }

HWND SetActiveWindow(HWND window) {
    win32::ThreadState& thread = ThisThread();
    const HWND before = thread.active;
    if (before == window) return before;
    if (before != nullptr) {
        SendMessageA(before, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(window));
    }
    thread.active = window;
    if (window == nullptr) {
        MoveFocus(nullptr);
        return before;
    }
    if (!IsWithin(window, thread.focus)) MoveFocus(nullptr);
    SendMessageA(window, WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(before));
    return before;
}

HWND GetActiveWindow() { return ThisThread().active; }
