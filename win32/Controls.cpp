#include "win32/Controls.h"

#include "win32/Text.h"
#include "win32/TreeView.h"

namespace {

using win32::Birth;

struct ControlClass {
    const char* name;
    std::shared_ptr<win32::Window> (*make)(const Birth&);
};

constexpr ControlClass kClasses[] = {
    {"Button", &win32::NewButton},
    {"ComboBox", &win32::NewComboBox},
    {"Edit", &win32::NewEdit},
    {"ListBox", &win32::NewListBox},
    {win32::kComboListClass, &win32::NewListBox},
    {"Static", &win32::NewStatic},
    {WC_TREEVIEWA, &win32::NewTreeView},
};

}  // namespace

namespace win32 {

HWND MakeControl(std::string_view className, const Birth& birth) {
    for (const ControlClass& known : kClasses) {
        if (!EqualWithoutCase(known.name, className)) continue;
        const auto window = known.make(birth);
        window->className = known.name;
        return Register(window);
    }
    return nullptr;
}

}  // namespace win32
