#ifndef WIN32_QT_TREEREADING_H
#define WIN32_QT_TREEREADING_H

#include <QImage>
#include <QString>
#include <vector>

#include "win32/Win32.h"

namespace win32::qt {

/// An item of a tree control as it is shown.
struct TreeRow {
    HTREEITEM item = nullptr;
    int level = 0;
    QString text;
    int image = 0;
    int selectedImage = 0;
    bool hasButton = false;
    bool expanded = false;

    /// Alike in all but whether it is open.
    bool LooksLike(const TreeRow& other) const;
};

/// All items, also those in closed ones: each before what stands below it.
std::vector<TreeRow> RowsOfTree(HWND tree);

/// One image of a list; the ground, white, is transparent.
QImage ImageOf(HIMAGELIST list, int index);

/// Puts a click on an item, or on its button, into the queue, at the place where the tree itself
/// has it. Nothing if the item is gone.
void ClickItem(HWND tree, UINT message, HTREEITEM item, bool onButton);

}  // namespace win32::qt

#endif
