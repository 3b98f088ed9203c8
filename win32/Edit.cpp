#include "win32/Edit.h"

#include <algorithm>
#include <limits>

#include "win32/ComboBox.h"
#include "win32/Controls.h"
#include "win32/Dialog.h"
#include "win32/Keyboard.h"
#include "win32/Text.h"

namespace {

using win32::TextAt;

// What a user can type into an edit that nobody has limited.
constexpr std::size_t kDefaultLimit = 30000;

class Edit : public win32::Window {
  public:
    explicit Edit(const win32::Birth& birth) : Window("Edit", birth) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    std::size_t First() const { return std::min(anchor_, caret_); }
    std::size_t Last() const { return std::max(anchor_, caret_); }
    bool InComboBox() const;

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT DialogCode(WPARAM key, LPARAM asked) const;
    void SetText(std::string_view text);
    std::string InCase(std::string_view text) const;
    /// Replaces the selection; what doesn't fit is left out.
    void Replace(std::string_view text);
    void Typed(char c);
    void PressKey(WPARAM key);
    void MoveCaret(std::size_t to);
    void Select(LONG_PTR first, LONG_PTR last);
    LRESULT Selection(WPARAM first, LPARAM last) const;
    void TellOfChange();

    std::size_t anchor_ = 0;  // where the selection was begun
    std::size_t caret_ = 0;   // and where it ends
    std::size_t limit_ = kDefaultLimit;
    bool modified_ = false;
};

bool Edit::InComboBox() const {
    const auto holder = win32::Find(parent);
    return holder && holder->className == "ComboBox";
}

LRESULT Edit::DialogCode(WPARAM key, LPARAM asked) const {
    LRESULT code = DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    if (Has(ES_MULTILINE) && (key != VK_TAB)) code |= DLGC_WANTALLKEYS;
    if (InComboBox()) code |= SendMessageA(parent, WM_GETDLGCODE, key, asked) & DLGC_WANTALLKEYS;
    return code;
}

std::string Edit::InCase(std::string_view text) const {
    std::string result(text);
    if (Has(ES_UPPERCASE)) std::ranges::transform(result, result.begin(), &win32::ToUpper);
    return result;
}

void Edit::TellOfChange() {
    Changed();
    Tell(EN_UPDATE);
    if (Alive()) Tell(EN_CHANGE);
}

void Edit::SetText(std::string_view text) {
    text_ = InCase(text);
    anchor_ = caret_ = 0;
    modified_ = false;
    if (Has(ES_MULTILINE)) {
        Changed();
    } else {
        TellOfChange();
    }
}

void Edit::Replace(std::string_view text) {
    const std::size_t kept = text_.size() - (Last() - First());
    const std::size_t room = limit_ > kept ? limit_ - kept : 0;
    if (text.size() > room) {
        Tell(EN_MAXTEXT);
        if (!Alive()) return;
        text = text.substr(0, room);
    }
    text_.replace(First(), Last() - First(), InCase(text));
    anchor_ = caret_ = First() + text.size();
    modified_ = true;
    TellOfChange();
}

void Edit::Typed(char c) {
    if (Has(ES_READONLY)) return;
    if (c == '\b') {
        if (First() == Last() && First() > 0) anchor_ = caret_ - 1;
        if (First() != Last()) Replace("");
        return;
    }
    const bool newLine = c == '\r' && Has(ES_MULTILINE);
    const bool control = static_cast<unsigned char>(c) < ' ' || c == '\x7F';
    if ((control && !newLine) || (Has(ES_NUMBER) && (c < '0' || c > '9'))) return;
    const std::string_view text = newLine ? std::string_view("\r\n") : std::string_view(&c, 1);
    // A character that doesn't fit changes nothing.
    if (text_.size() - (Last() - First()) + text.size() > limit_) {
        Tell(EN_MAXTEXT);
    } else {
        Replace(text);
    }
}

void Edit::MoveCaret(std::size_t to) {
    caret_ = std::min(to, text_.size());
    if (GetKeyState(VK_SHIFT) >= 0) anchor_ = caret_;
    Changed();
}

void Edit::PressKey(WPARAM key) {
    switch (key) {
        case VK_LEFT:
            MoveCaret(caret_ == 0 ? 0 : caret_ - 1);
            break;
        case VK_RIGHT:
            MoveCaret(caret_ + 1);
            break;
        case VK_HOME:
            MoveCaret(0);
            break;
        case VK_END:
            MoveCaret(text_.size());
            break;
        case VK_DELETE:
            if (Has(ES_READONLY)) break;
            if (First() == Last() && Last() < text_.size()) anchor_ = caret_ + 1;
            if (First() != Last()) Replace("");
            break;
        default:
            if (InComboBox()) SendMessageA(parent, WM_KEYDOWN, key, 0);
    }
}

void Edit::Select(LONG_PTR first, LONG_PTR last) {
    const auto length = static_cast<LONG_PTR>(text_.size());
    if (first < 0) {  // nothing selected any more
        anchor_ = caret_;
    } else {
        anchor_ = static_cast<std::size_t>(std::min(first, length));
        caret_ = static_cast<std::size_t>(last < 0 ? length : std::min(last, length));
    }
    Changed();
}

LRESULT Edit::Selection(WPARAM first, LPARAM last) const {
    // NOLINTBEGIN(performance-no-int-to-ptr): the message carries addresses, or null
    if (first != 0) *reinterpret_cast<DWORD*>(first) = static_cast<DWORD>(First());
    if (last != 0) *reinterpret_cast<DWORD*>(last) = static_cast<DWORD>(Last());
    // NOLINTEND(performance-no-int-to-ptr)
    return static_cast<LRESULT>(MAKELONG(First(), Last()));
}

LRESULT Edit::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DialogCode(wParam, lParam);
        case WM_SETTEXT:
            SetText(TextAt(lParam));
            return TRUE;
        case WM_CHAR:
            Typed(static_cast<char>(wParam));
            return 0;
        case WM_KEYDOWN:
            PressKey(wParam);
            return 0;
        case WM_LBUTTONDOWN:
            SetFocus(Self());
            return 0;
        case WM_SETFOCUS:
            Tell(EN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            Tell(EN_KILLFOCUS);
            return 0;
        case WM_CLEAR:
            if (First() != Last()) Replace("");
            return 0;
        default:
            return Answer(message, wParam, lParam);
    }
}

LRESULT Edit::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr std::size_t kNoLimit = std::numeric_limits<int>::max() - 1;
    switch (message) {
        case EM_GETSEL:
            return Selection(wParam, lParam);
        case EM_SETSEL:
            Select(static_cast<int>(wParam), static_cast<int>(lParam));
            return 0;
        case EM_REPLACESEL:
            Replace(TextAt(lParam));
            return 0;
        case EM_GETMODIFY:
            return modified_ ? TRUE : FALSE;
        case EM_SETMODIFY:
            modified_ = wParam != 0;
            return 0;
        case EM_GETLIMITTEXT:
            return static_cast<LRESULT>(limit_);
        case EM_SETLIMITTEXT:
            limit_ = wParam == 0 ? kNoLimit : std::min<std::size_t>(wParam, kNoLimit);
            return 0;
        case EM_SETREADONLY:
            style = wParam != 0 ? style | ES_READONLY : style & ~ES_READONLY;
            Changed();
            return TRUE;
        default:
            return Window::Handle(message, wParam, lParam);
    }
}

}  // namespace

namespace win32 {

std::shared_ptr<Window> NewEdit(const Birth& birth) { return std::make_shared<Edit>(birth); }

}  // namespace win32
