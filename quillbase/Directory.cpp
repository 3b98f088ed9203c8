#include "quillbase/Directory.h"

#include <array>
#include <mutex>
#include <string>
#include <string_view>

#include "quillbase/LibraryPlace.h"
#include "quillbase/Text.h"
#include "win32/Win32.h"

namespace {

// The folder of the installed tables as seen from the library is known when the build is
// configured.
constexpr std::array<std::string_view, 3> kTableFolders = {
    HYDROFACTS_TABLES_FROM_LIBRARY,
    "../tables",
    "tables",
};

struct TableDirectory {
    std::mutex mutex;
    std::string setByHost;
    std::string found;
};

TableDirectory& Tables() {
    static TableDirectory directory;
    return directory;
}

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// "a/b" and "../../c" make "c": the result is shown to users and has to fit 260 bytes.
std::string Join(std::string folder, std::string_view relative) {
    while (relative.starts_with("../")) {
        const std::size_t separator = folder.find_last_of("/\\");
        folder.erase(separator == std::string::npos ? 0 : separator);
        relative.remove_prefix(3);
    }
    folder += win32::kPathSeparator;
    for (const char c : relative) folder += c == '/' ? win32::kPathSeparator : c;
    return folder;
}

std::string FindTables() {
    const std::string place = quillbase::LibraryFolder();
    if (place.empty()) return {};
    for (const std::string_view folder : kTableFolders) {
        std::string candidate = Join(place, folder);
        if (IsFolder(candidate)) return candidate;
    }
    return {};
}

std::string WithoutTrailingSeparator(std::string path) {
    while (path.size() > 1 && (path.back() == '/' || path.back() == win32::kPathSeparator)) {
        path.pop_back();
    }
    return path;
}

}  // namespace

void GetDirectory(DirTypes type, char* const buffer, int) {
    buffer[0] = '\0';
    if (type != DIR_TABLES) return;
    TableDirectory& tables = Tables();
    const std::lock_guard lock(tables.mutex);
    if (tables.setByHost.empty() && tables.found.empty()) tables.found = FindTables();
    const std::string& path = tables.setByHost.empty() ? tables.found : tables.setByHost;
    if (path.size() < MAX_PATH) rstrncpy(buffer, path.c_str(), MAX_PATH);
}

void SetDirectory(DirTypes type, const char* path) {
    if (type != DIR_TABLES) return;
    std::string given = WithoutTrailingSeparator(path == nullptr ? "" : path);
    if (given.size() >= MAX_PATH) return;
    TableDirectory& tables = Tables();
    const std::lock_guard lock(tables.mutex);
    tables.setByHost.swap(given);
}
