#ifndef WIN32_CONTROLS_H
#define WIN32_CONTROLS_H

// One function a class of controls; each stands in the file of its control.

#include <memory>

#include "win32/Model.h"

namespace win32 {

std::shared_ptr<Window> NewButton(const Birth& birth);
std::shared_ptr<Window> NewComboBox(const Birth& birth);
std::shared_ptr<Window> NewEdit(const Birth& birth);
std::shared_ptr<Window> NewListBox(const Birth& birth);
std::shared_ptr<Window> NewStatic(const Birth& birth);
std::shared_ptr<Window> NewTreeView(const Birth& birth);

/// The list that drops down from a combo box: a list box that never has the focus.
inline constexpr const char* kComboListClass = "ComboLBox";

}  // namespace win32

#endif
