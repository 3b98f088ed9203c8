#include "quillbase/TextFile.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "win32/Win32.h"

namespace {

// A file system with case may hold the table as "Water.ftbl": the search for a file by its full
// name passes over the case of the extension.
quillbase::FileText OpenAnyCaseOfExtension(const char* path) {
    quillbase::FileText text(path);
    const std::string_view wanted = path;
    if (text.Valid() || wanted.find_first_of("*?") != std::string_view::npos) return text;

    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path, &found);
    if (search == INVALID_HANDLE_VALUE) return text;
    FindClose(search);
    const std::size_t separator = wanted.find_last_of("/\\");
    const std::size_t folder = separator == std::string_view::npos ? 0 : separator + 1;
    return quillbase::FileText((std::string(wanted.substr(0, folder)) + found.cFileName).c_str());
}

}  // namespace

TextFile::TextFile(const char* path) : text_(OpenAnyCaseOfExtension(path)) {}

TextFile::~TextFile() = default;

void TextFile::ReadLine(char* buffer, unsigned size) {
    const std::string_view line = TakeLine();
    if (size == 0) return;

    const std::size_t length = std::min<std::size_t>(line.size(), size - 1);
    if (length > 0) std::memcpy(buffer, line.data(), length);
    buffer[length] = '\0';
}
