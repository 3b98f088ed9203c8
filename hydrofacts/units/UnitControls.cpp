// Units in the controls of a host's dialog.

#include "hydrofacts/units/Units.h"
#include "quillbase/DialogItems.h"
#include "quillbase/Rounding.h"

void Units::AddItemToComboList(HWND dialog, unsigned control, HF_UNIT_TYPES type, int id) {
    const char* text = GetString(type, id);
    const HWND combo = GetDlgItem(dialog, static_cast<int>(control));
    if (text == nullptr || combo == nullptr) return;
    const LRESULT row = SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    if (row >= 0) SendMessageA(combo, CB_SETITEMDATA, static_cast<WPARAM>(row), id);
}

void Units::SetDlgItemDoubleUF(HWND dialog, int control, double value, HF_UNIT_TYPES type, int from,
                               CFluid* fluid) {
    char scratch[32];
    const double shown = RoundIt(Convert(type, value, from, fluid), scratch);
    if (shown != 0.0) {
        SetDlgItemDouble(dialog, control, shown);
    } else {
        SetDlgItemNull(dialog, control);
    }
}
