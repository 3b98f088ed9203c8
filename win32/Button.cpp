#include "win32/Button.h"

#include "win32/Controls.h"
#include "win32/Dialog.h"
#include "win32/Keyboard.h"

namespace {

class Button : public win32::Window {
  public:
    explicit Button(const win32::Birth& birth) : Window("Button", birth) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    DWORD Kind() const { return style & BS_TYPEMASK; }
    bool IsRadio() const { return Kind() == BS_RADIOBUTTON || Kind() == BS_AUTORADIOBUTTON; }
    bool IsPush() const { return Kind() == BS_PUSHBUTTON || Kind() == BS_DEFPUSHBUTTON; }

    LRESULT DialogCode() const;
    void SetCheck(UINT check);
    void CheckAloneInGroup();
    void Release(bool inside);
    void Click();

    UINT check_ = BST_UNCHECKED;
    bool pushed_ = false;
};

LRESULT Button::DialogCode() const {
    switch (Kind()) {
        case BS_PUSHBUTTON:
            return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON:
            return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return DLGC_BUTTON | DLGC_RADIOBUTTON;
        case BS_GROUPBOX:
            return DLGC_STATIC;
        default:
            return DLGC_BUTTON;
    }
}

void Button::SetCheck(UINT check) {
    if (IsPush() || Kind() == BS_GROUPBOX) return;
    const bool threeStates = Kind() == BS_3STATE || Kind() == BS_AUTO3STATE;
    if (check > (threeStates ? BST_INDETERMINATE : BST_CHECKED)) check = BST_CHECKED;
    // Tab goes to the checked one of a group.
    if (IsRadio()) style = check == BST_CHECKED ? style | WS_TABSTOP : style & ~WS_TABSTOP;
    if (check_ == check) return;
    check_ = check;
    Changed();
}

void Button::CheckAloneInGroup() {
    const auto dialog = win32::Find(parent);
    const std::size_t most = dialog ? dialog->children.size() : 0;
    HWND control = Self();
    for (std::size_t i = 0; i < most && control != nullptr; ++i) {
        const bool radio = (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
        if (radio) {
            const UINT check = control == Self() ? BST_CHECKED : BST_UNCHECKED;
            SendMessageA(control, BM_SETCHECK, check, 0);
        }
        control = GetNextDlgGroupItem(parent, control, FALSE);
        if (control == Self()) break;
    }
    SetCheck(BST_CHECKED);
}

void Button::Click() {
    switch (Kind()) {
        case BS_GROUPBOX:
            return;
        case BS_AUTOCHECKBOX:
            SetCheck(check_ == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
            break;
        case BS_AUTO3STATE:
            SetCheck(check_ == BST_INDETERMINATE ? BST_UNCHECKED : check_ + 1);
            break;
        case BS_AUTORADIOBUTTON:
            CheckAloneInGroup();
            break;
        default:
            break;
    }
    Tell(BN_CLICKED);
}

void Button::Release(bool inside) {
    if (!pushed_) return;
    pushed_ = false;
    Changed();
    if (inside) Click();
}

LRESULT Button::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DialogCode();
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (Kind() == BS_GROUPBOX) return 0;
            SetFocus(Self());
            pushed_ = true;
            Changed();
            return 0;
        case WM_LBUTTONUP: {
            const auto x = static_cast<SHORT>(LOWORD(static_cast<ULONG_PTR>(lParam)));
            const auto y = static_cast<SHORT>(HIWORD(static_cast<ULONG_PTR>(lParam)));
            const RECT inside = ClientRect();
            Release(x >= 0 && y >= 0 && x < inside.right && y < inside.bottom);
            return 0;
        }
        case WM_KEYDOWN:
            if (wParam == VK_SPACE) pushed_ = true;
            return 0;
        case WM_KEYUP:
            if (wParam == VK_SPACE) Release(true);
            return 0;
        case WM_SETFOCUS:
            if (Has(BS_NOTIFY)) Tell(BN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            pushed_ = false;
            if (Has(BS_NOTIFY)) Tell(BN_KILLFOCUS);
            return 0;
        case BM_CLICK:
            if (Has(WS_DISABLED)) return 0;
            SendMessageA(Self(), WM_LBUTTONDOWN, 0, 0);
            SendMessageA(Self(), WM_LBUTTONUP, 0, 0);
            return 0;
        case BM_GETCHECK:
            return static_cast<LRESULT>(check_);
        case BM_SETCHECK:
            SetCheck(static_cast<UINT>(wParam));
            return 0;
        case BM_GETSTATE:
            return static_cast<LRESULT>(check_ | (pushed_ ? BST_PUSHED : 0) |
                                        (GetFocus() == Self() ? BST_FOCUS : 0));
        case BM_SETSTATE:
            pushed_ = wParam != 0;
            Changed();
            return 0;
        case BM_SETSTYLE:
            style = (style & ~BS_TYPEMASK) | (static_cast<DWORD>(wParam) & BS_TYPEMASK);
            Changed();
            return 0;
        default:
            return Window::Handle(message, wParam, lParam);
    }
}

}  // namespace

namespace win32 {

std::shared_ptr<Window> NewButton(const Birth& birth) { return std::make_shared<Button>(birth); }

}  // namespace win32
