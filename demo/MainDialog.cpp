#include "demo/MainDialog.h"

#include <algorithm>

#include "demo/FluidForm.h"

namespace demo {
namespace {

constexpr Text kPageNames[] = {Text::PageFluid, Text::PageConditions, Text::PageTemperature,
                               Text::PagePipe, Text::PageValve};

win32::DialogBuilder MainForm() {
    win32::DialogBuilder form("Hydrofacts",
                              WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX |
                                  WS_MAXIMIZEBOX | WS_CLIPCHILDREN | DS_CENTER,
                              {0, 0, 604, 322});
    form.ListBox(kPages, {7, 30, 76, 265});
    form.Static(kUnitsLabel, "", {7, 9, 32, 9}, WS_GROUP);
    form.ComboBox(kUnits, {41, 7, 56, 60});
    form.Static(kPressuresLabel, "", {105, 9, 40, 9}, WS_GROUP);
    form.ComboBox(kPressures, {147, 7, 64, 60});
    form.Static(kAtmosphereLabel, "", {221, 9, 46, 9}, WS_GROUP);
    form.Edit(kAtmosphere, {269, 7, 44, 12});
    form.Static(kAtmosphereUnit, "", {316, 9, 24, 9}, SS_NOPREFIX);
    form.Button(kElevation, "", {342, 6, 60, 14});
    form.Static(kLanguageLabel, "", {459, 9, 42, 9}, WS_GROUP);
    form.ComboBox(kLanguage, {503, 7, 94, 80});
    form.Control("Static", kPageArea, "", 0, {92, 30, 505, 265});
    form.Static(kSummary, "", {7, 304, 520, 9}, WS_GROUP | SS_NOPREFIX);
    form.Button(IDCANCEL, "", {537, 301, 60, 14});
    return form;
}

}  // namespace

MainDialog::MainDialog(const Site& site)
    : site_(site),
      fluid_(site_),
      conditions_(site_, fluid_),
      temperature_(site_),
      pipe_(site_),
      valve_(site_),
      pages_{&fluid_, &conditions_, &temperature_, &pipe_, &valve_} {
    site_.changed = [this] { ShowSummary(); };
}

bool MainDialog::Create() {
    const win32::DialogBuilder form = MainForm();
    return CreateDialogIndirectParamA(GetModuleHandleA(nullptr), form.Template(), nullptr,
                                      &Procedure, reinterpret_cast<LPARAM>(this)) != nullptr;
}

INT_PTR CALLBACK MainDialog::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        auto* const self = reinterpret_cast<MainDialog*>(lParam);
        self->dialog_ = dialog;
        self->Init();
        return TRUE;
    }
    auto* const self = reinterpret_cast<MainDialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
    return self != nullptr && self->Handle(message, wParam, lParam) ? TRUE : FALSE;
}

bool MainDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            return Command(LOWORD(wParam), HIWORD(wParam));
        case WM_SIZE:
            layout_.Apply();
            PlacePages();
            return true;
        case WM_GETMINMAXINFO:
            KeepSize(*reinterpret_cast<MINMAXINFO*>(lParam));
            return true;
        case WM_CLOSE:
            DestroyWindow(dialog_);
            return true;
        case WM_DESTROY:
            PostQuitMessage(0);
            return true;
        default:
            return false;
    }
}

void MainDialog::Init() {
    static constexpr Following kFollows[] = {
        {kPages, kTaller},          {kLanguageLabel, kRight},
        {kLanguage, kRight},        {kPageArea, kWider | kTaller},
        {kSummary, kDown | kWider}, {IDCANCEL, kRight | kDown},
    };
    layout_.Note(dialog_, kFollows);
    RECT window{};
    GetWindowRect(dialog_, &window);
    least_ = {window.right - window.left, window.bottom - window.top};

    for (int language = 0; language < kLanguages; ++language) {
        AddRow(dialog_, kLanguage, LanguageName(language));
    }
    PickRow(dialog_, kLanguage, site_.language);
    for (Page* page : pages_) page->Create(dialog_);
    PlacePages();
    Relabel();
    ShowPage(0);
}

void MainDialog::KeepSize(MINMAXINFO& sizes) const {
    if (least_.cx != 0) sizes.ptMinTrackSize = {least_.cx, least_.cy};
}

void MainDialog::PlacePages() const {
    RECT area{};
    GetWindowRect(GetDlgItem(dialog_, kPageArea), &area);
    POINT origin{area.left, area.top};
    ScreenToClient(dialog_, &origin);
    const RECT place{origin.x, origin.y, origin.x + area.right - area.left,
                     origin.y + area.bottom - area.top};
    for (const Page* page : pages_) page->Place(place);
}

void MainDialog::ShowPage(int page) {
    if (page < 0 || page >= static_cast<int>(pages_.size())) return;
    shown_ = page;
    for (int i = 0; i < static_cast<int>(pages_.size()); ++i) {
        if (i != page) At(i).Show(false);
    }
    At(page).Show(true);
    SendDlgItemMessageA(dialog_, kPages, LB_SETCURSEL, static_cast<WPARAM>(page), 0);
}

void MainDialog::FillLists() {
    SendDlgItemMessageA(dialog_, kPages, LB_RESETCONTENT, 0, 0);
    for (const Text name : kPageNames) {
        const std::string text = Say(name, site_.language);
        SendDlgItemMessageA(dialog_, kPages, LB_ADDSTRING, 0,
                            reinterpret_cast<LPARAM>(text.c_str()));
    }
    SendDlgItemMessageA(dialog_, kPages, LB_SETCURSEL, static_cast<WPARAM>(shown_), 0);

    const auto fill = [this](int combo, Text first, Text second, int row) {
        SendDlgItemMessageA(dialog_, combo, CB_RESETCONTENT, 0, 0);
        AddRow(dialog_, combo, Say(first, site_.language));
        AddRow(dialog_, combo, Say(second, site_.language));
        PickRow(dialog_, combo, row);
    };
    fill(kUnits, Text::UsUnits, Text::MetricUnits, site_.units.bUS() ? 0 : 1);
    fill(kPressures, Text::Absolute, Text::Gauge, site_.units.GetAbsolute() ? 0 : 1);
}

void MainDialog::Relabel() {
    const struct {
        int control;
        Text text;
    } labels[] = {
        {kUnitsLabel, Text::Units},           {kPressuresLabel, Text::Pressures},
        {kAtmosphereLabel, Text::Atmosphere}, {kElevation, Text::Elevation},
        {kLanguageLabel, Text::Language},     {IDCANCEL, Text::Close},
    };
    for (const auto& label : labels) {
        SetText(dialog_, label.control, Say(label.text, site_.language));
    }
    FillLists();
    ShowAtmosphere();
    for (Page* page : pages_) page->Relabel();
    ShowSummary();
}

void MainDialog::ShowAtmosphere() {
    SetText(dialog_, kAtmosphere,
            NumberText(site_.units.GetAtmosphere(HF_USER_UNIT, true), DecimalSign(site_.language)));
    SetText(dialog_, kAtmosphereUnit, site_.units.GetString(HF_PRESSURE));
}

void MainDialog::ShowSummary() const {
    std::string all;
    for (const Page* page : pages_) {
        const std::string chosen = page->Handle() == nullptr ? "" : page->Summary();
        if (!chosen.empty()) all += (all.empty() ? "" : "   |   ") + chosen;
    }
    SetText(dialog_, kSummary, all.empty() ? Say(Text::Nothing, site_.language) : all);
}

bool MainDialog::Command(int control, int code) {
    switch (control) {
        case kPages:
            if (code != LBN_SELCHANGE) return false;
            ShowPage(static_cast<int>(SendDlgItemMessageA(dialog_, kPages, LB_GETCURSEL, 0, 0)));
            return true;
        case kUnits:
        case kPressures:
            if (code != CBN_SELCHANGE) return false;
            TakeUnits();
            return true;
        case kLanguage:
            if (code != CBN_SELCHANGE) return false;
            TakeLanguage();
            return true;
        case kAtmosphere:
            if (code != EN_KILLFOCUS) return false;
            TakeAtmosphere();
            return true;
        case kElevation:
            AskElevation();
            return true;
        case IDOK:  // Enter
            At(shown_).Enter();
            return true;
        case IDCANCEL:
            DestroyWindow(dialog_);
            return true;
        default:
            return false;
    }
}

void MainDialog::TakeUnits() {
    Units before;
    before = site_.units;  // with its atmosphere, which a copy made otherwise doesn't have
    const bool us = PickedRow(dialog_, kUnits) == 0;
    if (us != site_.units.bUS()) site_.units.SetSystem(us ? HF_US : HF_METRIC, true);
    site_.units.SetAbsolute(PickedRow(dialog_, kPressures) == 0);
    Converted(before);
}

void MainDialog::Converted(const Units& before) {
    ShowAtmosphere();
    for (Page* page : pages_) page->UnitsChanged(before);
    ShowSummary();
}

// A gauge pressure keeps its absolute value when the atmosphere changes.
void MainDialog::TakeAtmosphere() {
    double pressure = 0.0;
    const double present = site_.units.GetAtmosphere(HF_USER_UNIT, true);
    if (!NumberOf(dialog_, kAtmosphere, pressure) || !(pressure > 0.0)) {
        ShowAtmosphere();
    } else if (Rounded(pressure) != Rounded(present)) {
        Units before;
        before = site_.units;
        site_.units.SetAtmosphere(pressure, HF_USER_UNIT);
        Converted(before);
    }
}

void MainDialog::AskElevation() {
    RECT button{};
    GetWindowRect(GetDlgItem(dialog_, kElevation), &button);
    const auto unit = static_cast<HF_PUNITS>(site_.units.GetUserUnit(HF_PRESSURE));
    const auto dialog =
        Atmospheric_Pressure_From_Elevation_Dialog::new_Atmospheric_Pressure_From_Elevation_Dialog(
            {button.left, button.bottom}, unit, site_.units.bUS() ? HF_LEN_FT : HF_LEN_M, dialog_,
            kAtmosphere);
    // It writes while the user types: without OK that is taken back.
    if (dialog->showModal(dialog_)) {
        TakeAtmosphere();
    } else {
        ShowAtmosphere();
    }
}

void MainDialog::TakeLanguage() {
    site_.language = PickedRow(dialog_, kLanguage);
    Hydrofacts_SetLanguage(LanguageId(site_.language));
    Relabel();
}

}  // namespace demo
