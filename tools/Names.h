#ifndef TOOLS_NAMES_H
#define TOOLS_NAMES_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hydrofacts::command {

/// A text with its ASCII letters in lower or upper case.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// Order and equality without regard to the case of ASCII letters.
bool LessIgnoringCase(std::string_view a, std::string_view b);
bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// How many characters have to be inserted, left out, replaced or swapped with their neighbour to
/// turn one text into the other, without regard to case.
std::size_t EditDistance(std::string_view a, std::string_view b);

/// The names that a misspelt one may mean, nearest first, at most five: those that hold it or are
/// held by it, and those less than half of whose letters differ.
std::vector<std::string> NearestNames(std::string_view wanted, std::span<const std::string> names);

/// "a", "a or b", "a, b or c", with the given last word.
std::string JoinNames(std::span<const std::string> names, std::string_view lastWord);

}  // namespace hydrofacts::command

#endif
