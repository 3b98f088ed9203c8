#ifndef HYDROFACTS_PIPE_PIPERECORD_H
#define HYDROFACTS_PIPE_PIPERECORD_H

#include "hydrofacts/frame/TableFile.h"

namespace hydrofacts {

inline constexpr const char* kPipeExtension = ".PTBL";

/// The room of a line of a pipe table: 100 characters.
inline constexpr int kPipeLineSize = 101;

/// Cuts a size row up to its schedule and gives that; null if the line is no size row or has no
/// schedule.
inline const char* ScheduleOf(char* line) {
    if (*line != 'Z') return nullptr;
    NextField(line);
    return NextField(nullptr);
}

}  // namespace hydrofacts

#endif
