#ifndef HYDROFACTS_DIALOGS_CPIPETABLEDLG_H
#define HYDROFACTS_DIALOGS_CPIPETABLEDLG_H

#include "hydrofacts/pipe/CPipeTable.h"
#include "win32/Win32.h"

/// A pipe that a user chooses in a dialog of the host's: a material or one of its schedules from a
/// tree, a nominal size from a combo box. Afterwards it is read like any CPipeTable.
///
///     CPipeTableDlg pipe(HF_METRIC);
///     pipe.InitPipeMaterials(dialog, tableDirectory);              // in WM_INITDIALOG
///     pipe.DlgCommand(LOWORD(wParam), HIWORD(wParam));             // in WM_COMMAND
///     pipe.DlgCommand(int(header->idFrom), int(header->code));     // in WM_NOTIFY
///     if (pipe.IsValid()) use(pipe.GetScheduleName());
///
/// The host forwards every notification of its controls; the others are passed over. What goes
/// wrong is told in the note (10107); no message box is shown. Everything happens on the thread
/// that owns the dialog.
///
/// The controls, by id. R: required.
///
/// | Id | Control |
/// |---|---|
/// | 10101 R | tree, the materials with their schedules |
/// | 10102 R | text, absolute roughness of the material |
/// | 10104 | combo box, nominal sizes of the schedule |
/// | 10105 | text, inside diameter of the picked size; goes with 10104 |
/// | 10107 R | text, the note of the table, or a message |
/// | 10108 R | text, Hazen-Williams C of the material |
/// | 10109 R | text, name of the material |
/// | 10110 R | text, name of the schedule |
///
/// A directory with which no path of a table stays below 260 characters has no tables.
///
/// A copy is attached to the same dialog and owns sizes of its own.
class HYDROFACTS_API CPipeTableDlg : public CPipeTable {
  public:
    /// An empty table in a unit system, attached to no dialog.
    CPipeTableDlg(HF_UNITS system);

    /// The copy is attached to the same dialog.
    /// @{
    CPipeTableDlg(const CPipeTableDlg& other);
    CPipeTableDlg& operator=(const CPipeTableDlg& other);
    /// @}
    ~CPipeTableDlg();

    /// Attaches to a dialog and adds the materials of a directory to its tree, sorted by name, each
    /// with its schedules in the order of the file. Left out are tables with levels outside the
    /// limits (0.0 tests nothing; 9.0 and 1.0 in the short form), those whose roughness in the unit
    /// system is 0 or missing, and names of more than 30 characters, of materials and of schedules.
    /// Nothing is selected. Always 1.
    /// @{
    int InitPipeMaterials(HWND dialog, const char* tableDir);
    int InitPipeMaterials(HWND dialog, const char* tableDir, double highLimit, double lowLimit);
    /// @}

    /// Acts on a notification of a control. A selection in the tree loads the material, and the
    /// schedule if it is one; a pick in the combo box shows the inside diameter in parentheses.
    void DlgCommand(int id, int code);

    /// Selects a material, whatever the case of its letters, and its schedule, in the exact case,
    /// as a user would; shows the table as invalid if the tree doesn't have them. A size other than
    /// 0.0 is then picked: the first row that begins with the number, written with a point and at
    /// most six digits. An empty material clears the selection and collapses the tree.
    void SetPipeMaterialSize(const char* material, const char* schedule, double size);

    /// Changes the unit system, and fills the combo box with the sizes of the new one.
    void SetUnit(HF_UNITS system);

  protected:
    HIMAGELIST m_imageList;  ///< of a tree that shows pipes; the host's to destroy
    HWND m_hDlg;             ///< the dialog, null while attached to none
    char m_tableDir[260];    ///< the directory of the tables in the tree

  private:
    HYDROFACTS_HIDDEN void ItemSelected();
    HYDROFACTS_HIDDEN void ShowMaterial();
    HYDROFACTS_HIDDEN void ShowSchedule(HTREEITEM item, const char* name);
    HYDROFACTS_HIDDEN void SizePicked();
    HYDROFACTS_HIDDEN void ShowMessage(int message, const char* name);
    HYDROFACTS_HIDDEN void AddSchedules(TextFile& file, HTREEITEM material);
    HYDROFACTS_HIDDEN HTREEITEM FindSchedule(const char* material, const char* schedule);
    HYDROFACTS_HIDDEN void BuildTreeImageList(HWND tree);
    HYDROFACTS_HIDDEN void ShowPipeNotes();
};

#endif
