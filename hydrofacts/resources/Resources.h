#ifndef HYDROFACTS_RESOURCES_RESOURCES_H
#define HYDROFACTS_RESOURCES_RESOURCES_H

#ifndef _WIN32

#include <span>

#include "win32/Module.h"

namespace hydrofacts {

/// The library's resources, written into the program by the build. On Windows they are in the
/// library's file, from the same sources.
std::span<const win32::Resource> Resources();

}  // namespace hydrofacts

#endif
#endif
