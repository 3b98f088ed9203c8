#ifndef TOOLS_FAILURE_H
#define TOOLS_FAILURE_H

#include <stdexcept>
#include <string>

namespace hydrofacts::command {

/// The exit statuses of the program.
enum ExitStatus : int {
    kDone = 0,
    kFindings = 1,  ///< a table that was checked can't be used or is misread
    kRefused = 2,   ///< the arguments or the tables can't be used
    kOutside = 3,   ///< a fluid has no state at the set point, an elevation is out of range
};

/// Ends a subcommand: a message for standard error, in UTF-8, and the exit status. With an empty
/// message nothing is printed.
class Failure : public std::runtime_error {
  public:
    explicit Failure(const std::string& message, ExitStatus status = kRefused)
        : std::runtime_error(message), m_status(status) {}

    ExitStatus Status() const { return m_status; }

  private:
    ExitStatus m_status;
};

}  // namespace hydrofacts::command

#endif
