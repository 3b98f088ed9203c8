#ifndef TOOLS_OUTPUT_H
#define TOOLS_OUTPUT_H

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace hydrofacts::command {

/// A table of texts, printed with its columns aligned.
using Rows = std::vector<std::vector<std::string>>;

/// A text cut at blanks into lines that fit a screen, each behind an indent.
std::string Wrapped(std::string_view text, std::size_t indent);

/// Writes to standard output, in UTF-8.
void Print(std::string_view text);
void PrintRows(const Rows& rows);
void PrintJson(const nlohmann::ordered_json& json);

/// A number for JSON: null for 0, which is the library's word for "there is none".
nlohmann::ordered_json NumberOrNull(double value);

/// Writes a message to standard error, each line behind the program's name and with a point at its
/// end.
void PrintError(std::string_view message);

/// Sees that everything has been written; false if it couldn't be.
bool FlushOutput();

}  // namespace hydrofacts::command

#endif
