#include "win32/TreeView.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "win32/Controls.h"
#include "win32/Dialog.h"
#include "win32/Keyboard.h"
#include "win32/Text.h"
#include "win32/TreeItems.h"

namespace {

using win32::TreeItem;

// In pixels: a row, a level, a character of a row's text.
constexpr int kRowHeight = 16;
constexpr int kIndent = 19;
constexpr int kCharacter = 6;

class TreeView : public win32::Window {
  public:
    explicit TreeView(const win32::Birth& birth) : Window(WC_TREEVIEWA, birth) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    // Messages.
    LRESULT Items(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Insert(const TVINSERTSTRUCTA& what);
    LRESULT Delete(HTREEITEM handle);
    LRESULT Get(TVITEMA& to);
    LRESULT Set(const TVITEMA& from);
    LRESULT Next(WPARAM relation, HTREEITEM handle);
    LRESULT SelectItem(WPARAM what, HTREEITEM handle);
    LRESULT ItemRect(WPARAM textOnly, RECT& rect);
    LRESULT HitTest(TVHITTESTINFO& hit);
    LRESULT SetImages(WPARAM which, HIMAGELIST list);

    // What a user does.
    void Press(UINT message, LPARAM point);
    void PressKey(WPARAM key);
    void Typed(char c);
    void SelectByUser(TreeItem* item, UINT action);

    /// Moves the selection, null for none; false if the dialog forbids it.
    bool Select(HTREEITEM to, UINT action);
    bool Expand(TreeItem& item, bool byUser);
    bool Collapse(TreeItem& item, bool byUser);
    void Show(TreeItem& item);
    void RemoveAll();

    int Shown() const { return std::max(1, (place.bottom - place.top) / kRowHeight); }
    int RowOf(const TreeItem& item);
    TreeItem* Caret() { return items_.Find(caret_); }
    int TextLeft(const TreeItem& item) const;

    static void Fill(TreeItem& item, const TVITEMA& from);
    static TVITEMA Described(const TreeItem* item);
    LRESULT TellOfItem(UINT code, UINT action, const TreeItem* before, const TreeItem* after);
    void Tell(UINT code);

    win32::TreeItems items_;
    HTREEITEM caret_ = nullptr;
    int top_ = 0;
    HIMAGELIST images_ = nullptr;
    HIMAGELIST stateImages_ = nullptr;
};

// ---- What it tells ----

TVITEMA TreeView::Described(const TreeItem* item) {
    TVITEMA described{};
    if (item == nullptr) return described;
    described.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_STATE;
    described.hItem = item->handle;
    described.state = item->state;
    described.lParam = item->data;
    return described;
}

LRESULT TreeView::TellOfItem(UINT code, UINT action, const TreeItem* before,
                             const TreeItem* after) {
    NMTREEVIEWA told{};
    told.action = action;
    told.itemOld = Described(before);
    told.itemNew = Described(after);
    return Window::Tell(told.hdr, code);
}

void TreeView::Tell(UINT code) {
    NMHDR told{};
    Window::Tell(told, code);
}

// ---- Selection, open and closed items ----

bool TreeView::Select(HTREEITEM to, UINT action) {
    if (to == caret_) return true;
    // The dialog may delete items while it is asked.
    if (TellOfItem(TVN_SELCHANGINGA, action, Caret(), items_.Find(to)) != 0) return false;
    if (!Alive()) return false;
    TreeItem* item = items_.Find(to);
    if (to != nullptr && item == nullptr) return false;
    if (item != nullptr) Show(*item);
    if (!Alive()) return false;
    item = items_.Find(to);
    TreeItem* before = Caret();
    if (before != nullptr) before->state &= ~TVIS_SELECTED;
    if (item != nullptr) item->state |= TVIS_SELECTED;
    caret_ = item == nullptr ? nullptr : to;
    Changed();
    TellOfItem(TVN_SELCHANGEDA, action, before, item);
    return true;
}

bool TreeView::Expand(TreeItem& item, bool byUser) {
    if (item.hasButton == 0 || item.Expanded()) return item.hasButton != 0;
    const HTREEITEM handle = item.handle;
    const bool tell = byUser || (item.state & TVIS_EXPANDEDONCE) == 0;
    if (tell && TellOfItem(TVN_ITEMEXPANDINGA, TVE_EXPAND, nullptr, &item) != 0) return false;
    TreeItem* open = Alive() ? items_.Find(handle) : nullptr;
    if (open == nullptr || open->children.empty()) return false;
    open->state |= TVIS_EXPANDED | TVIS_EXPANDEDONCE;
    Changed();
    if (tell) TellOfItem(TVN_ITEMEXPANDEDA, TVE_EXPAND, nullptr, open);
    return true;
}

bool TreeView::Collapse(TreeItem& item, bool byUser) {
    if (!item.Expanded()) return false;
    const HTREEITEM handle = item.handle;
    if (byUser && TellOfItem(TVN_ITEMEXPANDINGA, TVE_COLLAPSE, nullptr, &item) != 0) return false;
    TreeItem* closed = Alive() ? items_.Find(handle) : nullptr;
    if (closed == nullptr) return false;
    closed->state &= ~TVIS_EXPANDED;
    TreeItem* selected = Caret();
    if (selected != nullptr && selected != closed &&
        win32::TreeItems::IsWithin(*selected, *closed)) {
        // The selection can't stay out of sight; nobody is told.
        selected->state &= ~TVIS_SELECTED;
        closed->state |= TVIS_SELECTED;
        caret_ = handle;
    }
    Changed();
    if (byUser) TellOfItem(TVN_ITEMEXPANDEDA, TVE_COLLAPSE, nullptr, closed);
    return true;
}

void TreeView::Show(TreeItem& item) {
    const HTREEITEM handle = item.handle;
    std::vector<HTREEITEM> closed;
    for (TreeItem* up = item.parent; up != &items_.Root(); up = up->parent) {
        if (!up->Expanded()) closed.push_back(up->handle);
    }
    std::ranges::reverse(closed);
    for (const HTREEITEM above : closed) {
        TreeItem* found = Alive() ? items_.Find(above) : nullptr;
        if (found == nullptr) return;
        Expand(*found, false);
    }
    TreeItem* shown = Alive() ? items_.Find(handle) : nullptr;
    const int row = shown == nullptr ? -1 : RowOf(*shown);
    if (row < 0) return;
    if (row < top_) top_ = row;
    if (row >= top_ + Shown()) top_ = row - Shown() + 1;
    Changed();
}

int TreeView::RowOf(const TreeItem& item) {
    int row = 0;
    for (TreeItem* at = items_.VisibleAfter(items_.Root()); at != nullptr;
         at = items_.VisibleAfter(*at), ++row) {
        if (at == &item) return row;
    }
    return -1;
}

// ---- Messages about items ----

void TreeView::Fill(TreeItem& item, const TVITEMA& from) {
    if ((from.mask & TVIF_TEXT) != 0) item.text = from.pszText == nullptr ? "" : from.pszText;
    if ((from.mask & TVIF_IMAGE) != 0) item.image = from.iImage;
    if ((from.mask & TVIF_SELECTEDIMAGE) != 0) item.selectedImage = from.iSelectedImage;
    if ((from.mask & TVIF_CHILDREN) != 0) item.hasButton = from.cChildren;
    if ((from.mask & TVIF_PARAM) != 0) item.data = from.lParam;
    if ((from.mask & TVIF_STATE) != 0) {
        item.state = (item.state & ~from.stateMask) | (from.state & from.stateMask);
    }
}

LRESULT TreeView::Insert(const TVINSERTSTRUCTA& what) {
    TreeItem* above = items_.Find(what.hParent, true);
    if (above == nullptr) return 0;
    auto item = std::make_unique<TreeItem>();
    Fill(*item, what.item);
    const TreeItem& inserted = items_.Insert(*above, what.hInsertAfter, std::move(item));
    Changed();
    return reinterpret_cast<LRESULT>(inserted.handle);
}

// Children first; each is told of while it still exists.
void TreeView::RemoveAll() {
    caret_ = nullptr;
    while (Alive() && !items_.Root().children.empty()) {
        TreeItem* item = items_.Root().children.front().get();
        while (!item->children.empty()) item = item->children.front().get();
        const HTREEITEM handle = item->handle;
        TellOfItem(TVN_DELETEITEMA, 0, item, nullptr);
        if (TreeItem* left = items_.Find(handle)) items_.Remove(*left);
    }
    top_ = 0;
    Changed();
}

LRESULT TreeView::Delete(HTREEITEM handle) {
    if (handle == nullptr || handle == TVI_ROOT) {
        RemoveAll();
        return TRUE;
    }
    TreeItem* item = items_.Find(handle);
    if (item == nullptr) return FALSE;
    HTREEITEM next = nullptr;
    const TreeItem* selected = Caret();
    const bool takesSelection = selected != nullptr && win32::TreeItems::IsWithin(*selected, *item);
    if (takesSelection) {
        TreeItem* heir = items_.Neighbour(*item, 1);
        if (heir == nullptr) heir = items_.Neighbour(*item, -1);
        if (heir == nullptr && item->parent != &items_.Root()) heir = item->parent;
        next = heir == nullptr ? nullptr : heir->handle;
    }
    while (TreeItem* left = Alive() ? items_.Find(handle) : nullptr) {
        while (!left->children.empty()) left = left->children.front().get();
        const HTREEITEM leaf = left->handle;
        TellOfItem(TVN_DELETEITEMA, 0, left, nullptr);
        if (leaf == caret_) caret_ = nullptr;
        if (TreeItem* gone = items_.Find(leaf)) items_.Remove(*gone);
    }
    Changed();
    if (takesSelection && Alive() && items_.Find(next) != nullptr) Select(next, TVC_UNKNOWN);
    return TRUE;
}

LRESULT TreeView::Get(TVITEMA& to) {
    const TreeItem* item = items_.Find(to.hItem);
    if (item == nullptr) return FALSE;
    if ((to.mask & TVIF_TEXT) != 0 && to.pszText != nullptr && to.cchTextMax > 0) {
        win32::CopyText(item->text, static_cast<WPARAM>(to.cchTextMax),
                        reinterpret_cast<LPARAM>(to.pszText));
    }
    if ((to.mask & TVIF_IMAGE) != 0) to.iImage = item->image;
    if ((to.mask & TVIF_SELECTEDIMAGE) != 0) to.iSelectedImage = item->selectedImage;
    if ((to.mask & TVIF_CHILDREN) != 0) to.cChildren = item->hasButton;
    if ((to.mask & TVIF_PARAM) != 0) to.lParam = item->data;
    if ((to.mask & TVIF_STATE) != 0) {
        to.state = to.stateMask == 0 ? item->state : item->state & to.stateMask;
    }
    return TRUE;
}

LRESULT TreeView::Set(const TVITEMA& from) {
    TreeItem* item = items_.Find(from.hItem);
    if (item == nullptr) return FALSE;
    Fill(*item, from);
    Changed();
    return TRUE;
}

LRESULT TreeView::Next(WPARAM relation, HTREEITEM handle) {
    const auto answer = [](const TreeItem* item) {
        return reinterpret_cast<LRESULT>(item == nullptr ? nullptr : item->handle);
    };
    const auto firstBelow = [&](const TreeItem& item) {
        return answer(item.children.empty() ? nullptr : item.children.front().get());
    };
    switch (relation) {
        case TVGN_ROOT:
            return firstBelow(items_.Root());
        case TVGN_CARET:
            return reinterpret_cast<LRESULT>(caret_);
        case TVGN_FIRSTVISIBLE: {
            const auto rows = items_.Rows();
            const auto top = static_cast<std::size_t>(top_);
            return answer(top < rows.size() ? rows[top] : nullptr);
        }
        default:
            break;
    }
    TreeItem* item = items_.Find(handle, relation == TVGN_CHILD);
    if (item == nullptr) return 0;
    switch (relation) {
        case TVGN_NEXT:
            return answer(items_.Neighbour(*item, 1));
        case TVGN_PREVIOUS:
            return answer(items_.Neighbour(*item, -1));
        case TVGN_PARENT:
            return answer(item->parent == &items_.Root() ? nullptr : item->parent);
        case TVGN_CHILD:
            return firstBelow(*item);
        case TVGN_NEXTVISIBLE:
            return answer(items_.VisibleAfter(*item));
        case TVGN_PREVIOUSVISIBLE:
            return answer(items_.VisibleBefore(*item));
        default:
            return 0;
    }
}

LRESULT TreeView::SelectItem(WPARAM what, HTREEITEM handle) {
    TreeItem* item = items_.Find(handle);
    if (handle != nullptr && item == nullptr) return FALSE;
    if (what == TVGN_CARET) return Select(handle, TVC_UNKNOWN) ? TRUE : FALSE;
    if (what != TVGN_FIRSTVISIBLE || item == nullptr) return FALSE;
    Show(*item);
    if (const TreeItem* shown = items_.Find(handle)) top_ = std::max(0, RowOf(*shown));
    return TRUE;
}

int TreeView::TextLeft(const TreeItem& item) const {
    int width = 0;
    int height = 0;
    if (images_ != nullptr) ImageList_GetIconSize(images_, &width, &height);
    return kIndent * (items_.Level(item) + 1) + width;
}

LRESULT TreeView::ItemRect(WPARAM textOnly, RECT& rect) {
    // The item's handle comes in where the rectangle goes out.
    HTREEITEM handle = nullptr;
    std::memcpy(&handle, &rect, sizeof(UINT_PTR));
    const TreeItem* item = items_.Find(handle);
    const int row = item == nullptr ? -1 : RowOf(*item);
    if (row < 0) return FALSE;
    const int y = (row - top_) * kRowHeight;
    rect = {0, y, ClientRect().right, y + kRowHeight};
    if (textOnly != 0) {
        rect.left = TextLeft(*item);
        rect.right = rect.left + kCharacter * (static_cast<int>(item->text.size()) + 1);
    }
    return TRUE;
}

LRESULT TreeView::HitTest(TVHITTESTINFO& hit) {
    hit.flags = TVHT_NOWHERE;
    hit.hItem = nullptr;
    const auto rows = items_.Rows();
    const int row = hit.pt.y < 0 ? -1 : top_ + hit.pt.y / kRowHeight;
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) return 0;
    const TreeItem& item = *rows[static_cast<std::size_t>(row)];
    hit.hItem = item.handle;
    const int text = TextLeft(item);
    const int button = kIndent * items_.Level(item);
    if (hit.pt.x >= text) {
        hit.flags = TVHT_ONITEMLABEL;
    } else if (hit.pt.x >= button + kIndent) {
        hit.flags = TVHT_ONITEMICON;
    } else {
        const bool onButton = hit.pt.x >= button && item.hasButton != 0 && Has(TVS_HASBUTTONS);
        hit.flags = onButton ? TVHT_ONITEMBUTTON : TVHT_ONITEMINDENT;
    }
    return reinterpret_cast<LRESULT>(item.handle);
}

LRESULT TreeView::SetImages(WPARAM which, HIMAGELIST list) {
    HIMAGELIST& images = which == TVSIL_STATE ? stateImages_ : images_;
    Changed();
    return reinterpret_cast<LRESULT>(std::exchange(images, list));
}

// ---- What a user does ----

void TreeView::SelectByUser(TreeItem* item, UINT action) {
    if (item == nullptr) return;
    const HTREEITEM handle = item->handle;
    Select(handle, action);
    TreeItem* selected = Alive() ? items_.Find(handle) : nullptr;
    if (selected != nullptr) Show(*selected);
}

void TreeView::Press(UINT message, LPARAM point) {
    TVHITTESTINFO hit{};
    hit.pt = {static_cast<SHORT>(LOWORD(static_cast<ULONG_PTR>(point))),
              static_cast<SHORT>(HIWORD(static_cast<ULONG_PTR>(point)))};
    HitTest(hit);
    Tell(message == WM_LBUTTONDBLCLK ? NM_DBLCLK : NM_CLICK);
    TreeItem* item = Alive() ? items_.Find(hit.hItem) : nullptr;
    const bool onButton = hit.flags == TVHT_ONITEMBUTTON;
    if (item != nullptr && (onButton || message == WM_LBUTTONDBLCLK)) {
        if (item->Expanded()) {
            Collapse(*item, true);
        } else {
            Expand(*item, true);
        }
    } else if (item != nullptr && (hit.flags & (TVHT_ONITEMLABEL | TVHT_ONITEMICON)) != 0) {
        SelectByUser(item, TVC_BYMOUSE);
    }
    if (Alive()) SetFocus(Self());
}

void TreeView::PressKey(WPARAM key) {
    NMTVKEYDOWN told{};
    told.wVKey = static_cast<WORD>(key);
    Window::Tell(told.hdr, TVN_KEYDOWN);
    TreeItem* caret = Alive() ? Caret() : nullptr;
    if (caret == nullptr) return;
    switch (key) {
        case VK_UP:
            SelectByUser(items_.VisibleBefore(*caret), TVC_BYKEYBOARD);
            break;
        case VK_DOWN:
            SelectByUser(items_.VisibleAfter(*caret), TVC_BYKEYBOARD);
            break;
        case VK_HOME:
            SelectByUser(items_.VisibleAfter(items_.Root()), TVC_BYKEYBOARD);
            break;
        case VK_END:
            SelectByUser(items_.Rows().back(), TVC_BYKEYBOARD);
            break;
        case VK_SUBTRACT:
            Collapse(*caret, true);
            break;
        case VK_ADD:
            Expand(*caret, true);
            break;
        case VK_LEFT:
            if (caret->Expanded()) {
                Collapse(*caret, true);
            } else if (caret->parent != &items_.Root()) {
                SelectByUser(caret->parent, TVC_BYKEYBOARD);
            }
            break;
        case VK_RIGHT:
            if (!caret->Expanded()) {
                Expand(*caret, true);
            } else if (!caret->children.empty()) {
                SelectByUser(caret->children.front().get(), TVC_BYKEYBOARD);
            }
            break;
        default:
            break;
    }
}

// A letter goes to the next row that begins with it.
void TreeView::Typed(char c) {
    const auto rows = items_.Rows();
    const auto caret = std::find(rows.begin(), rows.end(), Caret());
    const auto start = static_cast<std::size_t>(caret - rows.begin());
    for (std::size_t i = 1; i <= rows.size(); ++i) {
        TreeItem* row = rows[(start + i) % rows.size()];
        if (win32::StartsWithoutCase(row->text, {&c, 1})) {
            SelectByUser(row, TVC_BYKEYBOARD);
            return;
        }
    }
}

LRESULT TreeView::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            Press(message, lParam);
            return 0;
        case WM_KEYDOWN:
            PressKey(wParam);
            return 0;
        case WM_CHAR:
            if (wParam > VK_SPACE) Typed(static_cast<char>(wParam));
            return 0;
        case WM_SETFOCUS: {
            const TreeItem* first = items_.VisibleAfter(items_.Root());
            if (caret_ == nullptr && first != nullptr) Select(first->handle, TVC_UNKNOWN);
            if (Alive()) Tell(NM_SETFOCUS);
            return 0;
        }
        case WM_KILLFOCUS:
            Tell(NM_KILLFOCUS);
            return 0;
        case WM_DESTROY:
            RemoveAll();
            return 0;
        default:
            return Items(message, wParam, lParam);
    }
}

// NOLINTBEGIN(performance-no-int-to-ptr): the messages carry handles and addresses as numbers
LRESULT TreeView::Items(UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const handle = reinterpret_cast<HTREEITEM>(lParam);
    switch (message) {
        case TVM_INSERTITEMA:
            return Insert(*reinterpret_cast<const TVINSERTSTRUCTA*>(lParam));
        case TVM_DELETEITEM:
            return Delete(handle);
        case TVM_GETITEMA:
            return Get(*reinterpret_cast<TVITEMA*>(lParam));
        case TVM_SETITEMA:
            return Set(*reinterpret_cast<const TVITEMA*>(lParam));
        case TVM_GETNEXTITEM:
            return Next(wParam, handle);
        case TVM_SELECTITEM:
            return SelectItem(wParam, handle);
        case TVM_GETCOUNT:
            return static_cast<LRESULT>(items_.Count());
        case TVM_GETITEMHEIGHT:
            return kRowHeight;
        case TVM_GETVISIBLECOUNT:
            return Shown();
        case TVM_GETITEMRECT:
            return ItemRect(wParam, *reinterpret_cast<RECT*>(lParam));
        case TVM_HITTEST:
            return HitTest(*reinterpret_cast<TVHITTESTINFO*>(lParam));
        case TVM_GETIMAGELIST:
            return reinterpret_cast<LRESULT>(wParam == TVSIL_STATE ? stateImages_ : images_);
        case TVM_SETIMAGELIST:
            return SetImages(wParam, reinterpret_cast<HIMAGELIST>(lParam));
        case TVM_EXPAND: {
            TreeItem* item = items_.Find(handle);
            if (item == nullptr) return FALSE;
            const bool open = (wParam & TVE_TOGGLE) == TVE_TOGGLE ? !item->Expanded()
                                                                  : (wParam & TVE_EXPAND) != 0;
            return (open ? Expand(*item, false) : Collapse(*item, false)) ? TRUE : FALSE;
        }
        case TVM_ENSUREVISIBLE:
            if (TreeItem* item = items_.Find(handle)) Show(*item);
            return FALSE;
        case TVM_SORTCHILDREN:
            if (TreeItem* item = items_.Find(handle, true)) win32::TreeItems::Sort(*item);
            return TRUE;
        default:
            return Window::Handle(message, wParam, lParam);
    }
}
// NOLINTEND(performance-no-int-to-ptr)

}  // namespace

namespace win32 {

std::shared_ptr<Window> NewTreeView(const Birth& birth) {
    return std::make_shared<TreeView>(birth);
}

}  // namespace win32
