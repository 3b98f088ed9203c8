#include "hydrofacts/pipe/SizeCombo.h"

#include "hydrofacts/frame/Module.h"
#include "quillbase/CLanguage.h"

namespace hydrofacts {

// Only Windows has windows to send to: elsewhere every handle is null.
#ifdef _WIN32

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

#else

HWND SizeCombo::In(HWND) { return nullptr; }

void SizeCombo::Clear() const {}

void SizeCombo::Add(char*) const {}

#endif

}  // namespace hydrofacts
