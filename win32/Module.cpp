#include "win32/Module.h"

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "win32/Error.h"

namespace {

const win32::Resource* ToResource(const void* handle) {
    return static_cast<const win32::Resource*>(handle);
}

bool IsNumber(LPCSTR name) {
    constexpr UINT_PTR kFirstAddress = 0x10000;
    return reinterpret_cast<UINT_PTR>(name) < kFirstAddress;
}

bool IsSameType(LPCSTR a, LPCSTR b) {
    return IsNumber(a) || IsNumber(b) ? a == b : std::strcmp(a, b) == 0;
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
    const auto* known = reinterpret_cast<const win32::Module*>(module);
    DWORD error = ERROR_RESOURCE_TYPE_NOT_FOUND;
    const auto resources = known == nullptr ? std::span<const win32::Resource>() : known->resources;
    for (const win32::Resource& resource : resources) {
        if (!IsSameType(type, resource.type)) continue;
        error = ERROR_RESOURCE_NAME_NOT_FOUND;
        if (reinterpret_cast<UINT_PTR>(name) == resource.id) {
            return reinterpret_cast<HRSRC>(const_cast<win32::Resource*>(&resource));
        }
    }
    SetLastError(error);
    return nullptr;
}

HGLOBAL LoadResource(HMODULE, HRSRC resource) { return resource; }

LPVOID LockResource(HGLOBAL loaded) { return const_cast<unsigned char*>(ToResource(loaded)->data); }

DWORD SizeofResource(HMODULE, HRSRC resource) {
    return static_cast<DWORD>(ToResource(resource)->size);
}
