#include "quillbase/CellTable.h"

#include <cstddef>
#include <utility>

namespace quillbase {
namespace {

std::string_view TakeUpTo(std::string_view& rest, char end) {
    const std::size_t at = rest.find(end);
    const std::string_view taken = rest.substr(0, at);
    rest.remove_prefix(at == std::string_view::npos ? rest.size() : at + 1);
    return taken;
}

}  // namespace

CellTable::CellTable(std::string text, char delimiter) { Assign(std::move(text), delimiter); }

void CellTable::Assign(std::string text, char delimiter) {
    text_ = std::move(text);
    rows_.clear();
    for (std::string_view rest = text_; !rest.empty();) {
        std::string_view line = TakeUpTo(rest, '\n');
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty()) continue;
        Cells& cells = rows_.emplace_back();
        while (true) {
            const bool last = line.find(delimiter) == std::string_view::npos;
            cells.push_back(TakeUpTo(line, delimiter));
            if (last) break;
        }
    }
}

std::span<const std::string_view> CellTable::Row(std::string_view key) const {
    for (const Cells& cells : rows_) {
        if (cells.front() == key) return std::span(cells).subspan(1);
    }
    return {};
}

}  // namespace quillbase
