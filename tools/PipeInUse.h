#ifndef TOOLS_PIPEINUSE_H
#define TOOLS_PIPEINUSE_H

#include <optional>
#include <string>

#include "tools/TableDirectory.h"
#include "tools/TablePipe.h"

namespace hydrofacts::command {

/// The pipe material that a user names, with the way from the user's words to a schedule and a
/// size. What isn't there is a Failure that tells what is near.
class PipeInUse {
  public:
    PipeInUse(const std::optional<std::string>& tables, const std::string& material,
              HF_UNITS system);

    const TablePipe& Pipe() const { return m_pipe; }
    HF_UNITS System() const { return m_pipe.System(); }
    const TableHead& Head() const { return m_head; }

    /// "Steel B36.10M", and behind it ", schedule 40" when one is loaded.
    std::string Name() const;
    const std::string& MaterialName() const { return m_table.name; }
    /// The loaded schedule in UTF-8; empty if there is none.
    std::string ScheduleName() const;

    /// Loads a schedule by its name in UTF-8, in any case.
    void LoadSchedule(const std::string& name);
    /// Loads a schedule by its name in the table.
    void LoadNamedSchedule(const std::string& narrow);

    // The rest needs a schedule.

    t_pipe_size SizeOf(const std::string& nominal) const;
    /// The size above or below a nominal size, which need not be one of the schedule.
    t_pipe_size NextTo(const std::string& nominal, bool above) const;
    /// The size whose inside diameter is nearest.
    t_pipe_size NearestTo(double diameter) const;

  private:
    t_pipe_size RowOf(double nominal) const;
    std::string NeighboursText(double nominal) const;
    std::string OtherSystemHint(double nominal) const;

    TableDirectory m_directory;
    TableName m_table;
    TableHead m_head;
    TablePipe m_pipe;
};

}  // namespace hydrofacts::command

#endif
