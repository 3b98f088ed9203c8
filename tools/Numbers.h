#ifndef TOOLS_NUMBERS_H
#define TOOLS_NUMBERS_H

#include <optional>
#include <string>
#include <string_view>

namespace hydrofacts::command {

// Numbers have a point as decimal sign whatever the locale.

/// The finite number that is the whole of a text; nothing otherwise. A sign may stand ahead.
std::optional<double> NumberIn(std::string_view text);

/// The same, or a Failure that names what was to be given, such as "the temperature".
double RequireNumber(std::string_view text, std::string_view what);

/// At most so many significant digits, without trailing zeros: for numbers that were given or
/// converted.
std::string ShortNumber(double value, int digits = 10);

/// So many significant digits, trailing zeros included: for numbers that were computed.
std::string SignificantNumber(double value, int digits = 4);

}  // namespace hydrofacts::command

#endif
