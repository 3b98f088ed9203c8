#include "demo/ValvePage.h"

#include <array>
#include <cstring>
#include <numeric>

#include "demo/FluidForm.h"

namespace demo {
namespace {

enum : int {
    kTables = 10111,
    kDevices = 10201,
    kFittings = 10202,
    kBends = 10203,
    kValves = 10204,
    kCheckValves = 10205,
    kOthers = 10206,
    kValveNote = 10207,
    kChosen = 10208,

    kTableLabel = 2201,
    kDevicesLabel,
    kChosenLabel,
    kAdd,
    kRemove,
    kMethodLabel,
    kMethod,
    kDataLabel,
    kData,
};

// Every formula number there is; the 0 ends the list.
const int* AllFormulas() {
    static const std::array<int, 100> all = [] {
        std::array<int, 100> numbers{};
        std::iota(numbers.begin(), numbers.end() - 1, 1);
        return numbers;
    }();
    return all.data();
}

HTREEITEM Selected(HWND dialog, int tree) {
    return reinterpret_cast<HTREEITEM>(
        SendDlgItemMessageA(dialog, tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
}

}  // namespace

win32::DialogBuilder ValvePage::Form() const {
    win32::DialogBuilder form("", kPageStyle, {0, 0, 498, 262}, WS_EX_CONTROLPARENT);
    form.Static(kTableLabel, "", {0, 2, 44, 9});
    form.ComboBox(kTables, {46, 0, 124, 120}, CBS_SORT | WS_VSCROLL);
    short y = 20;
    for (int kind = kFittings; kind <= kOthers; ++kind) {
        const DWORD group = kind == kFittings ? WS_GROUP | WS_TABSTOP : 0;
        form.RadioButton(kind, "", {0, y, 100, 10}, group);
        y = static_cast<short>(y + 14);
    }
    form.Static(kDevicesLabel, "", {104, 20, 150, 9}, WS_GROUP);
    form.Tree(kDevices, {104, 31, 154, 174});
    form.Button(kAdd, "", {264, 76, 74, 14});
    form.Button(kRemove, "", {264, 95, 74, 14});
    form.Static(kChosenLabel, "", {344, 20, 150, 9});
    form.Tree(kChosen, {344, 31, 154, 174});
    form.Static(kMethodLabel, "", {104, 213, 50, 9});
    form.Static(kMethod, "", {156, 213, 60, 9}, SS_NOPREFIX);
    form.Static(kDataLabel, "", {104, 226, 50, 9});
    form.Static(kData, "", {156, 226, 342, 9}, SS_NOPREFIX);
    form.Static(kValveNote, "", {0, 253, 498, 9}, SS_NOPREFIX);
    return form;
}

std::span<const Page::Label> ValvePage::Labels() const {
    static constexpr Label kLabels[] = {
        {kTableLabel, Text::ValveTable}, {kFittings, Text::Fitting},       {kBends, Text::Bend},
        {kValves, Text::Valve},          {kCheckValves, Text::CheckValve}, {kOthers, Text::Other},
        {kDevicesLabel, Text::Devices},  {kChosenLabel, Text::Chosen},     {kAdd, Text::Add},
        {kRemove, Text::Remove},         {kMethodLabel, Text::Method},     {kDataLabel, Text::Data},
    };
    return kLabels;
}

std::span<const Following> ValvePage::Follows() const {
    static constexpr Following kFollows[] = {
        {kDevices, kTaller},          {kChosen, kTaller},
        {kMethodLabel, kDown},        {kMethod, kDown},
        {kDataLabel, kDown},          {kData, kDown | kWider},
        {kValveNote, kDown | kWider},
    };
    return kFollows;
}

void ValvePage::Init() {
    constexpr double kNoLimit = 0.0;
    valves_ = std::make_unique<CValveTableDlg>(dialog_);
    valves_->InitValveTables(dialog_, site_.tables.c_str(), kNoLimit, kNoLimit);
    const LRESULT standard =
        SendDlgItemMessageA(dialog_, kTables, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                            reinterpret_cast<LPARAM>("Standard"));
    PickRow(dialog_, kTables, standard < 0 ? 0 : static_cast<int>(standard));
    CheckRadioButton(dialog_, kFittings, kOthers, kFittings);
    LoadTable();
}

int ValvePage::KindShown() const {
    for (int kind = kFittings; kind <= kOthers; ++kind) {
        if (IsDlgButtonChecked(dialog_, kind) != 0) return kind;
    }
    return kFittings;
}

// The items of the tree lead to records of the table: they go before it.
void ValvePage::LoadTable() {
    SendDlgItemMessageA(dialog_, kDevices, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    device_ = nullptr;
    const std::string table = PickedText(dialog_, kTables);
    const HF_UNITS system = site_.units.bUS() ? HF_US : HF_METRIC;
    valves_->LoadValveTable(site_.tables.c_str(), table.c_str(), system, AllFormulas());
    valves_->DlgCommand(KindShown(), BN_CLICKED, 0);
    ShowDevice();
}

void ValvePage::Relabel() {
    Page::Relabel();
    ShowDevice();
}

void ValvePage::UnitsChanged(const Units& before) {
    if (before.bUS() != site_.units.bUS()) LoadTable();
}

bool ValvePage::Command(int control, int code, LPARAM lParam) {
    if (control == kTables && code == CBN_SELCHANGE) {
        LoadTable();
    } else if (control == kAdd && code == BN_CLICKED) {
        Add();
    } else if (control == kRemove && code == BN_CLICKED) {
        Remove();
    } else if (control >= kFittings && control <= kOthers && code == BN_CLICKED) {
        valves_->DlgCommand(control, code, lParam);
        device_ = nullptr;
        ShowDevice();
    } else {
        return false;
    }
    return true;
}

bool ValvePage::Notify(const NMHDR& header) {
    if (!valves_ || (header.idFrom != kDevices && header.idFrom != kChosen)) return false;
    const auto control = static_cast<int>(header.idFrom);
    const LONG_PTR picked = valves_->DlgCommand(control, static_cast<int>(header.code), 0);
    if (control == kDevices && picked != 0) {
        device_ = reinterpret_cast<const CValveType*>(picked);
        ShowDevice();
    }
    return false;
}

void ValvePage::ShowDevice() {
    std::string method;
    std::string data;
    if (device_ != nullptr) {
        constexpr int kShown = 12;
        method = std::to_string(device_->formula);
        for (int i = 0; i < device_->data_count && i < kShown; ++i) {
            data += (i == 0 ? "" : "   ") + Number(device_->data[i]);
        }
        if (device_->data_count > kShown) data += "   ...";
    }
    Put(kMethod, method);
    Put(kData, data);
    Enable(dialog_, kAdd, kAdd, device_ != nullptr);
    Enable(dialog_, kRemove, kRemove, Selected(dialog_, kChosen) != nullptr);
    if (site_.changed) site_.changed();
}

// The second tree keeps names and symbols: the records go with their table.
void ValvePage::Add() {
    if (device_ == nullptr) return;
    char name[sizeof device_->name];
    std::memcpy(name, device_->name, sizeof name);
    TVINSERTSTRUCTA insert{};
    insert.hParent = TVI_ROOT;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = name;
    insert.item.iImage = insert.item.iSelectedImage = device_->image - 1;
    SendDlgItemMessageA(dialog_, kChosen, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert));
    ShowDevice();
}

void ValvePage::Remove() {
    if (const HTREEITEM item = Selected(dialog_, kChosen)) {
        SendDlgItemMessageA(dialog_, kChosen, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
    }
    ShowDevice();
}

std::string ValvePage::Summary() const {
    return device_ == nullptr ? std::string() : device_->name;
}

}  // namespace demo
