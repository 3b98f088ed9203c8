#ifndef WIN32_TREEVIEW_H
#define WIN32_TREEVIEW_H

// The tree control, class "SysTreeView32".

#include "win32/ImageList.h"
#include "win32/Window.h"

using HTREEITEM = struct _TREEITEM*;

inline constexpr const char* WC_TREEVIEWA = "SysTreeView32";

inline constexpr DWORD TVS_HASBUTTONS = 0x0001;
inline constexpr DWORD TVS_HASLINES = 0x0002;
inline constexpr DWORD TVS_LINESATROOT = 0x0004;
inline constexpr DWORD TVS_SHOWSELALWAYS = 0x0020;

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

inline constexpr UINT TVIF_TEXT = 0x0001;
inline constexpr UINT TVIF_IMAGE = 0x0002;
inline constexpr UINT TVIF_PARAM = 0x0004;
inline constexpr UINT TVIF_STATE = 0x0008;
inline constexpr UINT TVIF_HANDLE = 0x0010;
inline constexpr UINT TVIF_SELECTEDIMAGE = 0x0020;
inline constexpr UINT TVIF_CHILDREN = 0x0040;

inline constexpr UINT TVIS_SELECTED = 0x0002;
inline constexpr UINT TVIS_EXPANDED = 0x0020;
inline constexpr UINT TVIS_EXPANDEDONCE = 0x0040;

// NOLINTBEGIN(performance-no-int-to-ptr): the values are Win32's own
inline const HTREEITEM TVI_ROOT = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x10000});
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x0FFFF});
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x0FFFE});
inline const HTREEITEM TVI_SORT = reinterpret_cast<HTREEITEM>(LONG_PTR{-0x0FFFD});
// NOLINTEND(performance-no-int-to-ptr)

inline constexpr WPARAM TVGN_ROOT = 0;
inline constexpr WPARAM TVGN_NEXT = 1;
inline constexpr WPARAM TVGN_PREVIOUS = 2;
inline constexpr WPARAM TVGN_PARENT = 3;
inline constexpr WPARAM TVGN_CHILD = 4;
inline constexpr WPARAM TVGN_FIRSTVISIBLE = 5;
inline constexpr WPARAM TVGN_NEXTVISIBLE = 6;
inline constexpr WPARAM TVGN_PREVIOUSVISIBLE = 7;
inline constexpr WPARAM TVGN_CARET = 9;

inline constexpr WPARAM TVE_COLLAPSE = 1;
inline constexpr WPARAM TVE_EXPAND = 2;
inline constexpr WPARAM TVE_TOGGLE = 3;

inline constexpr WPARAM TVSIL_NORMAL = 0;
inline constexpr WPARAM TVSIL_STATE = 2;

// What changed a selection: `action` of NMTREEVIEWA.
inline constexpr UINT TVC_UNKNOWN = 0;
inline constexpr UINT TVC_BYMOUSE = 1;
inline constexpr UINT TVC_BYKEYBOARD = 2;

struct TVITEMA {
    UINT mask;
    HTREEITEM hItem;
    UINT state;
    UINT stateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    int iSelectedImage;
    int cChildren;
    LPARAM lParam;
};
using TVITEM = TVITEMA;

struct TVINSERTSTRUCTA {
    HTREEITEM hParent;
    HTREEITEM hInsertAfter;
    TVITEMA item;
};
using TVINSERTSTRUCT = TVINSERTSTRUCTA;

struct NMTREEVIEWA {
    NMHDR hdr;
    UINT action;
    TVITEMA itemOld;
    TVITEMA itemNew;
    POINT ptDrag;
};
using NMTREEVIEW = NMTREEVIEWA;

struct NMTVKEYDOWN {
    NMHDR hdr;
    WORD wVKey;
    UINT flags;
};

struct TVHITTESTINFO {
    POINT pt;
    UINT flags;
    HTREEITEM hItem;
};

inline constexpr UINT TVHT_NOWHERE = 0x0001;
inline constexpr UINT TVHT_ONITEMICON = 0x0002;
inline constexpr UINT TVHT_ONITEMLABEL = 0x0004;
inline constexpr UINT TVHT_ONITEMINDENT = 0x0008;
inline constexpr UINT TVHT_ONITEMBUTTON = 0x0010;
inline constexpr UINT TVHT_ONITEMRIGHT = 0x0020;

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

/// The controls are always known here.
inline void InitCommonControls() {}

#endif
