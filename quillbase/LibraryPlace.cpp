#include "quillbase/LibraryPlace.h"

#include <cstddef>

namespace quillbase {
namespace {

HINSTANCE libraryModule = nullptr;

}  // namespace

void SetLibraryModule(HINSTANCE module) { libraryModule = module; }

std::string LibraryFolder() {
    constexpr std::size_t kLongestPath = 4096;
    if (libraryModule == nullptr) return {};
    std::string path(kLongestPath, '\0');
    const DWORD length =
        GetModuleFileNameA(libraryModule, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0 || length >= path.size()) return {};
    path.resize(length);
    const std::size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? std::string() : path.substr(0, separator);
}

}  // namespace quillbase
