#ifndef WIN32_QT_LISTROWS_H
#define WIN32_QT_LISTROWS_H

#include <QObject>
#include <QPoint>
#include <QStringListModel>

#include "win32/Win32.h"

class QListView;

namespace win32::qt {

class Screen;

/// The rows of a list box in a widget: those of a list by itself, or of the one in a combo box.
class ListRows {
  public:
    ListRows(HWND list, QListView& view);

    /// Shows rows and selection. Rows are only made anew if their texts are others.
    void Show();
    QStringListModel& Texts() { return texts_; }

    /// The row under the mouse; -1 if there is none.
    int RowAt(QPoint at) const;

    /// Puts a click on a row, or on the empty ground below, into the queue, at the place where the
    /// list itself has the row. `message` is the one of the mouse, or 0 for down and up.
    void Click(UINT message, int row);

  private:
    bool ShowTexts();
    void ShowSelection(bool anew);

    HWND list_;
    QListView& view_;
    QStringListModel texts_;
    LRESULT selected_ = LB_ERR;
    LRESULT top_ = 0;
};

/// The texts of all rows of a list box.
QStringList RowsOf(HWND list);

}  // namespace win32::qt

#endif
