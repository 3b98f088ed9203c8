#ifndef HYDROFACTS_TESTS_SUPPORT_TEMPFOLDER_H
#define HYDROFACTS_TESTS_SUPPORT_TEMPFOLDER_H

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// A folder of a test's or a benchmark's own, also where they run twice at once: empty at first and
/// gone at its end.
class TempFolder {
  public:
    TempFolder() {
        static int count = 0;
        const std::string name =
            "hydrofacts-" + std::to_string(::getpid()) + '-' + std::to_string(++count);
        path_ = std::filesystem::temp_directory_path() / name;
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string Path() const { return path_.string(); }
    std::string Path(std::string_view name) const { return (path_ / name).string(); }

    /// Writes a file byte for byte and gives its path.
    std::string Write(std::string_view name, std::string_view content) const {
        std::ofstream(path_ / name, std::ios::binary) << content;
        return Path(name);
    }

    std::string Read(std::string_view name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path path_;
};

#endif
