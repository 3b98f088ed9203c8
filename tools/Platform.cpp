#include "tools/Platform.h"

#include "tools/Encoding.h"

// The two systems encode arguments and file names differently, and no layer below tells them apart.
#ifdef _WIN32
#include "win32/Win32.h"
// After windows.h, on which it depends.
#include <shellapi.h>
#endif

namespace hydrofacts::command {

#ifdef _WIN32

namespace {

std::wstring Wide(std::string_view text, unsigned codePage) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int used = MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), length);
    wide.resize(static_cast<std::size_t>(used));
    return wide;
}

std::string Narrow(std::wstring_view wide, unsigned codePage) {
    std::string text(4 * wide.size(), '\0');
    BOOL replaced = FALSE;
    const int used = WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()),
                                         text.data(), static_cast<int>(text.size()), nullptr,
                                         codePage == CP_UTF8 ? nullptr : &replaced);
    text.resize(replaced != FALSE ? 0 : static_cast<std::size_t>(used));
    return text;
}

}  // namespace

std::vector<std::string> Utf8Arguments(int, const char* const*) {
    int count = 0;
    LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> result;
    for (int i = 1; i < count; ++i) result.push_back(Narrow(arguments[i], CP_UTF8));
    LocalFree(arguments);
    return result;
}

std::string NarrowFromUtf8(std::string_view text) { return Narrow(Wide(text, CP_UTF8), CP_ACP); }

std::string Utf8FromNarrow(std::string_view text) { return Narrow(Wide(text, CP_ACP), CP_UTF8); }

std::filesystem::path PathFromUtf8(std::string_view text) { return Wide(text, CP_UTF8); }

std::string NarrowFromPath(const std::filesystem::path& path) {
    return Narrow(path.native(), CP_ACP);
}

std::string Utf8FromPath(const std::filesystem::path& path) {
    return Narrow(path.native(), CP_UTF8);
}

#else

std::vector<std::string> Utf8Arguments(int argc, const char* const* argv) {
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

std::string NarrowFromUtf8(std::string_view text) { return std::string(text); }

// A name that is no UTF-8 comes from an old file system or a foreign archive: most likely it is in
// the encoding of the tables themselves.
std::string Utf8FromNarrow(std::string_view text) {
    return IsUtf8(text) ? std::string(text) : Utf8FromWindows1252(text);
}

std::filesystem::path PathFromUtf8(std::string_view text) { return text; }

std::string NarrowFromPath(const std::filesystem::path& path) { return path.native(); }

std::string Utf8FromPath(const std::filesystem::path& path) {
    return Utf8FromNarrow(path.native());
}

#endif

}  // namespace hydrofacts::command
