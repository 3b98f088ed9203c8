#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/units/Units.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A liquid of 62.4 lb/ft³ = 62.4 × 16.01794 kg/m³ = 999.519456 kg/m³ and specific gravity 1.002.
CFluid Liquid() {
    CFluid fluid;
    fluid.SetFluidProperties("Liquid", FLUID_USER_LIQUID, 60.0, 0.0, 62.4, 1.0, 0.3, 0.0, 1.002,
                             0.0, 0.0, 18.0);
    return fluid;
}

class Convert : public ::testing::Test {
  protected:
    static void Restore() {
        Units units;
        for (const HF_UNIT_TYPES type : {HF_FLOW, HF_DENSITY, HF_VELOCITY, HF_POWER, HF_LENGTH}) {
            units.SetCustomUnit(type, 0.0, "OTHER", false);
        }
    }
    void TearDown() override { Restore(); }

    Units units_;
    CFluid liquid_ = Liquid();
};

TEST_F(Convert, MeasuresWithoutAFluid) {
    const struct {
        HF_UNIT_TYPES type;
        double value;
        int from;
        int to;
        double expected;
    } kCases[] = {
        {HF_LENGTH, 1.0, HF_LEN_FT, HF_LEN_M, 0.3048},
        {HF_LENGTH, 1.0, HF_LEN_MI, HF_LEN_YD, 1760.0},
        {HF_DENSITY, 1.0, 2, 1, 997.2},
        {HF_AREA, 1.0, 1, 2, 144.0},
        {HF_POWER, 1.0, 1, 0, 0.74569987},
        {HF_THRUST_PER_LENGTH, 2.0, 1, 0, 1.3442},
        {HF_TEMPERATURE, 212.0, HF_DEG_F, HF_DEG_C, 100.0},
        {HF_PRESSURE, 1.0, HF_BAR, HF_KPA, 100.0},
        {HF_PRESSURE, 10.0, HF_HEAD_FT, HF_FT_H2O, 10.0},
        {HF_HEAD, 10.0, HF_M_H2O, HF_HEAD_MM, 10000.0},
        {HF_HEAD_2, 1.0, HF_HEAD_FT, HF_HEAD_IN, 12.0},
        {HF_FLOW, 1.0, HF_M3_HR, HF_US_GPM, 4.4028675},
        {HF_FLOW, 1.0, HF_SCFS, HF_SCFH, 3600.0},
        {HF_VISCOSITY, 3.0, 1, 7, 3.0},
        {HF_DENSITY, 1.0, 99, 1, 16.018463},  // no such unit: the first row's
        {HF_FLOW, 1.0, HF_US_GPM, 99, 0.0},
    };
    for (const auto& c : kCases) {
        const double result = units_.Convert(c.type, c.value, c.from, c.to, nullptr);
        EXPECT_NEAR(result, c.expected, 2e-15 * c.expected)
            << c.type << ": " << c.from << " to " << c.to;
    }
}

// By hand: 62.4 / 144 psi in a foot; 0.0764 lb/ft³ and 7.48052 gal/ft³ join standard and actual
// flow.
TEST_F(Convert, MeasuresThatNeedAFluid) {
    const struct {
        HF_UNIT_TYPES type;
        double value;
        int from;
        int to;
        double expected;
    } kCases[] = {
        {HF_PRESSURE, 144.0, HF_HEAD_FT, HF_PSI, 62.4},
        {HF_HEAD, 62.4, HF_PSI, HF_HEAD_M, 43.8912},
        {HF_HEAD_2, 62.4, HF_PSI, HF_FT_H2O, 144.0},
        {HF_PRESSURE, 1728.0, HF_HEAD_IN, HF_KPA, 430.2328551},  // 62.4 × 6.894757293
        {HF_PRESSURE, 430.2328551, HF_KPA, HF_HEAD_IN, 1728.0},
        {HF_VISCOSITY, 10.0, 0, 1, 10.004173045331896},
        {HF_VISCOSITY, 10.0, 1, 0, 9.995828695372435},
        {HF_FLOW, 100.0, HF_KG_HR, HF_US_GPM, 0.4404984288770063},
        {HF_FLOW, 100.0, HF_US_GPM, HF_KG_HR, 22701.556565124887},
        {HF_FLOW, 100.0, HF_LB_HR, HF_KG_HR, 45.35907564785904},
        {HF_FLOW, 100.0, HF_SCFM, HF_US_GPM, 0.9177159478461538},
        {HF_FLOW, 100.0, HF_SCFM, HF_KG_HR, 208.33580500746663},
        {HF_FLOW, 100.0, HF_US_GPM, HF_SCFM, 10896.617873394964},
        {HF_FLOW, 100.0, HF_KG_HR, HF_SM3_HR, 81.5515504731352},
    };
    for (const auto& c : kCases) {
        const double result = units_.Convert(c.type, c.value, c.from, c.to, &liquid_);
        const double tolerance = c.type == HF_PRESSURE ? 1e-9 : 1e-14;  // digits written above
        EXPECT_NEAR(result, c.expected, tolerance * c.expected)
            << c.type << ": " << c.from << " to " << c.to;
    }
}

TEST_F(Convert, StandardAirIsItsOwnStandardFlow) {
    CFluid air;
    air.SetFluidProperties("Air", FLUID_USER_VAPOR, 60.0, 0.0, 0.0764, 0.018, 0.0, 1.4, 1.0, 0.0,
                           0.0, 28.9586);
    EXPECT_NEAR(units_.Convert(HF_FLOW, 100.0, HF_SCFM, HF_US_GPM, &air), 748.052, 1e-10);
    EXPECT_NEAR(units_.Convert(HF_FLOW, 748.052, HF_US_GPM, HF_SCFM, &air), 100.0, 1e-11);
}

TEST_F(Convert, WithoutTheFluidThatIsNeeded) {
    EXPECT_EQ(units_.Convert(HF_PRESSURE, 10.0, HF_HEAD_FT, HF_PSI, nullptr), 0.0);
    EXPECT_EQ(units_.Convert(HF_HEAD, 10.0, HF_KPA, HF_M_H2O, nullptr), 0.0);
    EXPECT_EQ(units_.Convert(HF_VISCOSITY, 1.0, 0, 1, nullptr), kInfinity);
    EXPECT_TRUE(std::isnan(units_.Convert(HF_VISCOSITY, 0.0, 0, 1, nullptr)));
    EXPECT_EQ(units_.Convert(HF_VISCOSITY, 1.0, 1, 0, nullptr), 0.0);
    EXPECT_EQ(units_.Convert(HF_FLOW, 1.0, HF_KG_HR, HF_LPM, nullptr), kInfinity);
    EXPECT_EQ(units_.Convert(HF_FLOW, 1.0, HF_LPM, HF_KG_HR, nullptr), 0.0);
    EXPECT_TRUE(std::isnan(units_.Convert(HF_FLOW, 1.0, HF_LB_HR, HF_KG_HR, nullptr)));
    EXPECT_EQ(units_.Convert(HF_FLOW, 1.0, HF_SCFM, HF_LPM, nullptr), 0.0);
    EXPECT_EQ(units_.Convert(HF_FLOW, 1.0, HF_LPM, HF_SCFM, nullptr), 0.0);
}

TEST_F(Convert, ZeroFlowIsZeroInEveryUnit) {
    const CFluid none;
    for (int from = HF_US_GPM; from <= HF_M3_DAY; ++from) {
        for (int to = HF_US_GPM; to <= HF_M3_DAY; ++to) {
            for (const CFluid* fluid : {static_cast<const CFluid*>(nullptr), &none,
                                        static_cast<const CFluid*>(&liquid_)}) {
                EXPECT_EQ(units_.Convert(HF_FLOW, 0.0, from, to, fluid), 0.0)
                    << from << " to " << to;
            }
        }
    }
}

TEST_F(Convert, UserUnitStandsForTheMeasuresOwn) {
    constexpr double v = 12.5;
    units_.SetUserUnit(HF_LENGTH, HF_LEN_FT);
    EXPECT_DOUBLE_EQ(units_.Convert(HF_LENGTH, v, HF_USER_UNIT, HF_LEN_IN, nullptr), 150.0);
    EXPECT_DOUBLE_EQ(units_.Convert(HF_LENGTH, 150.0, HF_LEN_IN, nullptr), v);
    EXPECT_EQ(units_.Convert(HF_LENGTH, v, HF_USER_UNIT, HF_LEN_FT, nullptr), v);
    EXPECT_EQ(units_.Convert(HF_LENGTH, v, HF_LEN_FT, HF_USER_UNIT, nullptr), v);
    for (const int type : {0, 5, 11, 12, 1000, -1}) {
        const auto measure = static_cast<HF_UNIT_TYPES>(type);
        EXPECT_EQ(units_.Convert(measure, v, HF_USER_UNIT, HF_USER_UNIT, nullptr), v);
        if (type > 11 || type < 0) {
            EXPECT_EQ(units_.Convert(measure, v, HF_USER_UNIT, 1, nullptr), v);
            EXPECT_EQ(units_.Convert(measure, v, 0, nullptr), v);
        }
    }
}

// The first row of each catalog has the id 0; a flow of no unit is 0.0, a viscosity stays.
TEST_F(Convert, IdsOfNoUnitAreTakenAsTheFirstRow) {
    constexpr double v = 12.5;
    constexpr int kCounts[] = {4, 14, 26, 4, 2, 3, 3, 9, 14, 5, 2, 14};
    constexpr int kLowest = std::numeric_limits<int>::min();
    constexpr int kHighest = std::numeric_limits<int>::max();
    for (int type = HF_TEMPERATURE; type <= HF_HEAD_2; ++type) {
        const auto measure = static_cast<HF_UNIT_TYPES>(type);
        for (const int odd : {-1, -3, kLowest, kCounts[type], 255, 256, kHighest}) {
            SCOPED_TRACE(::testing::Message() << type << ", " << odd);
            for (int id = 1; id < kCounts[type]; ++id) {
                const double first = units_.Convert(measure, v, 0, id, &liquid_);
                const double back = units_.Convert(measure, v, id, 0, &liquid_);
                const bool stays = type == HF_VISCOSITY;
                const bool flow = type == HF_FLOW;
                EXPECT_EQ(units_.Convert(measure, v, odd, id, &liquid_), stays  ? v
                                                                         : flow ? 0.0
                                                                                : first);
                EXPECT_EQ(units_.Convert(measure, v, id, odd, &liquid_), stays  ? v
                                                                         : flow ? 0.0
                                                                                : back);
            }
            units_.SetUserUnit(measure, odd);
            EXPECT_EQ(units_.Convert(measure, v, HF_USER_UNIT, 1, &liquid_),
                      units_.Convert(measure, v, odd, 1, &liquid_));
            EXPECT_EQ(units_.Convert(measure, v, 1, &liquid_),
                      units_.Convert(measure, v, 1, odd, &liquid_));
        }
    }
}

TEST_F(Convert, SignedZeros) {
    EXPECT_TRUE(std::signbit(units_.Convert(HF_LENGTH, -0.0, HF_LEN_M, HF_LEN_FT, nullptr)));
    EXPECT_TRUE(std::signbit(units_.Convert(HF_PRESSURE, -0.0, HF_BAR, HF_PSI, nullptr)));
    // A flow of nothing has no direction, not even one that is too small for a double.
    constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
    EXPECT_FALSE(std::signbit(units_.Convert(HF_FLOW, -0.0, HF_M3_HR, HF_BPD, nullptr)));
    EXPECT_FALSE(std::signbit(units_.Convert(HF_FLOW, -kSmallest, HF_BPD, HF_MGD, nullptr)));
}

TEST_F(Convert, TextsNameTheUnits) {
    char psi[] = "PSI";
    char kPa[] = "kpa";
    char unknown[] = "stone";
    EXPECT_NEAR(units_.Convert(HF_PRESSURE, 1.0, psi, kPa), 6.894757293, 1e-9);
    EXPECT_EQ(units_.Convert(HF_PRESSURE, 3.0, psi, unknown), 3.0);
    EXPECT_EQ(units_.Convert(HF_PRESSURE, 3.0, unknown, kPa), 3.0);
}

TEST_F(Convert, AbsoluteModeAndAtmospherePlayNoPart) {
    units_.SetAbsolute(false);
    EXPECT_EQ(units_.Convert(HF_PRESSURE, 1.0, HF_BAR, HF_KPA, nullptr), 100.0);
}

TEST_F(Convert, CustomUnitsHoldForEveryObjectAndAreCutToFit) {
    Units other;
    const struct {
        HF_UNIT_TYPES type;
        int custom;
        int base;
    } kMeasures[] = {{HF_FLOW, 25, 0},
                     {HF_DENSITY, 3, 1},
                     {HF_VELOCITY, 2, 0},
                     {HF_POWER, 2, 0},
                     {HF_LENGTH, 8, 0}};
    for (const auto& m : kMeasures) {
        EXPECT_EQ(units_.Convert(m.type, 1.0, m.custom, m.base, nullptr), 0.0);
        EXPECT_EQ(units_.Convert(m.type, 1.0, m.base, m.custom, nullptr), kInfinity);
        other.SetCustomUnit(m.type, 4.0, "sixteen letters!", false);
        EXPECT_STREQ(Units::GetString(m.type, m.custom), "sixteen letters");
        EXPECT_EQ(Units::GetUnit("SIXTEEN LETTERS", m.type), m.custom);
        EXPECT_EQ(units_.Convert(m.type, 3.0, m.custom, m.base, nullptr), 12.0);
        EXPECT_EQ(units_.Convert(m.type, 3.0, m.base, m.custom, nullptr), 0.75);
    }
    other.SetCustomUnit(HF_AREA, 4.0, "no such row", false);
    EXPECT_EQ(Units::GetUnit("no such row", HF_AREA), -1);
}

TEST_F(Convert, MassBasedCustomFlowIsKilogramsPerHour) {
    units_.SetCustomUnit(HF_FLOW, 3600.0, "my kg/s", true);
    EXPECT_NEAR(units_.Convert(HF_FLOW, 2.0, HF_FLOW_OTHER, HF_KG_SEC, &liquid_), 2.0, 1e-14);
    EXPECT_NEAR(units_.Convert(HF_FLOW, 2.0, HF_KG_SEC, HF_FLOW_OTHER, &liquid_), 2.0, 1e-14);
    // 22701.556565124887 kg/hr is 100 gpm of this liquid, see above.
    EXPECT_NEAR(units_.Convert(HF_FLOW, 100.0, HF_US_GPM, HF_FLOW_OTHER, &liquid_),
                6.305987934756913, 1e-13);
}

}  // namespace
