#ifndef TOOLS_TABLEDIRECTORY_H
#define TOOLS_TABLEDIRECTORY_H

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/Failure.h"

namespace hydrofacts::command {

/// A kind of table files and what to call them.
struct TableKind {
    std::string_view extension;  ///< with its point
    const char* table;           ///< "fluid table"
    const char* subject;         ///< what a table's name is the name of: "fluid"
    const char* listing;         ///< the subcommand that lists them
};

// clang-format off
inline constexpr TableKind kFluidTables = {".FTBL", "fluid table", "fluid",         "fluids"};
inline constexpr TableKind kPipeTables  = {".PTBL", "pipe table",  "pipe material", "pipes"};
inline constexpr TableKind kValveTables = {".VTBL", "valve table", "valve table",   "valves"};
// clang-format on

/// A table file found in the directory.
struct TableName {
    std::string name;            ///< the name of the fluid, material or table in UTF-8
    std::string narrow;          ///< the same for the library
    std::filesystem::path file;  ///< the table file
};

/// The head lines of a table.
struct TableHead {
    std::string title;
    std::string version;
    std::optional<double> lowLevel;
    std::optional<double> highLevel;
};

/// The tables of one kind in the directory of table files, as the library sees it.
class TableDirectory {
  public:
    /// Makes a given directory (UTF-8) that of the process; without one the library's own stays.
    /// Failure if the directory can't be read or holds no table of the kind.
    TableDirectory(const std::optional<std::string>& given, const TableKind& kind);

    /// For the library.
    const std::string& Narrow() const { return m_narrow; }
    /// For messages.
    const std::string& Path() const { return m_path; }

    /// The installed tables, sorted without regard to case, except those whose name is too long to
    /// be listed.
    std::vector<TableName> Listed() const;

    /// The table of that name; if there is none, the one whose name differs by case alone. Failure
    /// with the nearest names if there is neither.
    TableName Require(std::string_view name) const;

    /// What to throw if the library refuses a table, or can't use a part of it.
    Failure NotUsable(const TableName& table, std::string_view reason = {}) const;

  private:
    void ReadNames();

    TableKind m_kind;
    std::string m_narrow;
    std::string m_path;
    std::vector<TableName> m_tables;
};

/// The head lines of a table file; what is absent stays empty.
TableHead ReadTableHead(const TableName& table);

/// "Water, liquid and vapor (version 1.0)".
std::string TitleText(const TableHead& head);

/// "1 to 7", or "none".
std::string LevelsText(const TableHead& head);

}  // namespace hydrofacts::command

#endif
