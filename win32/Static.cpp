#include "win32/Static.h"

#include "win32/Controls.h"
#include "win32/Dialog.h"

namespace {

class Static : public win32::Window {
  public:
    explicit Static(const win32::Birth& birth) : Window("Static", birth) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETDLGCODE) return DLGC_STATIC;
        return Window::Handle(message, wParam, lParam);
    }
};

}  // namespace

namespace win32 {

std::shared_ptr<Window> NewStatic(const Birth& birth) { return std::make_shared<Static>(birth); }

}  // namespace win32
