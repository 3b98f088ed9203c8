#include "hydrofacts/dialogs/Atmospheric_Pressure_From_Elevation_Dialog.h"

#include <cmath>
#include <string>

#include "hydrofacts/frame/Module.h"
#include "hydrofacts/units/Atmospheric_Pressure_Equations.h"
#include "hydrofacts/units/UnitValue.h"
#include "kvogui/EditControl.h"
#include "kvogui/StaticControl.h"
#include "quillbase/DialogItems.h"
#include "quillbase/Numbers.h"
#include "quillbase/Rounding.h"

namespace {

constexpr int kTemplate = 109;
constexpr int kUnitLabel = 505;
constexpr int kElevation = 1318;

HF_LENGTH_UNITS UnitOfElevation(HF_LENGTH_UNITS unit) {
    const bool us =
        unit == HF_LEN_IN || unit == HF_LEN_FT || unit == HF_LEN_YD || unit == HF_LEN_MI;
    return us ? HF_LEN_FT : HF_LEN_M;
}

}  // namespace

boost::shared_ptr<Atmospheric_Pressure_From_Elevation_Dialog>
Atmospheric_Pressure_From_Elevation_Dialog::new_Atmospheric_Pressure_From_Elevation_Dialog(
    POINT position, HF_PUNITS pressureUnit, HF_LENGTH_UNITS lengthUnit, HWND targetDialog,
    int targetId) {
    return boost::shared_ptr<Atmospheric_Pressure_From_Elevation_Dialog>(
        new Atmospheric_Pressure_From_Elevation_Dialog(position, pressureUnit, lengthUnit,
                                                       targetDialog, targetId));
}

Atmospheric_Pressure_From_Elevation_Dialog::Atmospheric_Pressure_From_Elevation_Dialog(
    POINT position, HF_PUNITS pressureUnit, HF_LENGTH_UNITS lengthUnit, HWND targetDialog,
    int targetId)
    : Dialog(kTemplate),
      m_position(position),
      m_pressureUnit(pressureUnit),
      m_lengthUnit(UnitOfElevation(lengthUnit)),
      m_unitLabel(kvo::gui::StaticControl::new_control(kUnitLabel)),
      m_elevationEdit(kvo::gui::EditControl::new_control(kElevation)),
      m_targetId(targetId),
      m_targetDialog(targetDialog) {
    add(m_unitLabel);
    m_elevationEdit->Connect_textChanging(
        [this](kvo::gui::EditControl&) { handle_elevation_change(); });
    add(m_elevationEdit);
    Connect_ok([this](Dialog&) { handle_OK(); });
}

Atmospheric_Pressure_From_Elevation_Dialog::~Atmospheric_Pressure_From_Elevation_Dialog() = default;

bool Atmospheric_Pressure_From_Elevation_Dialog::showModal(HWND parent) {
    return Dialog::showModal(hydrofacts::ModuleHandle(), parent);
}

void Atmospheric_Pressure_From_Elevation_Dialog::init() {
    Dialog::init();
    m_unitLabel->setText(m_lengthUnit == HF_LEN_FT ? "feet" : "meters");
    RECT place{};
    GetWindowRect(handle(), &place);
    MoveWindow(handle(), m_position.x, m_position.y, place.right - place.left,
               place.bottom - place.top, TRUE);
}

void Atmospheric_Pressure_From_Elevation_Dialog::handle_elevation_change() {
    if (!GoodNumber(handle(), m_elevationEdit->id(), true, true, true)) return;
    double number = 0.0;
    quillbase::ScanReal(m_elevationEdit->getText().c_str(), &number);
    UnitValue<HF_LENGTH, 0> elevation;
    elevation.set_unit(m_lengthUnit);
    elevation.set_value(number);
    const UnitValue<HF_PRESSURE, 0> pressure =
        Atmospheric_Pressure_Equations::atmospheric_pressure_at_elevation(elevation);
    char text[32] = "";
    if (!std::isnan(pressure.raw_value())) RoundDbl(text, pressure.value_in(m_pressureUnit));
    SetDlgItemTextA(m_targetDialog, m_targetId, text);
}

void Atmospheric_Pressure_From_Elevation_Dialog::handle_OK() {
    handle_elevation_change();
    apply();
    close();
}
