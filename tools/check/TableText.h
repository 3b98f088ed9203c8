#ifndef TOOLS_CHECK_TABLETEXT_H
#define TOOLS_CHECK_TABLETEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tools/check/Finding.h"

namespace hydrofacts::command {

/// A line of a table as the readers see it: what is behind a NUL byte or beyond the room for a line
/// is not there.
struct TableLine {
    std::size_t number;        ///< in the file, from 1
    std::size_t length;        ///< characters in the file, the line end not counted
    std::string_view text;     ///< for the readers
    std::size_t shiftedField;  ///< the first field behind a run of separators; 0: there is none
    std::vector<std::string_view> fields;

    /// The first character, which says what the line is; '\0' in an empty line.
    char Key() const { return text.empty() ? '\0' : text.front(); }

    /// A field by its number, from 1; empty if the line ends before. No field of a line is empty.
    std::string_view Field(std::size_t number_) const {
        return number_ > fields.size() ? std::string_view() : fields[number_ - 1];
    }
};

/// What the readers of one kind of table ask of its lines.
struct LineRules {
    std::size_t longest;    ///< characters in a line
    std::string_view keys;  ///< the first characters of the lines that are read
};

/// The lines of a table that its readers see; `text` must outlive them. A last line without a line
/// end is not among them. Reports what is wrong with lines whatever is in them: NUL bytes, text in
/// another encoding, a missing last line end, too many characters.
std::vector<TableLine> ReadLines(std::string_view text, const LineRules& rules, Findings& findings);

/// Reports an empty field, which readers pass over so that the fields behind it count one less: an
/// error if the line then has fewer fields than it needs, else a warning, since tabs may have been
/// doubled for the looks.
void CheckEmptyFields(const TableLine& line, std::size_t neededFields, Findings& findings);

/// A text of a table for a message: in quotes, in UTF-8, shortened, without control characters.
std::string Quoted(std::string_view text);

/// A name as the library takes it: without the double quotes that enclose it.
std::string_view WithoutQuotes(std::string_view text);

}  // namespace hydrofacts::command

#endif
