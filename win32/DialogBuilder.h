#ifndef WIN32_DIALOGBUILDER_H
#define WIN32_DIALOGBUILDER_H

/// @file
/// Writes dialog templates in C++. The result is the extended template that resource compilers
/// write, so CreateDialogIndirectParamA and DialogBoxIndirectParamA take it on every platform.

#include <string_view>
#include <vector>

#include "win32/Win32.h"

namespace win32 {

/// A place in dialog units: a quarter of the font's mean width, an eighth of its height.
struct DialogPlace {
    short x;       ///< left side, from that of the dialog's client area
    short y;       ///< top side, from that of the dialog's client area
    short width;   ///< from left to right
    short height;  ///< from top to bottom
};

/// Builds one dialog template. Texts are Windows-1252.
///
///     win32::DialogBuilder form("Site", WS_POPUP | WS_CAPTION, {0, 0, 120, 40});
///     form.Static(-1, "Elevation", {5, 6, 33, 10}).Edit(1318, {39, 5, 46, 12});
///     form.DefaultButton(IDOK, "OK", {39, 19, 44, 16});
///     HWND dialog = CreateDialogIndirectParamA(nullptr, form.Template(), parent, procedure, 0);
///
/// Controls come to the dialog, and into the order of Tab, in the order of the calls. An id of -1
/// is that of a control that nobody asks for.
class HYDROFACTS_API DialogBuilder {
  public:
    /// A dialog without controls: its title, its WS_ and DS_ styles, its place on the screen (or in
    /// its parent if it is a child) and its WS_EX_ styles. The font is 8 point "MS Shell Dlg".
    DialogBuilder(std::string_view title, DWORD style, DialogPlace place, DWORD exStyle = 0);

    /// Any control: `className` is one of "Button", "Edit", "Static", "ListBox", "ComboBox" and
    /// "SysTreeView32". WS_CHILD is added to the style; WS_VISIBLE is not.
    DialogBuilder& Control(std::string_view className, int id, std::string_view text, DWORD style,
                           DialogPlace place, DWORD exStyle = 0);

    // The usual kinds: visible, with a tab stop where a user can work with them. `style` adds to
    // it.

    /// A text. An & in it underlines the next letter, which goes to the control that follows.
    DialogBuilder& Static(int id, std::string_view text, DialogPlace place, DWORD style = 0);
    /// One line with a border, scrolling as it is typed into.
    DialogBuilder& Edit(int id, DialogPlace place, DWORD style = 0);
    /// A push button.
    DialogBuilder& Button(int id, std::string_view text, DialogPlace place, DWORD style = 0);
    /// The push button that Enter presses.
    DialogBuilder& DefaultButton(int id, std::string_view text, DialogPlace place);
    /// A check box that a click checks and unchecks.
    DialogBuilder& CheckBox(int id, std::string_view text, DialogPlace place);
    /// A radio button that unchecks the others of its group. The first one of a group gets
    /// WS_GROUP | WS_TABSTOP as `style`, and so does the control that follows the last one.
    DialogBuilder& RadioButton(int id, std::string_view text, DialogPlace place, DWORD style = 0);
    /// A frame with a title; it groups nothing but what is seen.
    DialogBuilder& GroupBox(int id, std::string_view text, DialogPlace place);
    /// Tells of selections (LBS_NOTIFY); not sorted unless `style` says LBS_SORT.
    DialogBuilder& ListBox(int id, DialogPlace place, DWORD style = 0);
    /// Drops down and has no edit (CBS_DROPDOWNLIST), unless `style` gives another kind.
    DialogBuilder& ComboBox(int id, DialogPlace place, DWORD style = 0);
    /// With lines and buttons, and the selection shown also without the focus.
    DialogBuilder& Tree(int id, DialogPlace place, DWORD style = 0);

    /// The template as built so far; good until the next change of the builder.
    LPCDLGTEMPLATEA Template() const;

  private:
    void Word(unsigned value) { words_.push_back(static_cast<WORD>(value)); }
    HYDROFACTS_HIDDEN void Dword(DWORD value);
    HYDROFACTS_HIDDEN void Place(DialogPlace place);
    HYDROFACTS_HIDDEN void Text(std::string_view text);
    HYDROFACTS_HIDDEN void AlignToDword();

    std::vector<WORD> words_;
};

}  // namespace win32

#endif
