#ifndef HYDROFACTS_DIALOGS_TREECONTROL_H
#define HYDROFACTS_DIALOGS_TREECONTROL_H

#include <array>
#include <optional>

#include "win32/Win32.h"

namespace hydrofacts {

/// An item to insert into a tree: `mask` says which of the fields count.
struct TreeEntry {
    UINT mask;
    const char* text;
    bool hasChildren = false;
    int image = 0;
    LPARAM data = 0;
};

/// A tree control of a host's dialog; it may be missing, and is passed over then.
class TreeControl {
  public:
    explicit TreeControl(HWND tree) : tree_(tree) {}

    HTREEITEM Insert(HTREEITEM parent, HTREEITEM after, const TreeEntry& entry) const;
    void DeleteAll() const;

    /// The selected item, null for none.
    HTREEITEM Selected() const { return Next(TVGN_CARET, nullptr); }
    /// Selects an item, or none with null.
    void Select(HTREEITEM item) const;

    /// The item that stands to another one as a TVGN_ value says; null if there is none.
    HTREEITEM Next(WPARAM relation, HTREEITEM item) const;

    /// Fills what the masks of `item` ask for; false if the item is none of the tree's.
    bool Read(TVITEM& item) const;

    void Collapse(HTREEITEM item) const;

    /// Scrolls to an item when the present notification has been handled.
    void ShowLater(HTREEITEM item) const;

    void SetImages(HIMAGELIST images) const;

  private:
    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
        return SendMessageA(tree_, message, wParam, lParam);
    }

    HWND tree_;
};

/// The text of a tree's item and whether it is shown as one with children.
template <std::size_t size>
class ItemText {
  public:
    /// Reads the item with the fields that `mask` names.
    ItemText(const TreeControl& tree, HTREEITEM handle, UINT mask) {
        TVITEM item{};
        item.mask = mask;
        item.hItem = handle;
        item.pszText = text_.data();
        item.cchTextMax = static_cast<int>(size);
        found_ = handle != nullptr && tree.Read(item);
        hasChildren_ = item.cChildren != 0;
    }

    bool Found() const { return found_; }
    const char* c_str() const { return text_.data(); }
    bool HasChildren() const { return hasChildren_; }

  private:
    std::array<char, size + 1> text_{};  // a buffer may come back without its terminator
    bool found_ = false;
    bool hasChildren_ = false;
};

/// A new image list of 16 by 16 cells with those of a bitmap of the library; the caller's to
/// destroy. `capacity` is a first allocation.
HIMAGELIST LoadSymbols(WORD bitmap, UINT flags, int capacity);

}  // namespace hydrofacts

#endif
