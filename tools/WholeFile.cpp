#include "tools/WholeFile.h"

#include <fstream>
#include <iterator>

#include "quillbase/FileText.h"
#include "tools/Failure.h"
#include "tools/Platform.h"

namespace hydrofacts::command {

std::string ReadWholeFile(const std::filesystem::path& file) {
    // Asked first, since opening a pipe would wait for its other end.
    std::error_code error;
    const bool readable = std::filesystem::is_regular_file(file, error) &&
                          std::filesystem::file_size(file, error) <= quillbase::FileText::kLongest;
    std::ifstream stream;
    if (readable) stream.open(file, std::ios::binary);
    if (!readable || !stream) throw Failure(Utf8FromPath(file) + ": the file can't be read");
    std::string text(std::istreambuf_iterator<char>(stream), {});
    if (stream.bad()) throw Failure(Utf8FromPath(file) + ": the file can't be read");
    return text;
}

}  // namespace hydrofacts::command
