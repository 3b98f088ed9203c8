#include "win32/TreeItems.h"

#include <algorithm>
#include <atomic>

#include "win32/Text.h"

namespace {

// One count for all trees: a handle of one tree is none of another.
HTREEITEM NewHandle() {
    static std::atomic<UINT_PTR> next{0x40000};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number
    return reinterpret_cast<HTREEITEM>(next += 4);
}

}  // namespace

namespace win32 {

TreeItem* TreeItems::Find(HTREEITEM handle, bool rootToo) {
    if (handle == nullptr || handle == TVI_ROOT) return rootToo ? &root_ : nullptr;
    const auto found = byHandle_.find(handle);
    return found == byHandle_.end() ? nullptr : found->second;
}

std::size_t TreeItems::IndexOf(const TreeItem& item) {
    const auto& all = item.parent->children;
    const auto self = std::find_if(all.begin(), all.end(),
                                   [&](const auto& other) { return other.get() == &item; });
    return static_cast<std::size_t>(self - all.begin());
}

std::size_t TreeItems::Place(const TreeItem& parent, HTREEITEM after, const TreeItem& item) {
    const auto& all = parent.children;
    if (after == TVI_FIRST) return 0;
    if (after == TVI_SORT) {
        const auto behind = std::upper_bound(all.begin(), all.end(), item.text,
                                             [](const std::string& text, const auto& other) {
                                                 return CompareForSorting(text, other->text) < 0;
                                             });
        return static_cast<std::size_t>(behind - all.begin());
    }
    const auto same = std::find_if(all.begin(), all.end(),
                                   [&](const auto& other) { return other->handle == after; });
    return same == all.end() ? all.size() : static_cast<std::size_t>(same - all.begin()) + 1;
}

TreeItem& TreeItems::Insert(TreeItem& parent, HTREEITEM after, std::unique_ptr<TreeItem> item) {
    item->handle = NewHandle();
    item->parent = &parent;
    if (parent.hasButton == 0) parent.hasButton = 1;
    TreeItem& inserted = *item;
    byHandle_.emplace(inserted.handle, &inserted);
    const auto place =
        parent.children.begin() + static_cast<std::ptrdiff_t>(Place(parent, after, inserted));
    parent.children.insert(place, std::move(item));
    return inserted;
}

void TreeItems::Remove(TreeItem& item) {
    while (!item.children.empty()) Remove(*item.children.back());
    byHandle_.erase(item.handle);
    TreeItem& parent = *item.parent;
    parent.children.erase(parent.children.begin() + static_cast<std::ptrdiff_t>(IndexOf(item)));
    if (!parent.children.empty()) return;
    parent.hasButton = 0;
    parent.state &= ~(TVIS_EXPANDED | TVIS_EXPANDEDONCE);
}

TreeItem* TreeItems::Neighbour(const TreeItem& item, int step) {
    if (item.parent == nullptr) return nullptr;
    const auto& all = item.parent->children;
    const std::size_t index = IndexOf(item);
    if (step < 0) return index == 0 ? nullptr : all[index - 1].get();
    return index + 1 == all.size() ? nullptr : all[index + 1].get();
}

TreeItem* TreeItems::VisibleAfter(TreeItem& item) {
    const bool open = &item == &root_ || item.Expanded();
    if (open && !item.children.empty()) return item.children.front().get();
    for (TreeItem* up = &item; up != &root_; up = up->parent) {
        if (TreeItem* next = Neighbour(*up, 1)) return next;
    }
    return nullptr;
}

TreeItem* TreeItems::VisibleBefore(TreeItem& item) {
    TreeItem* before = Neighbour(item, -1);
    if (before == nullptr) return item.parent == &root_ ? nullptr : item.parent;
    while (before->Expanded() && !before->children.empty()) before = before->children.back().get();
    return before;
}

std::vector<TreeItem*> TreeItems::Rows() {
    std::vector<TreeItem*> rows;
    for (TreeItem* item = VisibleAfter(root_); item != nullptr; item = VisibleAfter(*item)) {
        rows.push_back(item);
    }
    return rows;
}

void TreeItems::Sort(TreeItem& parent) {
    std::stable_sort(
        parent.children.begin(), parent.children.end(),
        [](const auto& a, const auto& b) { return CompareForSorting(a->text, b->text) < 0; });
}

bool TreeItems::IsWithin(const TreeItem& item, const TreeItem& ancestor) {
    for (const TreeItem* up = &item; up != nullptr; up = up->parent) {
        if (up == &ancestor) return true;
    }
    return false;
}

int TreeItems::Level(const TreeItem& item) const {
    int level = 0;
    for (const TreeItem* up = item.parent; up != nullptr && up != &root_; up = up->parent) ++level;
    return level;
}

}  // namespace win32
