#include "tools/check/TableText.h"

#include <fmt/core.h>

#include <algorithm>

#include "tools/Encoding.h"

namespace hydrofacts::command {
namespace {

constexpr std::string_view kSeparators = "\t\r";

void CutIntoFields(TableLine& line) {
    line.shiftedField = 0;
    std::size_t start = line.text.find_first_not_of(kSeparators);
    while (start != std::string_view::npos) {
        const std::size_t end =
            std::min(line.text.find_first_of(kSeparators, start), line.text.size());
        line.fields.push_back(line.text.substr(start, end - start));
        start = line.text.find_first_not_of(kSeparators, end);
        const bool run = start != std::string_view::npos && start > end + 1;
        if (run && line.shiftedField == 0) line.shiftedField = line.fields.size() + 1;
    }
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The five bytes that no character of Windows-1252 has.
constexpr std::string_view kUnassigned = "\x81\x8D\x8F\x90\x9D";

// Whether the readers make something of a line, such as a record or a text for the screen.
bool IsRead(const TableLine& line, const LineRules& rules) {
    return !line.text.empty() && rules.keys.find(line.Key()) != std::string_view::npos;
}

void CheckEncoding(const TableLine& line, const LineRules& rules, Findings& findings) {
    if (IsAscii(line.text)) return;
    std::string reason;
    if (IsUtf8(line.text)) {
        reason = "UTF-8 is read as Windows-1252, as in " + Quoted(line.text);
    } else {
        const std::size_t bad = line.text.find_first_of(kUnassigned);
        if (bad == std::string_view::npos) return;
        reason = fmt::format("byte {:02X} is no character of Windows-1252",
                             static_cast<unsigned>(static_cast<unsigned char>(line.text[bad])));
    }
    if (IsRead(line, rules)) {
        findings.Error(line.number, 0, std::move(reason));
    } else {
        findings.Warning(line.number, 0, std::move(reason));
    }
}

// A blank or tab ahead of a key hides the record from the readers.
void CheckStart(const TableLine& line, const LineRules& rules, Findings& findings) {
    constexpr std::string_view kBlanks = " \t\r";
    const std::size_t start = line.text.find_first_not_of(kBlanks);
    if (start == 0 || start == std::string_view::npos) return;
    const std::string_view rest = line.text.substr(start);
    const std::string_view first = rest.substr(0, rest.find_first_of(kSeparators));
    const bool oneKey = first.size() == 1 && rules.keys.find(first[0]) != std::string_view::npos;
    const bool formula =
        first.size() == 2 && first[0] == 'P' && rules.keys.find('P') != std::string_view::npos;
    if (oneKey || formula) {
        findings.Error(line.number, 0,
                       fmt::format("blanks ahead of {}: the line is passed over", Quoted(first)));
    }
}

void CheckLine(const TableLine& line, std::string_view raw, const LineRules& rules,
               Findings& findings) {
    if (line.length > rules.longest) {
        findings.Error(line.number, 0,
                       fmt::format("{} characters: a line has {} at most, the rest is not read",
                                   line.length, rules.longest));
    }
    if (raw.find('\0') != std::string_view::npos) {
        findings.Error(line.number, 0, "a NUL byte: the rest of the line is not read");
    }
    CheckEncoding(line, rules, findings);
    CheckStart(line, rules, findings);
}

TableLine MakeLine(std::size_t number, std::string_view raw, std::size_t longest) {
    TableLine line{number, raw.size(), raw.substr(0, longest), 0, {}};
    line.text = line.text.substr(0, line.text.find('\0'));
    CutIntoFields(line);
    return line;
}

// Text in which every line would be misread in the same way; one finding says so.
bool IsForeign(std::string_view text, Findings& findings) {
    const auto nul = [&](std::size_t i) { return i < text.size() && text[i] == '\0'; };
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF") || nul(0) || nul(1)) {
        findings.Error(1, 0, "UTF-16 text: a table is written in Windows-1252");
        return true;
    }
    if (text.starts_with("\xEF\xBB\xBF")) {
        findings.Error(1, 0, "a byte order mark of UTF-8 hides what the line is");
    }
    return false;
}

void CheckUnendedLine(std::size_t number, std::string_view raw, const LineRules& rules,
                      Findings& findings) {
    const TableLine line = MakeLine(number, raw, rules.longest);
    if (IsRead(line, rules)) {
        findings.Error(number, 0, "the last line has no line end: it is not read");
    } else {
        findings.Warning(number, 0, "the last line has no line end: a record there is not read");
    }
}

}  // namespace

std::vector<TableLine> ReadLines(std::string_view text, const LineRules& rules,
                                 Findings& findings) {
    std::vector<TableLine> lines;
    if (text.empty()) findings.Error(1, 0, "the file is empty");
    if (IsForeign(text, findings)) return lines;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        std::string_view raw = text.substr(0, end);
        if (raw.ends_with('\r')) raw.remove_suffix(1);
        if (end == std::string_view::npos) {
            CheckUnendedLine(number, raw, rules, findings);
            break;
        }
        lines.push_back(MakeLine(number, raw, rules.longest));
        CheckLine(lines.back(), raw, rules, findings);
        text.remove_prefix(end + 1);
    }
    return lines;
}

void CheckEmptyFields(const TableLine& line, std::size_t neededFields, Findings& findings) {
    if (line.shiftedField == 0) return;
    std::string reason =
        fmt::format("an empty field is none: two separators in a row, and field {} is {}",
                    line.shiftedField, Quoted(line.Field(line.shiftedField)));
    if (line.fields.size() < neededFields) {
        findings.Error(line.number, line.shiftedField, std::move(reason));
    } else {
        findings.Warning(line.number, line.shiftedField, std::move(reason));
    }
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t kLongest = 40;
    std::string shown(text.substr(0, kLongest));
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; },
        ' ');
    return "\"" + Utf8FromWindows1252(shown) + (text.size() > kLongest ? "..." : "") + "\"";
}

std::string_view WithoutQuotes(std::string_view text) {
    if (text.size() < 2 || text.front() != '"' || text.back() != '"') return text;
    return text.substr(1, text.size() - 2);
}

}  // namespace hydrofacts::command
