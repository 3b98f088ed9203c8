#ifndef HYDROFACTS_DEMO_FLUIDFORM_H
#define HYDROFACTS_DEMO_FLUIDFORM_H

#include "demo/Page.h"

namespace demo {

/// The controls of a fluid dialog: those that CFluidDlg knows, and labels and units beside them.
enum FluidControl : int {
    kFluids = 10001,
    kTemperature = 10002,
    kTemperatureUnit = 10003,
    kPressure = 10004,
    kPressureUnit = 10005,
    kViscosity = 10006,
    kViscosityUnit = 10007,
    kDensity = 10008,
    kDensityUnit = 10009,
    kLiquid = 10010,
    kVapor = 10011,
    kHeatRatioLabel = 10012,
    kHeatRatio = 10014,
    kVaporPressureLabel = 10015,
    kVaporPressure = 10017,
    kVaporPressureUnit = 10018,
    kOwnName = 10024,
    kFluidNote = 10025,
    kCriticalPressureLabel = 10026,
    kCriticalPressure = 10027,
    kCriticalPressureUnit = 10028,
    kCriticalTemperature = 10030,
    kCriticalTemperatureUnit = 10031,
    kMolarMass = 10032,
    kMolarMassUnit = 10033,
    kFixedName = 10034,
    kCaption = 10035,

    kTemperatureLabel = 2001,
    kPressureLabel,
    kDensityLabel,
    kViscosityLabel,
    kCriticalTemperatureLabel,
    kMolarMassLabel,
    kOwnNameLabel,
    kSetPointGroup,
    kStateGroup,
    kPropertyGroup,
    kPlotGroup,
    kPlotProperty,
    kPlot,
    kExplanation,
    kFixedNameLabel,
};

inline constexpr DWORD kPageStyle = WS_CHILD | DS_CONTROL;

/// Lays out rows of label, edit and unit.
class Rows {
  public:
    Rows(win32::DialogBuilder& form, short x, short y) : form_(form), x_(x), y_(y) {}

    /// `unit` 0: none.
    Rows& Add(int label, int edit, int unit, DWORD style = 0);
    short Y() const { return y_; }

    static constexpr short kWidth = 160;  ///< of a row

  private:
    win32::DialogBuilder& form_;
    short x_;
    short y_;
};

/// Writes the texts of the user units beside the figures of a fluid.
void ShowFluidUnits(HWND dialog, const Units& units);

/// Enables the figures that a fluid has in a state, with what stands beside them. The controller
/// disables them whenever it empties them.
void EnableFigures(HWND dialog, bool liquid, bool vapor);

/// A set point in the present units, as it was in those `before`; pressures keep their absolute
/// value.
double ConvertTemperature(const Units& before, const Units& now, double temperature);
double ConvertPressure(const Units& before, const Units& now, double pressure);

}  // namespace demo

#endif
