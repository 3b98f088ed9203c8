#include "demo/Page.h"

namespace demo {

INT_PTR CALLBACK Page::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        auto* const page = reinterpret_cast<Page*>(lParam);
        page->dialog_ = dialog;
        page->layout_.Note(dialog, page->Follows());
        page->Init();
        page->Relabel();
        return FALSE;  // the focus is the main dialog's to set
    }
    auto* const page = reinterpret_cast<Page*>(GetWindowLongPtrA(dialog, DWLP_USER));
    return page != nullptr && page->Handle(message, wParam, lParam) ? TRUE : FALSE;
}

bool Page::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            return Command(LOWORD(wParam), HIWORD(wParam), lParam);
        case WM_NOTIFY:
            return Notify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_SIZE:
            layout_.Apply();
            return true;
        default:
            return Other(message, wParam, lParam);
    }
}

bool Page::Create(HWND parent) {
    const win32::DialogBuilder form = Form();
    return CreateDialogIndirectParamA(GetModuleHandleA(nullptr), form.Template(), parent,
                                      &Procedure, reinterpret_cast<LPARAM>(this)) != nullptr;
}

void Page::Place(const RECT& place) const {
    MoveWindow(dialog_, static_cast<int>(place.left), static_cast<int>(place.top),
               static_cast<int>(place.right - place.left),
               static_cast<int>(place.bottom - place.top), TRUE);
}

void Page::Show(bool show) { ShowWindow(dialog_, show ? SW_SHOW : SW_HIDE); }

void Page::Relabel() {
    for (const Label& label : Labels()) Put(label.control, Say(label.text));
}

}  // namespace demo
