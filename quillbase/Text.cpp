#include "quillbase/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

char* rstrncpy(char* dst, const char* src, unsigned size) {
    if (size == 0) return dst;
    const std::size_t length = ::strnlen(src, size - 1);
    std::memmove(dst, src, length);
    dst[length] = '\0';
    return dst;
}

char* UnquoteString(char* text) {
    const std::size_t length = std::strlen(text);
    if (length < 2 || text[0] != '"' || text[length - 1] != '"') return text;
    text[length - 1] = '\0';
    return text + 1;
}

namespace quillbase {
namespace {

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Lower(x) == Lower(y); });
}

}  // namespace quillbase
