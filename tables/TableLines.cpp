#include "tables/TableLines.h"

#include <algorithm>
#include <fstream>

#include "tables/Csv.h"

namespace hydrofacts::tables {
namespace {

// Dialogs show the head lines and read at most 100 characters of each, a carriage return included.
constexpr std::size_t kLongestHeadLine = 99;
constexpr std::string_view kRemarkKey = "* ";

bool IsPlain(char c) { return c >= ' ' && c <= '~'; }

bool IsFileNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ' ||
           c == '.' || c == '-';
}

bool IsLineCharacter(char c) { return c == '\t' || IsPlain(c); }

}  // namespace

bool IsPlainName(std::string_view text, std::size_t longest) {
    return !text.empty() && text.size() <= longest &&
           std::all_of(text.begin(), text.end(), [](char c) { return IsPlain(c) && c != '"'; });
}

bool IsFileName(std::string_view text, std::size_t longest) {
    constexpr std::string_view kNotAtAnEnd = " .";
    return !text.empty() && text.size() <= longest &&
           std::all_of(text.begin(), text.end(), IsFileNameCharacter) &&
           kNotAtAnEnd.find(text.front()) == std::string_view::npos &&
           kNotAtAnEnd.find(text.back()) == std::string_view::npos;
}

TableLines::TableLines(std::string name, std::size_t longest)
    : m_name(std::move(name)), m_longest(longest) {}

void TableLines::Head(std::string_view title) {
    Add("S\t\"" + std::string(title) + "\"", kLongestHeadLine);
    Add("V\t\"1.0\"\tHydrofacts\t1\t7", kLongestHeadLine);
}

void TableLines::Remark(std::string_view text) {
    const std::size_t room = m_longest - kRemarkKey.size();
    while (!text.empty()) {
        std::size_t end = text.size();
        if (end > room) {
            end = text.rfind(' ', room);
            if (end == std::string_view::npos || end == 0) {
                throw InputError(m_name + ": a word of a remark is too long: " + std::string(text));
            }
        }
        Add(std::string(kRemarkKey) + std::string(text.substr(0, end)), m_longest);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void TableLines::Record(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields) {
        if (field.empty()) {
            throw InputError(m_name + ": an empty field would shift those behind it: " + line);
        }
        if (!line.empty()) {
            line += '\t';
        }
        line += field;
    }
    Add(line, m_longest);
}

void TableLines::Add(std::string_view line, std::size_t longest) {
    if (line.size() > longest) {
        throw InputError(m_name + ": a line of the table is too long: " + std::string(line));
    }
    if (!std::all_of(line.begin(), line.end(), IsLineCharacter)) {
        throw InputError(m_name + ": a line of the table is not plain ASCII: " + std::string(line));
    }
    m_text += line;
    m_text += "\r\n";
}

void WriteWholeFile(const std::filesystem::path& file, std::string_view text) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << text;
    stream.close();
    if (!stream) {
        throw InputError(file.generic_string() + ": cannot be written");
    }
}

}  // namespace hydrofacts::tables
