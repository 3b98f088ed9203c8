#ifndef WIN32_TEXT_H
#define WIN32_TEXT_H

#include "win32/Types.h"

/// Capital letters of Windows-1252. An argument below 65536 is a single character and its capital
/// is the result; otherwise the text is changed in place and returned.
LPSTR CharUpperA(LPSTR text);

#endif
