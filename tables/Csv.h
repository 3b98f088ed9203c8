#ifndef HYDROFACTS_TABLES_CSV_H
#define HYDROFACTS_TABLES_CSV_H

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace hydrofacts::tables {

/// Bad input; what() is `file:line: field NAME: reason`, less the parts that do not apply.
class InputError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The heading of a CSV file, shared by its rows.
struct CsvHeading {
    std::filesystem::path file;
    std::map<std::string, std::size_t, std::less<>> columns;
};

/// One row of a CSV file. A field that is asked for and not fit to use is an InputError.
class CsvRow {
  public:
    CsvRow(std::shared_ptr<const CsvHeading> heading, std::size_t line,
           std::vector<std::string> fields);

    /// The text of a column, which may be empty.
    const std::string& Text(std::string_view column) const;
    /// The text of a column that must not be empty.
    const std::string& NonEmptyText(std::string_view column) const;
    /// A column that must hold a finite number. The decimal sign is a point.
    double Number(std::string_view column) const;
    /// A column that holds a finite number or nothing.
    std::optional<double> OptionalNumber(std::string_view column) const;

    [[noreturn]] void Fail(std::string_view column, std::string_view reason) const;

  private:
    std::shared_ptr<const CsvHeading> m_heading;
    std::size_t m_line;
    std::vector<std::string> m_fields;
};

/// The rows of a comma separated file with one heading line, in file order. Fields with commas are
/// in double quotes. Line ends are LF or CR LF, empty lines are passed over. Throws InputError for
/// a file that does not open, for a heading with a column twice, and for a row with too few or too
/// many fields.
std::vector<CsvRow> ReadCsv(const std::filesystem::path& file);

/// A text as a field of a CSV file, in double quotes where it holds a comma.
std::string CsvField(const std::string& text);

}  // namespace hydrofacts::tables

#endif
