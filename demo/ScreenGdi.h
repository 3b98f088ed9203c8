#ifndef HYDROFACTS_DEMO_SCREENGDI_H
#define HYDROFACTS_DEMO_SCREENGDI_H

#include <string>

#include "win32/Win32.h"

namespace demo {

/// Keeps what the screen shows of a window, frame and title included, as a bitmap file. False if
/// that can't be written.
bool KeepPicture(HWND window, const std::string& path);

}  // namespace demo

#endif
