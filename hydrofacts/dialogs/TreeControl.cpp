#include "hydrofacts/dialogs/TreeControl.h"

#include <cstring>
#include <string>

#include "hydrofacts/frame/Module.h"

namespace hydrofacts {

HTREEITEM TreeControl::Insert(HTREEITEM parent, HTREEITEM after, const TreeEntry& entry) const {
    std::string text = entry.text;
    TVINSERTSTRUCT insert{};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = entry.mask;
    insert.item.pszText = text.data();
    insert.item.cchTextMax = static_cast<int>(text.size()) + 1;
    insert.item.cChildren = entry.hasChildren ? 1 : 0;
    insert.item.iImage = entry.image;
    insert.item.iSelectedImage = entry.image;
    insert.item.lParam = entry.data;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the answer is a handle
    return reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&insert)));
}

void TreeControl::DeleteAll() const { Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)); }

void TreeControl::Select(HTREEITEM item) const {
    Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

HTREEITEM TreeControl::Next(WPARAM relation, HTREEITEM item) const {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the answer is a handle
    return reinterpret_cast<HTREEITEM>(
        Send(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

bool TreeControl::Read(TVITEM& item) const {
    return Send(TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item)) != 0;
}

void TreeControl::Collapse(HTREEITEM item) const {
    Send(TVM_EXPAND, TVE_COLLAPSE, reinterpret_cast<LPARAM>(item));
}

void TreeControl::ShowLater(HTREEITEM item) const {
    PostMessageA(tree_, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
}

void TreeControl::SetImages(HIMAGELIST images) const {
    Send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
}

HIMAGELIST LoadSymbols(WORD bitmap, UINT flags, int capacity) {
    constexpr int kCell = 16;
    HIMAGELIST list = ImageList_Create(kCell, kCell, flags, capacity, 0);
    HANDLE image = LoadImageA(ModuleHandle(), MAKEINTRESOURCEA(bitmap), IMAGE_BITMAP, 0, 0,
                              LR_LOADTRANSPARENT);
    if (image == nullptr) return list;
    ImageList_Add(list, static_cast<HBITMAP>(image), nullptr);
    DeleteObject(image);
    return list;
}

}  // namespace hydrofacts
