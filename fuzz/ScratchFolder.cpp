#include "fuzz/ScratchFolder.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace hydrofacts::fuzz {

ScratchFolder::ScratchFolder()
    : path_((std::filesystem::temp_directory_path() / "hydrofacts-fuzz-XXXXXX").string()) {
    Require(::mkdtemp(path_.data()) != nullptr, "a folder for inputs can be made");
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

// Without a stream and its buffer, since each run writes a file.
std::string ScratchFolder::Write(const char* name, std::string_view content) const {
    std::string path = path_ + "/" + name;
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    Require(file >= 0, "an input file can be made");
    const auto written = ::write(file, content.data(), content.size());
    ::close(file);
    Require(written == static_cast<ssize_t>(content.size()), "an input file can be written");
    return path;
}

std::string ScratchFolder::Read(const char* name) const {
    std::ifstream file(path_ + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

ScratchFolder& Scratch() {
    static ScratchFolder folder;
    return folder;
}

}  // namespace hydrofacts::fuzz
