#include "fuzz/Input.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace hydrofacts::fuzz {

void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

std::uint8_t Input::Byte() {
    if (bytes_.empty()) return 0;
    const std::uint8_t first = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return first;
}

double Input::Number() {
    using Limits = std::numeric_limits<double>;
    static constexpr double kNumbers[] = {
        300.0,
        0.0,
        -1.0,
        1.0,
        0.01,
        101.325,
        500.0,
        1e4,
        1e-300,
        1e300,
        -273.15,
        Limits::max(),
        Limits::min(),
        Limits::denorm_min(),
        Limits::infinity(),
        -Limits::infinity(),
        Limits::quiet_NaN(),
    };
    const std::size_t choice = Byte();
    // Above the list an everyday temperature or pressure.
    return choice < std::size(kNumbers) ? kNumbers[choice] : static_cast<double>(choice) * 4.0;
}

std::string_view Input::Text() const {
    return {reinterpret_cast<const char*>(bytes_.data()), bytes_.size()};
}

std::string Input::Line() {
    const std::string_view text = Text();
    const std::size_t end = std::min(text.find('\n'), text.size());
    bytes_ = bytes_.subspan(std::min(end + 1, text.size()));
    return std::string(text.substr(0, end));
}

std::unique_ptr<char[]> ExactCopy(std::string_view text) {
    auto copy = std::make_unique_for_overwrite<char[]>(text.size() + 1);
    text.copy(copy.get(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

}  // namespace hydrofacts::fuzz
