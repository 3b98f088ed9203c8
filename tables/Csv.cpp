#include "tables/Csv.h"

#include <algorithm>
#include <boost/tokenizer.hpp>
#include <charconv>
#include <cmath>
#include <fstream>

namespace hydrofacts::tables {
namespace {

std::string Place(const std::filesystem::path& file, std::size_t line) {
    return file.generic_string() + ":" + std::to_string(line) + ": ";
}

std::vector<std::string> CutFields(const std::filesystem::path& file, std::size_t line,
                                   const std::string& text) {
    if (std::count(text.begin(), text.end(), '"') % 2 != 0) {
        throw InputError(Place(file, line) + "a quote is not closed");
    }
    try {
        const boost::tokenizer<boost::escaped_list_separator<char>> fields(text);
        return {fields.begin(), fields.end()};
    } catch (const boost::escaped_list_error& error) {
        throw InputError(Place(file, line) + error.what());
    }
}

std::shared_ptr<const CsvHeading> ReadHeading(const std::filesystem::path& file, std::size_t line,
                                              const std::string& text) {
    auto heading = std::make_shared<CsvHeading>();
    heading->file = file;
    for (const std::string& name : CutFields(file, line, text)) {
        if (!heading->columns.emplace(name, heading->columns.size()).second) {
            throw InputError(Place(file, line) + "field " + name + ": the column stands twice");
        }
    }
    return heading;
}

}  // namespace

CsvRow::CsvRow(std::shared_ptr<const CsvHeading> heading, std::size_t line,
               std::vector<std::string> fields)
    : m_heading(std::move(heading)), m_line(line), m_fields(std::move(fields)) {}

const std::string& CsvRow::Text(std::string_view column) const {
    const auto found = m_heading->columns.find(column);
    if (found == m_heading->columns.end()) {
        Fail(column, "the file has no such column");
    }
    return m_fields[found->second];
}

const std::string& CsvRow::NonEmptyText(std::string_view column) const {
    const std::string& text = Text(column);
    if (text.empty()) {
        Fail(column, "is empty");
    }
    return text;
}

double CsvRow::Number(std::string_view column) const {
    const std::string& text = NonEmptyText(column);
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc::result_out_of_range) {
        Fail(column, "'" + text + "' is out of range");
    }
    if (error != std::errc() || stop != end || !std::isfinite(value)) {
        Fail(column, "'" + text + "' is not a number");
    }
    return value;
}

std::optional<double> CsvRow::OptionalNumber(std::string_view column) const {
    if (Text(column).empty()) {
        return std::nullopt;
    }
    return Number(column);
}

void CsvRow::Fail(std::string_view column, std::string_view reason) const {
    throw InputError(Place(m_heading->file, m_line) + "field " + std::string(column) + ": " +
                     std::string(reason));
}

std::vector<CsvRow> ReadCsv(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw InputError(file.generic_string() + ": cannot be opened");
    }
    std::shared_ptr<const CsvHeading> heading;
    std::vector<CsvRow> rows;
    std::string text;
    for (std::size_t line = 1; std::getline(stream, text); ++line) {
        if (!text.empty() && text.back() == '\r') {
            text.pop_back();
        }
        if (text.empty()) {
            continue;
        }
        if (!heading) {
            heading = ReadHeading(file, line, text);
            continue;
        }
        std::vector<std::string> fields = CutFields(file, line, text);
        if (fields.size() != heading->columns.size()) {
            throw InputError(Place(file, line) + "has " + std::to_string(fields.size()) +
                             " fields where the heading has " +
                             std::to_string(heading->columns.size()));
        }
        rows.emplace_back(heading, line, std::move(fields));
    }
    if (!heading) {
        throw InputError(file.generic_string() + ": has no heading line");
    }
    return rows;
}

std::string CsvField(const std::string& text) {
    return text.find(',') == std::string::npos ? text : '"' + text + '"';
}

}  // namespace hydrofacts::tables
