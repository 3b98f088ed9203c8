#include "quillbase/FileText.h"

#include <algorithm>
#include <limits>

#include "quillbase/OpenFile.h"

namespace quillbase {
namespace {

// What was read; less than `size` if the file has shrunk meanwhile or the disk fails.
std::size_t ReadUpTo(HANDLE file, char* buffer, std::size_t size) {
    std::size_t total = 0;
    while (total < size) {
        const std::size_t most = std::numeric_limits<int>::max();
        DWORD done = 0;
        const auto wanted = static_cast<DWORD>(std::min(size - total, most));
        if (ReadFile(file, buffer + total, wanted, &done, nullptr) == FALSE || done == 0) break;
        total += done;
    }
    return total;
}

}  // namespace

FileText::FileText(const char* path) {
    const OpenFile file(path);
    LARGE_INTEGER size{};
    if (!file.IsOpen() || GetFileSizeEx(file.get(), &size) == FALSE) return;
    const auto length = static_cast<std::size_t>(size.QuadPart);
    if (length > kLongest) return;
    text_ = std::make_unique_for_overwrite<char[]>(length);
    size_ = ReadUpTo(file.get(), text_.get(), length);
    valid_ = true;
}

}  // namespace quillbase
