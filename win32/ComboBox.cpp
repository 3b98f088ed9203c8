#include "win32/ComboBox.h"

#include <array>

#include "win32/Controls.h"
#include "win32/Dialog.h"
#include "win32/Edit.h"
#include "win32/Error.h"
#include "win32/Keyboard.h"
#include "win32/ListBox.h"
#include "win32/Queue.h"

namespace {

constexpr int kListId = 1000;
constexpr int kEditId = 1001;
// What is seen of a combo box while its list is away, in pixels.
constexpr LONG kClosedHeight = 21;

// A combo box is an edit, or none, and a list box, as on Windows; what the two tell it becomes what
// it tells the dialog.
class ComboBox : public win32::Window {
  public:
    explicit ComboBox(const win32::Birth& birth) : Window("ComboBox", birth) {}

    void Born() override;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    COMBOBOXINFO Info() const;

  private:
    DWORD Kind() const { return style & CBS_DROPDOWNLIST; }
    bool HasEdit() const { return edit_ != nullptr; }
    LRESULT ToList(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(list_, message, wParam, lParam);
    }

    LRESULT Rows(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT TextMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT DialogCode(WPARAM key) const;
    std::string SelectedText() const;
    /// Puts the selected row into the edit, which tells nobody.
    void ShowSelection();
    void FromEdit(WORD code);
    void PickedInList();
    void DropDown();
    void RollUp(bool taken);
    void EnterFocus();
    void LeaveFocus(HWND next);
    void PressKey(WPARAM key);

    HWND edit_ = nullptr;
    HWND list_ = nullptr;
    bool dropped_ = false;
    bool focused_ = false;
    bool quiet_ = false;
};

// The template's height is that of the open combo box.
void ComboBox::Born() {
    const RECT open = ClientRect();
    win32::Birth birth;
    birth.parent = Self();
    birth.style = WS_CHILD | LBS_NOTIFY | (Has(CBS_SORT) ? LBS_SORT : 0);
    birth.id = kListId;
    birth.place = {0, kClosedHeight, open.right, std::max(open.bottom, kClosedHeight)};
    list_ = win32::MakeControl(win32::kComboListClass, birth);
    if (Kind() != CBS_DROPDOWNLIST) {
        birth.style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
        birth.id = kEditId;
        birth.place = {0, 0, open.right, kClosedHeight};
        edit_ = win32::MakeControl("Edit", birth);
    }
    if (Kind() != CBS_SIMPLE) place.bottom = place.top + kClosedHeight;
}

COMBOBOXINFO ComboBox::Info() const {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    info.rcItem = ClientRect();
    info.hwndCombo = Self();
    info.hwndItem = HasEdit() ? edit_ : Self();
    info.hwndList = list_;
    return info;
}

std::string ComboBox::SelectedText() const {
    const LRESULT row = ToList(LB_GETCURSEL);
    if (row < 0) return {};
    std::string text(static_cast<std::size_t>(ToList(LB_GETTEXTLEN, static_cast<WPARAM>(row))) + 1,
                     '\0');
    ToList(LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

void ComboBox::ShowSelection() {
    Changed();
    if (!HasEdit()) return;
    quiet_ = true;
    SetWindowTextA(edit_, SelectedText().c_str());
    quiet_ = false;
}

void ComboBox::DropDown() {
    if (dropped_ || Kind() == CBS_SIMPLE) return;
    Tell(CBN_DROPDOWN);
    if (!Alive()) return;
    dropped_ = true;
    ShowWindow(list_, SW_SHOW);
}

void ComboBox::RollUp(bool taken) {
    Tell(taken ? CBN_SELENDOK : CBN_SELENDCANCEL);
    if (!dropped_ || !Alive()) return;
    dropped_ = false;
    ShowWindow(list_, SW_HIDE);
    Tell(CBN_CLOSEUP);
}

// The edit still has its former text when the dialog hears of the pick.
void ComboBox::PickedInList() {
    RollUp(true);
    if (Alive()) Tell(CBN_SELCHANGE);
    if (Alive()) ShowSelection();
}

void ComboBox::FromEdit(WORD code) {
    switch (code) {
        case EN_SETFOCUS:
            EnterFocus();
            break;
        case EN_KILLFOCUS:
            LeaveFocus(GetFocus());
            break;
        case EN_UPDATE:
            if (!quiet_) Tell(CBN_EDITUPDATE);
            break;
        case EN_CHANGE:
            if (quiet_) break;
            ToList(LB_SETCURSEL, static_cast<WPARAM>(-1));
            Tell(CBN_EDITCHANGE);
            break;
        default:
            break;
    }
}

void ComboBox::EnterFocus() {
    if (focused_) return;
    focused_ = true;
    Tell(CBN_SETFOCUS);
}

void ComboBox::LeaveFocus(HWND next) {
    if (!focused_ || next == Self() || IsChild(Self(), next) != FALSE) return;
    focused_ = false;
    RollUp(false);
    if (Alive()) Tell(CBN_KILLFOCUS);
}

void ComboBox::PressKey(WPARAM key) {
    switch (key) {
        case VK_F4:
            SendMessageA(Self(), CB_SHOWDROPDOWN, dropped_ ? FALSE : TRUE, 0);
            return;
        case VK_RETURN:
        case VK_ESCAPE:
            if (dropped_) RollUp(key == VK_RETURN);
            return;
        default:
            break;
    }
    if (!dropped_) {
        ToList(WM_KEYDOWN, key);
        return;
    }
    // In the open list the arrows move on without a pick.
    const LRESULT before = ToList(LB_GETCURSEL);
    quiet_ = true;
    ToList(WM_KEYDOWN, key);
    quiet_ = false;
    if (ToList(LB_GETCURSEL) == before) return;
    Tell(CBN_SELCHANGE);
    if (Alive()) ShowSelection();
}

LRESULT ComboBox::DialogCode(WPARAM key) const {
    const bool closes = dropped_ && (key == VK_RETURN || key == VK_ESCAPE);
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (closes ? DLGC_WANTALLKEYS : 0);
}

LRESULT ComboBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DialogCode(wParam);
        case WM_COMMAND:
            if (LOWORD(wParam) == kEditId) {
                FromEdit(HIWORD(wParam));
            } else if (HIWORD(wParam) == LBN_SELCHANGE && !quiet_) {
                PickedInList();
            }
            return 0;
        case WM_SETFOCUS:
            if (HasEdit()) {
                SetFocus(edit_);
            } else {
                EnterFocus();
            }
            return 0;
        case WM_KILLFOCUS:
            // NOLINTNEXTLINE(performance-no-int-to-ptr): the message carries a handle
            LeaveFocus(reinterpret_cast<HWND>(wParam));
            return 0;
        case WM_LBUTTONDOWN:
            SetFocus(Self());
            if (Alive()) SendMessageA(Self(), CB_SHOWDROPDOWN, dropped_ ? FALSE : TRUE, 0);
            return 0;
        case WM_KEYDOWN:
            PressKey(wParam);
            return 0;
        case WM_CHAR:
            return HasEdit() ? SendMessageA(edit_, message, wParam, lParam)
                             : ToList(message, wParam, lParam);
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
            return TextMessage(message, wParam, lParam);
        default:
            return Rows(message, wParam, lParam);
    }
}

LRESULT ComboBox::TextMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT) {
        if (!HasEdit()) return CB_ERR;
        quiet_ = true;
        const LRESULT result = SendMessageA(edit_, message, wParam, lParam);
        quiet_ = false;
        return result;
    }
    if (HasEdit()) return SendMessageA(edit_, message, wParam, lParam);
    const std::string text = SelectedText();
    return message == WM_GETTEXT ? win32::CopyText(text, wParam, lParam)
                                 : static_cast<LRESULT>(text.size());
}

struct SameMessage {
    UINT combo;
    UINT list;
};

// clang-format off
constexpr std::array kSameMessages{
    SameMessage{CB_ADDSTRING, LB_ADDSTRING},
    SameMessage{CB_INSERTSTRING, LB_INSERTSTRING},
    SameMessage{CB_DELETESTRING, LB_DELETESTRING},
    SameMessage{CB_GETCOUNT, LB_GETCOUNT},
    SameMessage{CB_GETCURSEL, LB_GETCURSEL},
    SameMessage{CB_GETLBTEXT, LB_GETTEXT},
    SameMessage{CB_GETLBTEXTLEN, LB_GETTEXTLEN},
    SameMessage{CB_FINDSTRING, LB_FINDSTRING},
    SameMessage{CB_FINDSTRINGEXACT, LB_FINDSTRINGEXACT},
    SameMessage{CB_GETITEMDATA, LB_GETITEMDATA},
    SameMessage{CB_SETITEMDATA, LB_SETITEMDATA},
};
// clang-format on

LRESULT ComboBox::Rows(UINT message, WPARAM wParam, LPARAM lParam) {
    for (const SameMessage& same : kSameMessages) {
        if (same.combo == message) return ToList(same.list, wParam, lParam);
    }
    switch (message) {
        case CB_SETCURSEL:
        case CB_SELECTSTRING: {
            const bool clear = message == CB_SETCURSEL && static_cast<int>(wParam) == -1;
            const UINT ask = message == CB_SETCURSEL ? LB_SETCURSEL : LB_SELECTSTRING;
            const LRESULT row = ToList(ask, wParam, lParam);
            if (row != LB_ERR || clear) ShowSelection();
            return row;
        }
        case CB_RESETCONTENT:
            ToList(LB_RESETCONTENT);
            ShowSelection();
            return TRUE;
        case CB_SHOWDROPDOWN:
            if (wParam != 0) {
                DropDown();
            } else if (dropped_) {
                RollUp(false);
            }
            return TRUE;
        case CB_GETDROPPEDSTATE:
            return dropped_ ? TRUE : FALSE;
        case CB_LIMITTEXT:
            if (HasEdit()) SendMessageA(edit_, EM_SETLIMITTEXT, wParam, 0);
            return TRUE;
        case CB_GETEDITSEL:
            return HasEdit() ? SendMessageA(edit_, EM_GETSEL, wParam, lParam) : CB_ERR;
        case CB_SETEDITSEL: {
            if (!HasEdit()) return CB_ERR;
            const auto first = static_cast<SHORT>(LOWORD(static_cast<ULONG_PTR>(lParam)));
            const auto last = static_cast<SHORT>(HIWORD(static_cast<ULONG_PTR>(lParam)));
            SendMessageA(edit_, EM_SETSEL, static_cast<WPARAM>(first), last);
            return TRUE;
        }
        default:
            return Window::Handle(message, wParam, lParam);
    }
}

}  // namespace

namespace win32 {

std::shared_ptr<Window> NewComboBox(const Birth& birth) {
    return std::make_shared<ComboBox>(birth);
}

}  // namespace win32

BOOL GetComboBoxInfo(HWND combo, COMBOBOXINFO* info) {
    const auto found = win32::FindAs<ComboBox>(combo);
    if (!found || info->cbSize != sizeof *info) {
        SetLastError(found ? ERROR_INVALID_PARAMETER : ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    *info = found->Info();
    return TRUE;
}
