#ifndef QUILLBASE_DIALOGITEMS_H
#define QUILLBASE_DIALOGITEMS_H

#include "win32/Win32.h"

// Helpers for the controls of a dialog that hold numbers. A control that the dialog doesn't have is
// passed over.

/// Reads the number in a control; 0.0 if it holds none.
double GetDlgItemDouble(HWND dialog, int control);

/// Shows a number in a control, in the form of the chosen language.
void SetDlgItemDouble(HWND dialog, int control, double value);

/// Empties a control.
void SetDlgItemNull(HWND dialog, int control);

/// Limits how many characters a user can type into a control.
void SetDlgItemLimit(HWND dialog, int control, int length);

/// Whether a control holds a valid number. Callers pass true for the three flags.
bool GoodNumber(HWND dialog, int control, bool, bool, bool);

/// Starts a delay of `ms` milliseconds after a key was pressed in a control; ClearKeyPress ends it.
void MakeKeyPressDelay(HWND dialog, unsigned control, long ms);
void ClearKeyPress(HWND dialog, unsigned control);

#endif
