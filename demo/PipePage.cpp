#include "demo/PipePage.h"

#include "demo/FluidForm.h"

namespace demo {
namespace {

enum : int {
    kPipes = 10101,
    kRoughness = 10102,
    kSizes = 10104,
    kDiameter = 10105,
    kPipeNote = 10107,
    kHazenWilliams = 10108,
    kMaterial = 10109,
    kSchedule = 10110,

    kPipesLabel = 2101,
    kMaterialLabel,
    kScheduleLabel,
    kRoughnessLabel,
    kHazenWilliamsLabel,
    kSizeLabel,
    kDiameterLabel,
    kRoughnessUnit,
    kSizeUnit,
    kDiameterUnit,
};

}  // namespace

win32::DialogBuilder PipePage::Form() const {
    win32::DialogBuilder form("", kPageStyle, {0, 0, 498, 262}, WS_EX_CONTROLPARENT);
    form.Static(kPipesLabel, "", {0, 0, 180, 9});
    form.Tree(kPipes, {0, 11, 180, 235});
    short y = 13;
    const auto row = [&](int label, int value, int unit) {
        form.Static(label, "", {192, y, 92, 9}, WS_GROUP);
        const short width = unit != 0 ? 80 : 206;
        form.Static(value, "", {288, y, width, 9}, SS_NOPREFIX);
        if (unit != 0) form.Static(unit, "", {374, y, 40, 9}, SS_NOPREFIX);
        y = static_cast<short>(y + 14);
    };
    row(kMaterialLabel, kMaterial, 0);
    row(kScheduleLabel, kSchedule, 0);
    row(kRoughnessLabel, kRoughness, kRoughnessUnit);
    row(kHazenWilliamsLabel, kHazenWilliams, 0);
    form.Static(kSizeLabel, "", {192, static_cast<short>(y + 8), 92, 9}, WS_GROUP);
    form.ComboBox(kSizes, {288, static_cast<short>(y + 6), 80, 160}, WS_VSCROLL);
    form.Static(kSizeUnit, "", {374, static_cast<short>(y + 8), 40, 9}, SS_NOPREFIX);
    y = static_cast<short>(y + 24);
    row(kDiameterLabel, kDiameter, kDiameterUnit);
    form.Static(kPipeNote, "", {0, 253, 498, 9}, SS_NOPREFIX);
    return form;
}

std::span<const Page::Label> PipePage::Labels() const {
    static constexpr Label kLabels[] = {
        {kPipesLabel, Text::Pipes},
        {kMaterialLabel, Text::Material},
        {kScheduleLabel, Text::Schedule},
        {kRoughnessLabel, Text::Roughness},
        {kHazenWilliamsLabel, Text::HazenWilliams},
        {kSizeLabel, Text::NominalSize},
        {kDiameterLabel, Text::InsideDiameter},
    };
    return kLabels;
}

std::span<const Following> PipePage::Follows() const {
    static constexpr Following kFollows[] = {{kPipes, kTaller}, {kPipeNote, kDown | kWider}};
    return kFollows;
}

void PipePage::Init() { pipe_.InitPipeMaterials(dialog_, site_.tables.c_str()); }

void PipePage::ShowUnits() {
    const std::string unit = site_.units.bUS() ? "in" : "mm";
    for (const int control : {kRoughnessUnit, kSizeUnit, kDiameterUnit}) Put(control, unit);
}

void PipePage::Relabel() {
    Page::Relabel();
    ShowUnits();
    FillAnew();
}

void PipePage::UnitsChanged(const Units& before) {
    ShowUnits();
    if (before.bUS() != site_.units.bUS()) FillAnew();
}

// In the present system and with the decimal sign of the language. A schedule has the same rows in
// both systems.
void PipePage::FillAnew() {
    const std::string material = TextOf(dialog_, kMaterial);
    const std::string schedule = TextOf(dialog_, kSchedule);
    const int size = PickedRow(dialog_, kSizes);
    pipe_.SetUnit(site_.units.bUS() ? HF_US : HF_METRIC);
    if (material.empty()) return;
    pipe_.SetPipeMaterialSize("", "", 0.0);
    pipe_.SetPipeMaterialSize(material.c_str(), schedule.c_str(), 0.0);
    if (size < 0) return;
    PickRow(dialog_, kSizes, size);
    pipe_.DlgCommand(kSizes, CBN_SELCHANGE);
    site_.changed();
}

bool PipePage::Command(int control, int code, LPARAM) {
    if (control != kSizes) return false;
    pipe_.DlgCommand(control, code);
    site_.changed();
    return true;
}

bool PipePage::Notify(const NMHDR& header) {
    if (header.idFrom != kPipes) return false;
    pipe_.DlgCommand(kPipes, static_cast<int>(header.code));
    site_.changed();
    return false;
}

std::string PipePage::Summary() const {
    const std::string size = PickedText(dialog_, kSizes);
    if (size.empty()) return {};
    const std::string unit = site_.units.bUS() ? "in" : "mm";
    return TextOf(dialog_, kMaterial) + ' ' + TextOf(dialog_, kSchedule) + ", " + size + ' ' +
           unit + ' ' + TextOf(dialog_, kDiameter);
}

}  // namespace demo
