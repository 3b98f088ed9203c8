#include "win32/qt/EditMenu.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>

#include "win32/qt/LineEdit.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

void EditMenu::Add(const char* text, Qt::Key key, bool can, std::string& pasted) {
    QAction* action = menu_->addAction(QCoreApplication::translate("QLineEdit", text));
    action->setEnabled(can);
    QObject::connect(action, &QAction::triggered, &screen_,
                     [&screen = screen_, edit = edit_, key, &pasted] {
                         screen.Add([edit, key, &pasted] {
                             if (!CanBeUsed(edit)) return;
                             TakeClipboardKey(edit, {key, Qt::ControlModifier, {}, true}, pasted);
                         });
                     });
}

void EditMenu::Open(QPoint at, std::string& pasted) {
    if (!CanBeUsed(edit_)) return;
    screen_.Add([edit = edit_] {
        if (CanBeUsed(edit) && GetFocus() != edit) {
            PostMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, 0);
            PostMessageA(edit, WM_LBUTTONUP, 0, 0);
        }
    });
    const bool selected = SelectionOf(edit_).first != SelectionOf(edit_).last;
    const bool secret = Has(edit_, ES_PASSWORD);
    const bool readOnly = Has(edit_, ES_READONLY);
    menu_ = std::make_unique<QMenu>();
    Add("Cu&t", Qt::Key_X, selected && !secret && !readOnly, pasted);
    Add("&Copy", Qt::Key_C, selected && !secret, pasted);
    Add("&Paste", Qt::Key_V, !readOnly && !QApplication::clipboard()->text().isEmpty(), pasted);
    menu_->addSeparator();
    Add("Select All", Qt::Key_A, GetWindowTextLengthA(edit_) > 0, pasted);
    menu_->popup(at);
}

}  // namespace win32::qt
