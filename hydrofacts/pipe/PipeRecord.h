#ifndef HYDROFACTS_PIPE_PIPERECORD_H
#define HYDROFACTS_PIPE_PIPERECORD_H

#include <cstddef>
#include <optional>
#include <string_view>

namespace hydrofacts {

inline constexpr const char* kPipeExtension = ".PTBL";

/// The room of a line of a pipe table: 100 characters.
inline constexpr int kPipeLineSize = 101;

/// The schedule of a size row, or nothing if the line is no size row or has no schedule. The line
/// is not cut: most lines are read only to be passed over. Plain loops, as in NextField.
inline std::optional<std::string_view> ScheduleIn(const char* line) {
    if (*line != 'Z') return {};
    const auto isDelimiter = [](char c) { return c == '\t' || c == '\r'; };
    const char* start = line;
    while (*start != '\0' && !isDelimiter(*start)) ++start;
    while (isDelimiter(*start)) ++start;
    const char* end = start;
    while (*end != '\0' && !isDelimiter(*end)) ++end;
    if (start == end) return {};
    return std::string_view(start, static_cast<std::size_t>(end - start));
}

}  // namespace hydrofacts

#endif
