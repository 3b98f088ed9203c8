#ifndef WIN32_TEXT_H
#define WIN32_TEXT_H

#include <string_view>

#include "win32/Types.h"

/// Capital letters of Windows-1252. An argument below 65536 is a single character and its capital
/// is the result; otherwise the text is changed in place and returned.
LPSTR CharUpperA(LPSTR text);

namespace win32 {

/// The capital letter of Windows-1252; any other character is its own.
char ToUpper(char c);

/// The same text, apart from case. Accents count.
bool EqualWithoutCase(std::string_view a, std::string_view b);
bool StartsWithoutCase(std::string_view text, std::string_view start);

/// Which of two texts comes first in a list that people read: below 0, 0, above 0. Punctuation
/// stands before digits, digits before letters; letters go by the alphabet, their accents count
/// only between texts that are alike without; - and ' only between texts that are alike in all
/// else. Case doesn't count. Digits are compared one by one, so that 10 stands before 9.
int CompareForSorting(std::string_view a, std::string_view b);

}  // namespace win32

#endif
