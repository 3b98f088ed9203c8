#ifndef WIN32_MODEL_H
#define WIN32_MODEL_H

// The inside of a window. Every kind of window derives from win32::Window and answers messages in
// Handle(). Handles are numbers that are never used twice, so that one of a window that is gone
// finds nothing.

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "win32/Window.h"

namespace win32 {

class Queue;

/// What a window is made from.
struct Birth {
    HWND parent = nullptr;  ///< of a top-level window: its owner
    DWORD style = 0;
    DWORD exStyle = 0;
    std::string text;
    RECT place{};
    LONG_PTR id = 0;
    HINSTANCE module = nullptr;
};

class Window {
  public:
    Window(std::string_view ofClass, const Birth& birth);
    virtual ~Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Answers a message; what a kind of window leaves alone comes to this one.
    virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

    /// Called once the window has its handle and its parent knows it.
    virtual void Born() {}

    /// The memory behind an index of GetWindowLongPtrA that only this kind of window has.
    virtual LONG_PTR* Extra(int) { return nullptr; }

    HWND Self() const { return self_; }
    bool Has(DWORD wanted) const { return (style & wanted) == wanted; }
    bool IsTopLevel() const { return !Has(WS_CHILD); }
    RECT ClientRect() const;
    const std::string& Text() const { return text_; }

    /// Whether the window is still known under its handle.
    bool Alive() const;

    std::string className;
    HWND parent;
    std::vector<HWND> children;
    std::vector<HWND> owned;
    RECT place;
    LONG_PTR id;
    LONG_PTR userData = 0;
    HINSTANCE module;
    DWORD style;
    DWORD exStyle;
    WNDPROC procedure;
    std::map<std::string, HANDLE, std::less<>> properties;
    std::shared_ptr<Queue> queue;  ///< of the thread that owns the window
    bool dying = false;

  protected:
    /// Tells the parent with WM_COMMAND.
    void Tell(WORD code) const;
    /// Tells the parent with WM_NOTIFY; gives its answer.
    LRESULT Tell(NMHDR& header, UINT code) const;
    /// Tells the view, if there is one, that the window looks different now.
    void Changed() const;

    std::string text_;

  private:
    friend HWND Register(const std::shared_ptr<Window>& window);
    HWND self_ = nullptr;
};

/// The procedure of every window that nobody has put another one before.
LRESULT CALLBACK OwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The window of a handle; null, with the error 1400, if there is none.
std::shared_ptr<Window> Find(HWND window);

/// The same if the window is of the kind T.
template <typename T>
std::shared_ptr<T> FindAs(HWND window) {
    return std::dynamic_pointer_cast<T>(Find(window));
}

/// Gives the window a handle and its place in the family.
HWND Register(const std::shared_ptr<Window>& window);

/// Forgets a window; its handle is void afterwards.
void Unregister(HWND window);

/// Forgets, without a message, all windows of a thread that has ended.
void ForgetWindowsOf(const Queue* queue);

/// Makes a control of one of the known classes, without regard to case; null for another class.
HWND MakeControl(std::string_view className, const Birth& birth);

/// Copies a text as WM_GETTEXT does: cut to `size` with its terminator; gives its length.
LRESULT CopyText(std::string_view text, WPARAM size, LPARAM buffer);

/// The text behind an LPARAM; empty for null.
std::string_view TextAt(LPARAM text);

}  // namespace win32

#endif
