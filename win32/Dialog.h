#ifndef WIN32_DIALOG_H
#define WIN32_DIALOG_H

/// @file
/// Dialogs: made from a template, run by a procedure of the host.

#include "win32/MessageQueue.h"
#include "win32/Window.h"

/// The procedure of a dialog: TRUE, or a result, for what it has handled; FALSE leaves a message to
/// DefDlgProcA. A result of WM_COMMAND and others goes into DWLP_MSGRESULT.
using DLGPROC = INT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);

/// The head of a plain template. Templates here are the extended ones: see DialogBuilder.h.
struct DLGTEMPLATE {
    DWORD style;            ///< WS_ and DS_ bits
    DWORD dwExtendedStyle;  ///< WS_EX_ bits
    WORD cdit;              ///< number of controls
    SHORT x;                ///< left side, in dialog units
    SHORT y;                ///< top side, in dialog units
    SHORT cx;               ///< width, in dialog units
    SHORT cy;               ///< height, in dialog units
};
/// A dialog template in memory, of either kind; DialogBuilder::Template gives one.
using LPCDLGTEMPLATEA = const DLGTEMPLATE*;

/// Styles of dialogs. DS_SETFONT says that the template names a font; DS_CONTROL makes the dialog a
/// page of another, whose Tab goes through its controls.
/// @{
inline constexpr DWORD DS_ABSALIGN = 0x0001;
inline constexpr DWORD DS_SETFONT = 0x0040;
inline constexpr DWORD DS_MODALFRAME = 0x0080;
inline constexpr DWORD DS_FIXEDSYS = 0x0008;
inline constexpr DWORD DS_SHELLFONT = DS_SETFONT | DS_FIXEDSYS;
inline constexpr DWORD DS_CONTROL = 0x0400;
inline constexpr DWORD DS_CENTER = 0x0800;
/// @}

/// The ids of the buttons that Enter and Escape stand for.
/// @{
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
/// @}

/// What a dialog carries, for SetWindowLongPtrA: the result of a message, its procedure, and a
/// value of the host.
/// @{
inline constexpr int DWLP_MSGRESULT = 0;
inline constexpr int DWLP_DLGPROC = sizeof(LRESULT);
inline constexpr int DWLP_USER = DWLP_DLGPROC + sizeof(DLGPROC);
/// @}

/// Messages to a dialog: the default button (DM_GETDEFID gives DC_HASDEFID as its high word,
/// DM_SETDEFID takes an id as wParam), and the control that gets the focus (WM_NEXTDLGCTL).
/// @{
inline constexpr UINT DM_GETDEFID = WM_USER + 0;
inline constexpr UINT DM_SETDEFID = WM_USER + 1;
inline constexpr WORD DC_HASDEFID = 0x534B;
inline constexpr UINT WM_NEXTDLGCTL = 0x0028;
/// @}

/// Bits of an answer to WM_GETDLGCODE: which keys a control takes for itself, and what kind it is.
/// @{
inline constexpr LRESULT DLGC_WANTARROWS = 0x0001;
inline constexpr LRESULT DLGC_WANTTAB = 0x0002;
inline constexpr LRESULT DLGC_WANTALLKEYS = 0x0004;
inline constexpr LRESULT DLGC_HASSETSEL = 0x0008;
inline constexpr LRESULT DLGC_DEFPUSHBUTTON = 0x0010;
inline constexpr LRESULT DLGC_UNDEFPUSHBUTTON = 0x0020;
inline constexpr LRESULT DLGC_RADIOBUTTON = 0x0040;
inline constexpr LRESULT DLGC_WANTCHARS = 0x0080;
inline constexpr LRESULT DLGC_STATIC = 0x0100;
inline constexpr LRESULT DLGC_BUTTON = 0x2000;
/// @}

/// Makes a dialog without waiting for its end. Null, with the error 1814 or 1813 for a template
/// that the module doesn't have, 87 for one that isn't an extended template or names an unknown
/// class. The module may be null for a template in memory.
/// @{
HYDROFACTS_API HWND CreateDialogIndirectParamA(HINSTANCE module, LPCDLGTEMPLATEA dialogTemplate,
                                               HWND parent, DLGPROC procedure, LPARAM parameter);
HYDROFACTS_API HWND CreateDialogParamA(HINSTANCE module, LPCSTR name, HWND parent,
                                       DLGPROC procedure, LPARAM parameter);
/// @}

/// Runs a dialog until EndDialog, with its owner disabled, and gives the result given there; -1 if
/// it can't be made, 0 if the owner is no window. It also ends, with -1, when the queue runs empty
/// and nobody is there to fill it.
/// @{
HYDROFACTS_API INT_PTR DialogBoxIndirectParamA(HINSTANCE module, LPCDLGTEMPLATEA dialogTemplate,
                                               HWND parent, DLGPROC procedure, LPARAM parameter);
HYDROFACTS_API INT_PTR DialogBoxParamA(HINSTANCE module, LPCSTR name, HWND parent,
                                       DLGPROC procedure, LPARAM parameter);
/// @}
/// Ends a dialog that DialogBoxParamA or DialogBoxIndirectParamA runs, with the result that these
/// give; the dialog is hidden at once and goes when they return. FALSE if it is no dialog.
HYDROFACTS_API BOOL EndDialog(HWND dialog, INT_PTR result);

/// What a dialog does with a message that its procedure leaves to it.
HYDROFACTS_API LRESULT DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

/// Handles a message for a dialog or one of its controls: Tab, arrows, Enter, Escape, mnemonics,
/// and all others by dispatching them. FALSE if the message is for another window.
HYDROFACTS_API BOOL IsDialogMessageA(HWND dialog, LPMSG message);

// Controls by id. A missing one is passed over: the results are 0, null or an empty text.

/// The control with an id among the children of a window; null if there is none.
HYDROFACTS_API HWND GetDlgItem(HWND dialog, int id);
/// The id of a control; 0 if it is no window.
HYDROFACTS_API int GetDlgCtrlID(HWND control);
/// Sends a message to a control and gives its result.
HYDROFACTS_API LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam,
                                           LPARAM lParam);
/// Replaces the text of a control; an edit has told of it when this returns. FALSE without the
/// control.
HYDROFACTS_API BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
/// Writes at most `size` - 1 characters of a control's text and a terminator, and gives their
/// number.
HYDROFACTS_API UINT GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size);
/// Replaces the text of a control by a whole number; with `isSigned` the value is taken as an int.
HYDROFACTS_API BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
/// The whole number at the beginning of a control's text, with blanks ahead of it passed over.
/// `*good` becomes FALSE, and the result 0, if the text is no number that fits.
HYDROFACTS_API UINT GetDlgItemInt(HWND dialog, int id, BOOL* good, BOOL isSigned);
/// Gives a check box or radio button a state, BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
/// FALSE without the control.
HYDROFACTS_API BOOL CheckDlgButton(HWND dialog, int id, UINT check);
/// The state of a check box or radio button, as BM_GETCHECK gives it.
HYDROFACTS_API UINT IsDlgButtonChecked(HWND dialog, int id);
/// Checks one radio button and unchecks the others from `first` to `last`.
HYDROFACTS_API BOOL CheckRadioButton(HWND dialog, int first, int last, int id);

/// The next control that Tab goes to, round the end; null starts at the beginning.
HYDROFACTS_API HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
/// The next control of the same group, round its end.
HYDROFACTS_API HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);

/// Dialog units to pixels.
HYDROFACTS_API BOOL MapDialogRect(HWND dialog, LPRECT place);

#endif
