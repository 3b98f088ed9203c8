#ifndef HYDROFACTS_TABLES_TABLELINES_H
#define HYDROFACTS_TABLES_TABLELINES_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace hydrofacts::tables {

/// True if a text is printable ASCII, which is the same in the data's UTF-8 and in a table's
/// Windows-1252, has no double quote, and has from one to `longest` characters.
bool IsPlainName(std::string_view text, std::size_t longest);

/// The same, and fit for a file's name on every platform: letters, digits, blanks, points and
/// hyphens, and neither a blank nor a point at an end.
bool IsFileName(std::string_view text, std::size_t longest);

/// The text of a table file, line by line. Line ends are CR LF. A line that a reader of tables
/// could not take whole, or that is not plain ASCII, is an InputError.
class TableLines {
  public:
    /// `name` is the table's, for messages; `longest` is the most characters that a line may have
    /// without its line end.
    TableLines(std::string name, std::size_t longest);

    /// The two head lines: title, version, and levels that the filters of every host let pass.
    void Head(std::string_view title);
    /// A comment, cut at blanks into as many lines as it needs.
    void Remark(std::string_view text);
    /// A line of fields with one tab between them. No field may be empty.
    void Record(const std::vector<std::string>& fields);

    const std::string& Text() const { return m_text; }

  private:
    void Add(std::string_view line, std::size_t longest);

    std::string m_name;
    std::size_t m_longest;
    std::string m_text;
};

/// Writes a file whole, as it stands. Throws InputError if that fails.
void WriteWholeFile(const std::filesystem::path& file, std::string_view text);

}  // namespace hydrofacts::tables

#endif
