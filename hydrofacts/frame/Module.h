#ifndef HYDROFACTS_FRAME_MODULE_H
#define HYDROFACTS_FRAME_MODULE_H

#include "win32/Win32.h"

class CLanguage;

namespace hydrofacts {

/// The handle of the library itself: messages, bitmaps and the library's own dialog come from it.
HINSTANCE ModuleHandle();

/// The one language object of the library.
CLanguage& Language();

}  // namespace hydrofacts

#endif
