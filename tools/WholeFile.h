#ifndef TOOLS_WHOLEFILE_H
#define TOOLS_WHOLEFILE_H

#include <filesystem>
#include <string>

namespace hydrofacts::command {

/// The bytes of a file; a Failure that names it if it can't be read or is no plain file.
std::string ReadWholeFile(const std::filesystem::path& file);

}  // namespace hydrofacts::command

#endif
