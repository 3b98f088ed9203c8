#include "win32/User.h"

#include <array>
#include <cstring>

namespace {

bool CanBeUsed(HWND control) {
    if (IsWindow(control) == FALSE) return false;
    for (HWND window = control; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
        if (window == GetDesktopWindow()) break;
        if (IsWindowEnabled(window) == FALSE) return false;
    }
    return true;
}

bool IsOfClass(HWND control, const char* name) {
    char found[32] = "";
    GetClassNameA(control, found, sizeof found);
    return std::strcmp(found, name) == 0;
}

void GoTo(HWND control) {
    const HWND focus = GetFocus();
    if (focus != control && IsChild(control, focus) == FALSE) SetFocus(control);
}

// The window that the keys reach: in a combo box it may be the edit inside.
HWND KeyTarget(HWND control) {
    const HWND focus = GetFocus();
    return IsChild(control, focus) != FALSE ? focus : control;
}

LPARAM PointIn(const RECT& place) { return MAKELPARAM(place.left + 2, place.top + 2); }

void ClickAt(HWND window, LPARAM point) {
    SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageA(window, WM_LBUTTONUP, 0, point);
}

bool PickListRow(HWND list, int row) {
    if (row < 0 || row >= SendMessageA(list, LB_GETCOUNT, 0, 0)) return false;
    RECT place{};
    RECT inside{};
    GetClientRect(list, &inside);
    SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    if (place.top < 0 || place.bottom > inside.bottom) {
        SendMessageA(list, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
        SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&place));
    }
    ClickAt(list, PointIn(place));
    return true;
}

bool PickComboRow(HWND combo, int row) {
    if (row < 0 || row >= SendMessageA(combo, CB_GETCOUNT, 0, 0)) return false;
    GoTo(combo);
    SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (GetComboBoxInfo(combo, &info) == FALSE) return false;
    return PickListRow(info.hwndList, row);
}

void SetShift(bool held) {
    constexpr std::size_t kKeys = 256;
    constexpr BYTE kHeld = 0x80;
    std::array<BYTE, kKeys> keys{};
    GetKeyboardState(keys.data());
    keys[VK_SHIFT] = held ? kHeld : 0;
    SetKeyboardState(keys.data());
}

}  // namespace

namespace win32::user {

bool Type(HWND control, const char* text) {
    if (!CanBeUsed(control)) return false;
    GoTo(control);
    for (const char* c = text; *c != '\0' && IsWindow(control) != FALSE; ++c) {
        SendMessageA(KeyTarget(control), WM_CHAR, static_cast<unsigned char>(*c), 1);
    }
    return true;
}

bool TypeOver(HWND control, const char* text) {
    if (!CanBeUsed(control)) return false;
    GoTo(control);
    const bool combo = IsOfClass(control, "ComboBox");
    if (combo) {
        SendMessageA(control, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    } else {
        SendMessageA(control, EM_SETSEL, 0, -1);
    }
    return Type(control, *text == '\0' ? "\b" : text);
}

bool PickRow(HWND control, int row) {
    if (!CanBeUsed(control)) return false;
    return IsOfClass(control, "ComboBox") ? PickComboRow(control, row) : PickListRow(control, row);
}

bool PickItem(HWND tree, HTREEITEM item) {
    if (!CanBeUsed(tree)) return false;
    SendMessageA(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    // The message takes the item's handle from where it puts the rectangle.
    RECT place{};
    std::memcpy(&place, &item, sizeof(UINT_PTR));
    if (SendMessageA(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place)) == 0) {
        return false;
    }
    // The control waits for the button to come up again before it answers the press.
    PostMessageA(tree, WM_LBUTTONUP, 0, PointIn(place));
    SendMessageA(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointIn(place));
    return true;
}

bool Click(HWND button) {
    if (!CanBeUsed(button)) return false;
    ClickAt(button, MAKELPARAM(2, 2));
    return true;
}

bool PressKey(HWND dialog, int key) {
    if (!CanBeUsed(dialog)) return false;
    const HWND focus = GetFocus();
    const HWND target = IsChild(dialog, focus) != FALSE ? focus : dialog;
    PostMessageA(target, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    HandleMessages(dialog);
    if (IsWindow(target) != FALSE) {
        SendMessageA(target, WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001U));
    }
    return true;
}

bool PressTab(HWND dialog, bool back) {
    SetShift(back);
    const bool pressed = PressKey(dialog, VK_TAB);
    SetShift(false);
    return pressed;
}

bool Close(HWND dialog) {
    if (!CanBeUsed(dialog)) return false;
    PostMessageA(dialog, WM_CLOSE, 0, 0);
    HandleMessages(dialog);
    return true;
}

void HandleMessages(HWND dialog) {
    for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
        if (message.message == WM_QUIT) {
            // It is for the loop that called us.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (IsDialogMessageA(dialog, &message) != FALSE) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

}  // namespace win32::user
