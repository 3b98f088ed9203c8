#ifndef HYDROFACTS_FUZZ_SCRATCHFOLDER_H
#define HYDROFACTS_FUZZ_SCRATCHFOLDER_H

#include <filesystem>
#include <string>
#include <string_view>

#include "fuzz/Input.h"

namespace hydrofacts::fuzz {

/// The folder that this process writes inputs to, for readers that open files by path. It lies
/// where TMPDIR says, which is best a folder in memory, and goes with the process.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& Path() const { return path_; }

    /// Puts a file there, in the place of one that has the name already. Gives its path.
    std::string Write(const char* name, std::string_view content) const;
    std::string Read(const char* name) const;

  private:
    std::string path_;
};

ScratchFolder& Scratch();

}  // namespace hydrofacts::fuzz

#endif
