#ifndef HYDROFACTS_DIALOGS_CVALVETABLEDLG_H
#define HYDROFACTS_DIALOGS_CVALVETABLEDLG_H

/// @file
/// The valve dialog, and the symbols of its trees.

#include <memory>

#include "hydrofacts/valve/CValveTable.h"
#include "win32/Win32.h"

namespace hydrofacts {
class Symbols;
}

/// A fitting or valve that a user chooses in a dialog of the host's: a device type by a button, a
/// device from a tree with symbols. The host loads the table that the user picks in the combo box.
///
///     CValveTableDlg valves(dialog);                                    // in WM_INITDIALOG
///     valves.InitValveTables(dialog, tableDirectory, 9.0, 1.0);
///     valves.LoadValveTable(tableDirectory, name, HF_METRIC, wanted);   // after a pick
///     valves.DlgCommand(LOWORD(wParam), HIWORD(wParam), lParam);        // in WM_COMMAND
///     LONG_PTR picked = valves.DlgCommand(int(header->idFrom), int(header->code), lParam);
///     if (picked != 0) use(*reinterpret_cast<const CValveType*>(picked));       // in WM_NOTIFY
///
/// The controls, by id; one that is missing is passed over.
///
/// | Id | Control |
/// |---|---|
/// | 10111 | combo box, the installed valve tables |
/// | 10201 | tree, the devices of one type |
/// | 10202 to 10206 | show "Fitting", "Bend", "Valve", "Check Valve", "Other" |
/// | 10207 | text, the note of the table |
/// | 10208 | a second tree with the same symbols, which the host fills |
///
/// The items of 10201 lead to records of this object: they are good until it loads a table, is
/// assigned to or ends. Everything happens on the thread that owns the dialog.
///
/// A copy has records of its own and shares the symbols, which go with the last of their owners.
class HYDROFACTS_API CValveTableDlg : public CValveTable {
  public:
    /// An empty table, attached to a dialog whose two trees get the symbols.
    CValveTableDlg(HWND dialog);

    /// The copy is attached to the same dialog and shares the symbols.
    /// @{
    CValveTableDlg(const CValveTableDlg& other);
    CValveTableDlg& operator=(const CValveTableDlg& other);
    /// @}
    ~CValveTableDlg();

    /// Adds the valve tables of a directory to the combo box of a dialog, in the order in which the
    /// system lists the directory. Left out are tables with levels outside the limits (0.0 tests
    /// nothing) and names of more than 30 characters. Always 1.
    int InitValveTables(HWND dialog, const char* tableDir, double highLimit, double lowLimit);

    /// Acts on a notification of a control. A button of a device type fills the tree 10201. A
    /// selection in one of the trees gives the lParam of its item: in 10201 the address of the
    /// CValveType. 0 in all other cases. The third argument is not used.
    LONG_PTR DlgCommand(int id, int code, LONG_PTR lParam);

  protected:
    HIMAGELIST m_imageList;  ///< the symbols
    HWND m_hDlg;             ///< the dialog

  private:
    HYDROFACTS_HIDDEN void BuildImageList();
    HYDROFACTS_HIDDEN void ShowValveList(int index);
    HYDROFACTS_HIDDEN void ShowValveNotes();

    std::shared_ptr<const hydrofacts::Symbols> m_symbols;  // owns m_imageList
};

/// Makes a new list of the 15 symbols, 16 by 16 pixels, for a tree of the host's: symbol 0 is that
/// of a device with the image 1. The caller destroys it.
HYDROFACTS_API void GetValveImageList(HIMAGELIST& list);

#endif
