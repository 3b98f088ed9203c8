#include "hydrofacts/pipe/SizeCombo.h"

#include "hydrofacts/frame/Module.h"
#include "quillbase/CLanguage.h"

namespace hydrofacts {

HWND SizeCombo::In(HWND dialog) {
    constexpr int kSizeCombo = 10104;
    return GetDlgItem(dialog, kSizeCombo);
}

void SizeCombo::Clear() const {
    if (combo_ != nullptr) SendMessageA(combo_, CB_RESETCONTENT, 0, 0);
}

void SizeCombo::Add(char* size) const {
    if (combo_ == nullptr) return;
    const char* text = Language().Number(size);
    SendMessageA(combo_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

}  // namespace hydrofacts
