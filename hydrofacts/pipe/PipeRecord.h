#ifndef HYDROFACTS_PIPE_PIPERECORD_H
#define HYDROFACTS_PIPE_PIPERECORD_H

#include <cstddef>
#include <optional>
#include <string_view>

namespace hydrofacts {

inline constexpr const char* kPipeExtension = ".PTBL";

/// The room of a line of a pipe table: 100 characters.
inline constexpr int kPipeLineSize = 101;

/// The schedule of a size row, or nothing if the line is no size row or has no schedule. What is
/// beyond the room of a line or behind a NUL byte is not there. The line is not cut: most lines are
/// read only to be passed over. Plain loops, as in NextField.
inline std::optional<std::string_view> ScheduleIn(std::string_view line) {
    line = line.substr(0, kPipeLineSize - 1);
    if (!line.starts_with('Z')) return {};
    const char* start = line.data();
    const char* const lineEnd = start + line.size();
    const auto isDelimiter = [](char c) { return c == '\t' || c == '\r'; };
    const auto endsField = [&isDelimiter](char c) { return c == '\0' || isDelimiter(c); };
    while (start != lineEnd && !endsField(*start)) ++start;
    while (start != lineEnd && isDelimiter(*start)) ++start;
    const char* end = start;
    while (end != lineEnd && !endsField(*end)) ++end;
    if (start == end) return {};
    return std::string_view(start, static_cast<std::size_t>(end - start));
}

/// Whether a line is a size row of a schedule. Most are not, which one character tells.
inline bool IsSizeRowOf(std::string_view schedule, std::string_view line) {
    constexpr std::size_t kName = 2;  // where the schedule begins, unless delimiters are doubled
    constexpr char kLastDelimiter = '\r';
    const bool other = line.size() > kName && line[1] == '\t' && line[kName] > kLastDelimiter &&
                       !schedule.starts_with(line[kName]);
    return !other && ScheduleIn(line) == schedule;
}

}  // namespace hydrofacts

#endif
