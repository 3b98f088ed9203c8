#include <boost/signals2/signal.hpp>
#include <cstddef>
#include <utility>

#include "kvogui/EditControl.h"
#include "kvogui/StaticControl.h"

namespace kvo::gui {

Control::Control() = default;

Control::~Control() = default;

Win32Control::Win32Control(int id) : id_(id) {}

Win32Control::~Win32Control() = default;

int Win32Control::id() const { return id_; }

HWND Win32Control::handle() const { return handle_; }

std::string Win32Control::getText() const {
    if (handle_ == nullptr) return text_;
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(handle_)) + 1, '\0');
    const int length = GetWindowTextA(handle_, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

// Showing the text may call back and set another one, so it is the caller's that is shown.
void Win32Control::setText(std::string text) {
    if (handle_ != nullptr) {
        SetWindowTextA(handle_, text.c_str());
    } else {
        text_ = std::move(text);
        textIsSet_ = true;
    }
}

void Win32Control::notified(int) {}

void Win32Control::attach(HWND dialog) {
    handle_ = GetDlgItem(dialog, id_);
    if (std::exchange(textIsSet_, false)) setText(text_);
}

void Win32Control::detach() {
    text_ = getText();
    handle_ = nullptr;
}

void Win32Control::notify(int id, int code) {
    if (id == id_) notified(code);
}

StaticControl::StaticControl(int id) : Win32Control(id) {}

StaticControl::~StaticControl() = default;

boost::shared_ptr<StaticControl> StaticControl::new_control(int id) {
    return boost::shared_ptr<StaticControl>(new StaticControl(id));
}

struct EditControl::Signals {
    boost::signals2::signal<void(EditControl&)> textChanging;
};

EditControl::EditControl(int id) : Win32Control(id), signals_(std::make_unique<Signals>()) {}

EditControl::~EditControl() = default;

boost::shared_ptr<EditControl> EditControl::new_control(int id) {
    return boost::shared_ptr<EditControl>(new EditControl(id));
}

boost::signals::connection EditControl::Connect_textChanging(
    const boost::function<void(EditControl&)>& slot) {
    return signals_->textChanging.connect(slot);
}

void EditControl::notified(int code) {
    if (code == EN_CHANGE) signals_->textChanging(*this);
}

}  // namespace kvo::gui
