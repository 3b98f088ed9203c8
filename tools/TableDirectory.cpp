#include "tools/TableDirectory.h"

#include <fmt/core.h>

#include <algorithm>
#include <fstream>

#include "hydrofacts/hydrofacts.h"
#include "tools/Encoding.h"
#include "tools/Names.h"
#include "tools/Numbers.h"
#include "tools/Platform.h"

namespace hydrofacts::command {
namespace {

constexpr std::size_t kPathBuffer = 260;        // of the library, with the terminator
constexpr std::size_t kLongestListedName = 30;  // the library's rule for lists

std::string DirectoryOfLibrary() {
    char buffer[kPathBuffer] = "";
    GetDirectory(DIR_TABLES, buffer, 0);
    return buffer;
}

void SetDirectoryOfLibrary(const std::string& given) {
    const std::string narrow = NarrowFromUtf8(given);
    if (narrow.empty()) throw Failure("--tables: a directory is missing");
    if (narrow.size() >= kPathBuffer) {
        throw Failure(fmt::format("--tables: the path is too long, {} characters at most: {}",
                                  kPathBuffer - 1, given));
    }
    SetDirectory(DIR_TABLES, narrow.c_str());
}

// The fields of a line, cut at runs of tabs and carriage returns as the library cuts them.
std::vector<std::string_view> Fields(std::string_view line) {
    std::vector<std::string_view> fields;
    while (true) {
        const auto start = line.find_first_not_of("\t\r");
        if (start == std::string_view::npos) return fields;
        line.remove_prefix(start);
        const auto end = std::min(line.find_first_of("\t\r"), line.size());
        fields.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

std::string Unquoted(std::string_view text) {
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
        text = text.substr(1, text.size() - 2);
    }
    return Utf8FromWindows1252(text);
}

}  // namespace

TableDirectory::TableDirectory(const std::optional<std::string>& given, const TableKind& kind)
    : m_kind(kind) {
    if (given) SetDirectoryOfLibrary(*given);
    m_narrow = DirectoryOfLibrary();
    m_path = Utf8FromNarrow(m_narrow);
    ReadNames();
}

void TableDirectory::ReadNames() {
    namespace fs = std::filesystem;
    std::error_code error;
    fs::directory_iterator entries(PathFromUtf8(m_path), error);
    if (error) {
        throw Failure(
            fmt::format("{}: the table directory can't be read ({}); --tables DIR names "
                        "another",
                        m_path, Utf8FromNarrow(error.message())));
    }
    for (; entries != fs::directory_iterator(); entries.increment(error)) {
        const fs::path& path = entries->path();
        if (!EqualIgnoringCase(Utf8FromPath(path.extension()), m_kind.extension)) continue;
        const std::string name = Utf8FromPath(path.stem());
#ifdef _WIN32
        // Names of files are wide there; the library asks for them in the ANSI code page.
        m_tables.push_back({name, NarrowFromUtf8(name), path});
#else
        m_tables.push_back({name, path.stem().native(), path});
#endif
    }
    if (m_tables.empty()) {
        throw Failure(
            fmt::format("{}: the table directory holds no {} (*{}); --tables DIR names another",
                        m_path, m_kind.table, m_kind.extension));
    }
    std::sort(m_tables.begin(), m_tables.end(), [](const TableName& a, const TableName& b) {
        return LessIgnoringCase(a.name, b.name);
    });
}

std::vector<TableName> TableDirectory::Listed() const {
    std::vector<TableName> listed;
    std::copy_if(m_tables.begin(), m_tables.end(), std::back_inserter(listed),
                 [](const TableName& table) { return table.narrow.size() <= kLongestListedName; });
    return listed;
}

TableName TableDirectory::Require(std::string_view name) const {
    const auto find = [&](auto equal) {
        return std::find_if(m_tables.begin(), m_tables.end(),
                            [&](const TableName& table) { return equal(table.name, name); });
    };
    auto found = find([](std::string_view a, std::string_view b) { return a == b; });
    if (found == m_tables.end()) found = find(EqualIgnoringCase);
    if (found != m_tables.end()) return *found;

    std::vector<std::string> names;
    for (const TableName& table : Listed()) names.push_back(table.name);
    const auto nearest = NearestNames(name, names);
    throw Failure(fmt::format(
        "no {} \"{}\" in {}; {}", m_kind.subject, name, m_path,
        nearest.empty() ? fmt::format("`hydrofacts {}` lists what is installed", m_kind.listing)
                        : fmt::format("did you mean {}?", JoinNames(nearest, "or"))));
}

Failure TableDirectory::NotUsable(const TableName& table, std::string_view reason) const {
    return Failure(
        Utf8FromPath(table.file) + ": " +
        (reason.empty() ? fmt::format("not a valid {}", m_kind.table) : std::string(reason)));
}

TableHead ReadTableHead(const TableName& table) {
    TableHead head;
    std::ifstream file(table.file, std::ios::binary);
    std::string line;
    bool titled = false;
    while (std::getline(file, line)) {
        const auto fields = Fields(line);
        if (fields.empty()) continue;
        if (line.front() == 'S' && !titled) {
            titled = true;
            if (fields.size() > 1) head.title = Unquoted(fields[1]);
        } else if (line.front() == 'V') {
            if (fields.size() > 1) head.version = Unquoted(fields[1]);
            if (fields.size() > 3) head.lowLevel = NumberIn(fields[3]);
            if (fields.size() > 4) head.highLevel = NumberIn(fields[4]);
            break;
        }
    }
    return head;
}

std::string TitleText(const TableHead& head) {
    return fmt::format("{} (version {})", head.title.empty() ? "untitled" : head.title,
                       head.version.empty() ? "not told" : head.version);
}

std::string LevelsText(const TableHead& head) {
    if (!head.lowLevel) return "none";
    const double high = head.highLevel.value_or(*head.lowLevel);
    return fmt::format("{} to {}", ShortNumber(*head.lowLevel), ShortNumber(high));
}

}  // namespace hydrofacts::command
