#ifndef TOOLS_TABLEDIRECTORY_H
#define TOOLS_TABLEDIRECTORY_H

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hydrofacts::command {

/// A table file found in the directory.
struct TableName {
    std::string name;            ///< the fluid's name in UTF-8
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

/// The directory of table files, as the library sees it.
class TableDirectory {
  public:
    /// Makes a given directory (UTF-8) that of the process; without one the library's own stays.
    /// Failure if the directory can't be read or holds no fluid table.
    explicit TableDirectory(const std::optional<std::string>& given);

    /// For the library.
    const std::string& Narrow() const { return m_narrow; }
    /// For messages.
    const std::string& Path() const { return m_path; }

    /// The installed fluids, sorted without regard to case, except those whose name is too long to
    /// be listed.
    std::vector<TableName> ListedFluids() const;

    /// The fluid of that name; if there is none, the one whose name differs by case alone. Failure
    /// with the nearest names if there is neither.
    TableName RequireFluid(std::string_view name) const;

  private:
    void ReadNames();

    std::string m_narrow;
    std::string m_path;
    std::vector<TableName> m_tables;
};

/// The head lines of a table file; what is absent stays empty.
TableHead ReadTableHead(const TableName& table);

/// "1 to 7", or "none".
std::string LevelsText(const TableHead& head);

}  // namespace hydrofacts::command

#endif
