#ifndef WIN32_USER_H
#define WIN32_USER_H

/// @file
/// What a person does with a dialog, done by a program: tests and hosts drive dialogs with it. Each
/// act raises what the same act raises from keyboard and mouse, before the function returns. The
/// functions give false, and nothing happens, where a person couldn't do it: a control that is
/// gone, disabled, or in a disabled dialog. They belong on the thread that owns the dialog.

#include "win32/Win32.h"

namespace win32::user {

/// Goes to a control and types at the caret, without changing what is there otherwise.
HYDROFACTS_API bool Type(HWND control, const char* text);

/// Goes to a control, selects all that it holds and types over it; an empty text deletes it.
HYDROFACTS_API bool TypeOver(HWND control, const char* text);

/// Clicks on a row of a list box, or opens a combo box and clicks there; counted from 0.
HYDROFACTS_API bool PickRow(HWND control, int row);

/// Clicks on an item of a tree, which is scrolled into view first.
HYDROFACTS_API bool PickItem(HWND tree, HTREEITEM item);

/// Clicks on a button, check box or radio button.
HYDROFACTS_API bool Click(HWND button);

/// Presses and releases a key (VK_RETURN, VK_ESCAPE, VK_DOWN …) where the focus is in `dialog`,
/// through the dialog's keyboard handling.
HYDROFACTS_API bool PressKey(HWND dialog, int key);

/// Goes to the next control of the dialog, or back.
HYDROFACTS_API bool PressTab(HWND dialog, bool back = false);

/// Closes a dialog as the button in its title bar does.
HYDROFACTS_API bool Close(HWND dialog);

/// Handles what waits in the thread's queue, with the keyboard handling of `dialog`.
HYDROFACTS_API void HandleMessages(HWND dialog);

}  // namespace win32::user

#endif
