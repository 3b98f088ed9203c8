#include "tools/Output.h"

#include <fmt/core.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace hydrofacts::command {
namespace {

constexpr std::size_t kGap = 2;         // blanks between columns
constexpr std::size_t kLineWidth = 98;  // of running text

// Characters of a text in UTF-8; none of ours is wider than one column.
std::size_t Width(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

}  // namespace

std::string Wrapped(std::string_view text, std::size_t indent) {
    std::string lines;
    std::size_t column = 0;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (column > 0 && column + 1 + Width(word) > kLineWidth) {
            lines += '\n';
            column = 0;
        }
        if (column == 0) {
            lines.append(indent, ' ');
            column = indent;
        } else {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += Width(word);
    }
    return lines + '\n';
}

void Print(std::string_view text) { fmt::print("{}", text); }

void PrintRows(const Rows& rows) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        if (row.size() > widths.size()) widths.resize(row.size());
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], Width(row[i]));
        }
    }
    std::string text;
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += row[i];
            text.append(widths[i] - Width(row[i]) + kGap, ' ');
        }
        text.erase(text.find_last_not_of(' ') + 1);
        text += '\n';
    }
    Print(text);
}

void PrintJson(const nlohmann::ordered_json& json) {
    // A text that is no UTF-8 can only come from the command line; its bytes are replaced.
    Print(json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

nlohmann::ordered_json NumberOrNull(double value) {
    return value == 0.0 ? nlohmann::ordered_json() : nlohmann::ordered_json(value);
}

void PrintError(std::string_view message) {
    std::fflush(stdout);
    while (!message.empty()) {
        const std::string_view line = message.substr(0, message.find('\n'));
        message.remove_prefix(std::min(line.size() + 1, message.size()));
        const bool ended = line.ends_with('.') || line.ends_with('?');
        fmt::print(stderr, "hydrofacts: {}{}\n", line, ended ? "" : ".");
    }
}

bool FlushOutput() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

}  // namespace hydrofacts::command
