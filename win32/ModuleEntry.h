#ifndef WIN32_MODULEENTRY_H
#define WIN32_MODULEENTRY_H

/// @file
/// What a module does when a process loads it and lets it go.
///
/// WIN32_MODULE_ENTRY(attach, detach, resources) stands once in a module, as the last object of the
/// file that holds the module's objects: so it calls `attach` after they are built, with the
/// module's handle, and `detach` before they go. `resources` is a span of win32::Resource; on
/// Windows the resources are in the file itself and the argument is not used.

#ifdef _WIN32

namespace win32 {

/// Calls the two functions at the module's start and end.
class ModuleEntry {
  public:
    using AttachFunction = void (*)(HINSTANCE);  ///< gets the module's handle
    using DetachFunction = void (*)();           ///< what is to be ended before the objects go

    /// Calls `attach`; `address` is that of anything in the module.
    ModuleEntry(AttachFunction attach, DetachFunction detach, const char* address)
        : detach_(detach) {
        HINSTANCE module = nullptr;
        GetModuleHandleExA(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            address, &module);
        attach(module);
    }
    ~ModuleEntry() { detach_(); }
    ModuleEntry(const ModuleEntry&) = delete;
    ModuleEntry& operator=(const ModuleEntry&) = delete;

  private:
    DetachFunction detach_;
};

}  // namespace win32

#define WIN32_MODULE_ENTRY(attach, detach, resources) \
    static const char win32_module_anchor = 0;        \
    static const win32::ModuleEntry win32_module_entry((attach), (detach), &win32_module_anchor)

#else

#include "win32/Module.h"

namespace win32 {

/// Calls the two functions at the module's start and end.
class ModuleEntry {
  public:
    using AttachFunction = void (*)(HINSTANCE);  ///< gets the module's handle
    using DetachFunction = void (*)();           ///< what is to be ended before the objects go

    /// Calls `attach`; `address` is that of anything in the module.
    ModuleEntry(AttachFunction attach, DetachFunction detach, std::span<const Resource> resources,
                const char* address)
        : detach_(detach), module_{PathOfModuleAt(address), resources} {
        attach(ToHandle(&module_));
    }
    ~ModuleEntry() { detach_(); }
    ModuleEntry(const ModuleEntry&) = delete;
    ModuleEntry& operator=(const ModuleEntry&) = delete;

  private:
    DetachFunction detach_;
    Module module_;
};

}  // namespace win32

/// Stands once in a module, as the last object of the file that holds the module's objects.
#define WIN32_MODULE_ENTRY(attach, detach, resources)                             \
    static const char win32_module_anchor = 0;                                    \
    static win32::ModuleEntry win32_module_entry((attach), (detach), (resources), \
                                                 &win32_module_anchor)

#endif
#endif
