#include "win32/qt/Screen.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QMetaObject>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "win32/qt/Reading.h"

namespace win32::qt {

namespace {

// How often the queue is looked at where Qt has the loop: timers and other threads fill it too.
constexpr int kPollMilliseconds = 20;

bool AnyWindowVisible() {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWindow* window) { return window->isVisible(); });
}

}  // namespace

Screen::Screen() {
    QObject::connect(&poll_, &QTimer::timeout, this, [this] { TakeTurn(); });
}

// What stands in others goes first, and has a later handle.
Screen::~Screen() {
    for (const auto& [window, control] : controls_) control->Release();
    while (!controls_.empty()) controls_.erase(std::prev(controls_.end()));
}

// ---- The windows of the thread ----

void Screen::Created(HWND window) {
    if (controls_.contains(window)) return;
    auto control = MakeControl(*this, window);
    if (control == nullptr) {
        Changed(window);
        return;
    }
    controls_.emplace(window, std::move(control));
    Changed(window);
}

void Screen::Changed(HWND window) {
    if (window == nullptr) return;
    Control* control = ControlOf(window);
    if (control == nullptr) {
        ShowFamilyOf(window);
        control = ControlOf(window);
    }
    if (control == nullptr || control->marked) return;
    control->marked = true;
    changed_.push_back(control->Window());
    ScheduleTurn();
}

void Screen::Destroyed(HWND window) {
    painters_.erase(window);
    if (const auto found = controls_.find(window); found != controls_.end()) {
        found->second->Release();
        controls_.erase(found);
    }
    std::erase(changed_, window);
    if (activated_ == window) activated_ = nullptr;
    if (shownActive_ == window) shownActive_ = nullptr;
    if (shownFocus_ == window) shownFocus_ = nullptr;
}

void Screen::ShowFamilyOf(HWND window) {
    const HWND top = TopOf(window);
    if (top == nullptr || controls_.contains(top)) return;
    if (HWND owner = GetWindow(top, GW_OWNER)) ShowFamilyOf(owner);
    std::vector<HWND> family{top};
    while (!family.empty()) {
        const HWND next = family.back();
        family.pop_back();
        Created(next);
        if (ClassOf(next) == "ComboBox") continue;
        const std::size_t first = family.size();
        for (HWND child = GetWindow(next, GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            family.insert(family.begin() + static_cast<std::ptrdiff_t>(first), child);
        }
    }
}

Control* Screen::ControlOf(HWND window) const {
    auto found = controls_.find(window);
    if (found == controls_.end()) found = controls_.find(GetAncestor(window, GA_PARENT));
    return found == controls_.end() ? nullptr : found->second.get();
}

QWidget* Screen::WidgetOf(HWND window) const {
    const auto found = controls_.find(window);
    return found == controls_.end() ? nullptr : &found->second->Widget();
}

void Screen::SetPainter(HWND control, QtView::Painter painter) {
    painters_[control] = std::move(painter);
    Changed(control);
}

QtView::Painter Screen::PainterOf(HWND control) const {
    const auto found = painters_.find(control);
    return found == painters_.end() ? QtView::Painter() : found->second;
}

// ---- What the user does ----

void Screen::Add(Input::Act act) {
    input_.Add([this, act = std::move(act), held = QGuiApplication::keyboardModifiers()] {
        byKeyboard_ = false;
        SetHeld(held);
        act();
    });
    ScheduleTurn();
}

void Screen::AddKey(const Key& key) {
    input_.Add([this, key] {
        byKeyboard_ = true;
        SetHeld(key.held);
        PutKeyToFocus(key);
    });
    ScheduleTurn();
}

void Screen::PutKeyToFocus(const Key& key) {
    const HWND focus = GetFocus() != nullptr ? GetFocus() : GetActiveWindow();
    if (!CanBeUsed(focus)) return;
    Control* control = ControlOf(focus);
    if (control != nullptr && key.pressed && control->TakeKey(key)) return;
    PutKey(focus, key);
}

void Screen::Activated(HWND window) {
    activated_ = window;
    ScheduleTurn();
}

// Windows tells a program of it while it asks for messages, as this does.
void Screen::FollowActivation() {
    const HWND window = std::exchange(activated_, nullptr);
    if (window == nullptr || GetActiveWindow() == window) return;
    if (!CanBeUsed(window)) {
        // It waits for the end of another one, which becomes Qt's active window again.
        shownActive_ = nullptr;
        return;
    }
    shownActive_ = window;
    SetActiveWindow(window);
}

// ---- Turns ----

bool Screen::HasMessage() const {
    MSG message;
    return PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE;
}

// A dialog comes after its controls: it is seen when all of it is ready.
void Screen::RefreshAll() {
    // What changes meanwhile has its turn after this one.
    std::vector<HWND> changed = std::exchange(changed_, {});
    std::ranges::sort(changed, std::greater<>());
    for (const HWND window : changed) {
        const auto found = controls_.find(window);
        if (found == controls_.end()) continue;
        found->second->marked = false;
        found->second->Refresh();
    }
}

void Screen::FollowFocus() {
    const HWND active = GetActiveWindow();
    if (active != shownActive_) {
        shownActive_ = active;
        if (QWidget* widget = WidgetOf(active); widget != nullptr && widget->isVisible()) {
            widget->activateWindow();
        }
    }
    if (QApplication::activePopupWidget() != nullptr) return;
    const HWND focus = GetFocus() != nullptr ? GetFocus() : active;
    Control* control = ControlOf(focus);
    if (control == nullptr) return;
    const QWidget& widget = control->Widget();
    const QWidget* holder = widget.window()->focusWidget();
    const bool follows = holder == &widget ||
                         (holder != nullptr && widget.isAncestorOf(holder) && !widget.isWindow());
    if (!follows) control->TakeFocus(byKeyboard_);
    if (focus == shownFocus_) return;
    const HWND before = std::exchange(shownFocus_, focus);
    if (Control* left = ControlOf(before)) left->FocusChanged();
    control->FocusChanged();
}

void Screen::Settle() {
    if (settling_ || input_.Waits()) return;
    settling_ = true;
    RefreshAll();
    FollowFocus();
    RefreshAll();  // what looks different with the focus
    settling_ = false;
}

void Screen::ScheduleTurn() {
    if (std::exchange(scheduled_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            scheduled_ = false;
            TakeTurn();
        },
        Qt::QueuedConnection);
}

void Screen::TakeTurn() {
    if (waiting_ == 0 && handlesMessages_) HandleMessages();
    if (!HasMessage()) Settle();
}

bool Screen::Wait(DWORD milliseconds) {
    struct Inside {
        explicit Inside(int& depth) : count(depth) { ++count; }
        ~Inside() { --count; }
        Inside(const Inside&) = delete;
        Inside& operator=(const Inside&) = delete;
        int& count;
    };
    const Inside inside(waiting_);
    const QDeadlineTimer until(milliseconds);
    QTimer wake;
    wake.setSingleShot(true);
    for (bool looked = false;; looked = true) {
        if (HasMessage()) return true;
        FollowActivation();
        if (input_.PutNext()) continue;
        Settle();
        if (HasMessage()) return true;
        if (!AnyWindowVisible()) return false;
        const qint64 left = until.remainingTime();
        if (left <= 0 && looked) return true;
        QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents;
        if (left > 0) {
            if (!wake.isActive()) wake.start(static_cast<int>(left));
            flags |= QEventLoop::WaitForMoreEvents;
        }
        QCoreApplication::processEvents(flags);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Screen::HandleMessagesInQtLoop(bool on) {
    handlesMessages_ = on;
    if (on) {
        poll_.start(kPollMilliseconds);
    } else {
        poll_.stop();
    }
}

void Screen::HandleMessages() {
    do {
        FollowActivation();
        for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
            if (message.message == WM_QUIT) {
                QCoreApplication::exit(static_cast<int>(message.wParam));
                return;
            }
            if (IsDialogMessageA(TopOf(message.hwnd), &message) != FALSE) continue;
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    } while (input_.PutNext());
}

}  // namespace win32::qt
