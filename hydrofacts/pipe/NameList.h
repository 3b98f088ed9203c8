#ifndef HYDROFACTS_PIPE_NAMELIST_H
#define HYDROFACTS_PIPE_NAMELIST_H

#include <cstddef>
#include <string_view>

namespace hydrofacts {

/// Writes names into a caller's buffer, each with a tab behind it and the whole terminated.
class NameList {
  public:
    /// A `size` of zero or less has no room.
    NameList(char* buffer, int size);

    /// Writes a name if it fits with its tab and the terminating zero. If it doesn't, nothing is
    /// written and Result is -1 from then on.
    bool Add(std::string_view name);

    /// Puts the terminating zero in the place of the last tab; does nothing to an empty list.
    void CutLastTab();

    /// The number of names written, -1 if one didn't fit.
    int Result() const { return full_ ? -1 : count_; }

  private:
    char* buffer_;
    std::size_t room_;
    std::size_t used_ = 0;
    int count_ = 0;
    bool full_ = false;
};

}  // namespace hydrofacts

#endif
