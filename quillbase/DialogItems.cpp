#include "quillbase/DialogItems.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

#include "quillbase/CLanguage.h"
#include "quillbase/Numbers.h"

namespace {

const CLanguage* numberLanguage = nullptr;

// More than any number needs; what stands behind is not read.
using NumberText = std::array<char, 128>;

// A control's text with a point as decimal sign.
NumberText EnglishText(HWND dialog, int control) {
    NumberText text{};
    GetDlgItemTextA(dialog, control, text.data(), static_cast<int>(text.size()));
    if (numberLanguage != nullptr) numberLanguage->EnglishNumber(text.data());
    return text;
}

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsDecimalNumber(std::string_view text) {
    if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
    // Neither "inf" nor a second sign.
    if (text.find_first_of(".0123456789") != 0) return false;
    double value = 0.0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

}  // namespace

namespace quillbase {

void SetNumberLanguage(const CLanguage* language) { numberLanguage = language; }

}  // namespace quillbase

double GetDlgItemDouble(HWND dialog, int control) {
    double value = 0.0;
    quillbase::ScanReal(EnglishText(dialog, control).data(), &value);
    return std::isfinite(value) ? value : 0.0;
}

void SetDlgItemDouble(HWND dialog, int control, double value) {
    if (!std::isfinite(value)) {
        SetDlgItemNull(dialog, control);
        return;
    }
    constexpr int kDigits = 15;
    const double shown = value == 0.0 ? 0.0 : value;  // no sign ahead of zero
    NumberText text{};
    std::to_chars(text.data(), text.data() + text.size() - 1, shown, std::chars_format::general,
                  kDigits);
    if (numberLanguage != nullptr) numberLanguage->Number(text.data());
    SetDlgItemTextA(dialog, control, text.data());
}

void SetDlgItemNull(HWND dialog, int control) { SetDlgItemTextA(dialog, control, ""); }

void SetDlgItemLimit(HWND dialog, int control, int length) {
    SendDlgItemMessageA(dialog, control, EM_SETLIMITTEXT, static_cast<WPARAM>(length), 0);
}

bool GoodNumber(HWND dialog, int control, bool, bool, bool) {
    const NumberText text = EnglishText(dialog, control);
    const std::string_view number = WithoutBlanks(text.data());
    return number.empty() || IsDecimalNumber(number);
}
