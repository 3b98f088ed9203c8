#ifndef TOOLS_PLATFORM_H
#define TOOLS_PLATFORM_H

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace hydrofacts::command {

// Inside the program texts are UTF-8. The library takes paths and table names in the form of the
// platform's narrow functions: bytes as they are on Linux, the ANSI code page on Windows.

/// The arguments of the program, in UTF-8, without its name.
std::vector<std::string> Utf8Arguments(int argc, const char* const* argv);

/// A path or name for the library; empty if the platform can't express it.
std::string NarrowFromUtf8(std::string_view text);

/// A path or name from the library.
std::string Utf8FromNarrow(std::string_view text);

/// A path for the standard library.
std::filesystem::path PathFromUtf8(std::string_view text);

/// A path or name from the standard library, for the library; empty if the platform can't express
/// it.
std::string NarrowFromPath(const std::filesystem::path& path);

/// A path or name from the standard library.
std::string Utf8FromPath(const std::filesystem::path& path);

}  // namespace hydrofacts::command

#endif
