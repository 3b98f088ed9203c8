// The controls of a dialog, by their ids.

#include <algorithm>
#include <charconv>
#include <string>

#include "win32/Button.h"
#include "win32/Dialog.h"
#include "win32/Error.h"
#include "win32/Model.h"

namespace {

using win32::Find;

bool IsRadioButton(HWND control) {
    return (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

// A whole number at the beginning of a text: blanks, a sign, digits; what follows doesn't count.
bool ReadInt(std::string_view text, bool isSigned, UINT& value) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    const bool negative = isSigned && text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    unsigned long long digits = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), digits);
    const unsigned long long largest =
        isSigned ? (negative ? 0x80000000ULL : 0x7FFFFFFFULL) : 0xFFFFFFFFULL;
    if (error != std::errc() || digits > largest) return false;
    value = negative ? 0U - static_cast<UINT>(digits) : static_cast<UINT>(digits);
    return true;
}

}  // namespace

HWND GetDlgItem(HWND dialog, int id) {
    const auto found = Find(dialog);
    if (!found) return nullptr;
    for (const HWND control : found->children) {
        const auto child = Find(control);
        if (child && child->id == id) return control;
    }
    SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
    return nullptr;
}

int GetDlgCtrlID(HWND control) {
    const auto found = Find(control);
    return found ? static_cast<int>(found->id) : 0;
}

LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND control = GetDlgItem(dialog, id);
    return control == nullptr ? 0 : SendMessageA(control, message, wParam, lParam);
}

BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
    return SendDlgItemMessageA(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) > 0
               ? TRUE
               : FALSE;
}

UINT GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size) {
    if (size <= 0) return 0;
    text[0] = '\0';
    return static_cast<UINT>(SendDlgItemMessageA(dialog, id, WM_GETTEXT, static_cast<WPARAM>(size),
                                                 reinterpret_cast<LPARAM>(text)));
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
    const std::string text =
        isSigned != FALSE ? std::to_string(static_cast<int>(value)) : std::to_string(value);
    return SetDlgItemTextA(dialog, id, text.c_str());
}

UINT GetDlgItemInt(HWND dialog, int id, BOOL* good, BOOL isSigned) {
    constexpr int kLongest = 64;
    char text[kLongest] = "";
    UINT value = 0;
    const bool read =
        GetDlgItemTextA(dialog, id, text, kLongest) != 0 && ReadInt(text, isSigned != FALSE, value);
    if (good != nullptr) *good = read ? TRUE : FALSE;
    return read ? value : 0;
}

BOOL CheckDlgButton(HWND dialog, int id, UINT check) {
    const HWND button = GetDlgItem(dialog, id);
    if (button == nullptr) return FALSE;
    SendMessageA(button, BM_SETCHECK, check, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
    return static_cast<UINT>(SendDlgItemMessageA(dialog, id, BM_GETCHECK, 0, 0));
}

BOOL CheckRadioButton(HWND dialog, int first, int last, int id) {
    const auto found = Find(dialog);
    if (!found) return FALSE;
    const auto [low, high] = std::minmax(first, last);
    const std::vector<HWND> controls = found->children;
    for (const HWND control : controls) {
        const int own = GetDlgCtrlID(control);
        if (own < low || own > high || !IsRadioButton(control)) continue;
        SendMessageA(control, BM_SETCHECK, own == id ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    return TRUE;
}
