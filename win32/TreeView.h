#ifndef WIN32_TREEVIEW_H
#define WIN32_TREEVIEW_H

/// @file
/// The tree control, class "SysTreeView32".

#include "win32/ImageList.h"
#include "win32/Window.h"

/// An item of a tree; null is none. It is never used for another item, and refused when its own is
/// gone.
using HTREEITEM = struct _TREEITEM*;

/// The class of the control.
inline constexpr const char* WC_TREEVIEWA = "SysTreeView32";

/// Styles: buttons and lines ahead of the items, and the selection shown also without the focus.
/// @{
inline constexpr DWORD TVS_HASBUTTONS = 0x0001;
inline constexpr DWORD TVS_HASLINES = 0x0002;
inline constexpr DWORD TVS_LINESATROOT = 0x0004;
inline constexpr DWORD TVS_SHOWSELALWAYS = 0x0020;
/// @}

/// Messages to a tree. Items are given as lParam, structures by their address; the result is 0 for
/// an item that the tree doesn't have.
/// @{
inline constexpr UINT TVM_INSERTITEMA = 0x1100;
inline constexpr UINT TVM_DELETEITEM = 0x1101;
inline constexpr UINT TVM_EXPAND = 0x1102;
inline constexpr UINT TVM_GETITEMRECT = 0x1104;
inline constexpr UINT TVM_GETCOUNT = 0x1105;
inline constexpr UINT TVM_GETIMAGELIST = 0x1108;
inline constexpr UINT TVM_SETIMAGELIST = 0x1109;
inline constexpr UINT TVM_GETNEXTITEM = 0x110A;
inline constexpr UINT TVM_SELECTITEM = 0x110B;
inline constexpr UINT TVM_GETITEMA = 0x110C;
inline constexpr UINT TVM_SETITEMA = 0x110D;
inline constexpr UINT TVM_GETVISIBLECOUNT = 0x1110;
inline constexpr UINT TVM_HITTEST = 0x1111;
inline constexpr UINT TVM_SORTCHILDREN = 0x1113;
inline constexpr UINT TVM_ENSUREVISIBLE = 0x1114;
inline constexpr UINT TVM_GETITEMHEIGHT = 0x111C;
#define TVM_INSERTITEM TVM_INSERTITEMA
#define TVM_GETITEM TVM_GETITEMA
#define TVM_SETITEM TVM_SETITEMA
/// @}

/// Which members of a TVITEMA count: `mask`.
/// @{
inline constexpr UINT TVIF_TEXT = 0x0001;
inline constexpr UINT TVIF_IMAGE = 0x0002;
inline constexpr UINT TVIF_PARAM = 0x0004;
inline constexpr UINT TVIF_STATE = 0x0008;
inline constexpr UINT TVIF_HANDLE = 0x0010;
inline constexpr UINT TVIF_SELECTEDIMAGE = 0x0020;
inline constexpr UINT TVIF_CHILDREN = 0x0040;
/// @}

/// Bits of an item's state.
/// @{
inline constexpr UINT TVIS_SELECTED = 0x0002;
inline constexpr UINT TVIS_EXPANDED = 0x0020;
inline constexpr UINT TVIS_EXPANDEDONCE = 0x0040;
/// @}

/// Where an item is put: at the top level; first, last or sorted among those of its parent.
/// @{
// NOLINTBEGIN(performance-no-int-to-ptr): the values are Win32's own
inline const HTREEITEM TVI_ROOT = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x10000});
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x0FFFF});
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x0FFFE});
inline const HTREEITEM TVI_SORT = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x0FFFD});
// NOLINTEND(performance-no-int-to-ptr)
/// @}

/// Which item TVM_GETNEXTITEM gives, as seen from the one in lParam; TVGN_CARET is the selected
/// one, also for TVM_SELECTITEM.
/// @{
inline constexpr WPARAM TVGN_ROOT = 0;
inline constexpr WPARAM TVGN_NEXT = 1;
inline constexpr WPARAM TVGN_PREVIOUS = 2;
inline constexpr WPARAM TVGN_PARENT = 3;
inline constexpr WPARAM TVGN_CHILD = 4;
inline constexpr WPARAM TVGN_FIRSTVISIBLE = 5;
inline constexpr WPARAM TVGN_NEXTVISIBLE = 6;
inline constexpr WPARAM TVGN_PREVIOUSVISIBLE = 7;
inline constexpr WPARAM TVGN_CARET = 9;
/// @}

/// What TVM_EXPAND does with an item.
/// @{
inline constexpr WPARAM TVE_COLLAPSE = 1;
inline constexpr WPARAM TVE_EXPAND = 2;
inline constexpr WPARAM TVE_TOGGLE = 3;
/// @}

/// Which image list of a tree is meant: that of the items, or that of their states.
/// @{
inline constexpr WPARAM TVSIL_NORMAL = 0;
inline constexpr WPARAM TVSIL_STATE = 2;
/// @}

/// What changed a selection: `action` of NMTREEVIEWA.
/// @{
inline constexpr UINT TVC_UNKNOWN = 0;
inline constexpr UINT TVC_BYMOUSE = 1;
inline constexpr UINT TVC_BYKEYBOARD = 2;
/// @}

/// An item, to be set or asked for; `mask` says which members count.
struct TVITEMA {
    UINT mask;           ///< TVIF_ bits: which of the others count
    HTREEITEM hItem;     ///< which item
    UINT state;          ///< TVIS_ bits
    UINT stateMask;      ///< which bits of `state` count
    LPSTR pszText;       ///< the text, or where it is written
    int cchTextMax;      ///< the room there
    int iImage;          ///< its image, counted from 0
    int iSelectedImage;  ///< its image while it is selected
    int cChildren;       ///< whether it has items below it: 0 or 1
    LPARAM lParam;       ///< a value of the host's
};
using TVITEM = TVITEMA;  ///< the same, as programs call it

/// What TVM_INSERTITEM takes.
struct TVINSERTSTRUCTA {
    HTREEITEM hParent;       ///< the item above it; null or TVI_ROOT: none
    HTREEITEM hInsertAfter;  ///< the item ahead of it, or TVI_FIRST, TVI_LAST, TVI_SORT
    TVITEMA item;            ///< the item itself
};
using TVINSERTSTRUCT = TVINSERTSTRUCTA;  ///< the same, as programs call it

/// What TVN_SELCHANGED and the other TVN_ codes bring with them.
struct NMTREEVIEWA {
    NMHDR hdr;        ///< which tree, which code
    UINT action;      ///< TVC_ or TVE_: what it came of
    TVITEMA itemOld;  ///< the item that was selected
    TVITEMA itemNew;  ///< the item that is selected, expanded or deleted
    POINT ptDrag;     ///< not used here
};
using NMTREEVIEW = NMTREEVIEWA;  ///< the same, as programs call it

/// What TVN_KEYDOWN brings with it.
struct NMTVKEYDOWN {
    NMHDR hdr;   ///< which tree
    WORD wVKey;  ///< the key
    UINT flags;  ///< 0
};

/// What TVM_HITTEST takes and fills.
struct TVHITTESTINFO {
    POINT pt;         ///< a point in the tree's client area, set by the caller
    UINT flags;       ///< TVHT_ bits: what lies there
    HTREEITEM hItem;  ///< the item in that row; null if there is none
};

/// What lies under a point of a tree.
/// @{
inline constexpr UINT TVHT_NOWHERE = 0x0001;
inline constexpr UINT TVHT_ONITEMICON = 0x0002;
inline constexpr UINT TVHT_ONITEMLABEL = 0x0004;
inline constexpr UINT TVHT_ONITEMINDENT = 0x0008;
inline constexpr UINT TVHT_ONITEMBUTTON = 0x0010;
inline constexpr UINT TVHT_ONITEMRIGHT = 0x0020;
/// @}

/// What a tree tells its dialog: `code` of WM_NOTIFY. A result other than 0 forbids what
/// TVN_SELCHANGING and TVN_ITEMEXPANDING announce.
/// @{
inline constexpr UINT TVN_SELCHANGINGA = 0U - 401U;
inline constexpr UINT TVN_SELCHANGEDA = 0U - 402U;
inline constexpr UINT TVN_ITEMEXPANDINGA = 0U - 405U;
inline constexpr UINT TVN_ITEMEXPANDEDA = 0U - 406U;
inline constexpr UINT TVN_DELETEITEMA = 0U - 409U;
inline constexpr UINT TVN_KEYDOWN = 0U - 412U;
#define TVN_SELCHANGING TVN_SELCHANGINGA
#define TVN_SELCHANGED TVN_SELCHANGEDA
#define TVN_ITEMEXPANDING TVN_ITEMEXPANDINGA
#define TVN_ITEMEXPANDED TVN_ITEMEXPANDEDA
#define TVN_DELETEITEM TVN_DELETEITEMA
/// @}

/// The controls are always known here.
inline void InitCommonControls() {}

#endif
