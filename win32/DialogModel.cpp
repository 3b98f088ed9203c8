#include "win32/DialogModel.h"

#include <utility>

#include "win32/Edit.h"

namespace win32 {

void FocusControl(HWND control) {
    if ((SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
        SendMessageA(control, EM_SETSEL, 0, -1);
    }
    SetFocus(control);
}

Dialog::Dialog(const Birth& birth, DLGPROC dialogProcedure)
    : Window(kDialogClass, birth), dialogProcedure_(reinterpret_cast<LONG_PTR>(dialogProcedure)) {}

LONG_PTR* Dialog::Extra(int index) {
    switch (index) {
        case DWLP_MSGRESULT:
            return &messageResult_;
        case DWLP_DLGPROC:
            return &dialogProcedure_;
        case DWLP_USER:
            return &user_;
        default:
            return nullptr;
    }
}

LRESULT Dialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    messageResult_ = 0;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): hosts set it as a number
    const auto hosts = reinterpret_cast<DLGPROC>(dialogProcedure_);
    const INT_PTR handled = hosts == nullptr ? FALSE : hosts(Self(), message, wParam, lParam);
    if (message == WM_INITDIALOG) return handled;
    if (handled != FALSE) return messageResult_;
    return Alive() ? Default(message, wParam, lParam) : 0;
}

LRESULT Dialog::Default(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CLOSE: {
            const HWND cancel = GetDlgItem(Self(), IDCANCEL);
            if (cancel != nullptr && IsWindowEnabled(cancel) == FALSE) return 0;
            PostMessageA(Self(), WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(cancel));
            return 0;
        }
        case WM_SETFOCUS:
            RestoreFocus(false);
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE) {
                SaveFocus();
            } else {
                RestoreFocus(true);
            }
            return 0;
        case WM_SHOWWINDOW:
            if (wParam == FALSE) SaveFocus();
            return 0;
        case WM_NEXTDLGCTL:
            GoToControl(wParam, lParam);
            return 0;
        case DM_GETDEFID:
            return defaultId == 0 ? 0 : static_cast<LRESULT>(MAKELONG(defaultId, DC_HASDEFID));
        case DM_SETDEFID:
            defaultId = LOWORD(wParam);
            return TRUE;
        default:
            return Window::Handle(message, wParam, lParam);
    }
}

void Dialog::SaveFocus() {
    const HWND focus = GetFocus();
    if (IsChild(Self(), focus) != FALSE) savedFocus_ = focus;
}

void Dialog::RestoreFocus(bool activated) {
    if (ended) return;
    if (savedFocus_ == nullptr || IsWindow(savedFocus_) == FALSE) {
        if (activated) return;
        savedFocus_ = GetNextDlgTabItem(Self(), nullptr, FALSE);
        if (savedFocus_ == nullptr) return;
    }
    const HWND control = std::exchange(savedFocus_, nullptr);
    if (activated) {
        SetFocus(control);
    } else {
        FocusControl(control);
    }
}

void Dialog::GoToControl(WPARAM wParam, LPARAM lParam) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the message carries a handle so
    HWND control = reinterpret_cast<HWND>(wParam);
    if (lParam == 0) control = GetNextDlgTabItem(Self(), GetFocus(), wParam != 0 ? TRUE : FALSE);
    if (control != nullptr) FocusControl(control);
}

}  // namespace win32

LRESULT DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = win32::FindAs<win32::Dialog>(dialog);
    return found ? found->Default(message, wParam, lParam) : 0;
}
