#ifndef QUILLBASE_CTABLEREADER_H
#define QUILLBASE_CTABLEREADER_H

#include "quillbase/CellTable.h"
#include "win32/Win32.h"

/// A table of texts in several languages, read from a file: lines of cells, the first of which is
/// the line's key. The line with the key IDS names the language of each column.
class CTableReader {
  public:
    /// Reads the file. `module` and `section` are not used and may be null.
    CTableReader(const char* path, char delimiter, HINSTANCE module, char* section);
    ~CTableReader();

    /// True if the file could be read and names at least one language.
    bool Valid() const { return valid_; }

    const quillbase::CellTable& Cells() const { return cells_; }

    /// Puts the items of a text into a list box in place of its rows, one row an item that isn't
    /// empty; sorting is the list box's. Both flags are not used.
    static void Fill(bool, HWND list, const char* items, char delimiter, bool);

  private:
    quillbase::CellTable cells_;
    bool valid_;
};

#endif
