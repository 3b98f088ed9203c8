#ifndef WIN32_DIALOGMODEL_H
#define WIN32_DIALOGMODEL_H

#include "win32/Dialog.h"
#include "win32/Model.h"

namespace win32 {

inline constexpr const char* kDialogClass = "#32770";

/// A dialog: hands every message to the host's procedure first.
class Dialog : public Window {
  public:
    Dialog(const Birth& birth, DLGPROC procedure);

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    LONG_PTR* Extra(int index) override;

    /// What it does with a message that the procedure has left to it.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

    /// Gives the focus back to the control that had it, or to the first one with a tab stop.
    void RestoreFocus(bool activated);

    WORD defaultId = 0;
    bool ended = false;
    INT_PTR result = 0;
    SIZE baseUnits{};              ///< what its dialog units were counted in
    HWND disabledOwner = nullptr;  ///< of a modal dialog: the window to enable again

  private:
    void SaveFocus();
    void GoToControl(WPARAM wParam, LPARAM lParam);

    LONG_PTR messageResult_ = 0;
    LONG_PTR dialogProcedure_;
    LONG_PTR user_ = 0;
    HWND savedFocus_ = nullptr;
};

/// Sets the focus as Tab does: the text of an edit is selected.
void FocusControl(HWND control);

}  // namespace win32

#endif
