#ifndef QUILLBASE_DIALOGITEMS_H
#define QUILLBASE_DIALOGITEMS_H

#include "win32/Win32.h"

class CLanguage;

// Helpers for the controls of a dialog that hold numbers. A control that the dialog doesn't have is
// passed over: nothing happens, and it counts as an empty one.

/// Reads the number at the head of a control's text, with the decimal sign of the chosen language
/// or a point; 0.0 if there is none, or none that a double holds.
double GetDlgItemDouble(HWND dialog, int control);

/// Shows a number in a control, with the decimal sign of the chosen language and up to 15
/// significant digits, so that what a user has typed comes back as it was. An exponent is written
/// below 0.0001 and from 10¹⁵ on. What is no finite number empties the control.
void SetDlgItemDouble(HWND dialog, int control, double value);

/// Empties a control.
void SetDlgItemNull(HWND dialog, int control);

/// Limits how many characters a user can type into a control; a program may set longer texts.
void SetDlgItemLimit(HWND dialog, int control, int length);

/// Whether a control holds a whole decimal number, with the decimal sign of the chosen language or
/// a point, or nothing at all; blanks around it don't count. The text stays as it is in either
/// case, so that this can be asked while a user types. The three flags are not used.
bool GoodNumber(HWND dialog, int control, bool, bool, bool);

/// From here on, when a user has typed into an edit and then presses no key in it for `ms`
/// milliseconds, the dialog gets WM_COMMAND with EN_KILLFOCUS from it, as if the user had left the
/// edit; the focus stays. Leaving it really ends the wait. Texts that a program sets start nothing.
/// The dialog's thread must run a message loop meanwhile. A second call for the same edit changes
/// the time.
void MakeKeyPressDelay(HWND dialog, unsigned control, long ms);

/// Ends what MakeKeyPressDelay began. The end of the edit does the same.
void ClearKeyPress(HWND dialog, unsigned control);

namespace quillbase {

/// Tells in whose form these helpers take and show numbers, for the whole process; null, as at
/// first: with a point. The object must outlive the setting.
void SetNumberLanguage(const CLanguage* language);

}  // namespace quillbase

#endif
