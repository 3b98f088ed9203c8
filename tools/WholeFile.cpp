#include "tools/WholeFile.h"

#include <fstream>
#include <iterator>

#include "tools/Failure.h"
#include "tools/Platform.h"

namespace hydrofacts::command {

std::string ReadWholeFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::error_code error;
    if (!stream || !std::filesystem::is_regular_file(file, error)) {
        throw Failure(Utf8FromPath(file) + ": the file can't be read");
    }
    std::string text(std::istreambuf_iterator<char>(stream), {});
    if (stream.bad()) throw Failure(Utf8FromPath(file) + ": the file can't be read");
    return text;
}

}  // namespace hydrofacts::command
