#include <gtest/gtest.h>

#include <string>

#include "hydrofacts/units/Units.h"
#include "tests/support/TempFolder.h"

namespace {

constexpr HF_UNIT_TYPES Measure(int index) { return static_cast<HF_UNIT_TYPES>(index); }

TEST(Units, EachSystemHasItsDefaultUnits) {
    const struct {
        HF_UNITS system;
        const char* texts[12];
    } kSystems[] = {
        {HF_US,
         {"\260F", "psi", "US gpm", "lb/ft\xB3", "cP", "ft/s", "hp", "in", "ft", "in\xB2", "lb/ft",
          "ft"}},
        {HF_METRIC,
         {"\260C", "bar", "m\xB3/hr", "kg/m\xB3", "cP", "m/s", "kW", "mm", "m", "cm\xB2", "kg/m",
          "m"}},
    };
    for (const auto& c : kSystems) {
        const Units units(c.system);
        for (int i = 0; i < 12; ++i) EXPECT_STREQ(units.GetString(Measure(i)), c.texts[i]) << i;
        EXPECT_EQ(units.bUS(), c.system == HF_US);
        EXPECT_EQ(units.bMetric(), c.system == HF_METRIC);
    }
    const Units neither(static_cast<HF_UNITS>(5));
    EXPECT_FALSE(neither.bUS());
    EXPECT_FALSE(neither.bMetric());
    EXPECT_EQ(neither.GetUserUnit(HF_PRESSURE), HF_BAR);
}

TEST(Units, SystemAndUserUnitsChangeSeparately) {
    Units units;
    units.SetSystem(HF_METRIC, false);
    EXPECT_TRUE(units.bMetric());
    EXPECT_EQ(units.GetUserUnit(HF_PRESSURE), HF_PSI);
    EXPECT_EQ(units.SetUserUnit(HF_PRESSURE, HF_KPA), HF_PSI);
    EXPECT_EQ(units.SetUserUnit(HF_PRESSURE, HF_PA), HF_KPA);
    units.SetSystem(HF_METRIC, true);
    EXPECT_EQ(units.GetUserUnit(HF_PRESSURE), HF_BAR);
}

TEST(Units, AbsoluteModeHasNoAtmosphereUnlessForced) {
    Units units;
    EXPECT_TRUE(units.GetAbsolute());
    EXPECT_EQ(units.GetAtmosphere(HF_USER_UNIT, false), 0.0);
    EXPECT_EQ(units.GetAtmosphere(HF_KPA, true), 101.325);
    units.SetAbsolute(false);
    units.SetAtmosphere(14.5, HF_USER_UNIT);
    EXPECT_EQ(units.GetAtmosphere(HF_USER_UNIT, false), 14.5);
    units.SetUserUnit(HF_PRESSURE, HF_KPA);
    EXPECT_NEAR(units.GetAtmosphere(HF_USER_UNIT, false), 99.97398, 1e-5);  // 14.5 × 6.8947573
    units.SetAtmosphere(90.0, HF_USER_UNIT);
    EXPECT_EQ(units.GetAtmosphere(HF_BAR, false), 0.9);
}

Units Unusual() {
    Units units(HF_METRIC);
    units.SetUserUnit(HF_PRESSURE, HF_IN_HG);
    units.SetUserUnit(HF_HEAD_2, HF_HEAD_IN);
    units.SetAbsolute(false);
    units.SetAtmosphere(88.0, HF_KPA);
    return units;
}

void ExpectUnusual(const Units& units) {
    EXPECT_TRUE(units.bMetric());
    EXPECT_FALSE(units.GetAbsolute());
    EXPECT_EQ(units.GetUserUnit(HF_TEMPERATURE), HF_DEG_C);
    EXPECT_EQ(units.GetUserUnit(HF_PRESSURE), HF_IN_HG);
    EXPECT_EQ(units.GetUserUnit(HF_HEAD_2), HF_HEAD_IN);
}

TEST(Units, CopyTakesOverAllButTheAtmosphere) {
    const Units source = Unusual();
    const Units copy(source);  // NOLINT(performance-unnecessary-copy-initialization): its subject
    ExpectUnusual(copy);
    EXPECT_EQ(copy.GetAtmosphere(HF_KPA, false), 101.325);
}

TEST(Units, AssignmentTakesOverTheAtmosphereToo) {
    Units source = Unusual();
    source.SetAtmosphere(88.0, HF_KPA);
    Units target(HF_US);
    target = source;
    source.SetUserUnit(HF_PRESSURE, HF_PA);
    source.SetAtmosphere(1.0, HF_KPA);
    ExpectUnusual(target);
    EXPECT_EQ(target.GetAtmosphere(HF_KPA, false), 88.0);
    const Units& self = target;
    target = self;
    ExpectUnusual(target);
}

TEST(Units, AtmosphereIsSavedInTheUserUnitAlsoInAbsoluteMode) {
    const TempFolder folder;
    std::string path = folder.Path("host.ini");
    Units saved;
    saved.SetUserUnit(HF_PRESSURE, HF_BAR);
    saved.SetAtmosphere(0.95, HF_BAR);
    saved.SaveAtmosphere(path.data());
    EXPECT_EQ(folder.Read("host.ini"), "[Atmosphere]\r\nPressure=0.95\r\nUnit=bar\r\n");
    Units read;
    read.InitAtmosphere(path.data());
    EXPECT_EQ(read.GetAtmosphere(HF_BAR, true), 0.95);
    std::string none = folder.Path("none.ini");
    read.InitAtmosphere(none.data());
    EXPECT_EQ(read.GetAtmosphere(HF_BAR, true), 0.95);
}

}  // namespace
