#include <gtest/gtest.h>

#include <string>

#include "hydrofacts/formula/CFormula.h"

namespace {

int Load(CFormula& formula, short slot, std::string line) {
    return formula.LoadFormula(slot, line.data(), 425.1, 3796.0);
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
        {2, "PP3\t2\t1", 1, 0, {}},
        {2, "", 1, 0, {}},
        {1, "P2\t0\t1\t2\t3", 0, 0, {}},  // an empty slot is good
        {1, "P2", 0, 0, {}},
        {1, "P2\t65537\t1\t2", 0, 1, {1, 2, 0, 0, 0}},         // cut to 16 bits
        {0, "P1\t2\t1\t-1\t0\t0\t0", 1, 2, {1, -1, 0, 0, 0}},  // their sum is zero
        {0, "P1\t2", 1, 2, {}},
        {0, "P1\t2\t5\tx\t7", 0, 2, {5, 0, 0, 0, 0}},
        {0, "P1\t2\t5\t \t7", 0, 2, {5, 0, 7, 0, 0}},  // a blank field counts as read
        {2, "P3\t7\t1", 0, 7, {1, 0, 0, 0, 0}},        // the type is not tested
        {4, "P5\t1\t0.2\t8\t9\t10\t11", 0, 1, {0.2, 8, 9, 10, 11}},
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

TEST(FormulaLoad, EqualityComparesSlotTypeAndCoefficients) {
    CFormula one;
    CFormula other;
    Load(one, 2, "P3\t2\t1\t0.3");
    Load(other, 2, "P3\t2\t1\t0.30000000000000004");
    EXPECT_TRUE(one == other);
    for (const char* line : {"P3\t1\t1\t0.3", "P4\t2\t1\t0.3", "P3\t2\t1\t0.3\t0\t0\t1e-9"}) {
        Load(other, static_cast<short>(line[1] - '1'), line);
        EXPECT_FALSE(one == other) << line;
    }
}

}  // namespace
