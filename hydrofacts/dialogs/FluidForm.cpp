#include "hydrofacts/dialogs/FluidForm.h"

#include <array>

#include "hydrofacts/frame/Module.h"
#include "quillbase/CLanguage.h"
#include "quillbase/DialogItems.h"

namespace hydrofacts {
namespace {

using MessageText = std::array<char, kConditionMessageSize>;

}  // namespace

void FluidForm::GetText(int control, char* text, int size) const {
    GetDlgItemTextA(dialog_, control, text, size);
}

void FluidForm::SetText(int control, const char* text) const {
    SetDlgItemTextA(dialog_, control, text);
}

bool FluidForm::HoldsText(int control) const {
    char text[15];
    return GetDlgItemTextA(dialog_, control, text, sizeof text) != 0;
}

bool FluidForm::HoldsConditions() const {
    return HoldsText(kTemperature) && (!Has(kPressure) || HoldsText(kPressure));
}

double FluidForm::Number(int control) const { return GetDlgItemDouble(dialog_, control); }

void FluidForm::Show(int control, double value) const { SetDlgItemDouble(dialog_, control, value); }

void FluidForm::Empty(int control) const { SetDlgItemNull(dialog_, control); }

int FluidForm::SelectedRow() const {
    return static_cast<int>(SendDlgItemMessageA(dialog_, kFluidList, LB_GETCURSEL, 0, 0));
}

void FluidForm::Select(int row) const {
    SendDlgItemMessageA(dialog_, kFluidList, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

int FluidForm::FindRow(const char* text) const {
    constexpr int kFromTheStart = -1;
    return static_cast<int>(SendDlgItemMessageA(dialog_, kFluidList, LB_FINDSTRINGEXACT,
                                                static_cast<WPARAM>(kFromTheStart),
                                                reinterpret_cast<LPARAM>(text)));
}

std::string FluidForm::RowText(int row) const {
    const HWND list = Item(kFluidList);
    const LRESULT length = SendMessageA(list, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0);
    if (length <= 0) return {};
    std::string text(static_cast<std::size_t>(length), '\0');
    SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

void FluidForm::CheckLiquid() const {
    CheckRadioButton(dialog_, kLiquidButton, kVaporButton, kLiquidButton);
}

void FluidForm::CheckVapor() const {
    CheckRadioButton(dialog_, kLiquidButton, kVaporButton, kVaporButton);
}

bool FluidForm::VaporIsChecked() const { return IsDlgButtonChecked(dialog_, kVaporButton) != 0; }

void FluidForm::Disable(int first, int last) const {
    for (int control = first; control <= last; ++control) EnableWindow(Item(control), FALSE);
}

void FluidForm::ShowMessage(int control, FluidMessage message, int size) const {
    MessageText text{};
    Language().String(ModuleHandle(), message, text.data(), size);
    SetText(control, text.data());
}

void FluidForm::ShowMessage(int control, FluidMessage message, int size, const char* name) const {
    MessageText text{};
    Language().FormatString(ModuleHandle(), message, text.data(), size, name);
    SetText(control, text.data());
}

}  // namespace hydrofacts
