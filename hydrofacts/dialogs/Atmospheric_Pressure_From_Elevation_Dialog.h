#ifndef HYDROFACTS_DIALOGS_ATMOSPHERIC_PRESSURE_FROM_ELEVATION_DIALOG_H
#define HYDROFACTS_DIALOGS_ATMOSPHERIC_PRESSURE_FROM_ELEVATION_DIALOG_H

#include <boost/shared_ptr.hpp>

#include "hydrofacts/units/UnitTypes.h"
#include "kvogui/Dialog.h"
#include "win32/Win32.h"

namespace kvo::gui {
class EditControl;
class StaticControl;
}  // namespace kvo::gui

/// A small dialog for a user who knows the elevation of a site and not its atmospheric pressure.
/// While the elevation is typed, the pressure of the standard atmosphere stands in a control of the
/// caller's dialog.
///
///     auto calculator = Atmospheric_Pressure_From_Elevation_Dialog::
///         new_Atmospheric_Pressure_From_Elevation_Dialog({300, 200}, HF_KPA, HF_LEN_M, dialog,
///         2001);
///     calculator->showModal(dialog);
///
/// The elevation is read with a point as decimal sign in every language: what stands behind a comma
/// doesn't count. Nothing typed is elevation 0. The pressure is written with a point, with up to
/// six significant digits. An elevation above 15000 ft or below -10000 ft empties the caller's
/// control; a text that is no number leaves it as it is. It has the last result when the dialog is
/// closed in any way; on OK that of an untouched dialog is the pressure at elevation 0.
class HYDROFACTS_API Atmospheric_Pressure_From_Elevation_Dialog : public kvo::gui::Dialog {
  public:
    /// Makes a dialog. `position`: its top left corner on the screen. `pressureUnit`: the unit of
    /// the result. `lengthUnit`: with inches, feet, yards and miles the elevation is typed in feet,
    /// else in metres. `targetDialog` and `targetId`: the control that gets the result; the dialog
    /// must exist for as long as this one is shown.
    static boost::shared_ptr<Atmospheric_Pressure_From_Elevation_Dialog>
    new_Atmospheric_Pressure_From_Elevation_Dialog(POINT position, HF_PUNITS pressureUnit,
                                                   HF_LENGTH_UNITS lengthUnit, HWND targetDialog,
                                                   int targetId);
    ~Atmospheric_Pressure_From_Elevation_Dialog() override;

    /// Shows the dialog and returns when it is closed: true if that was by OK. `parent` is disabled
    /// meanwhile.
    bool showModal(HWND parent);

  protected:
    /// As new_Atmospheric_Pressure_From_Elevation_Dialog, which makes the shared owner that
    /// showModal needs.
    Atmospheric_Pressure_From_Elevation_Dialog(POINT position, HF_PUNITS pressureUnit,
                                               HF_LENGTH_UNITS lengthUnit, HWND targetDialog,
                                               int targetId);
    void init() override;

    POINT m_position;                                          ///< top left corner, on the screen
    HF_PUNITS m_pressureUnit;                                  ///< of the result
    HF_LENGTH_UNITS m_lengthUnit;                              ///< HF_LEN_FT or HF_LEN_M
    boost::shared_ptr<kvo::gui::StaticControl> m_unitLabel;    ///< says which length unit
    boost::shared_ptr<kvo::gui::EditControl> m_elevationEdit;  ///< what the user types
    int m_targetId;                                            ///< the control with the result
    HWND m_targetDialog;                                       ///< and its dialog

  private:
    HYDROFACTS_HIDDEN void handle_elevation_change();
    HYDROFACTS_HIDDEN void handle_OK();
};

#endif
