#include "win32/TreeView.h"

#include <algorithm>

#include "win32/Controls.h"
#include "win32/Dialog.h"
#include "win32/Keyboard.h"
#include "win32/Text.h"
#include "win32/TreeViewModel.h"

namespace win32 {

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
    if (selected != nullptr && selected != closed && TreeItems::IsWithin(*selected, *closed)) {
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
        if (StartsWithoutCase(row->text, {&c, 1})) {
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

std::shared_ptr<Window> NewTreeView(const Birth& birth) {
    return std::make_shared<TreeView>(birth);
}

}  // namespace win32
