#include "win32/qt/LineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

void Copy(HWND edit) {
    if (Has(edit, ES_PASSWORD)) return;
    const auto [first, last] = SelectionOf(edit);
    if (first == last) return;
    const QString text = ToUnicode(TextOf(edit));
    QApplication::clipboard()->setText(text.mid(first, last - first));
}

void Cut(HWND edit) {
    if (Has(edit, ES_READONLY) || Has(edit, ES_PASSWORD)) return;
    Copy(edit);
    PostMessageA(edit, WM_CLEAR, 0, 0);
}

// The caret is the end that has moved since.
bool CaretIsFirst(const Selection& before, const Selection& now) {
    return now.last == before.last && now.first != before.first;
}

}  // namespace

Selection SelectionOf(HWND edit) {
    DWORD first = 0;
    DWORD last = 0;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                 reinterpret_cast<LPARAM>(&last));
    return {static_cast<int>(first), static_cast<int>(last)};
}

void Paste(HWND edit, bool primary, std::string& pasted) {
    const auto mode = primary ? QClipboard::Selection : QClipboard::Clipboard;
    QString text = QApplication::clipboard()->text(mode);
    if (Has(edit, ES_MULTILINE)) {
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    } else {
        text = text.section(QLatin1Char('\n'), 0, 0).section(QLatin1Char('\r'), 0, 0);
    }
    bool complete = true;
    pasted = FromUnicode(text, &complete);
    const bool digits = std::ranges::all_of(pasted, [](char c) { return c >= '0' && c <= '9'; });
    const bool refused = Has(edit, ES_READONLY) || (Has(edit, ES_NUMBER) && !digits);
    if (refused || !complete) QApplication::beep();
    if (refused || pasted.empty()) return;
    PostMessageA(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(pasted.c_str()));
}

bool TakeClipboardKey(HWND edit, const Key& key, std::string& pasted) {
    if (key.Alt() || key.Control() == key.Shift()) return false;
    const auto is = [&](Qt::Key withControl, Qt::Key older, bool olderHasShift) {
        return (key.Control() && key.code == withControl) ||
               (key.Shift() == olderHasShift && key.code == older);
    };
    if (is(Qt::Key_C, Qt::Key_Insert, false)) {
        Copy(edit);
    } else if (is(Qt::Key_X, Qt::Key_Delete, true)) {
        Cut(edit);
    } else if (is(Qt::Key_V, Qt::Key_Insert, true)) {
        Paste(edit, false, pasted);
    } else if (key.Control() && key.code == Qt::Key_A) {
        PostMessageA(edit, EM_SETSEL, 0, -1);
    } else {
        return false;
    }
    return true;
}

LineEdit::LineEdit(Screen& screen, HWND edit, QLineEdit& widget)
    : screen_(screen), edit_(edit), widget_(widget), menu_(screen, edit) {
    widget_.setDragEnabled(false);
    widget_.setAcceptDrops(false);
    // These come only of the user's mouse: nothing else moves the caret of the widget unblocked.
    QObject::connect(&widget_, &QLineEdit::selectionChanged, this, [this] { SelectedInWidget(); });
    QObject::connect(&widget_, &QLineEdit::cursorPositionChanged, this,
                     [this] { SelectedInWidget(); });
}

void LineEdit::Show() {
    const QSignalBlocker quiet(widget_);
    ShowStyle();
    const QString text = ToUnicode(TextOf(edit_));
    if (widget_.text() != text) {
        widget_.setText(text);
        shown_ = {-1, -1};
    }
    ShowSelection();
}

void LineEdit::ShowStyle() {
    const DWORD style = StyleOf(edit_);
    const auto set = [style](DWORD flag) { return (style & flag) != 0; };
    const auto horizontal = set(ES_RIGHT)    ? Qt::AlignRight
                            : set(ES_CENTER) ? Qt::AlignHCenter
                                             : Qt::AlignLeft;
    const Qt::Alignment alignment = horizontal | Qt::AlignVCenter;
    if (widget_.alignment() != alignment) widget_.setAlignment(alignment);
    const auto echo = set(ES_PASSWORD) ? QLineEdit::Password : QLineEdit::Normal;
    if (widget_.echoMode() != echo) widget_.setEchoMode(echo);
    if (widget_.isReadOnly() == set(ES_READONLY)) return;
    widget_.setReadOnly(set(ES_READONLY));
    // On Windows, too, it is the ground that says that nothing can be typed.
    QPalette palette = widget_.palette();
    palette.setBrush(QPalette::Base, set(ES_READONLY)
                                         ? QApplication::palette().brush(QPalette::Window)
                                         : QApplication::palette().brush(QPalette::Base));
    widget_.setPalette(palette);
}

void LineEdit::ShowSelection() {
    const Selection now = SelectionOf(edit_);
    const int from = widget_.selectionStart();
    const bool same = now.first == now.last
                          ? from < 0 && widget_.cursorPosition() == now.first
                          : from == now.first && widget_.selectionEnd() == now.last;
    if (!same) {
        const bool back = CaretIsFirst(shown_, now);
        const int length = now.last - now.first;
        widget_.setSelection(back ? now.last : now.first, back ? -length : length);
        if (length == 0) widget_.setCursorPosition(now.first);
    }
    shown_ = now;
}

void LineEdit::SelectedInWidget() {
    const auto [anchor, caret] = AnchorAndCaret();
    screen_.Add([edit = edit_, anchor = anchor, caret = caret] {
        if (CanBeUsed(edit)) PostMessageA(edit, EM_SETSEL, static_cast<WPARAM>(anchor), caret);
    });
}

std::pair<int, int> LineEdit::AnchorAndCaret() const {
    const int caret = widget_.cursorPosition();
    const int from = widget_.selectionStart();
    if (from < 0) return {caret, caret};
    return {caret == from ? widget_.selectionEnd() : from, caret};
}

bool LineEdit::MoveByWord(const Key& key) {
    const bool left = key.code == Qt::Key_Left || key.code == Qt::Key_Backspace;
    const bool right = key.code == Qt::Key_Right || key.code == Qt::Key_Delete;
    if (!key.Control() || !(left || right)) return false;
    const bool deletes = key.code == Qt::Key_Backspace || key.code == Qt::Key_Delete;
    if (deletes && Has(edit_, ES_READONLY)) return true;
    Show();
    const QSignalBlocker quiet(widget_);
    // The widget knows where words begin.
    const bool there = deletes && widget_.hasSelectedText();
    if (!there && left) widget_.cursorWordBackward(deletes || key.Shift());
    if (!there && right) widget_.cursorWordForward(deletes || key.Shift());
    const auto [anchor, caret] = AnchorAndCaret();
    PostMessageA(edit_, EM_SETSEL, static_cast<WPARAM>(anchor), caret);
    if (deletes) PostMessageA(edit_, WM_CLEAR, 0, 0);
    return true;
}

bool LineEdit::TakeKey(const Key& key) {
    return TakeClipboardKey(edit_, key, pasted_) || MoveByWord(key);
}

bool LineEdit::Mouse(const QMouseEvent& event) {
    const UINT message = MouseMessage(event);
    if (message != 0) {
        screen_.Add([edit = edit_, message, at = event.position().toPoint()] {
            if (!CanBeUsed(edit)) return;
            PostMessageA(edit, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                         MAKELPARAM(at.x(), at.y()));
        });
        return false;
    }
    const bool held = (event.buttons() & Qt::LeftButton) != 0;
    if (event.type() == QEvent::MouseMove) return !held;
    if (event.type() == QEvent::MouseButtonPress && event.button() == Qt::MiddleButton) {
        const int at = widget_.cursorPositionAt(event.position().toPoint());
        screen_.Add([this, edit = edit_, at] {
            if (!CanBeUsed(edit)) return;
            PostMessageA(edit, EM_SETSEL, static_cast<WPARAM>(at), at);
            Paste(edit, true, pasted_);
        });
    }
    return true;
}

}  // namespace win32::qt
