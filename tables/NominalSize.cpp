#include "tables/NominalSize.h"

#include <array>
#include <charconv>
#include <cmath>

namespace hydrofacts::tables {
namespace {

struct SizeName {
    double inches;
    double diameter;
};

// clang-format off
constexpr std::array kSmallSizes = {
    SizeName{0.125,  6},
    SizeName{0.25,   8},
    SizeName{0.375, 10},
    SizeName{0.5,   15},
    SizeName{0.625, 16},
    SizeName{0.75,  20},
    SizeName{1,     25},
    SizeName{1.25,  32},
    SizeName{1.5,   40},
    SizeName{2,     50},
    SizeName{2.5,   65},
    SizeName{3,     80},
    SizeName{3.5,   90},
};
// clang-format on

constexpr double kFirstLargeSize = 4.0;
constexpr double kDiameterPerInch = 25.0;

}  // namespace

double NominalDiameter(double inches) {
    for (const SizeName& size : kSmallSizes) {
        if (size.inches == inches) {
            return size.diameter;
        }
    }
    return inches >= kFirstLargeSize && inches == std::floor(inches) ? kDiameterPerInch * inches
                                                                     : 0.0;
}

std::string GeneralNumber(double value) {
    constexpr int kDigitsOfG = 6;
    char text[64];
    return {
        text,
        std::to_chars(text, text + sizeof text, value, std::chars_format::general, kDigitsOfG).ptr};
}

}  // namespace hydrofacts::tables
