// What Tab, the arrows, Enter, Escape and the underlined letters do in a dialog.

#include <algorithm>

#include "win32/Button.h"
#include "win32/CodePage.h"
#include "win32/DialogModel.h"
#include "win32/Keyboard.h"
#include "win32/Text.h"

namespace {

using win32::Dialog;
using win32::Find;
using win32::FindAs;

bool CanGoTo(HWND control, DWORD style) {
    const auto found = Find(control);
    return found && found->Has(WS_VISIBLE | style) && !found->Has(WS_DISABLED);
}

// The controls that keys lead to, in their order: those of pages (WS_EX_CONTROLPARENT) in the place
// of the page, unless it is hidden or disabled.
void Gather(HWND dialog, std::vector<HWND>& controls) {
    const auto found = Find(dialog);
    if (!found) return;
    for (const HWND child : found->children) {
        const auto control = Find(child);
        if (!control || (control->exStyle & WS_EX_CONTROLPARENT) == 0) {
            controls.push_back(child);
        } else if (CanGoTo(child, 0)) {
            Gather(child, controls);
        }
    }
}

std::vector<HWND> ControlsOf(HWND dialog) {
    std::vector<HWND> controls;
    Gather(dialog, controls);
    return controls;
}

// The dialog, or its page, that a control stands on.
HWND PageOf(HWND dialog, HWND control) {
    for (HWND page = GetAncestor(control, GA_PARENT); page != nullptr && page != dialog;
         page = GetAncestor(page, GA_PARENT)) {
        const auto found = Find(page);
        if (found && (found->exStyle & WS_EX_CONTROLPARENT) != 0) return page;
    }
    return dialog;
}

// The control of the dialog that holds a window: the focus may lie deeper, in a combo box.
std::size_t IndexOf(const std::vector<HWND>& controls, HWND window) {
    const auto found = std::find_if(controls.begin(), controls.end(), [&](HWND control) {
        return control == window || IsChild(control, window) != FALSE;
    });
    return static_cast<std::size_t>(found - controls.begin());
}

// From where a walk round `count` controls goes on.
std::size_t Step(std::size_t index, std::size_t count, bool back) {
    if (back) return index == 0 ? count - 1 : index - 1;
    return index + 1 == count ? 0 : index + 1;
}

bool StartsGroup(HWND control) {
    const auto found = Find(control);
    return found && found->Has(WS_GROUP);
}

LRESULT CodeOf(HWND control) { return SendMessageA(control, WM_GETDLGCODE, 0, 0); }

bool IsRadioButton(HWND control) { return (CodeOf(control) & DLGC_RADIOBUTTON) != 0; }

void GoToNeighbour(HWND dialog, HWND from, bool back) {
    const HWND next = GetNextDlgGroupItem(dialog, from, back ? TRUE : FALSE);
    if (next == nullptr || next == from) return;
    if (!IsRadioButton(next)) {
        win32::FocusControl(next);
        return;
    }
    SetFocus(next);
    const auto button = Find(next);
    const bool automatic = button && (button->style & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
    if (automatic && SendMessageA(next, BM_GETCHECK, 0, 0) == BST_UNCHECKED) {
        SendMessageA(next, BM_CLICK, 0, 0);
    }
}

void Command(HWND dialog, WORD id, HWND control) {
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(control));
}

// A push button with the focus is pressed, else the default one.
void PressEnter(HWND dialog, HWND focus) {
    constexpr LRESULT kPush = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    if (IsChild(dialog, focus) != FALSE && (CodeOf(focus) & kPush) != 0) {
        Command(PageOf(dialog, focus), static_cast<WORD>(GetDlgCtrlID(focus)), focus);
        return;
    }
    const LRESULT id = SendMessageA(dialog, DM_GETDEFID, 0, 0);
    const bool known = HIWORD(static_cast<ULONG_PTR>(id)) == DC_HASDEFID;
    const WORD pressed = known ? LOWORD(static_cast<ULONG_PTR>(id)) : WORD{IDOK};
    const HWND button = GetDlgItem(dialog, pressed);
    if (button == nullptr || IsWindowEnabled(button) != FALSE) Command(dialog, pressed, button);
}

// True if the key is the dialog's and has been handled.
bool HandleKey(HWND dialog, const MSG& message) {
    const LRESULT code = SendMessageA(message.hwnd, WM_GETDLGCODE, message.wParam,
                                      reinterpret_cast<LPARAM>(&message));
    if ((code & DLGC_WANTALLKEYS) != 0) return false;
    switch (message.wParam) {
        case VK_TAB:
            if ((code & DLGC_WANTTAB) != 0) return false;
            SendMessageA(dialog, WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0 ? TRUE : FALSE, 0);
            return true;
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
            if ((code & DLGC_WANTARROWS) != 0) return false;
            GoToNeighbour(dialog, message.hwnd,
                          message.wParam == VK_LEFT || message.wParam == VK_UP);
            return true;
        case VK_ESCAPE:
            if (IsWindowEnabled(dialog) == FALSE) return true;
            Command(dialog, IDCANCEL, GetDlgItem(dialog, IDCANCEL));
            return true;
        case VK_RETURN:
            PressEnter(dialog, GetFocus());
            return true;
        default:
            return false;
    }
}

// The letter after the first & that is not doubled, as a capital; 0 if there is none.
char Mnemonic(std::string_view text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] != '&') return win32::ToUpper(text[i + 1]);
        ++i;
    }
    return '\0';
}

// An underlined letter presses its button, or leads from its label to the control behind.
bool HandleMnemonic(HWND dialog, char letter) {
    for (const HWND handle : ControlsOf(dialog)) {
        const auto control = Find(handle);
        const LRESULT code = CodeOf(handle);
        const bool labelled = (code & (DLGC_STATIC | DLGC_BUTTON)) != 0;
        if (!control || !labelled || !CanGoTo(handle, 0) || Mnemonic(control->Text()) != letter) {
            continue;
        }
        if ((code & DLGC_BUTTON) != 0 && (code & DLGC_STATIC) == 0) {
            SendMessageA(handle, BM_CLICK, 0, 0);
        } else if (const HWND next = GetNextDlgTabItem(dialog, handle, FALSE)) {
            win32::FocusControl(next);
        }
        return true;
    }
    return false;
}

bool HandleCharacter(HWND dialog, const MSG& message) {
    const auto letter = win32::ToUpper(static_cast<char>(message.wParam));
    if (message.message == WM_SYSCHAR) return HandleMnemonic(dialog, letter);
    const LRESULT code = CodeOf(message.hwnd);
    if ((code & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) != 0) return false;
    return message.wParam > VK_SPACE && HandleMnemonic(dialog, letter);
}

}  // namespace

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
    const std::vector<HWND> all = ControlsOf(dialog);
    if (all.empty()) return nullptr;
    const bool back = previous != FALSE;
    const std::size_t start = control == nullptr ? all.size() : IndexOf(all, control);
    std::size_t at = start == all.size() ? (back ? 0 : all.size() - 1) : start;
    for (std::size_t i = 0; i < all.size(); ++i) {
        at = Step(at, all.size(), back);
        if (CanGoTo(all[at], WS_TABSTOP)) return all[at];
    }
    return start == all.size() ? nullptr : all[start];
}

HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) {
    const auto found = Find(PageOf(dialog, control));
    if (!found || found->children.empty()) return nullptr;
    const auto& all = found->children;
    std::size_t first = control == nullptr ? 0 : IndexOf(all, control);
    if (first == all.size()) return nullptr;
    const std::size_t start = first;
    while (first > 0 && !StartsGroup(all[first])) --first;
    std::size_t last = start + 1;
    while (last < all.size() && !StartsGroup(all[last])) ++last;
    std::size_t at = start - first;
    for (std::size_t i = first; i < last; ++i) {
        at = Step(at, last - first, previous != FALSE);
        if (CanGoTo(all[first + at], 0)) return all[first + at];
    }
    return control;
}

BOOL IsDialogMessageA(HWND dialog, LPMSG message) {
    if (!FindAs<Dialog>(dialog)) return FALSE;
    if (message->hwnd != dialog && IsChild(dialog, message->hwnd) == FALSE) return FALSE;
    const bool key = message->message == WM_KEYDOWN;
    const bool character = message->message == WM_CHAR || message->message == WM_SYSCHAR;
    if (key && HandleKey(dialog, *message)) return TRUE;
    if (character && HandleCharacter(dialog, *message)) return TRUE;
    TranslateMessage(message);
    DispatchMessageA(message);
    return TRUE;
}
