#include "win32/qt/Control.h"

#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QWidget>
#include <iterator>
#include <string>

#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

struct Kind {
    const char* className;
    std::unique_ptr<Control> (*make)(Screen&, HWND, QWidget*);
};

constexpr Kind kKinds[] = {
    {"#32770", &NewDialog}, {"Button", &NewButton}, {"ComboBox", &NewCombo},     {"Edit", &NewEdit},
    {"ListBox", &NewList},  {"Static", &NewStatic}, {"SysTreeView32", &NewTree},
};

// What a window stands in, or which window it stays before.
HWND HolderOf(HWND window) {
    if (Has(window, WS_CHILD)) return GetAncestor(window, GA_PARENT);
    return TopOf(GetWindow(window, GW_OWNER));
}

}  // namespace

std::unique_ptr<Control> MakeControl(Screen& screen, HWND window) {
    const std::string name = ClassOf(window);
    const HWND holder = HolderOf(window);
    // The edit and the list inside a combo box are shown by that.
    if (holder != nullptr && ClassOf(holder) == "ComboBox") return nullptr;
    for (const Kind& kind : kKinds) {
        if (name == kind.className) return kind.make(screen, window, screen.WidgetOf(holder));
    }
    return nullptr;
}

UINT MouseMessage(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return 0;
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            return WM_LBUTTONDOWN;
        case QEvent::MouseButtonRelease:
            return WM_LBUTTONUP;
        case QEvent::MouseButtonDblClick:
            return WM_LBUTTONDBLCLK;
        default:
            return 0;
    }
}

void Control::Watch(QObject& widget) {
    widget.installEventFilter(this);
    watched_.emplace_back(&widget);
}

void Control::Release() {
    for (const auto& widget : watched_) {
        if (widget != nullptr) widget->removeEventFilter(this);
    }
    Widget().blockSignals(true);
}

void Control::Refresh() {
    const QRect place = PlaceOf(window_);
    if (place != place_) {
        place_ = place;
        Place(place);
    }
    const bool disabled = Has(window_, WS_DISABLED);
    // A dialog that is disabled takes no input, but its controls look as before.
    const bool greyed = disabled && ClassOf(window_) != "#32770";
    if (Widget().isEnabled() == greyed) Widget().setEnabled(!greyed);
    Show();
    SetVisible(Has(window_, WS_VISIBLE));
}

void Control::Place(const QRect& place) { Widget().setGeometry(place); }

void Control::SetVisible(bool visible) {
    if (Widget().isHidden() == visible) Widget().setVisible(visible);
}

void Control::TakeFocus(bool byKeyboard) {
    Widget().setFocus(byKeyboard ? Qt::TabFocusReason : Qt::MouseFocusReason);
}

bool Control::TakeKey(const Key&) { return false; }

void Control::AddMouse(UINT message, QPoint at) const {
    screen_.Add([window = window_, message, at] {
        if (!CanBeUsed(window)) return;
        PostMessageA(window, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                     MAKELPARAM(at.x(), at.y()));
    });
}

bool Control::Mouse(QObject&, const QMouseEvent& event) {
    const UINT message = MouseMessage(event);
    if (message != 0) AddMouse(message, event.position().toPoint());
    return true;
}

bool Control::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Letters with Alt are the dialog's, as are Escape and Enter.
            event->accept();
            return true;
        case QEvent::KeyPress: {
            const Key key = KeyOf(static_cast<QKeyEvent&>(*event));
            if (key.code == Qt::Key_Menu) return false;  // opens the menu of an edit
            screen_.AddKey(key);
            return true;
        }
        case QEvent::KeyRelease:
            if (!static_cast<QKeyEvent&>(*event).isAutoRepeat()) {
                screen_.AddKey(KeyOf(static_cast<QKeyEvent&>(*event)));
            }
            return true;
        case QEvent::InputMethod: {
            // What an input method, or a dead key with a letter, has made.
            const QString text = static_cast<QInputMethodEvent&>(*event).commitString();
            if (!text.isEmpty()) screen_.AddKey({Qt::Key_unknown, {}, text, true});
            return true;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            return Mouse(*watched, static_cast<QMouseEvent&>(*event));
        case QEvent::DragEnter:
        case QEvent::Drop:
            event->ignore();
            return true;
        default:
            return Other(*watched, *event);
    }
}

}  // namespace win32::qt
