#ifndef HYDROFACTS_FRAME_MODULE_H
#define HYDROFACTS_FRAME_MODULE_H

#include <memory>

#include "win32/Win32.h"

class CLanguage;

namespace hydrofacts {

struct FluidNames;

/// The handle of the library itself: messages, bitmaps and the library's own dialog come from it.
HINSTANCE ModuleHandle();

/// The one language object of the library.
CLanguage& Language();

/// The one list of usable fluid tables. A thread that fills it shares it, and so writes to nothing
/// that is gone, whatever becomes of the library meanwhile.
std::shared_ptr<FluidNames> FluidTableCache();

}  // namespace hydrofacts

#endif
