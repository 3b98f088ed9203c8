#ifndef TOOLS_CHECK_FINDING_H
#define TOOLS_CHECK_FINDING_H

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace hydrofacts::command {

/// What is wrong with a table, and where.
struct Finding {
    std::size_t line;   ///< from 1; 0: the file as a whole
    std::size_t field;  ///< from 1; 0: the line as a whole
    bool warning;       ///< suspicious, though the table is read as it stands
    std::string reason;
};

/// The findings in one table.
class Findings {
  public:
    void Error(std::size_t line, std::size_t field, std::string reason) {
        m_list.push_back({line, field, false, std::move(reason)});
        m_hasErrors = true;
    }
    void Warning(std::size_t line, std::size_t field, std::string reason) {
        m_list.push_back({line, field, true, std::move(reason)});
    }

    bool HasErrors() const { return m_hasErrors; }

    /// Whether the latest error is in that field: what follows from it needs no other.
    bool JustFailed(std::size_t line, std::size_t field) const {
        return !m_list.empty() && !m_list.back().warning && m_list.back().line == line &&
               m_list.back().field == field;
    }

    /// In the order of lines and fields.
    std::vector<Finding> Sorted() &&;

  private:
    std::vector<Finding> m_list;
    bool m_hasErrors = false;
};

}  // namespace hydrofacts::command

#endif
