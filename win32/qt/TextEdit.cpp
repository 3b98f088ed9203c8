// Edits of several lines.

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <algorithm>

#include "win32/qt/Control.h"
#include "win32/qt/EditMenu.h"
#include "win32/qt/LineEdit.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

class TextEdit : public Control {
  public:
    TextEdit(Screen& screen, HWND window, QWidget* parent);

    QWidget& Widget() const override { return *widget_; }
    bool TakeKey(const Key& key) override;

  protected:
    void Show() override;
    bool Mouse(QObject& watched, const QMouseEvent& event) override;
    bool Other(QObject&, QEvent& event) override {
        if (event.type() != QEvent::ContextMenu) return false;
        menu_.Open(static_cast<QContextMenuEvent&>(event).globalPos(), pasted_);
        return true;
    }

  private:
    // A line ends with two characters in the edit, with one in the widget.
    int ToWidget(int position) const;
    int ToEdit(int position) const;

    void ShowSelection();
    void AddSelection(int anchor, int caret) const;
    bool MoveCaret(const Key& key);
    void SelectLineEnd(const Key& key) const;

    std::unique_ptr<QPlainTextEdit> widget_;
    std::string text_;
    std::string pasted_;
    EditMenu menu_;
    int anchor_ = 0;  // of the widget's selection, while the mouse is held
};

TextEdit::TextEdit(Screen& screen, HWND window, QWidget* parent)
    : Control(screen, window),
      widget_(std::make_unique<QPlainTextEdit>(parent)),
      menu_(screen, window) {
    widget_->setFocusPolicy(Qt::TabFocus);
    widget_->setAcceptDrops(false);
    widget_->setUndoRedoEnabled(false);
    const bool wraps = !Has(window, ES_AUTOHSCROLL);
    widget_->setLineWrapMode(wraps ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    const bool border =
        Has(window, WS_BORDER) || (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
    if (!border) {
        widget_->setFrameShape(QFrame::NoFrame);
        widget_->document()->setDocumentMargin(0);
    }
    Watch(*widget_);
    Watch(*widget_->viewport());
}

int TextEdit::ToWidget(int position) const {
    const auto end = text_.begin() + std::min<std::ptrdiff_t>(position, std::ssize(text_));
    return position - static_cast<int>(std::count(text_.begin(), end, '\r'));
}

int TextEdit::ToEdit(int position) const {
    std::size_t at = 0;
    for (; position > 0 && at < text_.size(); ++at) {
        if (text_[at] != '\r') --position;
    }
    return static_cast<int>(at);
}

void TextEdit::Show() {
    const bool readOnly = Has(Window(), ES_READONLY);
    if (widget_->isReadOnly() != readOnly) {
        widget_->setReadOnly(readOnly);
        const auto interaction = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
        if (readOnly) widget_->setTextInteractionFlags(interaction);
        QPalette palette = widget_->palette();
        const auto role = readOnly ? QPalette::Window : QPalette::Base;
        palette.setBrush(QPalette::Base, QApplication::palette().brush(role));
        widget_->setPalette(palette);
    }
    std::string text = TextOf(Window());
    if (text != text_) {
        text_ = std::move(text);
        QString shown = ToUnicode(text_);
        shown.remove(QLatin1Char('\r'));
        widget_->setPlainText(shown);
    }
    ShowSelection();
}

void TextEdit::ShowSelection() {
    const Selection now = SelectionOf(Window());
    const int first = ToWidget(now.first);
    const int last = ToWidget(now.last);
    QTextCursor cursor = widget_->textCursor();
    if (cursor.selectionStart() == first && cursor.selectionEnd() == last) return;
    const bool back = cursor.selectionEnd() == last && cursor.selectionStart() != first;
    cursor.setPosition(back ? last : first);
    cursor.setPosition(back ? first : last, QTextCursor::KeepAnchor);
    widget_->setTextCursor(cursor);
}

void TextEdit::AddSelection(int anchor, int caret) const {
    screen_.Add([edit = Window(), anchor, caret] {
        if (CanBeUsed(edit)) {
            PostMessageA(edit, EM_SETSEL, static_cast<WPARAM>(anchor), caret);
        }
    });
}

// The moves that depend on how the text is broken into lines.
bool TextEdit::MoveCaret(const Key& key) {
    struct Move {
        Qt::Key key;
        QTextCursor::MoveOperation plain;
        QTextCursor::MoveOperation withControl;
    };
    constexpr Move kMoves[] = {
        {Qt::Key_Left, QTextCursor::Left, QTextCursor::WordLeft},
        {Qt::Key_Right, QTextCursor::Right, QTextCursor::WordRight},
        {Qt::Key_Up, QTextCursor::Up, QTextCursor::Up},
        {Qt::Key_Down, QTextCursor::Down, QTextCursor::Down},
        {Qt::Key_PageUp, QTextCursor::Up, QTextCursor::Up},
        {Qt::Key_PageDown, QTextCursor::Down, QTextCursor::Down},
        {Qt::Key_Home, QTextCursor::StartOfLine, QTextCursor::Start},
        {Qt::Key_End, QTextCursor::EndOfLine, QTextCursor::End},
    };
    const auto* move = std::ranges::find_if(
        kMoves, [&](const Move& row) { return static_cast<int>(row.key) == key.code; });
    if (move == std::end(kMoves)) return false;
    Show();
    QTextCursor cursor = widget_->textCursor();
    const bool page = key.code == Qt::Key_PageUp || key.code == Qt::Key_PageDown;
    const int step = page ? std::max(1, widget_->verticalScrollBar()->pageStep() - 1) : 1;
    cursor.movePosition(key.Control() ? move->withControl : move->plain,
                        key.Shift() ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor, step);
    widget_->setTextCursor(cursor);
    PostMessageA(Window(), EM_SETSEL, static_cast<WPARAM>(ToEdit(cursor.anchor())),
                 ToEdit(cursor.position()));
    return true;
}

// The end of a line is taken away as one.
void TextEdit::SelectLineEnd(const Key& key) const {
    const bool back = key.code == Qt::Key_Backspace;
    if (!back && key.code != Qt::Key_Delete) return;
    const auto [first, last] = SelectionOf(Window());
    const int from = back ? first - 2 : first;
    const std::string text = TextOf(Window());
    if (first != last || from < 0 || text.compare(static_cast<std::size_t>(from), 2, "\r\n") != 0) {
        return;
    }
    PostMessageA(Window(), EM_SETSEL, static_cast<WPARAM>(from), from + 2);
}

bool TextEdit::TakeKey(const Key& key) {
    if (TakeClipboardKey(Window(), key, pasted_) || MoveCaret(key)) return true;
    // The edit would keep them to itself; they are the dialog's here, too.
    const WPARAM code = VirtualKey(key.code);
    const bool breaksLine = Has(Window(), ES_WANTRETURN) && !Has(Window(), ES_READONLY);
    if (code == VK_ESCAPE || (code == VK_RETURN && !breaksLine)) {
        PutKeyDown(TopOf(Window()), code);
        return true;
    }
    SelectLineEnd(key);
    return false;
}

bool TextEdit::Mouse(QObject& watched, const QMouseEvent& event) {
    if (&watched != widget_->viewport()) return true;
    const QPoint at = event.position().toPoint();
    const UINT message = MouseMessage(event);
    QTextCursor cursor = widget_->cursorForPosition(at);
    if (event.type() == QEvent::MouseMove) {
        if ((event.buttons() & Qt::LeftButton) == 0) return false;
        const int caret = cursor.position();
        cursor.setPosition(anchor_);
        cursor.setPosition(caret, QTextCursor::KeepAnchor);
    } else if (message == WM_LBUTTONDOWN) {
        AddMouse(message, at);
        anchor_ = event.modifiers().testFlag(Qt::ShiftModifier) ? widget_->textCursor().anchor()
                                                                : cursor.position();
        const int caret = cursor.position();
        cursor.setPosition(anchor_);
        cursor.setPosition(caret, QTextCursor::KeepAnchor);
    } else if (message == WM_LBUTTONDBLCLK) {
        AddMouse(message, at);
        cursor.select(QTextCursor::WordUnderCursor);
        anchor_ = cursor.anchor();
    } else {
        if (message != 0) AddMouse(message, at);
        return true;
    }
    widget_->setTextCursor(cursor);
    AddSelection(ToEdit(cursor.anchor()), ToEdit(cursor.position()));
    return true;
}

}  // namespace

std::unique_ptr<Control> NewTextEdit(Screen& screen, HWND window, QWidget* parent) {
    return std::make_unique<TextEdit>(screen, window, parent);
}

}  // namespace win32::qt
