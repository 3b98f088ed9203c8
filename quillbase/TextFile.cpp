#include "quillbase/TextFile.h"

#include <algorithm>
#include <cstring>
#include <string_view>

TextFile::TextFile(const char* path) : text_(path) {}

TextFile::~TextFile() = default;

void TextFile::ReadLine(char* buffer, unsigned size) {
    const std::string_view rest = text_.Text().substr(position_);
    const std::size_t lineEnd = rest.find('\n');
    eof_ = lineEnd == std::string_view::npos;
    std::string_view line = rest.substr(0, lineEnd);
    position_ += eof_ ? rest.size() : lineEnd + 1;
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (size == 0) return;

    const std::size_t length = std::min<std::size_t>(line.size(), size - 1);
    if (length > 0) std::memcpy(buffer, line.data(), length);
    buffer[length] = '\0';
}
