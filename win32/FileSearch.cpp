#include "win32/FileSearch.h"

#include <dirent.h>
#include <strings.h>
#include <sys/stat.h>

#include <cctype>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace {

using Equal = bool (*)(char, char);

bool SameCharacter(char a, char b) { return a == b; }

bool SameLetter(char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
}

// Steps back to the last star at a mismatch, so the cost is bounded by the product of the lengths.
bool Matches(std::string_view pattern, std::string_view text, Equal equal) {
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = t;
        } else if (p < pattern.size() && (pattern[p] == '?' || equal(pattern[p], text[t]))) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

struct NameParts {
    std::string_view base;
    std::string_view extension;  // with its point, empty without one
};

NameParts Split(std::string_view name) {
    const std::size_t point = name.rfind('.');
    if (point == std::string_view::npos) return {name, {}};
    return {name.substr(0, point), name.substr(point)};
}

struct CloseDirectory {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

struct Search {
    std::unique_ptr<DIR, CloseDirectory> directory;  // null: there is nothing more to find
    std::string pattern;
};

bool NameMatches(std::string_view pattern, std::string_view name) {
    const NameParts wanted = Split(pattern == "*.*" ? "*" : pattern);
    if (wanted.extension.empty()) return Matches(wanted.base, name, SameCharacter);
    const NameParts have = Split(name);
    return Matches(wanted.base, have.base, SameCharacter) &&
           Matches(wanted.extension, have.extension, SameLetter);
}

bool Next(Search& search, WIN32_FIND_DATAA* found) {
    if (!search.directory) return false;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): each search has a stream of its own
    while (const dirent* entry = ::readdir(search.directory.get())) {
        const std::size_t length = std::strlen(entry->d_name);
        if (length >= sizeof found->cFileName) continue;
        if (!NameMatches(search.pattern, {entry->d_name, length})) continue;
        found->dwFileAttributes = entry->d_type == DT_DIR ? 0x10U : 0x80U;
        std::memcpy(found->cFileName, entry->d_name, length + 1);
        return true;
    }
    return false;
}

// A name without wildcards that is there, be it a link that leads nowhere, need not be searched for
// among thousands of others.
bool IsThere(const std::string& path, std::string_view name, WIN32_FIND_DATAA* found) {
    struct stat status {};
    if (name.empty() || name.size() >= sizeof found->cFileName ||
        name.find_first_of("*?") != std::string_view::npos || ::lstat(path.c_str(), &status) != 0) {
        return false;
    }
    found->dwFileAttributes = S_ISDIR(status.st_mode) ? 0x10U : 0x80U;
    found->cFileName[name.copy(found->cFileName, name.size())] = '\0';
    return true;
}

}  // namespace

HANDLE FindFirstFileA(LPCSTR pattern, WIN32_FIND_DATAA* found) {
    const std::string_view whole = pattern;
    const std::size_t slash = whole.rfind('/');
    const bool hasFolder = slash != std::string_view::npos;
    const std::string folder = hasFolder ? std::string(whole.substr(0, slash + 1)) : "./";

    const std::string_view name = hasFolder ? whole.substr(slash + 1) : whole;

    auto search = std::make_unique<Search>();
    if (IsThere(pattern, name, found)) return search.release();
    search->directory.reset(::opendir(folder.c_str()));
    if (!search->directory) return INVALID_HANDLE_VALUE;
    search->pattern = name;
    if (!Next(*search, found)) return INVALID_HANDLE_VALUE;
    return search.release();
}

BOOL FindNextFileA(HANDLE search, WIN32_FIND_DATAA* found) {
    return Next(*static_cast<Search*>(search), found) ? TRUE : FALSE;
}

BOOL FindClose(HANDLE search) {
    const std::unique_ptr<Search> ended(static_cast<Search*>(search));
    return TRUE;
}
