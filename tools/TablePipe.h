#ifndef TOOLS_TABLEPIPE_H
#define TOOLS_TABLEPIPE_H

#include <string>
#include <vector>

#include "hydrofacts/hydrofacts.h"
#include "tools/TableDirectory.h"

namespace hydrofacts::command {

/// A pipe material of a table that can tell its schedules and sizes.
class TablePipe : public CPipeTableList {
  public:
    explicit TablePipe(HF_UNITS system) : CPipeTableList(system) {}

    /// Loads a material from the directory, which is that of the process; false if its table is
    /// invalid.
    bool Load(const TableDirectory& directory, const TableName& table);

    HF_UNITS System() const { return units; }

    /// The schedules in the order of the table, each once, as the library wants them: in
    /// Windows-1252.
    std::vector<std::string> Schedules() const;

    /// The sizes of the schedule that is loaded.
    std::vector<t_pipe_size> Sizes() const;

    /// Whether the second dimension is the outside diameter, as in the tables that ship: in each
    /// size it is larger than the inside one.
    bool HasOutsideDiameters() const;

  private:
    std::string m_narrow;
};

/// A Hazen-Williams C, "none" for 0.
std::string HazenWilliamsText(double hazenWilliamsC);

}  // namespace hydrofacts::command

#endif
