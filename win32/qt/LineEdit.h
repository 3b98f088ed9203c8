#ifndef WIN32_QT_LINEEDIT_H
#define WIN32_QT_LINEEDIT_H

#include <QObject>
#include <string>
#include <utility>

#include "win32/Win32.h"
#include "win32/qt/EditMenu.h"
#include "win32/qt/Keys.h"

class QLineEdit;
class QMouseEvent;

namespace win32::qt {

class Screen;

/// What is selected in an edit, as it says itself: from 0, the end excluded.
struct Selection {
    int first = 0;
    int last = 0;
    bool operator==(const Selection&) const = default;
};
Selection SelectionOf(HWND edit);

/// The keys of copying, cutting, pasting and selecting all; true if it was one of them. `pasted`
/// keeps the text that is under way to the edit.
bool TakeClipboardKey(HWND edit, const Key& key, std::string& pasted);

/// Puts the text of the clipboard, or of X11's selection, in the place of what is selected.
void Paste(HWND edit, bool primary, std::string& pasted);

/// An edit of one line and its widget: by itself, or in a combo box.
class LineEdit : public QObject {
  public:
    LineEdit(Screen& screen, HWND edit, QLineEdit& widget);
    ~LineEdit() override = default;
    LineEdit(const LineEdit&) = delete;
    LineEdit& operator=(const LineEdit&) = delete;

    /// Shows text, selection and style.
    void Show();
    bool TakeKey(const Key& key);
    /// Puts the caret where the mouse says; true if the widget is not to see the event.
    bool Mouse(const QMouseEvent& event);
    void OpenMenu(QPoint at) { menu_.Open(at, pasted_); }

  private:
    void ShowStyle();
    void ShowSelection();
    void SelectedInWidget();
    bool MoveByWord(const Key& key);
    /// Of the widget.
    std::pair<int, int> AnchorAndCaret() const;

    Screen& screen_;
    HWND edit_;
    QLineEdit& widget_;
    Selection shown_;
    std::string pasted_;
    EditMenu menu_;
};

}  // namespace win32::qt

#endif
