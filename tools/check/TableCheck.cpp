#include "tools/check/TableCheck.h"

#include <fmt/core.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <tuple>

#include "tools/Names.h"
#include "tools/Platform.h"
#include "tools/WholeFile.h"
#include "tools/check/FluidTableCheck.h"
#include "tools/check/PipeTableCheck.h"
#include "tools/check/ValveTableCheck.h"

namespace hydrofacts::command {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestName = 30;   // in lists
constexpr std::size_t kLongestPath = 259;  // for the library

struct Kind {
    TableFileKind kind;
    const char* extension;
    void (*check)(std::string_view, const LibraryPlace&, Findings&);
};

constexpr Kind kKinds[] = {
    {TableFileKind::Fluid, ".FTBL", CheckFluidTable},
    {TableFileKind::Pipe, ".PTBL", CheckPipeTable},
    {TableFileKind::Valve, ".VTBL", CheckValveTable},
};

// The file that the library opens is the one whose extension is in capitals, if there are two.
bool IsHidden(const fs::path& file, const Kind& kind) {
    fs::path preferred = file;
    preferred.replace_extension(kind.extension);
    std::error_code error;
    return preferred != file && fs::exists(preferred, error) &&
           !fs::equivalent(preferred, file, error);
}

LibraryPlace PlaceOf(const fs::path& file, const Kind& kind, Findings& findings) {
    if (IsHidden(file, kind)) {
        findings.Error(0, 0,
                       fmt::format("the library reads the file of the same name that ends in {}",
                                   kind.extension));
        return {};
    }
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    LibraryPlace place = {NarrowFromPath(folder), NarrowFromPath(file.stem())};
    if (place.directory.empty() || place.name.empty()) {
        findings.Warning(0, 0, "the library can't express the path, so that it wasn't asked");
        return {};
    }
    if (place.directory.size() + 1 + place.name.size() + 5 > kLongestPath) {
        findings.Warning(0, 0,
                         fmt::format("the path has more than {} characters: the library can't read "
                                     "the table there",
                                     kLongestPath));
        return {};
    }
    return place;
}

void CheckName(const fs::path& file, Findings& findings) {
    const std::string name = NarrowFromPath(file.stem());
    if (name.size() > kLongestName) {
        findings.Error(0, 0,
                       fmt::format("the name has {} characters: a table of more than {} is in no "
                                   "list",
                                   name.size(), kLongestName));
    }
}

}  // namespace

std::vector<Finding> Findings::Sorted() && {
    std::stable_sort(m_list.begin(), m_list.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.line, a.field) < std::tie(b.line, b.field);
    });
    return std::move(m_list);
}

std::optional<TableFileKind> KindOf(const fs::path& file) {
    const std::string extension = Utf8FromPath(file.extension());
    for (const Kind& kind : kKinds) {
        if (EqualIgnoringCase(extension, kind.extension)) return kind.kind;
    }
    return std::nullopt;
}

std::vector<Finding> CheckTableFile(const fs::path& file, TableFileKind kind) {
    const std::string text = ReadWholeFile(file);
    const Kind& entry = *std::find_if(std::begin(kKinds), std::end(kKinds),
                                      [kind](const Kind& row) { return row.kind == kind; });
    Findings findings;
    CheckName(file, findings);
    const LibraryPlace place = PlaceOf(file, entry, findings);
    entry.check(text, place, findings);
    return std::move(findings).Sorted();
}

}  // namespace hydrofacts::command
