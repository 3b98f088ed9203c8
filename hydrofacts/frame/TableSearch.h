#ifndef HYDROFACTS_FRAME_TABLESEARCH_H
#define HYDROFACTS_FRAME_TABLESEARCH_H

#include <cstddef>

#include "win32/Win32.h"

class TextFile;

namespace hydrofacts {

/// A table with a longer name is in no list of tables.
inline constexpr std::size_t kLongestListedName = 30;

/// The installed tables of one kind, in the order in which the system lists the directory.
///
///     for (TableSearch tables(directory, ".PTBL"); tables.Next();) use(tables.Name());
class TableSearch {
  public:
    /// `extension` comes with its point and has five characters.
    TableSearch(const char* directory, const char* extension);
    ~TableSearch();
    TableSearch(const TableSearch&) = delete;
    TableSearch& operator=(const TableSearch&) = delete;

    /// Goes on to the next table, to the first one at the beginning; false if there is none.
    bool Next();

    /// The name of the table: that of its file without the extension.
    const char* Name() const { return found_.cFileName; }

  private:
    HANDLE search_;
    bool first_ = true;
    WIN32_FIND_DATAA found_;
};

/// Reads a file up to its version line and tests the levels there as LevelsAreWithin does. A file
/// without a version line is read to its end and has level 0.0.
bool FileLevelsAreWithin(TextFile& file, double highLimit, double lowLimit);

}  // namespace hydrofacts

#endif
