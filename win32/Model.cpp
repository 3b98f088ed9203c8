#include "win32/Model.h"

#include <algorithm>
#include <cstring>
#include <mutex>
#include <unordered_map>

#include "win32/Error.h"
#include "win32/Queue.h"
#include "win32/View.h"

namespace {

// All windows of the process. Threads make and end windows at the same time.
class Registry {
  public:
    HWND Add(std::shared_ptr<win32::Window> window) {
        const std::lock_guard lock(mutex_);
        // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number
        const HWND handle = reinterpret_cast<HWND>(next_);
        next_ += 2;
        windows_.emplace(handle, std::move(window));
        return handle;
    }

    std::shared_ptr<win32::Window> Find(HWND handle) {
        const std::lock_guard lock(mutex_);
        const auto found = windows_.find(handle);
        return found == windows_.end() ? nullptr : found->second;
    }

    void Remove(HWND handle) {
        const std::lock_guard lock(mutex_);
        windows_.erase(handle);
    }

    void RemoveOf(const win32::Queue* queue) {
        const std::lock_guard lock(mutex_);
        std::erase_if(windows_,
                      [&](const auto& entry) { return entry.second->queue.get() == queue; });
    }

  private:
    std::mutex mutex_;
    std::unordered_map<HWND, std::shared_ptr<win32::Window>> windows_;
    UINT_PTR next_ = 0x10002;
};

Registry& Windows() {
    static Registry registry;
    return registry;
}

}  // namespace

namespace win32 {

Window::Window(std::string_view ofClass, const Birth& birth)
    : className(ofClass),
      parent(birth.parent),
      place(birth.place),
      id(birth.id),
      module(birth.module),
      style(birth.style),
      exStyle(birth.exStyle),
      procedure(&OwnProcedure),
      queue(ThisThread().queue),
      text_(birth.text) {}

bool Window::Alive() const { return Windows().Find(self_).get() == this; }

RECT Window::ClientRect() const {
    return {0, 0, place.right - place.left, place.bottom - place.top};
}

void Window::Tell(WORD code) const {
    SendMessageA(parent, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(self_));
}

LRESULT Window::Tell(NMHDR& header, UINT code) const {
    header = {self_, static_cast<UINT_PTR>(id), code};
    return SendMessageA(parent, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

void Window::Changed() const {
    if (View* view = ThisThread().view) view->Changed(self_);
}

LRESULT Window::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETTEXT:
            text_ = TextAt(lParam);
            Changed();
            return TRUE;
        case WM_GETTEXT:
            return CopyText(text_, wParam, lParam);
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(text_.size());
        case WM_CLOSE:
            DestroyWindow(self_);
            return 0;
        default:
            return 0;
    }
}

LRESULT CALLBACK OwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = Find(window);
    return found ? found->Handle(message, wParam, lParam) : 0;
}

std::shared_ptr<Window> Find(HWND window) {
    auto found = window == nullptr ? nullptr : Windows().Find(window);
    if (!found) SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return found;
}

HWND Register(const std::shared_ptr<Window>& window) {
    const HWND self = Windows().Add(window);
    window->self_ = self;
    if (const auto parent = window->parent == nullptr ? nullptr : Find(window->parent)) {
        (window->IsTopLevel() ? parent->owned : parent->children).push_back(self);
    }
    window->Born();
    if (View* view = ThisThread().view) view->Created(self);
    return self;
}

void Unregister(HWND window) {
    const auto found = Windows().Find(window);
    if (!found) return;
    if (const auto parent = found->parent == nullptr ? nullptr : Find(found->parent)) {
        std::erase(parent->children, window);
        std::erase(parent->owned, window);
    }
    found->queue->Forget(window);
    Windows().Remove(window);
    if (View* view = ThisThread().view) view->Destroyed(window);
}

void ForgetWindowsOf(const Queue* queue) { Windows().RemoveOf(queue); }

LRESULT CopyText(std::string_view text, WPARAM size, LPARAM buffer) {
    if (size == 0 || buffer == 0) return 0;
    const std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): messages carry addresses so
    auto* to = reinterpret_cast<char*>(buffer);
    std::memcpy(to, text.data(), length);
    to[length] = '\0';
    return static_cast<LRESULT>(length);
}

std::string_view TextAt(LPARAM text) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): messages carry addresses so
    return text == 0 ? std::string_view() : std::string_view(reinterpret_cast<const char*>(text));
}

}  // namespace win32
