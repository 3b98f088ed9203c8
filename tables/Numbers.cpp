#include "tables/Numbers.h"

#include <charconv>

namespace hydrofacts::tables {

std::string ExactNumber(double value) {
    char text[64];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

std::string RoundedNumber(double value, int digits) {
    return ExactNumber(RoundToDigits(value, digits));
}

double RoundToDigits(double value, int digits) {
    char text[64];
    const char* const end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, digits - 1)
            .ptr;
    double result = 0.0;
    std::from_chars(text, end, result);
    return result;
}

}  // namespace hydrofacts::tables
