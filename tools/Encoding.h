#ifndef TOOLS_ENCODING_H
#define TOOLS_ENCODING_H

#include <optional>
#include <string>
#include <string_view>

namespace hydrofacts::command {

/// UTF-8 of a text in Windows-1252. The five bytes that Windows-1252 leaves out become the control
/// characters of the same number, as on Windows.
std::string Utf8FromWindows1252(std::string_view text);

/// Windows-1252 of a text in UTF-8; nothing if the text is not UTF-8 or holds a character that
/// Windows-1252 doesn't have.
std::optional<std::string> Windows1252FromUtf8(std::string_view text);

/// Whether a text is well-formed UTF-8.
bool IsUtf8(std::string_view text);

}  // namespace hydrofacts::command

#endif
