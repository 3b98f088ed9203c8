#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "hydrofacts/formula/CFormula.h"

namespace {

int Load(CFormula& formula, short slot, std::string line, double tc = 425.1, double pc = 3796.0) {
    return formula.LoadFormula(slot, line.data(), tc, pc);
}

TEST(FormulaLoad, RecordsAreGoodOrBad) {
    const struct {
        short slot;
        const char* line;
        int result;
        int type;
        double coefficients[5];
    } kCases[] = {
        {2, "P3\t2\t1\t2.5e1\t-3\t4\t5", 0, 2, {1, 25, -3, 4, 5}},
        {2, "x0x3\t\t02\t1\t2\t3\t4\t5\t6\r", 0, 2, {1, 2, 3, 4, 5}},  // %i reads the numbers
        {3, "P3\t2\t1\t2\t3\t4\t5", 1, 0, {}},
        {2, "P\t2\t1", 1, 0, {}},
        {2, "PP3\t2\t1", 1, 0, {}},
        {2, "", 1, 0, {}},
        {2, "\t\r\t", 1, 0, {}},
        {1, "P2\t0\t1\t2\t3", 0, 0, {}},  // an empty slot is good
        {1, "P2", 0, 0, {}},
        {1, "P2\tx\t1\t2", 0, 0, {}},
        {1, "P2\t65536\t1\t2", 0, 0, {}},  // cut to 16 bits
        {1, "P2\t65537\t1\t2", 0, 1, {1, 2, 0, 0, 0}},
        {0, "P1\t2\t1\t-1\t0\t0\t0", 1, 2, {1, -1, 0, 0, 0}},  // their sum is zero
        {0, "P1\t2", 1, 2, {}},
        {0, "P1\t2\t5", 0, 2, {5, 0, 0, 0, 0}},
        {0, "P1\t2\t5\tx\t7", 0, 2, {5, 0, 0, 0, 0}},
        {0, "P1\t2\t5\t \t7", 0, 2, {5, 0, 7, 0, 0}},  // a blank field counts as read
        {2, "P3\t7\t1", 0, 7, {1, 0, 0, 0, 0}},        // the type is not tested
        {4, "P5\t1\t0.2\t8\t9\t10\t11", 0, 1, {0.2, 8, 9, 10, 11}},
        {4, "P5\t5\t0.2\t8", 0, 5, {0.2, 8, 0, 0, 0}},
        {4, "P5\t1", 0, 1, {}},
    };
    for (const auto& c : kCases) {
        CFormula formula;
        Load(formula, 0, "P1\t3\t9\t9\t9\t9\t9");  // what stood there before plays no part
        EXPECT_EQ(Load(formula, c.slot, c.line), c.result) << c.line;
        EXPECT_EQ(formula.m_slot, c.slot);
        EXPECT_EQ(formula.m_type, c.type) << c.line;
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(formula.m_coefficients[i], c.coefficients[i]) << c.line << ", c" << i;
    }
}

// n-butane: 425.1 K, 3796 kPa, acentric factor 0.2. R Tc / Pc and R² Tc² / Pc enter by the factors
// of the three equations; the slopes are worked out by hand.
TEST(FormulaLoad, EquationsOfStateDeriveTheirConstants) {
    constexpr double kCovolume = 8.3144 * 425.1 / 3796.0;
    constexpr double kAttraction = kCovolume * kCovolume * 3796.0;
    const struct {
        const char* line;
        double c1;
        double c2;
        double c3;
    } kCases[] = {
        {"P5\t2\t0.2\t7\t7\t7\t3", 0.0778 * kCovolume, 0.45724 * kAttraction, 0.6722952},
        {"P5\t3\t0.2\t7\t7\t7\t3", 0.08664 * kCovolume, 0.42748 * kAttraction * std::sqrt(425.1),
         7.0},
        {"P5\t4\t0.2\t7\t7\t7\t3", 0.08664 * kCovolume, 0.42748 * kAttraction, 0.78776},
        {"P5\t2\t0", 0.0778 * kCovolume, 0.45724 * kAttraction, 0.37464},
        {"P5\t4", 0.08664 * kCovolume, 0.42748 * kAttraction, 0.48},
    };
    for (const auto& c : kCases) {
        CFormula formula;
        ASSERT_EQ(Load(formula, 4, c.line), 0);
        EXPECT_DOUBLE_EQ(formula.m_coefficients[1], c.c1) << c.line;
        EXPECT_DOUBLE_EQ(formula.m_coefficients[2], c.c2) << c.line;
        EXPECT_DOUBLE_EQ(formula.m_coefficients[3], c.c3) << c.line;
    }
}

TEST(FormulaLoad, EqualityComparesSlotTypeAndCoefficients) {
    CFormula one;
    CFormula other;
    Load(one, 2, "P3\t2\t1\t0.3");
    Load(other, 2, "P3\t2\t1\t0.30000000000000004");
    EXPECT_TRUE(one == other);
    other.m_type = 1;
    EXPECT_FALSE(one == other);
    Load(other, 3, "P4\t2\t1\t0.3");
    EXPECT_FALSE(one == other);
    other = one;
    EXPECT_TRUE(one == other);
    other.m_coefficients[4] = 1e-9;
    EXPECT_FALSE(one == other);
    other.ClearFormula();
    EXPECT_EQ(other.m_slot, 2);
    EXPECT_EQ(other.m_type, 0);
    for (const double c : other.m_coefficients) EXPECT_EQ(c, 0.0);
}

}  // namespace
