#include "win32/qt/ListRows.h"

#include <QItemSelectionModel>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>

#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

QStringList RowsOf(HWND list) {
    QStringList rows;
    const LRESULT count = SendMessageA(list, LB_GETCOUNT, 0, 0);
    rows.reserve(count);
    std::string text;
    for (LRESULT i = 0; i < count; ++i) {
        const auto row = static_cast<WPARAM>(i);
        const LRESULT length = SendMessageA(list, LB_GETTEXTLEN, row, 0);
        text.assign(static_cast<std::size_t>(length < 0 ? 0 : length) + 1, '\0');
        SendMessageA(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        rows.append(ToUnicode(text));
    }
    return rows;
}

ListRows::ListRows(HWND list, QListView& view) : list_(list), view_(view) {
    view_.setModel(&texts_);
    view_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_.setSelectionMode(QAbstractItemView::SingleSelection);
    view_.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view_.setUniformItemSizes(true);
}

void ListRows::Show() { ShowSelection(ShowTexts()); }

bool ListRows::ShowTexts() {
    QStringList rows = RowsOf(list_);
    if (rows == texts_.stringList()) return false;
    const int scrolled = view_.verticalScrollBar()->value();
    texts_.setStringList(rows);
    view_.verticalScrollBar()->setValue(scrolled);
    return true;
}

void ListRows::ShowSelection(bool anew) {
    const LRESULT selected = SendMessageA(list_, LB_GETCURSEL, 0, 0);
    const LRESULT top = SendMessageA(list_, LB_GETTOPINDEX, 0, 0);
    const auto indexOf = [this](LRESULT row) { return texts_.index(static_cast<int>(row)); };
    if (top != top_) view_.scrollTo(indexOf(top), QAbstractItemView::PositionAtTop);
    top_ = top;
    if (view_.currentIndex() != indexOf(selected)) {
        const QSignalBlocker quiet(view_);
        view_.setCurrentIndex(indexOf(selected));
    }
    if (selected < 0) view_.clearSelection();
    if (selected >= 0 && (anew || selected != selected_)) view_.scrollTo(indexOf(selected));
    selected_ = selected;
}

int ListRows::RowAt(QPoint at) const { return view_.indexAt(at).row(); }

void ListRows::Click(UINT message, int row) {
    const LRESULT count = SendMessageA(list_, LB_GETCOUNT, 0, 0);
    RECT place{};
    if (row >= 0 && row < count) {
        RECT inside{};
        GetClientRect(list_, &inside);
        const auto ask = [&] {
            SendMessageA(list_, LB_GETITEMRECT, static_cast<WPARAM>(row),
                         reinterpret_cast<LPARAM>(&place));
        };
        ask();
        if (place.top < 0 || place.bottom > inside.bottom) {
            SendMessageA(list_, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
            // The user has this row before him already: the widget stays where it is.
            top_ = SendMessageA(list_, LB_GETTOPINDEX, 0, 0);
            ask();
        }
    } else {
        const LRESULT top = SendMessageA(list_, LB_GETTOPINDEX, 0, 0);
        place.top = static_cast<LONG>((count - top) * SendMessageA(list_, LB_GETITEMHEIGHT, 0, 0));
    }
    const LPARAM point = MAKELPARAM(place.left + 2, place.top + 2);
    if (message != WM_LBUTTONUP) {
        PostMessageA(list_, message == 0 ? WM_LBUTTONDOWN : message, MK_LBUTTON, point);
    }
    if (message == 0 || message == WM_LBUTTONUP) PostMessageA(list_, WM_LBUTTONUP, 0, point);
}

}  // namespace win32::qt
