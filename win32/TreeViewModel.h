#ifndef WIN32_TREEVIEWMODEL_H
#define WIN32_TREEVIEWMODEL_H

#include "win32/Model.h"
#include "win32/TreeItems.h"

namespace win32 {

/// The tree control: what it tells its dialog and what a user does with it stand in TreeView.cpp,
/// the messages about its items in TreeViewItems.cpp.
class TreeView : public Window {
  public:
    explicit TreeView(const Birth& birth) : Window(WC_TREEVIEWA, birth) {}

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

    /// How many rows there is room for.
    int Shown() const;
    int RowOf(const TreeItem& item);
    TreeItem* Caret() { return items_.Find(caret_); }
    int TextLeft(const TreeItem& item) const;

    static void Fill(TreeItem& item, const TVITEMA& from);
    static TVITEMA Described(const TreeItem* item);
    LRESULT TellOfItem(UINT code, UINT action, const TreeItem* before, const TreeItem* after);
    void Tell(UINT code);

    TreeItems items_;
    HTREEITEM caret_ = nullptr;
    int top_ = 0;
    HIMAGELIST images_ = nullptr;
    HIMAGELIST stateImages_ = nullptr;
};

}  // namespace win32

#endif
