#include "kvogui/Dialog.h"

#include <boost/signals2/signal.hpp>
#include <exception>
#include <utility>
#include <vector>

#include "kvogui/Control.h"

namespace kvo::gui {

struct Dialog::State {
    std::vector<boost::shared_ptr<Control>> controls;
    boost::signals2::signal<void(Dialog&)> ok;
    std::exception_ptr failure;  // the first one while the dialog was shown
};

Dialog::Dialog(int templateId) : templateId_(templateId), state_(std::make_unique<State>()) {}

Dialog::~Dialog() = default;

// In each of these loops a control may call back and add another one.

void Dialog::init() {
    const auto controls = state_->controls;
    for (const auto& control : controls) control->attach(handle_);
}

int Dialog::processMessage(unsigned message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        init();
        return 1;
    }
    if (message != WM_COMMAND) return 0;
    const int id = LOWORD(wParam);
    const int code = HIWORD(wParam);
    const auto controls = state_->controls;
    for (const auto& control : controls) control->notify(id, code);
    if (code != BN_CLICKED || (id != IDOK && id != IDCANCEL)) return 0;
    if (id == IDOK) {
        state_->ok(*this);
    } else {
        close();
    }
    return 1;
}

bool Dialog::showModal(HINSTANCE module, HWND parent) {
    if (handle_ != nullptr) return false;
    const boost::shared_ptr<Dialog> alive = weak_from_this().lock();
    applied_ = false;
    DialogBoxParamA(module, MAKEINTRESOURCEA(static_cast<WORD>(templateId_)), parent,
                    &Dialog::procedure, reinterpret_cast<LPARAM>(this));
    if (state_->failure) std::rethrow_exception(std::exchange(state_->failure, nullptr));
    return applied_;
}

HWND Dialog::handle() const { return handle_; }

void Dialog::add(const boost::shared_ptr<Control>& control) {
    state_->controls.push_back(control);
    if (handle_ != nullptr) control->attach(handle_);
}

boost::signals::connection Dialog::Connect_ok(const boost::function<void(Dialog&)>& slot) {
    return state_->ok.connect(slot);
}

void Dialog::apply() { applied_ = true; }

void Dialog::close() {
    if (handle_ != nullptr) EndDialog(handle_, 0);
}

// NOLINTBEGIN(performance-no-int-to-ptr): a message carries an address as a number
INT_PTR CALLBACK Dialog::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrA(window, DWLP_USER));
    if (dialog == nullptr) {
        // Some messages come ahead of the one that tells whose window this is.
        if (message != WM_INITDIALOG) return 0;
        dialog = reinterpret_cast<Dialog*>(lParam);
        SetWindowLongPtrA(window, DWLP_USER, lParam);
        dialog->handle_ = window;
    }
    return dialog->handleMessage(message, wParam, lParam);
}
// NOLINTEND(performance-no-int-to-ptr)

// The caller is the window system, which no exception may pass through.
int Dialog::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    int handled = 0;
    try {
        handled = processMessage(message, wParam, lParam);
        if (message == WM_DESTROY) detachControls();
    } catch (...) {
        if (!state_->failure) state_->failure = std::current_exception();
        applied_ = false;
        close();
    }
    if (message == WM_DESTROY) handle_ = nullptr;
    return handled;
}

void Dialog::detachControls() {
    const auto controls = state_->controls;
    for (const auto& control : controls) control->detach();
}

}  // namespace kvo::gui
