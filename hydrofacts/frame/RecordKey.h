#ifndef HYDROFACTS_FRAME_RECORDKEY_H
#define HYDROFACTS_FRAME_RECORDKEY_H

#include "win32/Win32.h"

namespace hydrofacts {

/// The first character of a line, which says what the line is, as a capital.
inline char RecordKey(const char* line) {
    char key[] = {*line, '\0'};
    return *CharUpperA(key);
}

}  // namespace hydrofacts

#endif
