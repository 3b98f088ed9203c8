#ifndef HYDROFACTS_PIPE_SIZECOMBO_H
#define HYDROFACTS_PIPE_SIZECOMBO_H

#include "win32/Win32.h"

namespace hydrofacts {

/// The combo box that shows the sizes of a schedule; there need not be one.
class SizeCombo {
  public:
    /// `combo` may be null: nothing is shown then.
    explicit SizeCombo(HWND combo) : combo_(combo) {}

    /// The combo box of a dialog, null if it has none or there is no dialog.
    static HWND In(HWND dialog);

    void Clear() const;

    /// Adds a size, whose text is put into the language's number form in place.
    void Add(char* size) const;

  private:
    HWND combo_;
};

}  // namespace hydrofacts

#endif
