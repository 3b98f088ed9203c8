#include "quillbase/MessageTable.h"

#include <charconv>
#include <cstddef>
#include <span>
#include <string>
#include <system_error>

namespace quillbase {
namespace {

bool ReadWhole(std::string_view text, unsigned& number) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

std::optional<LanguageId> ReadCode(std::string_view cell) {
    const std::size_t hyphen = cell.find('-');
    LanguageId id;
    if (hyphen == std::string_view::npos || !ReadWhole(cell.substr(0, hyphen), id.primary) ||
        !ReadWhole(cell.substr(hyphen + 1), id.sub)) {
        return std::nullopt;
    }
    return id;
}

std::optional<std::size_t> FindColumn(const CellTable& cells, LanguageId language) {
    std::optional<std::size_t> samePrimary;
    const std::span<const std::string_view> codes = cells.Row("IDS");
    for (std::size_t column = 0; column < codes.size(); ++column) {
        const std::optional<LanguageId> code = ReadCode(codes[column]);
        if (!code || code->primary != language.primary) continue;
        if (code->sub == language.sub) return column;
        if (!samePrimary) samePrimary = column;
    }
    return samePrimary;
}

std::string_view WithoutQuotes(std::string_view cell) {
    constexpr std::string_view kQuotes = "\"\"\"";
    const bool quoted =
        cell.size() >= 2 * kQuotes.size() && cell.starts_with(kQuotes) && cell.ends_with(kQuotes);
    return quoted ? cell.substr(kQuotes.size(), cell.size() - 2 * kQuotes.size()) : cell;
}

}  // namespace

bool NamesALanguage(const CellTable& cells) {
    for (const std::string_view code : cells.Row("IDS")) {
        if (ReadCode(code)) return true;
    }
    return false;
}

std::optional<std::string_view> FindMessage(const CellTable& cells, unsigned id,
                                            LanguageId language) {
    const std::optional<std::size_t> column = FindColumn(cells, language);
    const std::span<const std::string_view> texts = cells.Row(std::to_string(id));
    if (!column || *column >= texts.size() || texts[*column].empty()) return std::nullopt;
    return WithoutQuotes(texts[*column]);
}

}  // namespace quillbase
