#include "win32/Dialog.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "win32/DialogModel.h"
#include "win32/DialogTemplate.h"
#include "win32/Error.h"
#include "win32/Module.h"
#include "win32/Queue.h"
#include "win32/View.h"

namespace {

using win32::Birth;
using win32::Dialog;
using win32::TemplateItem;
using win32::ThisThread;

RECT ToPixels(const RECT& units, SIZE base) {
    const auto x = [base](LONG value) { return value * base.cx / 4; };
    const auto y = [base](LONG value) { return value * base.cy / 8; };
    return {x(units.left), y(units.top), x(units.right), y(units.bottom)};
}

Birth BirthOf(const TemplateItem& item, SIZE base, HWND parent, HINSTANCE module) {
    const RECT place = ToPixels(item.place, base);
    return {parent, item.style, item.exStyle, item.text, place, item.id, module};
}

bool MakeControls(Dialog& dialog, const std::vector<TemplateItem>& controls) {
    for (const TemplateItem& item : controls) {
        Birth birth = BirthOf(item, dialog.baseUnits, dialog.Self(), dialog.module);
        birth.style |= WS_CHILD;
        const HWND control = win32::MakeControl(item.className, birth);
        if (control == nullptr) {
            SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
            return false;
        }
        if (dialog.defaultId == 0 &&
            (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0) {
            dialog.defaultId = static_cast<WORD>(item.id);
        }
    }
    return true;
}

// The pixels that dialog units are counted in, as the view's font has them.
SIZE BaseUnits() {
    const win32::View* view = ThisThread().view;
    return view == nullptr ? win32::kBaseUnits : view->BaseUnits();
}

/// Makes a dialog up to its WM_INITDIALOG, hidden; null if that fails or the dialog ends itself.
std::shared_ptr<Dialog> Make(const void* data, std::size_t size, HINSTANCE module, HWND parent,
                             DLGPROC procedure, LPARAM parameter) {
    const auto description = win32::ReadTemplate(data, size);
    if (!description) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const SIZE base = BaseUnits();
    Birth birth = BirthOf(description->dialog, base, parent, module);
    birth.style &= ~WS_VISIBLE;
    const auto dialog = std::make_shared<Dialog>(birth, procedure);
    dialog->baseUnits = base;
    const HWND self = win32::Register(dialog);
    if (!MakeControls(*dialog, description->controls)) {
        DestroyWindow(self);
        return nullptr;
    }
    const HWND first = GetNextDlgTabItem(self, nullptr, FALSE);
    const LRESULT focus =
        SendMessageA(self, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), parameter);
    if (!dialog->Alive()) return nullptr;
    const bool visible = (description->dialog.style & WS_VISIBLE) != 0;
    // A page that comes up hidden leaves the focus where it is.
    const bool takesFocus = visible || !dialog->Has(DS_CONTROL);
    if (focus != FALSE && takesFocus && !dialog->ended) {
        // The procedure may have changed which control comes first.
        if (const HWND control = GetNextDlgTabItem(self, nullptr, FALSE)) {
            win32::FocusControl(control);
        }
    }
    if (visible && !dialog->ended && dialog->Alive()) ShowWindow(self, SW_SHOWNORMAL);
    return dialog->Alive() ? dialog : nullptr;
}

struct Found {
    const void* data = nullptr;
    std::size_t size = 0;
};

Found FindTemplate(HINSTANCE module, LPCSTR name) {
    const HRSRC resource = FindResourceA(module, name, RT_DIALOG);
    if (resource == nullptr) return {};
    return {LockResource(LoadResource(module, resource)), SizeofResource(module, resource)};
}

void EnableOwner(Dialog& dialog) {
    const HWND owner = std::exchange(dialog.disabledOwner, nullptr);
    if (owner != nullptr) EnableWindow(owner, TRUE);
}

/// Runs the dialog's own message loop. WM_QUIT ends it and is left for the loop around.
void RunLoop(Dialog& dialog) {
    win32::ThreadState& thread = ThisThread();
    while (!dialog.ended && dialog.Alive()) {
        MSG message;
        const auto next = thread.queue->Get(message, {}, thread.view);
        if (next != win32::Queue::Next::kMessage) {
            if (next == win32::Queue::Next::kQuit) {
                PostQuitMessage(static_cast<int>(message.wParam));
            }
            dialog.result = -1;
            return;
        }
        if (IsDialogMessageA(dialog.Self(), &message) == FALSE) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
}

INT_PTR Run(Found found, HINSTANCE module, HWND parent, DLGPROC procedure, LPARAM parameter) {
    if (parent != nullptr && IsWindow(parent) == FALSE) return 0;
    const HWND owner = parent == nullptr ? nullptr : GetAncestor(parent, GA_ROOT);
    const auto dialog = Make(found.data, found.size, module, owner, procedure, parameter);
    if (!dialog) return -1;
    if (!dialog->ended) {
        // The owner remembers its focus as it is deactivated, so that comes before it is disabled.
        SetActiveWindow(dialog->Self());
        if (owner != nullptr && EnableWindow(owner, FALSE) == FALSE) dialog->disabledOwner = owner;
        ShowWindow(dialog->Self(), SW_SHOWNORMAL);
        RunLoop(*dialog);
    }
    EnableOwner(*dialog);
    if (dialog->Alive()) DestroyWindow(dialog->Self());
    return dialog->result;
}

constexpr std::size_t kUnknownSize = std::numeric_limits<std::size_t>::max();

}  // namespace

HWND CreateDialogIndirectParamA(HINSTANCE module, LPCDLGTEMPLATEA dialogTemplate, HWND parent,
                                DLGPROC procedure, LPARAM parameter) {
    const auto dialog = Make(dialogTemplate, kUnknownSize, module, parent, procedure, parameter);
    return dialog ? dialog->Self() : nullptr;
}

HWND CreateDialogParamA(HINSTANCE module, LPCSTR name, HWND parent, DLGPROC procedure,
                        LPARAM parameter) {
    const Found found = FindTemplate(module, name);
    if (found.data == nullptr) return nullptr;
    const auto dialog = Make(found.data, found.size, module, parent, procedure, parameter);
    return dialog ? dialog->Self() : nullptr;
}

INT_PTR DialogBoxIndirectParamA(HINSTANCE module, LPCDLGTEMPLATEA dialogTemplate, HWND parent,
                                DLGPROC procedure, LPARAM parameter) {
    return Run({dialogTemplate, kUnknownSize}, module, parent, procedure, parameter);
}

INT_PTR DialogBoxParamA(HINSTANCE module, LPCSTR name, HWND parent, DLGPROC procedure,
                        LPARAM parameter) {
    const Found found = FindTemplate(module, name);
    if (found.data == nullptr) return -1;
    return Run(found, module, parent, procedure, parameter);
}

BOOL EndDialog(HWND dialog, INT_PTR result) {
    const auto found = win32::FindAs<Dialog>(dialog);
    if (!found) return FALSE;
    found->ended = true;
    found->result = result;
    if (IsChild(dialog, GetFocus()) != FALSE) SetFocus(dialog);
    // The activation goes back to the owner, which has to be able to take it.
    EnableOwner(*found);
    ShowWindow(dialog, SW_HIDE);
    return TRUE;
}

BOOL MapDialogRect(HWND dialog, LPRECT place) {
    const auto found = win32::FindAs<Dialog>(dialog);
    if (!found) return FALSE;
    *place = ToPixels(*place, found->baseUnits);
    return TRUE;
}
