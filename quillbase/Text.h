#ifndef QUILLBASE_TEXT_H
#define QUILLBASE_TEXT_H

#include <string_view>

/// Copies at most `size` - 1 characters and terminates them. Returns `dst`; a `size` of 0 writes
/// nothing. The texts may overlap.
char* rstrncpy(char* dst, const char* src, unsigned size);

/// The text without the double quotes that enclose it. Works in place: the closing quote is
/// overwritten and the result points behind the opening one. A text that doesn't stand in quotes on
/// both sides comes back as it is, so that an inch mark at its end stays.
char* UnquoteString(char* text);

namespace quillbase {

/// Equal but for the case of ASCII letters.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

}  // namespace quillbase

#endif
