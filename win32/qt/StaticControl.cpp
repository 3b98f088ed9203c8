// Texts, lines, and what the program draws itself.

#include <QFontMetrics>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QWidget>

#include "win32/qt/Control.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

DWORD KindOf(HWND window) { return StyleOf(window) & SS_TYPEMASK; }

class Label : public Control {
  public:
    Label(Screen& screen, HWND window, QWidget* parent)
        : Control(screen, window), widget_(std::make_unique<QLabel>(parent)) {
        widget_->setTextFormat(Qt::PlainText);
        Watch(*widget_);
    }

    QWidget& Widget() const override { return *widget_; }

  protected:
    void Show() override;

  private:
    Qt::Alignment Alignment() const;
    bool Wraps() const;
    Control* Labelled() const;

    std::unique_ptr<QLabel> widget_;
};

Qt::Alignment Label::Alignment() const {
    const DWORD kind = KindOf(Window());
    const bool middle = Has(Window(), SS_CENTERIMAGE);
    const Qt::Alignment vertical = middle ? Qt::AlignVCenter : Qt::AlignTop;
    if (kind == SS_CENTER) return vertical | Qt::AlignHCenter;
    return vertical | (kind == SS_RIGHT ? Qt::AlignRight : Qt::AlignLeft);
}

// What has room for one line is better cut at its end than broken.
bool Label::Wraps() const {
    const DWORD kind = KindOf(Window());
    const bool may = kind == SS_LEFT || kind == SS_CENTER || kind == SS_RIGHT;
    return may && widget_->height() >= 2 * QFontMetrics(widget_->font()).height();
}

// The control that a text stands before, if it takes input.
Control* Label::Labelled() const {
    const HWND next = GetWindow(Window(), GW_HWNDNEXT);
    if (next == nullptr || (SendMessageA(next, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0) {
        return nullptr;
    }
    return screen_.ControlOf(next);
}

void Label::Show() {
    const QString text = ToUnicode(TextOf(Window()));
    const bool plain = Has(Window(), SS_NOPREFIX);
    const QString spoken = plain ? text : WithoutMnemonic(text);
    Control* labelled = Labelled();
    if (labelled != nullptr) {
        QWidget& widget = labelled->Widget();
        if (widget.accessibleName() != spoken) widget.setAccessibleName(spoken);
    }
    // Qt underlines a letter only if it leads somewhere.
    const bool underlines = !plain && labelled != nullptr && spoken != text;
    QWidget* buddy = underlines ? &labelled->Widget() : nullptr;
    if (widget_->buddy() != buddy) widget_->setBuddy(buddy);
    const QString shown = underlines ? text : spoken;
    if (widget_->text() != shown) widget_->setText(shown);
    if (widget_->alignment() != Alignment()) widget_->setAlignment(Alignment());
    if (widget_->wordWrap() != Wraps()) widget_->setWordWrap(Wraps());
}

class Line : public Control {
  public:
    Line(Screen& screen, HWND window, QWidget* parent)
        : Control(screen, window), widget_(std::make_unique<QFrame>(parent)) {
        const DWORD kind = KindOf(window);
        widget_->setFrameShape(kind == SS_ETCHEDHORZ   ? QFrame::HLine
                               : kind == SS_ETCHEDVERT ? QFrame::VLine
                                                       : QFrame::Box);
        widget_->setFrameShadow(QFrame::Sunken);
        Watch(*widget_);
    }

    QWidget& Widget() const override { return *widget_; }

  protected:
    void Show() override {}

    // A line is drawn in the middle of its widget, on Windows at the edge.
    void Place(const QRect& place) override {
        constexpr int kThickness = 2;
        const DWORD kind = KindOf(Window());
        QRect line = place;
        if (kind == SS_ETCHEDHORZ) line.setHeight(kThickness);
        if (kind == SS_ETCHEDVERT) line.setWidth(kThickness);
        Widget().setGeometry(line);
    }

  private:
    std::unique_ptr<QFrame> widget_;
};

class Canvas : public QWidget {
  public:
    Canvas(Screen& screen, HWND window, QWidget* parent)
        : QWidget(parent), screen_(screen), window_(window) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        const QtView::Painter draw = screen_.PainterOf(window_);
        if (!draw) return;
        QPainter painter(this);
        draw(painter, size());
    }

  private:
    Screen& screen_;
    HWND window_;
};

class Drawn : public Control {
  public:
    Drawn(Screen& screen, HWND window, QWidget* parent)
        : Control(screen, window), widget_(std::make_unique<Canvas>(screen, window, parent)) {
        Watch(*widget_);
    }

    QWidget& Widget() const override { return *widget_; }

  protected:
    void Show() override { widget_->update(); }

  private:
    std::unique_ptr<Canvas> widget_;
};

}  // namespace

std::unique_ptr<Control> NewStatic(Screen& screen, HWND window, QWidget* parent) {
    switch (KindOf(window)) {
        case SS_OWNERDRAW:
            return std::make_unique<Drawn>(screen, window, parent);
        case SS_ETCHEDHORZ:
        case SS_ETCHEDVERT:
        case SS_ETCHEDFRAME:
            return std::make_unique<Line>(screen, window, parent);
        default:
            return std::make_unique<Label>(screen, window, parent);
    }
}

}  // namespace win32::qt
