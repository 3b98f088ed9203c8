#include "win32/Window.h"

#include <algorithm>
#include <limits>

#include "win32/Error.h"
#include "win32/Focus.h"
#include "win32/Model.h"
#include "win32/Queue.h"
#include "win32/View.h"

namespace {

using win32::Find;
using win32::ThisThread;
using win32::Window;

thread_local DWORD lastError = ERROR_SUCCESS;

void ToView(HWND window) {
    if (win32::View* view = ThisThread().view) view->Changed(window);
}

// The window first, then what stands in it: so a dialog hears of its end while its controls exist.
void TellOfEnd(HWND window) {
    const auto found = Find(window);
    if (!found) return;
    SendMessageA(window, WM_DESTROY, 0, 0);
    const std::vector<HWND> children = found->children;
    for (const HWND child : children) TellOfEnd(child);
}

void Release(HWND window) {
    const auto found = Find(window);
    if (!found) return;
    const std::vector<HWND> children = found->children;
    for (const HWND child : children) Release(child);
    SendMessageA(window, WM_NCDESTROY, 0, 0);
    win32::Unregister(window);
}

HWND Neighbour(const Window& window, bool next) {
    const auto parent = Find(window.parent);
    if (!parent || window.IsTopLevel()) return nullptr;
    const auto& all = parent->children;
    const auto self = std::find(all.begin(), all.end(), window.Self());
    if (next) return self + 1 == all.end() ? nullptr : *(self + 1);
    return self == all.begin() ? nullptr : *(self - 1);
}

// The places of parents add up; that of a top-level window is on the screen.
POINT Origin(const Window& window) {
    POINT origin{window.place.left, window.place.top};
    if (window.IsTopLevel()) return origin;
    if (const auto parent = Find(window.parent)) {
        const POINT before = Origin(*parent);
        origin.x += before.x;
        origin.y += before.y;
    }
    return origin;
}

// The size that a window takes when it is asked to take `wanted`.
POINT AllowedSize(const Window& window, POINT wanted) {
    if (!window.IsTopLevel() || !window.Has(WS_THICKFRAME)) return wanted;
    constexpr LONG kLargest = std::numeric_limits<SHORT>::max();
    MINMAXINFO sizes{};
    sizes.ptMaxTrackSize = {kLargest, kLargest};
    SendMessageA(window.Self(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&sizes));
    const POINT& least = sizes.ptMinTrackSize;
    const POINT& most = sizes.ptMaxTrackSize;
    return {std::max(std::min(wanted.x, most.x), least.x),
            std::max(std::min(wanted.y, most.y), least.y)};
}

LONG_PTR* Value(Window& window, int index) {
    switch (index) {
        case GWLP_ID:
            return &window.id;
        case GWLP_USERDATA:
            return &window.userData;
        default:
            return window.Extra(index);
    }
}

}  // namespace

DWORD GetLastError() { return lastError; }

void SetLastError(DWORD error) { lastError = error; }

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = Find(window);
    if (!found) return 0;
    if (found->queue != ThisThread().queue) {
        return found->queue->Send(window, message, wParam, lParam);
    }
    return found->procedure(window, message, wParam, lParam);
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = Find(window);
    return found ? found->Window::Handle(message, wParam, lParam) : 0;
}

LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam,
                        LPARAM lParam) {
    return procedure == nullptr ? 0 : procedure(window, message, wParam, lParam);
}

BOOL IsWindow(HWND window) { return Find(window) ? TRUE : FALSE; }

BOOL DestroyWindow(HWND window) {
    const auto found = Find(window);
    if (!found || found->queue != ThisThread().queue || found->dying) return FALSE;
    found->dying = true;
    const std::vector<HWND> owned = found->owned;
    for (const HWND dialog : owned) DestroyWindow(dialog);
    win32::LeaveWindow(*found);
    found->style &= ~WS_VISIBLE;
    TellOfEnd(window);
    Release(window);
    return TRUE;
}

BOOL SetWindowTextA(HWND window, LPCSTR text) {
    return SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) > 0 ? TRUE : FALSE;
}

int GetWindowTextA(HWND window, LPSTR text, int size) {
    if (size <= 0) return 0;
    text[0] = '\0';
    return static_cast<int>(SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(size),
                                         reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextLengthA(HWND window) {
    return static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
}

int GetClassNameA(HWND window, LPSTR name, int size) {
    const auto found = Find(window);
    if (!found || size <= 0) return 0;
    return static_cast<int>(win32::CopyText(found->className, static_cast<WPARAM>(size),
                                            reinterpret_cast<LPARAM>(name)));
}

BOOL EnableWindow(HWND window, BOOL enable) {
    const auto found = Find(window);
    if (!found) return FALSE;
    const bool was = !found->Has(WS_DISABLED);
    if (was == (enable != FALSE)) return was ? FALSE : TRUE;
    found->style ^= WS_DISABLED;
    if (was && (GetFocus() == window || IsChild(window, GetFocus()) != FALSE)) SetFocus(nullptr);
    SendMessageA(window, WM_ENABLE, enable != FALSE ? TRUE : FALSE, 0);
    ToView(window);
    return was ? FALSE : TRUE;
}

BOOL IsWindowEnabled(HWND window) {
    const auto found = Find(window);
    return found && !found->Has(WS_DISABLED) ? TRUE : FALSE;
}

BOOL ShowWindow(HWND window, int how) {
    const auto found = Find(window);
    if (!found) return FALSE;
    const bool was = found->Has(WS_VISIBLE);
    const bool show = how != SW_HIDE;
    if (was == show) return was ? TRUE : FALSE;
    SendMessageA(window, WM_SHOWWINDOW, show ? TRUE : FALSE, 0);
    found->style ^= WS_VISIBLE;
    if (show && found->IsTopLevel()) {
        SetActiveWindow(window);
    } else if (!show) {
        win32::LeaveWindow(*found);
    }
    ToView(window);
    return was ? TRUE : FALSE;
}

BOOL IsWindowVisible(HWND window) {
    const auto found = Find(window);
    if (!found || !found->Has(WS_VISIBLE)) return FALSE;
    return found->IsTopLevel() ? TRUE : IsWindowVisible(found->parent);
}

BOOL GetWindowRect(HWND window, LPRECT place) {
    const auto found = Find(window);
    if (!found) return FALSE;
    const POINT origin = Origin(*found);
    const RECT size = found->ClientRect();
    *place = {origin.x, origin.y, origin.x + size.right, origin.y + size.bottom};
    return TRUE;
}

BOOL GetClientRect(HWND window, LPRECT place) {
    const auto found = Find(window);
    if (!found) return FALSE;
    *place = found->ClientRect();
    return TRUE;
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL) {
    const auto found = Find(window);
    if (!found) return FALSE;
    const POINT size = AllowedSize(*found, {std::max(width, 0), std::max(height, 0)});
    found->place = {x, y, x + size.x, y + size.y};
    SendMessageA(window, WM_MOVE, 0, MAKELPARAM(x, y));
    SendMessageA(window, WM_SIZE, 0, MAKELPARAM(size.x, size.y));
    ToView(window);
    return TRUE;
}

BOOL ScreenToClient(HWND window, POINT* place) {
    const auto found = Find(window);
    if (!found) return FALSE;
    const POINT origin = Origin(*found);
    *place = {place->x - origin.x, place->y - origin.y};
    return TRUE;
}

BOOL ClientToScreen(HWND window, POINT* place) {
    const auto found = Find(window);
    if (!found) return FALSE;
    const POINT origin = Origin(*found);
    *place = {place->x + origin.x, place->y + origin.y};
    return TRUE;
}

BOOL InvalidateRect(HWND window, const RECT*, BOOL) {
    if (!Find(window)) return FALSE;
    ToView(window);
    return TRUE;
}

HWND GetParent(HWND window) {
    const auto found = Find(window);
    return found ? found->parent : nullptr;
}

HWND GetAncestor(HWND window, UINT which) {
    auto found = Find(window);
    if (!found) return nullptr;
    if (which == GA_PARENT) return found->IsTopLevel() ? nullptr : found->parent;
    while (found && !found->IsTopLevel()) found = Find(found->parent);
    return found ? found->Self() : nullptr;
}

HWND GetWindow(HWND window, UINT which) {
    const auto found = Find(window);
    if (!found) return nullptr;
    switch (which) {
        case GW_CHILD:
            return found->children.empty() ? nullptr : found->children.front();
        case GW_OWNER:
            return found->IsTopLevel() ? found->parent : nullptr;
        case GW_HWNDNEXT:
        case GW_HWNDPREV:
            return Neighbour(*found, which == GW_HWNDNEXT);
        default:
            return nullptr;
    }
}

BOOL IsChild(HWND parent, HWND window) {
    if (parent == nullptr) return FALSE;
    auto found = window == nullptr ? nullptr : Find(window);
    while (found && !found->IsTopLevel()) {
        if (found->parent == parent) return TRUE;
        found = Find(found->parent);
    }
    return FALSE;
}

HWND GetDesktopWindow() { return nullptr; }

LONG_PTR GetWindowLongPtrA(HWND window, int index) {
    const auto found = Find(window);
    if (!found) return 0;
    switch (index) {
        case GWL_STYLE:
            return static_cast<LONG_PTR>(found->style);
        case GWL_EXSTYLE:
            return static_cast<LONG_PTR>(found->exStyle);
        case GWLP_HINSTANCE:
            return reinterpret_cast<LONG_PTR>(found->module);
        case GWLP_WNDPROC:
            return reinterpret_cast<LONG_PTR>(found->procedure);
        default: {
            const LONG_PTR* value = Value(*found, index);
            return value == nullptr ? 0 : *value;
        }
    }
}

LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value) {
    const auto found = Find(window);
    if (!found) return 0;
    const LONG_PTR before = GetWindowLongPtrA(window, index);
    switch (index) {
        case GWL_STYLE:
            found->style = static_cast<DWORD>(value);
            break;
        case GWL_EXSTYLE:
            found->exStyle = static_cast<DWORD>(value);
            break;
        case GWLP_WNDPROC:
            // NOLINTNEXTLINE(performance-no-int-to-ptr): the value is the procedure's address
            found->procedure = reinterpret_cast<WNDPROC>(value);
            break;
        default:
            if (LONG_PTR* to = Value(*found, index)) *to = value;
    }
    return before;
}

BOOL SetPropA(HWND window, LPCSTR name, HANDLE value) {
    const auto found = Find(window);
    if (!found) return FALSE;
    found->properties[name] = value;
    return TRUE;
}

HANDLE GetPropA(HWND window, LPCSTR name) {
    const auto found = Find(window);
    if (!found) return nullptr;
    const auto property = found->properties.find(name);
    return property == found->properties.end() ? nullptr : property->second;
}

HANDLE RemovePropA(HWND window, LPCSTR name) {
    HANDLE before = GetPropA(window, name);
    if (const auto found = Find(window)) found->properties.erase(name);
    return before;
}
