#ifndef HYDROFACTS_BENCH_FOLDER_H
#define HYDROFACTS_BENCH_FOLDER_H

#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace bench {

/// An empty folder of this process's own, gone at its end with all that is in it.
class Folder {
  public:
    explicit Folder(std::string_view name)
        : path_(std::filesystem::temp_directory_path() /
                ("hydrofacts-bench-" + std::to_string(::getpid()) + "-" + std::string(name))) {
        std::filesystem::create_directories(path_);
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace bench

#endif
