#ifndef WIN32_TREEITEMS_H
#define WIN32_TREEITEMS_H

// The items of a tree control as data: who stands below whom, in which order, what is open.

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "win32/TreeView.h"

namespace win32 {

struct TreeItem {
    HTREEITEM handle = nullptr;
    TreeItem* parent = nullptr;
    std::vector<std::unique_ptr<TreeItem>> children;
    std::string text;
    UINT state = 0;
    int image = 0;
    int selectedImage = 0;
    int hasButton = 0;  ///< cChildren of TVITEM: whether it is shown as one with children
    LPARAM data = 0;

    bool Expanded() const { return (state & TVIS_EXPANDED) != 0; }
};

/// Owns the items. A handle is never used twice, so one of an item that is gone finds nothing.
class TreeItems {
  public:
    /// The invisible item above all others.
    TreeItem& Root() { return root_; }
    std::size_t Count() const { return byHandle_.size(); }

    /// Null for a handle of no item. TVI_ROOT and null give the root where `rootToo` says so.
    TreeItem* Find(HTREEITEM handle, bool rootToo = false);

    /// Puts an item below `parent`: behind the item `after`, or where TVI_FIRST, TVI_LAST (as does
    /// null) or TVI_SORT say.
    TreeItem& Insert(TreeItem& parent, HTREEITEM after, std::unique_ptr<TreeItem> item);
    void Remove(TreeItem& item);

    TreeItem* Neighbour(const TreeItem& item, int step);
    /// The next one up or down the rows, as they are seen with some items open and others not.
    TreeItem* VisibleAfter(TreeItem& item);
    TreeItem* VisibleBefore(TreeItem& item);
    /// All rows from the top, were there room for them.
    std::vector<TreeItem*> Rows();

    static void Sort(TreeItem& parent);
    static bool IsWithin(const TreeItem& item, const TreeItem& ancestor);
    /// How deep an item stands; 0 for the top level.
    int Level(const TreeItem& item) const;

  private:
    static std::size_t Place(const TreeItem& parent, HTREEITEM after, const TreeItem& item);
    static std::size_t IndexOf(const TreeItem& item);

    TreeItem root_;
    std::unordered_map<HTREEITEM, TreeItem*> byHandle_;
};

}  // namespace win32

#endif
