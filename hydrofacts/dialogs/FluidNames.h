#ifndef HYDROFACTS_DIALOGS_FLUIDNAMES_H
#define HYDROFACTS_DIALOGS_FLUIDNAMES_H

#include <mutex>
#include <string>

namespace hydrofacts {

/// The names of the usable fluid tables, as one text.
struct FluidNames {
    /// Held to read the text, and from the test whether it is empty to the end of the scan.
    std::mutex mutex;

    /// Each name is followed by a tab; they stand in the order in which the system lists the
    /// directory. Empty: not filled.
    std::string text;
};

}  // namespace hydrofacts

#endif
