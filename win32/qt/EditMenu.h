#ifndef WIN32_QT_EDITMENU_H
#define WIN32_QT_EDITMENU_H

#include <QMenu>
#include <QPoint>
#include <memory>
#include <string>

#include "win32/Win32.h"

namespace win32::qt {

class Screen;

/// The menu that the right mouse button opens over an edit: cut, copy, paste, select all. Its texts
/// are those of Qt, in the language that the application has loaded for it.
class EditMenu {
  public:
    EditMenu(Screen& screen, HWND edit) : screen_(screen), edit_(edit) {}

    /// At a place on the screen. `pasted` keeps a text that is under way to the edit.
    void Open(QPoint at, std::string& pasted);

  private:
    void Add(const char* text, Qt::Key key, bool can, std::string& pasted);

    Screen& screen_;
    HWND edit_;
    std::unique_ptr<QMenu> menu_;
};

}  // namespace win32::qt

#endif
