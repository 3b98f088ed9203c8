#include "win32/DialogTemplate.h"

#include <cstring>
#include <memory>
#include <vector>

#include "fuzz/Targets.h"
#include "win32/User.h"
#include "win32/Win32.h"

namespace hydrofacts::fuzz {
namespace {

INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG ? TRUE : FALSE;
}

// What a person does at once: types, clicks, picks, goes round with Tab.
void Use(HWND dialog) {
    std::vector<HWND> controls;
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr && controls.size() < 20;
         control = GetWindow(control, GW_HWNDNEXT)) {
        controls.push_back(control);
    }
    for (const HWND control : controls) {
        win32::user::Type(control, "1.5\t");
        win32::user::TypeOver(control, "x");
        win32::user::Click(control);
        win32::user::PickRow(control, 0);
        win32::user::PressTab(dialog);
        char text[64];
        GetWindowTextA(control, text, sizeof text);
        Require(std::memchr(text, '\0', sizeof text) != nullptr, "a text ends");
    }
    for (const int key : {VK_RETURN, VK_DOWN, VK_ESCAPE}) win32::user::PressKey(dialog, key);
    win32::user::HandleMessages(dialog);
}

}  // namespace

void dialog_template(Bytes bytes) {
    // Of just this size, and as aligned as a template in memory has to be.
    const std::unique_ptr<std::uint8_t[]> exact(new std::uint8_t[bytes.size()]);
    std::copy(bytes.begin(), bytes.end(), exact.get());
    const auto description = win32::ReadTemplate(exact.get(), bytes.size());
    if (!description) return;
    // Nothing that is whole is read differently once its size isn't known.
    const auto* form = reinterpret_cast<LPCDLGTEMPLATEA>(exact.get());
    const HWND dialog = CreateDialogIndirectParamA(nullptr, form, nullptr, &Procedure, 0);
    if (dialog == nullptr) return;
    ShowWindow(dialog, SW_SHOW);
    Use(dialog);
    if (IsWindow(dialog) != FALSE) DestroyWindow(dialog);
    Require(IsWindow(dialog) == FALSE, "a destroyed dialog is gone");
}

}  // namespace hydrofacts::fuzz
