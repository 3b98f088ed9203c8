#ifndef HYDROFACTS_DIALOGS_CFLUIDDLG_H
#define HYDROFACTS_DIALOGS_CFLUIDDLG_H

#include <cstdint>

#include "hydrofacts/fluid/CFluid.h"
#include "win32/Win32.h"

namespace hydrofacts {
class FluidForm;
enum FluidMessage : unsigned;
}  // namespace hydrofacts

/// A fluid that a user chooses in a dialog of the host's: from the list of installed tables at a
/// typed temperature and pressure, or by typing its properties. Afterwards it is read like any
/// CFluid.
///
///     CFluidDlg fluid(&units);
///     fluid.InitFluids(dialog, tableDirectory);                // in WM_INITDIALOG
///     fluid.DlgCommand(LOWORD(wParam), HIWORD(wParam));        // in WM_COMMAND
///     if (fluid.GetFluidState() != FLUID_NONE) use(fluid.GetDensity());
///
/// The host forwards every notification of its controls. It calls GetProperties when it takes over
/// a fluid whose properties were typed, and enables the controls of such properties, which the
/// controller only disables. What goes wrong is told in the note (10025) and by the state; no
/// message box is shown. Everything happens on the thread that owns the dialog.
///
/// The controls, by id. R: required; the others may be missing.
///
/// | Id | Control |
/// |---|---|
/// | 1 | the default button, which gets the focus after the pressure |
/// | 10001 R | list box of installed fluids |
/// | 10002 R | edit, temperature |
/// | 10004 | edit, pressure; a form without it asks for the temperature only |
/// | 10006 R | edit, viscosity |
/// | 10008 | edit, density or specific gravity; a form without it takes ideal gases only |
/// | 10010, 10011 | radio buttons, liquid and vapor; a form without them takes liquids only |
/// | 10014 | edit, ratio of specific heats of a vapor; 10012, 10013 go with it |
/// | 10017 | edit, vapor pressure of a liquid; 10015, 10016, 10018 go with it |
/// | 10024 | edit, name of a fluid whose properties are typed |
/// | 10025 R | text, the note of the table, or a message |
/// | 10027 | edit, critical pressure of a liquid; 10026, 10028 go with it |
/// | 10030 R | edit, critical temperature of a liquid |
/// | 10032 R | edit, molecular weight |
/// | 10034 | text, name of the fluid; with it the form sets conditions only: the state stays |
/// | 10035 R | text, caption of the list box |
///
/// A name of 64 characters or more, and a directory with which no path of a table stays below 260
/// characters, count as invalid tables.
class HYDROFACTS_API CFluidDlg : public CFluid {
  public:
    /// A fluid with a unit object of its own, set as CFluid does. `useSG`: 10008 holds the specific
    /// gravity unless it is 0.
    CFluidDlg(HF_TUNITS tunit, HF_PUNITS punit, int bAbsolute, double atmPressure, int useSG);

    /// A fluid on a unit object of the caller's, who keeps it alive. 10008 holds the specific
    /// gravity if that is the user unit of density.
    CFluidDlg(Units* units);

    /// The copy is attached to the same dialog.
    /// @{
    CFluidDlg(const CFluidDlg& other);
    CFluidDlg& operator=(const CFluidDlg& other);
    /// @}

    /// Ends the delays of the dialog's edits, if the dialog is still there.
    ~CFluidDlg();

    /// Nonzero if the user has altered the fluid since the host last set it.
    int Changed();
    /// Says so, or that it has taken over what the user did.
    void SetChanged(bool changed);

    // Wiring

    /// Attaches to a dialog: fills the list with the usable tables of a directory (see
    /// InitFluidTableCache: what has been found first holds for the whole process), limits how much
    /// can be typed, and sees to it that an edit in which nothing is typed for a second counts as
    /// left. With a `state` other than FLUID_NONE only tables with formulas of that state are
    /// listed and the present fluid is cleared. Tables with levels outside the limits are not
    /// listed; a limit of 0.0 tests nothing. Always 1.
    /// @{
    int InitFluids(HWND dialog, const char* tableDir);
    int InitFluids(HWND dialog, const char* tableDir, FLUIDSTATE state);
    int InitFluids(HWND dialog, const char* tableDir, FLUIDSTATE state, double highLimit,
                   double lowLimit);
    /// @}

    /// Acts on a notification of a control: a pick from the list, typing in temperature, pressure
    /// or name, leaving them. True if it was one of these. The radio buttons are the host's.
    bool DlgCommand(int id, int notification);

    // Setting the fluid from the host. Afterwards Changed() is 0.

    /// Shows a fluid: one whose table is in the list afresh from its table, any other as a fluid of
    /// given properties. A fluid without a state empties the controls.
    void SetDlgFluid(CFluid& fluid);

    /// Shows the fluid of a table at a set point in user units.
    void SetDlgFluid(const char* name, double temperature, double pressure);

    /// Shows the fluid of a table as a liquid at a temperature in user units.
    void SetDlgFluid(const char* name, double temperature);

    /// Shows a fluid of given properties, which are those of SetFluidProperties.
    void SetDlgProperties(const char* name, FLUIDSTATE state, double temperature, double pressure,
                          double density, double viscosity, double vaporPres, double spHeat,
                          double sg, double criticalPres, double criticalTemp, double molecularWt);

    /// Empties the controls of properties and disables those that only one state has.
    void ClearDlgProperties();

    // Reading

    /// Makes this the fluid whose properties are in the controls, as FLUID_USER_LIQUID or
    /// FLUID_USER_VAPOR. False if something is missing or 0.0 that the state needs and the form
    /// has; all else is taken over even then.
    bool GetProperties(FLUIDSTATE state);

  protected:
    std::int32_t m_changed;  ///< what Changed gives
    std::int32_t m_useSG;    ///< whether 10008 holds the specific gravity
    HWND m_hDlg;             ///< the dialog, null while attached to none
    char m_tableDir[261];    ///< the directory of the tables in the list

  private:
    HYDROFACTS_HIDDEN hydrofacts::FluidForm Form() const;

    HYDROFACTS_HIDDEN bool FluidPicked();
    HYDROFACTS_HIDDEN bool ConditionTyped(int id);
    HYDROFACTS_HIDDEN bool ConditionLeft(int id);
    HYDROFACTS_HIDDEN bool NameTyped();
    HYDROFACTS_HIDDEN bool NameLeft();

    HYDROFACTS_HIDDEN void SetDlgFluidName(int index);
    HYDROFACTS_HIDDEN FLUIDSTATE StateOfConditions();
    HYDROFACTS_HIDDEN void ShowOutcome(FLUIDSTATE oldState);

    HYDROFACTS_HIDDEN void ShowName(const char* name);
    HYDROFACTS_HIDDEN void ShowGiven(bool loaded, hydrofacts::FluidMessage ifInvalid);

    HYDROFACTS_HIDDEN bool LoadNamed(const char* name);
    HYDROFACTS_HIDDEN void RejectTable(int messageSize);
    HYDROFACTS_HIDDEN void ShowFluidNotes(int index);
    HYDROFACTS_HIDDEN void ShowProperties();

    HYDROFACTS_HIDDEN void ReadWithDensity();
    HYDROFACTS_HIDDEN void ReadVapor(double density, double sg);
    HYDROFACTS_HIDDEN bool HasAllThatIsNeeded(FLUIDSTATE state) const;
};

#endif
