// What a tree is asked about its items, and where they stand.

#include <algorithm>
#include <cstring>
#include <utility>

#include "win32/TreeView.h"
#include "win32/TreeViewModel.h"

namespace {

// In pixels: a row, a level, a character of a row's text.
constexpr int kRowHeight = 16;
constexpr int kIndent = 19;
constexpr int kCharacter = 6;

}  // namespace

namespace win32 {

int TreeView::Shown() const { return std::max(1, (place.bottom - place.top) / kRowHeight); }

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
    const bool takesSelection = selected != nullptr && TreeItems::IsWithin(*selected, *item);
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
        CopyText(item->text, static_cast<WPARAM>(to.cchTextMax),
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
            if (TreeItem* item = items_.Find(handle, true)) TreeItems::Sort(*item);
            return TRUE;
        default:
            return Window::Handle(message, wParam, lParam);
    }
}
// NOLINTEND(performance-no-int-to-ptr)

}  // namespace win32
