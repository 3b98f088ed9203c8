#include "demo/Controls.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace demo {
namespace {

constexpr int kDigits = 6;

}  // namespace

std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::string TextOf(HWND dialog, int control) { return TextOf(GetDlgItem(dialog, control)); }

void SetText(HWND dialog, int control, const std::string& text) {
    if (TextOf(dialog, control) != text) SetDlgItemTextA(dialog, control, text.c_str());
}

bool NumberOf(HWND dialog, int control, double& value) {
    std::string text = TextOf(dialog, control);
    std::ranges::replace(text, ',', '.');
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return false;
    const char* const begin = text.data() + first + (text[first] == '+' ? 1 : 0);
    const auto read = std::from_chars(begin, text.data() + text.size(), value);
    return read.ec == std::errc() && std::isfinite(value);
}

double Rounded(double value) {
    const std::string text = NumberText(value, '.');
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string NumberText(double value, char decimalSign) {
    if (!std::isfinite(value)) return {};
    char text[32];
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::general, kDigits);
    std::replace(text, end.ptr, '.', decimalSign);
    return {text, end.ptr};
}

void Enable(HWND dialog, int first, int last, bool enable) {
    for (int control = first; control <= last; ++control) {
        EnableWindow(GetDlgItem(dialog, control), enable ? TRUE : FALSE);
    }
}

void AddRow(HWND dialog, int combo, const std::string& text) {
    SendDlgItemMessageA(dialog, combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

int PickedRow(HWND dialog, int combo) {
    return static_cast<int>(SendDlgItemMessageA(dialog, combo, CB_GETCURSEL, 0, 0));
}

void PickRow(HWND dialog, int combo, int row) {
    SendDlgItemMessageA(dialog, combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

std::string PickedText(HWND dialog, int combo) {
    const int row = PickedRow(dialog, combo);
    if (row < 0) return {};
    const auto at = static_cast<WPARAM>(row);
    const LRESULT length = SendDlgItemMessageA(dialog, combo, CB_GETLBTEXTLEN, at, 0);
    if (length <= 0) return {};
    std::string text(static_cast<std::size_t>(length), '\0');
    SendDlgItemMessageA(dialog, combo, CB_GETLBTEXT, at, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

SIZE SizeOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

void Layout::Note(HWND dialog, std::span<const Following> controls) {
    dialog_ = dialog;
    size_ = SizeOf(dialog);
    places_.clear();
    for (const auto& [id, how] : controls) {
        const HWND control = GetDlgItem(dialog, id);
        RECT place{};
        GetWindowRect(control, &place);
        POINT origin{place.left, place.top};
        ScreenToClient(dialog, &origin);
        const LONG width = place.right - place.left;
        const LONG height = place.bottom - place.top;
        places_.push_back(
            {control, how, {origin.x, origin.y, origin.x + width, origin.y + height}});
    }
}

void Layout::Apply() const {
    const SIZE now = SizeOf(dialog_);
    const LONG dx = now.cx - size_.cx;
    const LONG dy = now.cy - size_.cy;
    for (const Place& at : places_) {
        const auto by = [&at](unsigned flag, LONG amount) { return (at.how & flag) ? amount : 0; };
        const LONG width = at.place.right - at.place.left + by(kWider, dx);
        const LONG height = at.place.bottom - at.place.top + by(kTaller, dy);
        MoveWindow(at.control, static_cast<int>(at.place.left + by(kRight, dx)),
                   static_cast<int>(at.place.top + by(kDown, dy)), static_cast<int>(width),
                   static_cast<int>(height), TRUE);
    }
}

}  // namespace demo
