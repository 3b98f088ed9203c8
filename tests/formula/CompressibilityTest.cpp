#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "hydrofacts/formula/CFormula.h"

namespace {

constexpr double kR = 8.3144;
constexpr int kPengRobinson = 2;
constexpr int kRedlichKwong = 3;
constexpr int kSoave = 4;

CFormula Vapor(int type, double acentric, double tc, double pc) {
    std::string line = "P5\t" + std::to_string(type) + "\t";
    line += std::to_string(static_cast<int>(acentric * 1000)) + "e-3";
    CFormula formula;
    EXPECT_EQ(formula.LoadFormula(SLOT_VAPOR_DENSITY, line.data(), tc, pc), 0);
    return formula;
}

// The pressure that the equation gives at a molar volume, in its textbook form.
double Pressure(const CFormula& formula, double t, double tc, double volume) {
    const double b = formula.m_coefficients[1];
    const double a = formula.m_coefficients[2];
    const double s = 1.0 + formula.m_coefficients[3] * (1.0 - std::sqrt(t / tc));
    switch (formula.m_type) {
        case kPengRobinson:
            return kR * t / (volume - b) - a * s * s / (volume * volume + 2.0 * b * volume - b * b);
        case kRedlichKwong:
            return kR * t / (volume - b) - a / (std::sqrt(t) * volume * (volume + b));
        default:
            return kR * t / (volume - b) - a * s * s / (volume * (volume + b));
    }
}

// J. M. Smith, H. C. Van Ness, M. M. Abbott, Introduction to Chemical Engineering Thermodynamics,
// chapter 3: saturated vapor of n-butane at 350 K and 9.4573 bar, molar volumes in cm³/mol, rounded
// there to whole numbers.
TEST(Compressibility, ButaneVaporHasThePublishedVolumes) {
    constexpr double kPublished[][2] = {
        {kPengRobinson, 2486.0}, {kRedlichKwong, 2555.0}, {kSoave, 2520.0}};
    for (const auto& [type, volume] : kPublished) {
        const CFormula formula = Vapor(static_cast<int>(type), 0.2, 425.1, 3796.0);
        const double Z = formula.CalcZ(350.0, 945.73, 425.1);
        EXPECT_NEAR(Z * 1000.0 * kR * 350.0 / 945.73, volume, 0.6) << type;
        // The density of 58.12 kg/kmol.
        EXPECT_NEAR(formula.CalcResult(350.0, 945.73, 58.12, 425.1, 0.0), 58.12e3 / volume, 0.01);
    }
}

TEST(Compressibility, RootFulfilsTheEquationInItsOtherForm) {
    for (const int type : {kPengRobinson, kRedlichKwong, kSoave}) {
        const CFormula formula = Vapor(type, 0.2, 425.1, 3796.0);
        for (const double t : {300.0, 350.0, 425.1, 500.0, 800.0}) {
            for (const double p : {0.01, 10.0, 100.0, 250.0, 2000.0, 20000.0}) {
                if (t < 400.0 && p > 300.0) continue;  // liquid
                const double Z = formula.CalcZ(t, p, 425.1);
                ASSERT_GT(Z, 0.0);
                EXPECT_NEAR(Pressure(formula, t, 425.1, Z * kR * t / p), p, 1e-5 * p)
                    << type << " " << t << " " << p;
                EXPECT_LT(Z, p <= 2000.0 ? 1.01 : 3.0);
            }
        }
    }
}

TEST(Compressibility, IsExactlyOneAtNoPressureAndForAnIdealGas) {
    for (const int type : {kPengRobinson, kRedlichKwong, kSoave}) {
        EXPECT_EQ(Vapor(type, 0.2, 425.1, 3796.0).CalcZ(350.0, 0.0, 425.1), 1.0);
    }
    for (const int type : {0, 1, 5, -3}) {
        for (const double t : {0.0, 350.0})
            EXPECT_EQ(Vapor(type, 0.2, 425.1, 3796.0).CalcZ(t, 945.73, 0.0), 1.0);
    }
    CFormula empty;
    empty.m_slot = SLOT_VAPOR_DENSITY;
    empty.m_type = kPengRobinson;
    EXPECT_EQ(empty.CalcZ(350.0, 945.73, 425.1), 1.0);
}

TEST(Compressibility, SearchEndsWhateverItIsGiven) {
    const CFormula formula = Vapor(kPengRobinson, 0.2, 425.1, 3796.0);
    EXPECT_TRUE(std::isnan(formula.CalcZ(0.0, 100.0, 425.1)));
    EXPECT_TRUE(std::isnan(formula.CalcZ(-5.0, 100.0, 425.1)));
    for (const double p : {1e6, 1e12, -1e6}) formula.CalcZ(300.0, p, 425.1);
}

}  // namespace
