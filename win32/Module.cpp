#include "win32/Module.h"

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

const win32::Resource* ToResource(const void* handle) {
    return static_cast<const win32::Resource*>(handle);
}

std::string ProgramPath() {
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

}  // namespace

namespace win32 {

// The loader reports a library that was opened by a relative path by that path, so it is made whole
// here, before the process can change its working directory.
std::string PathOfModuleAt(const void* address) {
    Dl_info info{};
    if (::dladdr(address, &info) == 0 || info.dli_fname == nullptr) return {};
    const std::unique_ptr<char, decltype(&std::free)> whole(::realpath(info.dli_fname, nullptr),
                                                            &std::free);
    return whole ? std::string(whole.get()) : ProgramPath();
}

}  // namespace win32

DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size) {
    const std::string program = module == nullptr ? ProgramPath() : std::string();
    const std::string& path =
        module == nullptr ? program : reinterpret_cast<const win32::Module*>(module)->path;
    if (size == 0 || path.empty()) return 0;
    const bool fits = path.size() < size;
    const std::size_t length = fits ? path.size() : size - 1;
    std::memcpy(buffer, path.data(), length);
    buffer[length] = '\0';
    return fits ? static_cast<DWORD>(length) : size;
}

HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type) {
    if (module == nullptr) return nullptr;
    for (const win32::Resource& resource : reinterpret_cast<win32::Module*>(module)->resources) {
        if (reinterpret_cast<UINT_PTR>(name) == resource.id &&
            std::strcmp(type, resource.type) == 0) {
            return reinterpret_cast<HRSRC>(const_cast<win32::Resource*>(&resource));
        }
    }
    return nullptr;
}

HGLOBAL LoadResource(HMODULE, HRSRC resource) { return resource; }

LPVOID LockResource(HGLOBAL loaded) { return const_cast<unsigned char*>(ToResource(loaded)->data); }

DWORD SizeofResource(HMODULE, HRSRC resource) {
    return static_cast<DWORD>(ToResource(resource)->size);
}
