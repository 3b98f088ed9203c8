#include "win32/ListBox.h"

#include <algorithm>
#include <optional>

#include "win32/Controls.h"
#include "win32/Dialog.h"
#include "win32/Keyboard.h"
#include "win32/Text.h"

namespace {

using win32::TextAt;

// A row is as high as the font of dialogs.
constexpr int kRowHeight = 13;

class ListBox : public win32::Window {
  public:
    explicit ListBox(const win32::Birth& birth) : Window("ListBox", birth) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    struct Row {
        std::string text;
        LPARAM data = 0;
    };

    int Count() const { return static_cast<int>(rows_.size()); }
    bool IsRow(int index) const { return index >= 0 && index < Count(); }
    const Row& At(int index) const { return rows_[static_cast<std::size_t>(index)]; }
    bool DropsDown() const { return className == win32::kComboListClass; }
    int RowsShown() const { return std::max(1, (place.bottom - place.top) / kRowHeight); }
    void Notify(WORD code) const;

    LRESULT Rows(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Search(UINT message, int after, std::string_view text);
    LRESULT Places(UINT message, WPARAM wParam, LPARAM lParam);

    LRESULT Insert(int index, std::string_view text);
    LRESULT Delete(int index);
    LRESULT SetSelection(int index);
    /// The first row after `after`, round the end, that begins with a text or is one.
    int Find(int after, std::string_view text, bool whole) const;
    int SortedPlace(std::string_view text) const;
    void Show(int index);

    void SelectByUser(int index);
    void PressKey(WPARAM key);
    int RowAt(LPARAM point) const;
    LRESULT Press(UINT message, LPARAM point);

    std::vector<Row> rows_;
    int selected_ = -1;
    int top_ = 0;
};

void ListBox::Notify(WORD code) const {
    if (Has(LBS_NOTIFY)) Tell(code);
}

int ListBox::SortedPlace(std::string_view text) const {
    const auto behind = std::upper_bound(
        rows_.begin(), rows_.end(), text,
        [](std::string_view a, const Row& b) { return win32::CompareForSorting(a, b.text) < 0; });
    return static_cast<int>(behind - rows_.begin());
}

LRESULT ListBox::Insert(int index, std::string_view text) {
    if (index == -1) index = Count();
    if (index < 0 || index > Count()) return LB_ERR;
    rows_.insert(rows_.begin() + index, Row{std::string(text)});
    if (index <= selected_) ++selected_;
    Changed();
    return index;
}

LRESULT ListBox::Delete(int index) {
    if (!IsRow(index)) return LB_ERR;
    rows_.erase(rows_.begin() + index);
    if (index == selected_) {
        selected_ = -1;
    } else if (index < selected_) {
        --selected_;
    }
    top_ = std::min(top_, std::max(0, Count() - 1));
    Changed();
    return Count();
}

void ListBox::Show(int index) {
    if (index < top_) top_ = index;
    if (index >= top_ + RowsShown()) top_ = index - RowsShown() + 1;
}

LRESULT ListBox::SetSelection(int index) {
    if (index != -1 && !IsRow(index)) return LB_ERR;
    selected_ = index;
    if (index != -1) Show(index);
    Changed();
    return index;
}

int ListBox::Find(int after, std::string_view text, bool whole) const {
    if (whole && text.empty()) return -1;
    if (!IsRow(after)) after = -1;
    for (int i = 1; i <= Count(); ++i) {
        const int index = (after + i) % Count();
        const std::string& row = At(index).text;
        if (whole ? win32::EqualWithoutCase(row, text) : win32::StartsWithoutCase(row, text)) {
            return index;
        }
    }
    return -1;
}

LRESULT ListBox::Search(UINT message, int after, std::string_view text) {
    const int found = Find(after, text, message == LB_FINDSTRINGEXACT);
    if (message == LB_SELECTSTRING && found != -1) SetSelection(found);
    return found;
}

LRESULT ListBox::Rows(UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
        case LB_ADDSTRING:
            return Insert(Has(LBS_SORT) ? SortedPlace(TextAt(lParam)) : -1, TextAt(lParam));
        case LB_INSERTSTRING:
            return Insert(index, TextAt(lParam));
        case LB_DELETESTRING:
            return Delete(index);
        case LB_RESETCONTENT:
            rows_.clear();
            selected_ = -1;
            top_ = 0;
            Changed();
            return 0;
        case LB_GETCOUNT:
            return Count();
        case LB_GETTEXT:
            if (!IsRow(index)) return LB_ERR;
            return win32::CopyText(At(index).text, At(index).text.size() + 1, lParam);
        case LB_GETTEXTLEN:
            return IsRow(index) ? static_cast<LRESULT>(At(index).text.size()) : LB_ERR;
        case LB_GETITEMDATA:
            return IsRow(index) ? At(index).data : LB_ERR;
        case LB_SETITEMDATA:
            if (!IsRow(index)) return LB_ERR;
            rows_[static_cast<std::size_t>(index)].data = lParam;
            return TRUE;
        case LB_GETCURSEL:
            return selected_;
        case LB_SETCURSEL:
            return SetSelection(index);
        case LB_FINDSTRING:
        case LB_FINDSTRINGEXACT:
        case LB_SELECTSTRING:
            return Search(message, index, TextAt(lParam));
        default:
            return Places(message, wParam, lParam);
    }
}

LRESULT ListBox::Places(UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
        case LB_GETITEMHEIGHT:
            return kRowHeight;
        case LB_GETTOPINDEX:
            return top_;
        case LB_SETTOPINDEX:
            if (!IsRow(index)) return LB_ERR;
            top_ = std::clamp(index, 0, std::max(0, Count() - RowsShown()));
            Changed();
            return 0;
        case LB_GETITEMRECT: {
            if (!IsRow(index)) return LB_ERR;
            const LONG y = (index - top_) * kRowHeight;
            // NOLINTNEXTLINE(performance-no-int-to-ptr): the message carries an address
            *reinterpret_cast<RECT*>(lParam) = {0, y, ClientRect().right, y + kRowHeight};
            return TRUE;
        }
        default:
            return Window::Handle(message, wParam, lParam);
    }
}

void ListBox::SelectByUser(int index) {
    if (!IsRow(index)) return;
    SetSelection(index);
    Notify(LBN_SELCHANGE);
}

void ListBox::PressKey(WPARAM key) {
    const int last = Count() - 1;
    int to = 0;
    switch (key) {
        case VK_UP:
        case VK_LEFT:
            to = selected_ - 1;
            break;
        case VK_DOWN:
        case VK_RIGHT:
            to = selected_ + 1;
            break;
        case VK_PRIOR:
            to = selected_ - RowsShown();
            break;
        case VK_NEXT:
            to = selected_ + RowsShown();
            break;
        case VK_HOME:
            to = 0;
            break;
        case VK_END:
            to = last;
            break;
        default:
            return;
    }
    to = std::clamp(to, 0, std::max(0, last));
    if (to != selected_) SelectByUser(to);
}

int ListBox::RowAt(LPARAM point) const {
    const auto y = static_cast<SHORT>(HIWORD(static_cast<ULONG_PTR>(point)));
    return y < 0 ? -1 : top_ + y / kRowHeight;
}

LRESULT ListBox::Press(UINT message, LPARAM point) {
    const int row = RowAt(point);
    if (DropsDown()) {
        // The pick is complete when the button comes up.
        if (message == WM_LBUTTONUP) {
            SelectByUser(row);
        } else if (IsRow(row)) {
            SetSelection(row);
        }
        return 0;
    }
    if (message == WM_LBUTTONUP) return 0;
    SetFocus(Self());
    if (!Alive()) return 0;
    if (message == WM_LBUTTONDBLCLK && IsRow(row)) {
        Notify(LBN_DBLCLK);
    } else {
        SelectByUser(row);
    }
    return 0;
}

LRESULT ListBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
            return Press(message, lParam);
        case WM_KEYDOWN:
            PressKey(wParam);
            return 0;
        case WM_CHAR: {
            const char typed = static_cast<char>(wParam);
            if (wParam > VK_SPACE) SelectByUser(Find(selected_, {&typed, 1}, false));
            return 0;
        }
        case WM_SETFOCUS:
            Notify(LBN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            Notify(LBN_KILLFOCUS);
            return 0;
        default:
            return Rows(message, wParam, lParam);
    }
}

}  // namespace

namespace win32 {

std::shared_ptr<Window> NewListBox(const Birth& birth) { return std::make_shared<ListBox>(birth); }

}  // namespace win32
