#include "hydrofacts/dialogs/CPipeTableDlg.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <string>

#include "hydrofacts/dialogs/TreeControl.h"
#include "hydrofacts/frame/Module.h"
#include "hydrofacts/frame/TableFile.h"
#include "hydrofacts/frame/TableNote.h"
#include "hydrofacts/frame/TableSearch.h"
#include "hydrofacts/pipe/PipeRecord.h"
#include "quillbase/CLanguage.h"
#include "quillbase/DialogItems.h"
#include "quillbase/Text.h"
#include "quillbase/TextFile.h"

using hydrofacts::Language;
using hydrofacts::ModuleHandle;
using hydrofacts::NextField;
using hydrofacts::TreeControl;

namespace {

enum PipeControl : int {
    kTree = 10101,
    kRoughness = 10102,
    kSizes = 10104,
    kDiameter = 10105,
    kNote = 10107,
    kHazenWilliams = 10108,
    kMaterialName = 10109,
    kScheduleName = 10110,
};

enum PipeMessage : int { kInvalidTable = 8, kNoSizes = 129 };

constexpr int kMessageSize = 101;
constexpr UINT kItemMask = TVIF_TEXT | TVIF_PARAM | TVIF_CHILDREN;
using ItemName = hydrofacts::ItemText<32>;
using SearchedName = hydrofacts::ItemText<101>;

// As printf does with %g, whatever the locale.
std::string SixDigits(double value) {
    constexpr int kDigits = 6;
    char text[32];
    const auto [end, error] =
        std::to_chars(std::begin(text), std::end(text), value, std::chars_format::general, kDigits);
    return {text, end};
}

// The second field of a row, or null; the line is cut.
const char* SecondField(char* line) {
    NextField(line);
    return NextField(nullptr);
}

}  // namespace

CPipeTableDlg::CPipeTableDlg(HF_UNITS system)
    : CPipeTable(system), m_imageList(nullptr), m_hDlg(nullptr), m_tableDir{} {}

CPipeTableDlg::CPipeTableDlg(const CPipeTableDlg& other) : CPipeTableDlg(other.units) {
    *this = other;
}

CPipeTableDlg& CPipeTableDlg::operator=(const CPipeTableDlg& other) {
    if (this == &other) return *this;
    CPipeTable::operator=(other);
    m_imageList = other.m_imageList;
    m_hDlg = other.m_hDlg;
    std::copy(std::begin(other.m_tableDir), std::end(other.m_tableDir), m_tableDir);
    return *this;
}

CPipeTableDlg::~CPipeTableDlg() = default;

int CPipeTableDlg::InitPipeMaterials(HWND dialog, const char* tableDir) {
    constexpr double kHighLimit = 9.0;
    constexpr double kLowLimit = 1.0;
    return InitPipeMaterials(dialog, tableDir, kHighLimit, kLowLimit);
}

int CPipeTableDlg::InitPipeMaterials(HWND dialog, const char* tableDir, double highLimit,
                                     double lowLimit) {
    m_hDlg = dialog;
    // A directory that is cut here is too long for any path of a table.
    rstrncpy(m_tableDir, tableDir, sizeof m_tableDir);
    const TreeControl tree(GetDlgItem(dialog, kTree));
    for (hydrofacts::TableSearch tables(m_tableDir, hydrofacts::kPipeExtension); tables.Next();) {
        const char* name = tables.Name();
        TextFile file(hydrofacts::TablePath(m_tableDir, name, hydrofacts::kPipeExtension).c_str());
        if (!file.ValidFile() || std::strlen(name) > hydrofacts::kLongestListedName) continue;
        if (!IsListed(file, highLimit, lowLimit)) continue;
        AddSchedules(file, tree.Insert(TVI_ROOT, TVI_SORT, {kItemMask, name, true}));
    }
    return 1;
}

// A schedule that comes back later in the file is added again.
void CPipeTableDlg::AddSchedules(TextFile& file, HTREEITEM item) {
    const TreeControl tree(GetDlgItem(m_hDlg, kTree));
    char line[hydrofacts::kPipeLineSize] = "";
    const auto next = [&]() -> const char* {
        ReadPipeRecords(&file, line, sizeof line);
        return file.eof() ? nullptr : SecondField(line);
    };
    const char* current = next();
    while (current != nullptr && std::strlen(current) <= hydrofacts::kLongestListedName) {
        const std::string inHand = current;
        tree.Insert(item, TVI_LAST, {kItemMask, inHand.c_str(), false});
        do {
            current = next();
        } while (current != nullptr && inHand == current);
    }
}

void CPipeTableDlg::DlgCommand(int id, int code) {
    if (id == kTree && code == static_cast<int>(TVN_SELCHANGED)) {
        ItemSelected();
    } else if (id == kSizes && code == CBN_SELCHANGE) {
        SizePicked();
    }
}

void CPipeTableDlg::ItemSelected() {
    const TreeControl tree(GetDlgItem(m_hDlg, kTree));
    SetDlgItemNull(m_hDlg, kNote);
    const HTREEITEM item = tree.Selected();
    const ItemName name(tree, item, kItemMask);
    if (!name.Found()) return;
    if (const HWND sizes = GetDlgItem(m_hDlg, kSizes)) {
        SendMessageA(sizes, CB_RESETCONTENT, 0, 0);
        SendMessageA(sizes, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        SetDlgItemNull(m_hDlg, kDiameter);
    }
    const bool isSchedule = !name.HasChildren();
    const ItemName above(tree, isSchedule ? tree.Next(TVGN_PARENT, item) : item, kItemMask);
    if (!above.Found()) return;
    if (!LoadMaterial(m_tableDir, above.c_str())) {
        ShowMessage(kInvalidTable, above.c_str());
        return;
    }
    ShowMaterial();
    if (isSchedule) ShowSchedule(item, name.c_str());
}

void CPipeTableDlg::ShowMaterial() {
    ShowPipeNotes();
    SetDlgItemTextA(m_hDlg, kMaterialName, GetMaterialName());
    SetDlgItemNull(m_hDlg, kScheduleName);
    SetDlgItemDouble(m_hDlg, kRoughness, abs_roughness);
    SetDlgItemDouble(m_hDlg, kHazenWilliams, hwc);
}

void CPipeTableDlg::ShowSchedule(HTREEITEM item, const char* name) {
    SetDlgItemTextA(m_hDlg, kScheduleName, name);
    TreeControl(GetDlgItem(m_hDlg, kTree)).ShowLater(item);
    if (LoadPipeList(name, GetDlgItem(m_hDlg, kSizes))) return;
    SetDlgItemNull(m_hDlg, kScheduleName);
    ShowMessage(kNoSizes, name);
}

// The row stands in the form of the chosen language.
void CPipeTableDlg::SizePicked() {
    const HWND sizes = GetDlgItem(m_hDlg, kSizes);
    const LRESULT row = SendMessageA(sizes, CB_GETCURSEL, 0, 0);
    if (row < 0) return;
    const LRESULT length = SendMessageA(sizes, CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
    if (length < 0) return;
    std::string whole(static_cast<std::size_t>(length), '\0');
    SendMessageA(sizes, CB_GETLBTEXT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(whole.data()));
    char size[32];
    rstrncpy(size, whole.c_str(), sizeof size);
    std::string shown = "(" + SixDigits(PipeDia(Language().EnglishNumber(size))) + ")";
    SetDlgItemTextA(m_hDlg, kDiameter, Language().Number(shown.data()));
}

void CPipeTableDlg::SetPipeMaterialSize(const char* materialName, const char* scheduleName,
                                        double size) {
    const TreeControl tree(GetDlgItem(m_hDlg, kTree));
    if (*materialName == '\0') {
        tree.Select(nullptr);
        for (HTREEITEM item = tree.Next(TVGN_ROOT, nullptr); item != nullptr;
             item = tree.Next(TVGN_NEXT, item)) {
            tree.Collapse(item);
        }
        return;
    }
    const HTREEITEM item = FindSchedule(materialName, scheduleName);
    if (item == nullptr) {
        ShowMessage(kInvalidTable, materialName);
        return;
    }
    tree.Select(item);
    if (size == 0.0) return;
    SendDlgItemMessageA(m_hDlg, kSizes, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(SixDigits(size).c_str()));
    DlgCommand(kSizes, CBN_SELCHANGE);
}

HTREEITEM CPipeTableDlg::FindSchedule(const char* materialName, const char* scheduleName) {
    const TreeControl tree(GetDlgItem(m_hDlg, kTree));
    const auto find = [&tree](HTREEITEM first, auto&& matches) {
        HTREEITEM item = first;
        while (item != nullptr && !matches(SearchedName(tree, item, TVIF_TEXT).c_str())) {
            item = tree.Next(TVGN_NEXT, item);
        }
        return item;
    };
    const HTREEITEM above = find(tree.Next(TVGN_ROOT, nullptr), [&](const char* text) {
        return quillbase::EqualIgnoringCase(text, materialName);
    });
    if (above == nullptr) return nullptr;
    return find(tree.Next(TVGN_CHILD, above),
                [&](const char* text) { return std::strcmp(text, scheduleName) == 0; });
}

void CPipeTableDlg::SetUnit(HF_UNITS system) { SetPipeUnit(system, m_hDlg); }

void CPipeTableDlg::ShowMessage(int message, const char* name) {
    char text[kMessageSize] = "";
    Language().FormatString(ModuleHandle(), message, text, sizeof text, name);
    SetDlgItemTextA(m_hDlg, kNote, text);
}

void CPipeTableDlg::BuildTreeImageList(HWND tree) {
    constexpr WORD kPipes = 127;
    constexpr int kCapacity = 8;
    m_imageList = hydrofacts::LoadSymbols(kPipes, ILC_COLOR, kCapacity);
    TreeControl(tree).SetImages(m_imageList);
}

void CPipeTableDlg::ShowPipeNotes() { ShowTableNote(path, m_hDlg, kNote); }
