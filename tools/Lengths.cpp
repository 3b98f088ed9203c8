#include "tools/Lengths.h"

#include "tools/Measures.h"
#include "tools/Names.h"
#include "tools/Numbers.h"

namespace hydrofacts::command {
namespace {

constexpr int kSquareInches = 2;
constexpr int kSquareMillimetres = 3;

}  // namespace

HF_UNITS SystemNamed(std::string_view name) {
    return EqualIgnoringCase(name, "metric") ? HF_METRIC : HF_US;
}

std::string LengthUnit(HF_UNITS system) {
    return UnitText(HF_LENGTH, system == HF_METRIC ? HF_LEN_MM : HF_LEN_IN);
}

std::string AreaUnit(HF_UNITS system) {
    return UnitText(HF_AREA, system == HF_METRIC ? kSquareMillimetres : kSquareInches);
}

std::string LengthText(double length, HF_UNITS system) {
    return ShortNumber(length) + " " + LengthUnit(system);
}

std::optional<double> NominalSizeIn(std::string_view text) {
    const auto slash = text.find('/');
    if (slash == std::string_view::npos) return NumberIn(text);
    const auto gap = text.substr(0, slash).find_first_of(" -");
    const bool mixed = gap != std::string_view::npos;
    const auto whole = mixed ? NumberIn(text.substr(0, gap)) : 0.0;
    const auto first = mixed ? gap + 1 : 0;
    const auto above = NumberIn(text.substr(first, slash - first));
    const auto below = NumberIn(text.substr(slash + 1));
    if (!whole || !above || !below || *above < 0.0 || *below <= 0.0) return std::nullopt;
    return *whole + *above / *below;
}

}  // namespace hydrofacts::command
