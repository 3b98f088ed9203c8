#include <gtest/gtest.h>

#include <cmath>

#include "hydrofacts/formula/CFormula.h"

namespace {

CFormula Make(int slot, int type, const double (&c)[5]) {
    CFormula formula;
    formula.m_slot = slot;
    formula.m_type = static_cast<std::int16_t>(type);
    for (int i = 0; i < 5; ++i) formula.m_coefficients[i] = c[i];
    return formula;
}

// Coefficients chosen such that the terms come to small whole numbers. p = 100 kPa, mw = 18,
// tc = 1000 K throughout.
TEST(Formula, FormsAgreeWithHandCalculation) {
    constexpr double kR = 8.3144;
    constexpr double kHalfRoot = 1000.0 * (1.0 - 0.08838834764831845);  // (1 − t/tc)^(2/7) is 1/2
    constexpr double kExponential = 855022.5170983599;  // exp(1 + 2/4 + 3 ln 4 + 4 √4) = 64 e^9.5
    constexpr struct {
        int slot;
        int type;
        double c[5];
        double t;
        double expected;
    } kCases[] = {
        {0, 1, {1, 2, 3, 4, 5}, 2.0, 129.0},
        {1, 1, {1, 2, 3, 4, 5}, 2.0, 129.0},
        {3, 1, {1, 2, 3, 4, 5}, 2.0, 129.0},
        {0, 2, {1, 2, 3, 4, 0.5}, 4.0, kExponential / 1000.0},
        {1, 2, {1, 2, 3, 4, 0.5}, 4.0, kExponential / 1000.0},
        {3, 2, {1, 2, 3, 4, 0.5}, 4.0, kExponential * 1000.0},
        {0, 3, {1, 100, 0.5, 10, 100}, 100.0, 0.1333e5},
        {1, 3, {1, 100, 0.5, 10, 100}, 100.0, 0.1333e5},
        {0, 3, {307, 0, 0, 0, 0}, 300.0, 0.1333e307},
        {0, 3, {308, 0, 0, 0, 0}, 300.0, 0.0},
        {1, 3, {308, 0, 0, 0, 0}, 300.0, 0.1333e308},
        {0, 3, {1, 0, 1, 0, 0}, -1.0, 0.0},            // a logarithm that is not a number
        {2, 2, {2, 0.25, 400, 0.5, 0}, 300.0, 288.0},  // 36 / 0.25^1.5
        {2, 3, {0.3, 0.25, 0, 0, 0}, kHalfRoot, 600.0},
        {3, 3, {1, 100, 1, -200, 0}, 100.0, 10.0},
        {5, 2, {0.001, 0.5, 100, 20000, 0}, 100.0, 2.5},
        {5, 3, {1, 2, 300, 0, 0}, 100.0, 6e-4},
        {6, 1, {4 * kR, 0, 0, 0, 0}, 300.0, 4.0 / 3.0},
        {6, 2, {20000, 10000, 100, 5000, 200}, 100.0, 1.4087863075452112},  // u = 1, v = 2
        {6, 3, {1, 2, 3, 4, 0}, 1000.0, 41.868 / (41.868 - kR)},
        {4, 1, {}, 50.0, 36.0 / kR},
        {4, 9, {7, 7, 7, 7, 7}, 50.0, 36.0 / kR},
    };
    for (const auto& c : kCases) {
        const double result = Make(c.slot, c.type, c.c).CalcResult(c.t, 100.0, 18.0, 1000.0, 0.0);
        EXPECT_NEAR(result, c.expected, 5e-13 * c.expected)
            << "slot " << c.slot << " type " << c.type;
    }
}

TEST(Formula, MissingFormsAndSlotsGiveZero) {
    for (const int slot : {-1, 0, 1, 2, 3, 5, 6, 7}) {
        for (const int type : {-1, 0, 4, 7}) {
            const double result =
                Make(slot, type, {50, 0, 0, 0, 0}).CalcResult(300.0, 100.0, 18.0, 500.0, 0.0);
            EXPECT_EQ(result, 0.0) << slot << " " << type;
            EXPECT_FALSE(std::signbit(result)) << slot << " " << type;
        }
    }
}

}  // namespace
