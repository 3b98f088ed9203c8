#ifndef HYDROFACTS_FRAME_TABLENOTE_H
#define HYDROFACTS_FRAME_TABLENOTE_H

#include "win32/Win32.h"

/// Shows a table's title and version in a control of a dialog, as "title - vers version", from the
/// first two lines of the file; empties the control if the first is no title line. Lines are read
/// up to 100 characters. Does nothing if the dialog has no such control.
void ShowTableNote(const char* path, HWND dialog, int control);

#endif
