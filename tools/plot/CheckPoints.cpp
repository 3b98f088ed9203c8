#include "tools/plot/CheckPoints.h"

#include <fmt/core.h>

#include <algorithm>

#include "tools/Failure.h"
#include "tools/Names.h"
#include "tools/Numbers.h"
#include "tools/Platform.h"
#include "tools/WholeFile.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFileName = "check_points.csv";
constexpr std::size_t kFields = 8;

// The next field of a row, which is in double quotes if it holds a comma. The rest of the row is
// what is left.
std::string_view TakeField(std::string_view& row) {
    const bool quoted = row.starts_with('"');
    if (quoted) row.remove_prefix(1);
    const std::size_t end = std::min(row.find(quoted ? '"' : ','), row.size());
    const std::string_view field = row.substr(0, end);
    row.remove_prefix(end);
    row.remove_prefix(std::min(row.find(',') + 1, row.size()));
    return field;
}

CheckPoint PointOf(std::string_view row, std::string_view place) {
    std::string_view fields[kFields - 1];
    for (std::string_view& field : fields) field = TakeField(row);
    const auto number = [&](std::size_t field) {
        return RequireNumber(fields[field], fmt::format("{}: field {}", place, field + 2));
    };
    return {.property = std::string(fields[0]),
            .state = std::string(fields[1]),
            .temperature = number(2),
            .pressure = number(3),
            .value = number(4),
            .fitted = fields[5] == "fit",
            .source = std::string(fields[6])};
}

}  // namespace

std::vector<CheckPoint> ReadCheckPoints(const std::filesystem::path& directory,
                                        std::string_view fluid) {
    std::vector<CheckPoint> points;
    const std::filesystem::path file = directory / kFileName;
    std::error_code error;
    if (!std::filesystem::exists(file, error)) return points;
    const std::string text = ReadWholeFile(file);
    std::string_view rest = text;
    for (std::size_t line = 1; !rest.empty(); ++line) {
        std::string_view row = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(row.size() + 1, rest.size()));
        if (row.ends_with('\r')) row.remove_suffix(1);
        if (!EqualIgnoringCase(TakeField(row), fluid)) continue;
        points.push_back(PointOf(row, fmt::format("{}:{}", Utf8FromPath(file), line)));
    }
    return points;
}

}  // namespace hydrofacts::command
