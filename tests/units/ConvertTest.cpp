#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/units/Units.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

CFluid Fluid(FLUIDSTATE state, double density, double sg) {
    CFluid fluid;
    fluid.SetFluidProperties("Fluid", state, 60.0, 0.0, density, 1.0, 0.3, 1.4, sg, 0.0, 0.0, 18.0);
    return fluid;
}

class Convert : public ::testing::Test {
  protected:
    void TearDown() override {
        for (const HF_UNIT_TYPES type : {HF_FLOW, HF_DENSITY, HF_VELOCITY, HF_POWER, HF_LENGTH})
            units_.SetCustomUnit(type, 0.0, "OTHER", false);
    }

    Units units_;
    // 62.4 lb/ft³ are 62.4 × 16.01794 kg/m³ = 999.519456 kg/m³.
    CFluid liquid_ = Fluid(FLUID_USER_LIQUID, 62.4, 1.002);
};

// By hand: 62.4 / 144 psi in a foot; 0.0764 lb/ft³ and 7.48052 gal/ft³ join standard and actual
// flow.
TEST_F(Convert, MeasuresWithAndWithoutAFluid) {
    const CFluid air = Fluid(FLUID_USER_VAPOR, 0.0764, 1.0);
    const struct {
        const CFluid* fluid;
        HF_UNIT_TYPES type;
        double value;
        int from;
        int to;
        double expected;
    } kCases[] = {
        {nullptr, HF_TEMPERATURE, 212.0, HF_DEG_F, HF_DEG_C, 100.0},
        {nullptr, HF_PRESSURE, 1.0, HF_BAR, HF_KPA, 100.0},
        {nullptr, HF_PRESSURE, 10.0, HF_HEAD_FT, HF_FT_H2O, 10.0},
        {nullptr, HF_HEAD, 10.0, HF_M_H2O, HF_HEAD_MM, 10000.0},
        {nullptr, HF_HEAD_2, 1.0, HF_HEAD_FT, HF_HEAD_IN, 12.0},
        {&liquid_, HF_PRESSURE, 144.0, HF_HEAD_FT, HF_PSI, 62.4},
        {&liquid_, HF_HEAD, 62.4, HF_PSI, HF_HEAD_M, 43.8912},
        {&liquid_, HF_HEAD_2, 62.4, HF_PSI, HF_FT_H2O, 144.0},
        {&liquid_, HF_PRESSURE, 1728.0, HF_HEAD_IN, HF_KPA, 62.4 * 6.894757293168361},
        {&liquid_, HF_VISCOSITY, 10.0, 0, 1, 10.004173045331896},
        {&liquid_, HF_VISCOSITY, 10.0, 1, 0, 9.995828695372435},
        {&liquid_, HF_FLOW, 100.0, HF_KG_HR, HF_US_GPM, 0.4404984288770063},
        {&liquid_, HF_FLOW, 100.0, HF_US_GPM, HF_KG_HR, 22701.556565124887},
        {&liquid_, HF_FLOW, 100.0, HF_LB_HR, HF_KG_HR, 45.35907564785904},
        {&liquid_, HF_FLOW, 100.0, HF_SCFM, HF_US_GPM, 0.9177159478461538},
        {&liquid_, HF_FLOW, 100.0, HF_SCFM, HF_KG_HR, 208.33580500746663},
        {&liquid_, HF_FLOW, 100.0, HF_US_GPM, HF_SCFM, 10896.617873394964},
        {&liquid_, HF_FLOW, 100.0, HF_KG_HR, HF_SM3_HR, 81.5515504731352},
        // Standard air is its own standard flow.
        {&air, HF_FLOW, 100.0, HF_SCFM, HF_US_GPM, 748.052},
        {&air, HF_FLOW, 748.052, HF_US_GPM, HF_SCFM, 100.0},
        // What needs a fluid, without it.
        {nullptr, HF_PRESSURE, 10.0, HF_HEAD_FT, HF_PSI, 0.0},
        {nullptr, HF_HEAD, 10.0, HF_KPA, HF_M_H2O, 0.0},
        {nullptr, HF_VISCOSITY, 1.0, 0, 1, kInfinity},
        {nullptr, HF_VISCOSITY, 1.0, 1, 0, 0.0},
        {nullptr, HF_FLOW, 1.0, HF_KG_HR, HF_LPM, kInfinity},
        {nullptr, HF_FLOW, 1.0, HF_LPM, HF_KG_HR, 0.0},
        {nullptr, HF_FLOW, 1.0, HF_SCFM, HF_LPM, 0.0},
        {nullptr, HF_FLOW, 1.0, HF_LPM, HF_SCFM, 0.0},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(::testing::Message() << c.type << ": " << c.from << " to " << c.to);
        const double result = units_.Convert(c.type, c.value, c.from, c.to, c.fluid);
        if (std::isinf(c.expected)) {
            EXPECT_EQ(result, c.expected);
        } else {
            EXPECT_NEAR(result, c.expected, 1e-14 * c.expected);
        }
    }
    EXPECT_TRUE(std::isnan(units_.Convert(HF_FLOW, 1.0, HF_LB_HR, HF_KG_HR, nullptr)));
}

TEST_F(Convert, ZeroFlowIsZeroInEveryUnit) {
    for (int from = HF_US_GPM; from <= HF_M3_DAY; ++from) {
        for (int to = HF_US_GPM; to <= HF_M3_DAY; ++to)
            EXPECT_EQ(units_.Convert(HF_FLOW, 0.0, from, to, nullptr), 0.0) << from << ", " << to;
    }
}

TEST_F(Convert, UserUnitStandsForTheMeasuresOwn) {
    constexpr double v = 12.5;
    units_.SetUserUnit(HF_LENGTH, HF_LEN_FT);
    EXPECT_DOUBLE_EQ(units_.Convert(HF_LENGTH, v, HF_USER_UNIT, HF_LEN_IN, nullptr), 150.0);
    EXPECT_DOUBLE_EQ(units_.Convert(HF_LENGTH, 150.0, HF_LEN_IN, nullptr), v);
    EXPECT_EQ(units_.Convert(HF_LENGTH, v, HF_USER_UNIT, HF_LEN_FT, nullptr), v);
    for (const int type : {12, 1000, -1}) {
        const auto measure = static_cast<HF_UNIT_TYPES>(type);
        EXPECT_EQ(units_.Convert(measure, v, HF_USER_UNIT, 1, nullptr), v);
        EXPECT_EQ(units_.Convert(measure, v, 0, nullptr), v);
    }
}

// The first row of each catalog has the id 0; a flow of no unit is 0.0, a viscosity stays.
TEST_F(Convert, IdsOfNoUnitAreTakenAsTheFirstRow) {
    constexpr double v = 12.5;
    constexpr int kCounts[] = {4, 14, 26, 4, 2, 3, 3, 9, 14, 5, 2, 14};
    using Limits = std::numeric_limits<int>;
    for (int type = HF_TEMPERATURE; type <= HF_HEAD_2; ++type) {
        const auto convert = [&](int from, int to) {
            return units_.Convert(static_cast<HF_UNIT_TYPES>(type), v, from, to, &liquid_);
        };
        for (const int odd : {-1, -3, Limits::min(), kCounts[type], 255, 256, Limits::max()}) {
            SCOPED_TRACE(::testing::Message() << type << ", " << odd);
            const double fixed = type == HF_VISCOSITY ? v : 0.0;
            const bool isFixed = type == HF_VISCOSITY || type == HF_FLOW;
            for (int id = 1; id < kCounts[type]; ++id) {
                EXPECT_EQ(convert(odd, id), isFixed ? fixed : convert(0, id));
                EXPECT_EQ(convert(id, odd), isFixed ? fixed : convert(id, 0));
            }
            units_.SetUserUnit(static_cast<HF_UNIT_TYPES>(type), odd);
            EXPECT_EQ(convert(HF_USER_UNIT, 1), convert(odd, 1));
            EXPECT_EQ(convert(1, HF_USER_UNIT), convert(1, odd));
        }
    }
}

TEST_F(Convert, TextsNameTheUnits) {
    char bar[] = "BAR";
    char kPa[] = "kpa";
    char unknown[] = "stone";
    units_.SetAbsolute(false);  // plays no part, nor does the atmosphere
    EXPECT_EQ(units_.Convert(HF_PRESSURE, 1.0, bar, kPa), 100.0);
    EXPECT_EQ(units_.Convert(HF_PRESSURE, 3.0, bar, unknown), 3.0);
    EXPECT_EQ(units_.Convert(HF_PRESSURE, 3.0, unknown, kPa), 3.0);
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
