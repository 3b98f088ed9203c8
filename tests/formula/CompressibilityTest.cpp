#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>

#include "hydrofacts/formula/CFormula.h"

namespace {

constexpr double kR = 8.3144;
constexpr int kPengRobinson = 2;
constexpr int kRedlichKwong = 3;
constexpr int kSoave = 4;

CFormula Butane(int type) {
    std::string line = "P5\t" + std::to_string(type) + "\t0.2";
    CFormula formula;
    EXPECT_EQ(formula.LoadFormula(SLOT_VAPOR_DENSITY, line.data(), 425.1, 3796.0), 0);
    return formula;
}

// J. M. Smith, H. C. Van Ness, M. M. Abbott, Introduction to Chemical Engineering Thermodynamics,
// chapter 3: saturated vapor of n-butane at 350 K and 9.4573 bar, molar volumes in cm³/mol, rounded
// there to whole numbers.
TEST(Compressibility, ButaneVaporHasThePublishedVolumes) {
    for (const auto& [type, volume] :
         {std::pair{kPengRobinson, 2486.0}, {kRedlichKwong, 2555.0}, {kSoave, 2520.0}}) {
        const CFormula formula = Butane(type);
        const double Z = formula.CalcZ(350.0, 945.73, 425.1);
        EXPECT_NEAR(Z * 1000.0 * kR * 350.0 / 945.73, volume, 0.6) << type;
        // The density of 58.12 kg/kmol.
        EXPECT_NEAR(formula.CalcResult(350.0, 945.73, 58.12, 425.1, 0.0), 58.12e3 / volume, 0.01);
    }
}

// The pressure that the equation gives at a molar volume, in its textbook form with the constants
// worked out anew: R Tc / Pc and R² Tc² / Pc enter by the factors of each equation.
double Pressure(int type, double t, double volume) {
    constexpr double kTc = 425.1;
    constexpr double kCovolume = kR * kTc / 3796.0;
    constexpr double kAttraction = kCovolume * kCovolume * 3796.0;
    const double attraction = (type == kPengRobinson ? 0.45724 : 0.42748) * kAttraction;
    const double b = (type == kPengRobinson ? 0.0778 : 0.08664) * kCovolume;
    const double w = 0.2;
    const double slope = type == kPengRobinson ? 0.37464 + 1.54226 * w - 0.26992 * w * w
                                               : 0.48 + 1.574 * w - 0.176 * w * w;
    const double s = 1.0 + slope * (1.0 - std::sqrt(t / kTc));
    const double a = attraction * (type == kRedlichKwong ? std::sqrt(kTc / t) : s * s);
    const double square = volume * volume;
    return kR * t / (volume - b) -
           a / (type == kPengRobinson ? square + 2.0 * b * volume - b * b : square + b * volume);
}

TEST(Compressibility, RootFulfilsTheEquationInItsOtherForm) {
    for (const int type : {kPengRobinson, kRedlichKwong, kSoave}) {
        const CFormula formula = Butane(type);
        for (const double t : {300.0, 350.0, 425.1, 500.0, 800.0}) {
            for (const double p : {0.01, 10.0, 100.0, 250.0, 2000.0, 20000.0}) {
                if (t < 400.0 && p > 300.0) continue;  // liquid
                const double volume = formula.CalcZ(t, p, 425.1) * kR * t / p;
                EXPECT_NEAR(Pressure(type, t, volume), p, 1e-5 * p) << type << " " << t;
            }
        }
    }
}

TEST(Compressibility, IsExactlyOneAtNoPressureAndForAnIdealGas) {
    for (const int type : {kPengRobinson, kRedlichKwong, kSoave})
        EXPECT_EQ(Butane(type).CalcZ(350.0, 0.0, 425.1), 1.0);
    for (const int type : {0, 1, 5, -3}) EXPECT_EQ(Butane(type).CalcZ(0.0, 945.73, 0.0), 1.0);
}

TEST(Compressibility, SearchEndsWhateverItIsGiven) {
    const CFormula formula = Butane(kPengRobinson);
    EXPECT_TRUE(std::isnan(formula.CalcZ(0.0, 100.0, 425.1)));
    for (const double p : {1e6, 1e12, -1e6}) formula.CalcZ(300.0, p, 425.1);
}

}  // namespace
