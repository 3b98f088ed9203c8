#include "tools/check/HeadLines.h"

#include <fmt/core.h>

#include <algorithm>

#include "tools/check/FieldNumber.h"

namespace hydrofacts::command {
namespace {

constexpr std::size_t kLongest = 100;
constexpr std::size_t kVersionFields = 5;

// A line that is too long for its table as well has been reported.
void CheckLength(const TableLine& line, Findings& findings) {
    if (line.length > kLongest && line.text.size() == line.length) {
        findings.Error(
            line.number, 0,
            fmt::format("{} characters: a head line has {} at most", line.length, kLongest));
    }
}

void CheckQuoted(const TableLine& line, const char* what, Findings& findings) {
    const std::string_view text = line.Field(2);
    if (text.empty()) {
        findings.Warning(line.number, 2, fmt::format("{}: the field is missing", what));
    } else if (WithoutQuotes(text).size() == text.size()) {
        findings.Warning(line.number, 2,
                         fmt::format("{}: {} is not in double quotes", what, Quoted(text)));
    }
}

void CheckLevels(const TableLine& line, Findings& findings) {
    if (line.fields.size() < kVersionFields) {
        findings.Warning(line.number, line.fields.size() + 1,
                         line.fields.size() < kVersionFields - 1
                             ? "levels: the fields are missing, so that lists with a lowest level "
                               "leave the table out"
                             : "high level: the field is missing, the low level serves for it");
    }
    std::optional<double> low;
    std::optional<double> high;
    if (line.fields.size() >= 4) low = CheckReal(line, {4, "low level"}, findings);
    if (line.fields.size() >= 5) high = CheckReal(line, {5, "high level"}, findings);
    if (low && high && *low > *high) {
        findings.Warning(line.number, 5, "the high level is below the low one");
    }
}

void CheckVersion(const TableLine& line, Findings& findings) {
    if (line.Field(1) != "V") {
        findings.Error(line.number, 1,
                       fmt::format("{} begins with V and is taken for the version line",
                                   Quoted(line.Field(1))));
        return;
    }
    if (line.number != 2) {
        findings.Warning(line.number, 0,
                         "the version line is not the second line: the dialogs' note doesn't "
                         "show it");
    }
    CheckEmptyFields(line, kVersionFields, findings);
    CheckQuoted(line, "version", findings);
    CheckLevels(line, findings);
}

void CheckTitle(const TableLine& line, Findings& findings) {
    if (line.Key() != 'S') {
        findings.Warning(line.number, 0,
                         "no title line (S): the dialogs' note of the table is empty");
        return;
    }
    CheckLength(line, findings);
    CheckEmptyFields(line, 2, findings);
    CheckQuoted(line, "title", findings);
}

}  // namespace

std::size_t VersionLine(std::span<const TableLine> lines) {
    const auto found = std::find_if(lines.begin(), lines.end(),
                                    [](const TableLine& line) { return line.Key() == 'V'; });
    return static_cast<std::size_t>(found - lines.begin());
}

std::size_t CheckHeadLines(std::span<const TableLine> lines, Findings& findings) {
    const std::size_t version = VersionLine(lines);
    if (!lines.empty()) CheckTitle(lines.front(), findings);
    if (version < lines.size()) {
        CheckLength(lines[version], findings);
        CheckVersion(lines[version], findings);
    }
    return version;
}

}  // namespace hydrofacts::command
