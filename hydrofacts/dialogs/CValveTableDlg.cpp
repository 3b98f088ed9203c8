#include "hydrofacts/dialogs/CValveTableDlg.h"

#include <cstring>
#include <iterator>

#include "hydrofacts/dialogs/TreeControl.h"
#include "hydrofacts/frame/TableFile.h"
#include "hydrofacts/frame/TableNote.h"
#include "hydrofacts/frame/TableSearch.h"
#include "hydrofacts/valve/ValveRecord.h"
#include "quillbase/TextFile.h"

using hydrofacts::TreeControl;

namespace hydrofacts {

/// Owns an image list.
class Symbols {
  public:
    explicit Symbols(HIMAGELIST list) : list_(list) {}
    ~Symbols() { ImageList_Destroy(list_); }
    Symbols(const Symbols&) = delete;
    Symbols& operator=(const Symbols&) = delete;

  private:
    HIMAGELIST list_;
};

}  // namespace hydrofacts

namespace {

enum ValveControl : int {
    kTables = 10111,
    kDevices = 10201,
    kFirstType = 10202,
    kLastType = 10206,
    kNote = 10207,
    kHostsTree = 10208,
};

}  // namespace

CValveTableDlg::CValveTableDlg(HWND dialog) : m_imageList(nullptr), m_hDlg(dialog) {
    BuildImageList();
    for (const int tree : {kDevices, kHostsTree}) {
        TreeControl(GetDlgItem(m_hDlg, tree)).SetImages(m_imageList);
    }
}

CValveTableDlg::CValveTableDlg(const CValveTableDlg& other) = default;

CValveTableDlg& CValveTableDlg::operator=(const CValveTableDlg& other) = default;

CValveTableDlg::~CValveTableDlg() = default;

int CValveTableDlg::InitValveTables(HWND dialog, const char* tableDir, double highLimit,
                                    double lowLimit) {
    for (hydrofacts::TableSearch tables(tableDir, hydrofacts::kValveExtension); tables.Next();) {
        const char* name = tables.Name();
        TextFile file(hydrofacts::TablePath(tableDir, name, hydrofacts::kValveExtension).c_str());
        if (!file.ValidFile() || std::strlen(name) > hydrofacts::kLongestListedName) continue;
        if (!hydrofacts::FileLevelsAreWithin(file, highLimit, lowLimit)) continue;
        SendDlgItemMessageA(dialog, kTables, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
    }
    return 1;
}

LONG_PTR CValveTableDlg::DlgCommand(int id, int code, LONG_PTR) {
    if (id >= kFirstType && id <= kLastType) {
        ShowValveList(id - kFirstType);
        return 0;
    }
    const bool isTree = id == kDevices || id == kHostsTree;
    if (!isTree || code != static_cast<int>(TVN_SELCHANGED)) return 0;
    const TreeControl tree(GetDlgItem(m_hDlg, id));
    TVITEM item{};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = tree.Selected();
    return item.hItem != nullptr && tree.Read(item) ? item.lParam : 0;
}

void CValveTableDlg::BuildImageList() {
    GetValveImageList(m_imageList);
    m_symbols = std::make_shared<const hydrofacts::Symbols>(m_imageList);
}

void CValveTableDlg::ShowValveList(int index) {
    const TreeControl tree(GetDlgItem(m_hDlg, kDevices));
    tree.Select(nullptr);
    tree.DeleteAll();
    constexpr UINT kMask = TVIF_TEXT | TVIF_IMAGE | TVIF_PARAM | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
    for (const CValveType* valve = lists[index]; valve != nullptr; valve = valve->next) {
        tree.Insert(TVI_ROOT, TVI_LAST,
                    {kMask, valve->name, false, valve->image - 1, reinterpret_cast<LPARAM>(valve)});
    }
}

void CValveTableDlg::ShowValveNotes() { ShowTableNote(path, m_hDlg, kNote); }

void GetValveImageList(HIMAGELIST& list) {
    constexpr WORD kSymbols = 123;
    constexpr int kCapacity = 14;
    list = hydrofacts::LoadSymbols(kSymbols, ILC_COLOR16, kCapacity);
}
