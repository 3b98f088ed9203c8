#include <gtest/gtest.h>

#include "quillbase/Conversion.h"

namespace {

TEST(Conversion, ScalesOfTemperatureMeetAtKnownPoints) {
    // °F, °R, °C, K of one temperature each, from the definitions of the scales.
    constexpr double kPoints[][4] = {
        {-459.67, 0.0, -273.15, 0.0},    // absolute zero
        {32.0, 491.67, 0.0, 273.15},     // ice melts
        {212.0, 671.67, 100.0, 373.15},  // water boils
    };
    for (const auto& point : kPoints) {
        for (int from = HF_DEG_F; from <= HF_KELVIN; ++from) {
            for (int to = HF_DEG_F; to <= HF_KELVIN; ++to) {
                const double result = ConvertTemp(point[from], static_cast<HF_TUNITS>(from),
                                                  static_cast<HF_TUNITS>(to));
                EXPECT_NEAR(result, point[to], 2e-13) << from << " to " << to;
            }
        }
    }
    EXPECT_NEAR(ConvertTemp(32.0, HF_DEG_F, HF_KELVIN), 273.15, 6e-14) << "the last bit at most";
    EXPECT_EQ(ConvertTemp(0.0, HF_DEG_C, HF_KELVIN), 273.15);
    EXPECT_EQ(ConvertTemp(0.0, HF_DEG_C, HF_DEG_F), 32.0);
    EXPECT_EQ(ConvertTemp(212.0, HF_DEG_F, HF_DEG_C), 100.0);
}

TEST(Conversion, PressuresAgreeWithNistSp811) {
    // Pascals in one unit: Guide for the Use of the International System of Units (SP 811, 2008),
    // appendix B.8, which gives seven digits; and from the definitions of the conventional units.
    constexpr double kPound = 0.45359237;
    constexpr double kGravity = 9.80665;
    constexpr double kMercury = 13595.1;
    constexpr double kInch = 0.0254;
    constexpr struct {
        HF_PUNITS unit;
        double published;
        double defined;
    } kUnits[] = {
        {HF_PSI, 6.894757e3, kPound * kGravity / (kInch * kInch)},
        {HF_KPA, 1e3, 1e3},
        {HF_BAR, 1e5, 1e5},
        {HF_IN_H2O, 2.490889e2, 1000.0 * kGravity * kInch},
        {HF_IN_HG, 3.386389e3, kMercury * kGravity * kInch},
        {HF_MM_H2O, 9.80665, kGravity},
        {HF_MM_HG, 1.333224e2, kMercury * kGravity * 0.001},
        {HF_PA, 1.0, 1.0},
    };
    for (const auto& from : kUnits) {
        const double pascals = ConvertPressure(1.0, from.unit, HF_PA);
        EXPECT_NEAR(pascals, from.published, 5e-7 * from.published) << from.unit;
        EXPECT_NEAR(pascals, from.defined, 3e-16 * from.defined) << from.unit;
        for (const auto& to : kUnits) {
            const double expected = -7.5 * from.defined / to.defined;
            EXPECT_NEAR(ConvertPressure(-7.5, from.unit, to.unit), expected, 1e-15 * -expected);
        }
    }
}

TEST(Conversion, UnknownUnitsCountAsTheFirst) {
    EXPECT_EQ(ConvertTemp(0.0, HF_DEG_C, static_cast<HF_TUNITS>(-1)), 32.0);
    EXPECT_EQ(ConvertPressure(1.0, HF_HEAD_FT, HF_KPA), ConvertPressure(1.0, HF_PSI, HF_KPA));
    EXPECT_EQ(ConvertPressure(0.1, HF_PSI, static_cast<HF_PUNITS>(-7)), 0.1);
}

}  // namespace
