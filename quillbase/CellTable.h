#ifndef QUILLBASE_CELLTABLE_H
#define QUILLBASE_CELLTABLE_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillbase {

/// A text of lines and cells, each line found by its first cell, its key. Lines that are empty
/// carry nothing; of two lines with one key the first counts. An empty cell is a cell.
class CellTable {
  public:
    CellTable() = default;
    CellTable(std::string text, char delimiter);

    // The cells point into the text.
    CellTable(const CellTable&) = delete;
    CellTable& operator=(const CellTable&) = delete;
    CellTable(CellTable&&) = delete;
    CellTable& operator=(CellTable&&) = delete;

    /// The cells behind the key; empty if there is no such line.
    std::span<const std::string_view> Row(std::string_view key) const;

    /// Puts another text in place of the one held.
    void Assign(std::string text, char delimiter);

  private:
    using Cells = std::vector<std::string_view>;

    std::string text_;
    std::vector<Cells> rows_;
};

}  // namespace quillbase

#endif
