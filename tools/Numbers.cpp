#include "tools/Numbers.h"

#include <fmt/core.h>

#include <algorithm>
#include <charconv>
#include <cmath>

#include "tools/Failure.h"

namespace hydrofacts::command {

std::optional<double> NumberIn(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) return std::nullopt;
    return value;
}

double RequireNumber(std::string_view text, std::string_view what) {
    if (const auto value = NumberIn(text)) return *value;
    const bool comma = text.find(',') != std::string_view::npos;
    throw Failure(fmt::format("{}: \"{}\" is not a number{}", what, text,
                              comma ? "; the decimal sign is a point" : ""));
}

std::string ShortNumber(double value, int digits) {
    // A negative zero is shown as zero.
    return fmt::format("{:.{}g}", value + 0.0, digits);
}

std::string SignificantNumber(double value, int digits) {
    if (value == 0.0) return "0";
    if (!std::isfinite(value)) return "not a number";
    // Rounding may carry into the next power of ten, so the rounded text tells the exponent.
    std::string rounded = fmt::format("{:.{}e}", value, digits - 1);
    int exponent = 0;
    const char* first = rounded.data() + rounded.find('e') + 1;
    if (*first == '+') ++first;
    std::from_chars(first, rounded.data() + rounded.size(), exponent);
    if (exponent < -4 || exponent >= 7) return rounded;
    return fmt::format("{:.{}f}", value, std::max(0, digits - 1 - exponent));
}

}  // namespace hydrofacts::command
