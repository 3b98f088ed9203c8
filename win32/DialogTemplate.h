#ifndef WIN32_DIALOGTEMPLATE_H
#define WIN32_DIALOGTEMPLATE_H

// Reads the extended dialog template.

#include <optional>
#include <string>
#include <vector>

#include "win32/Dialog.h"

namespace win32 {

/// A dialog or a control as its template describes it: texts in Windows-1252, the place in dialog
/// units.
struct TemplateItem {
    std::string className;
    std::string text;
    DWORD style = 0;
    DWORD exStyle = 0;
    LONG_PTR id = 0;
    RECT place{};
};

struct DialogDescription {
    TemplateItem dialog;
    std::vector<TemplateItem> controls;
};

/// Nothing if it isn't an extended template of version 1. A template says nowhere how long it is,
/// so it is trusted to be whole; those from resources are checked against `size` bytes.
std::optional<DialogDescription> ReadTemplate(const void* data, std::size_t size);

}  // namespace win32

#endif
