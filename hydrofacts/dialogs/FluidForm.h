#ifndef HYDROFACTS_DIALOGS_FLUIDFORM_H
#define HYDROFACTS_DIALOGS_FLUIDFORM_H

#include <string>

#include "win32/Win32.h"

namespace hydrofacts {

/// The controls of a host's fluid dialog: CFluidDlg says what they hold.
enum FluidControl : int {
    kDefaultButton = 1,
    kFluidList = 10001,
    kTemperature = 10002,
    kPressure = 10004,
    kViscosity = 10006,
    kDensity = 10008,
    kLiquidButton = 10010,
    kVaporButton = 10011,
    kFirstOfPhaseProperties = 10012,
    kSpHeat = 10014,
    kVaporPressure = 10017,
    kLastOfPhaseProperties = 10018,
    kTypedName = 10024,
    kNote = 10025,
    kFirstOfCriticalPressure = 10026,
    kCriticalPressure = 10027,
    kLastOfCriticalPressure = 10028,
    kCriticalTemperature = 10030,
    kMolecularWeight = 10032,
    kFixedName = 10034,
    kListCaption = 10035,
};

/// The messages of a fluid dialog.
enum FluidMessage : unsigned {
    kNoPropertiesThere = 1,
    kNoLiquidThere = 2,
    kLoadingTables = 3,
    kInstalledTables = 4,
    kNoVaporThere = 5,
    kInvalidTable = 6,
    kStateChanges = 7,
};

/// How many bytes the texts of messages are cut to.
inline constexpr int kCaptionSize = 120;
inline constexpr int kPickMessageSize = 64;
inline constexpr int kSetMessageSize = 120;
inline constexpr int kConditionMessageSize = 160;

/// A host's fluid dialog as the controller works on it. Controls that it lacks are passed over.
class FluidForm {
  public:
    explicit FluidForm(HWND dialog) : dialog_(dialog) {}

    bool Has(int control) const { return IsWindow(Item(control)) != FALSE; }
    HWND Item(int control) const { return GetDlgItem(dialog_, control); }

    /// The text of a control, cut to `size` bytes with its terminator.
    void GetText(int control, char* text, int size) const;
    void SetText(int control, const char* text) const;
    bool HoldsText(int control) const;
    /// Whether there is a temperature, and a pressure if the form asks for one.
    bool HoldsConditions() const;

    double Number(int control) const;
    void Show(int control, double value) const;
    void Empty(int control) const;

    /// The selected row of the list, -1 if there is none.
    int SelectedRow() const;
    /// Selects a row; -1: none.
    void Select(int row) const;
    /// The row with that text, whatever its case; -1 if there is none.
    int FindRow(const char* text) const;
    std::string RowText(int row) const;

    void CheckLiquid() const;
    void CheckVapor() const;
    bool VaporIsChecked() const;

    /// Disables the controls of a range of ids.
    void Disable(int first, int last) const;

    /// Shows a message in a control, with `name` in its place for one if it has that.
    void ShowMessage(int control, FluidMessage message, int size) const;
    void ShowMessage(int control, FluidMessage message, int size, const char* name) const;

  private:
    HWND dialog_;
};

}  // namespace hydrofacts

#endif
