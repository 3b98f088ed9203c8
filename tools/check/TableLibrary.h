#ifndef TOOLS_CHECK_TABLELIBRARY_H
#define TOOLS_CHECK_TABLELIBRARY_H

#include <string>

namespace hydrofacts::command {

/// A table as the library is asked for it. Empty if the library can't reach the file, whose path is
/// too long for it or has a name that its code page doesn't have.
struct LibraryPlace {
    std::string directory;
    std::string name;

    bool IsReachable() const { return !name.empty(); }
};

}  // namespace hydrofacts::command

#endif
