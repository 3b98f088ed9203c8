#include <gtest/gtest.h>

#include <string>

#include "hydrofacts/units/Units.h"
#include "tests/support/TempFolder.h"

namespace {

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
        for (int type = 0; type < 12; ++type)
            EXPECT_STREQ(units.GetString(static_cast<HF_UNIT_TYPES>(type)), c.texts[type]);
        EXPECT_EQ(units.bUS(), c.system == HF_US);
        EXPECT_EQ(units.bMetric(), c.system == HF_METRIC);
    }
}

TEST(Units, AbsoluteModeHasNoAtmosphereUnlessForced) {
    Units units;
    EXPECT_EQ(units.GetAtmosphere(HF_USER_UNIT, false), 0.0);
    EXPECT_EQ(units.GetAtmosphere(HF_KPA, true), 101.325);
    units.SetAbsolute(false);
    units.SetAtmosphere(14.5, HF_USER_UNIT);
    EXPECT_EQ(units.GetAtmosphere(HF_USER_UNIT, false), 14.5);
    EXPECT_EQ(units.SetUserUnit(HF_PRESSURE, HF_KPA), HF_PSI);
    EXPECT_NEAR(units.GetAtmosphere(HF_USER_UNIT, false), 99.97398, 1e-5);  // 14.5 × 6.8947573
    units.SetAtmosphere(90.0, HF_USER_UNIT);
    EXPECT_EQ(units.GetAtmosphere(HF_BAR, false), 0.9);
}

TEST(Units, AssignmentTakesOverAllAndACopyAllButTheAtmosphere) {
    Units source(HF_METRIC);
    source.SetUserUnit(HF_PRESSURE, HF_IN_HG);
    source.SetUserUnit(HF_HEAD_2, HF_HEAD_IN);
    source.SetAbsolute(false);
    source.SetAtmosphere(88.0, HF_KPA);
    const Units copy(source);
    Units target(HF_US);
    target = source;
    source.SetUserUnit(HF_PRESSURE, HF_PA);
    source.SetAtmosphere(1.0, HF_KPA);
    const Units& self = target;
    target = self;
    for (const Units* units : {&copy, static_cast<const Units*>(&target)}) {
        EXPECT_TRUE(units->bMetric());
        EXPECT_FALSE(units->GetAbsolute());
        EXPECT_EQ(units->GetUserUnit(HF_TEMPERATURE), HF_DEG_C);
        EXPECT_EQ(units->GetUserUnit(HF_PRESSURE), HF_IN_HG);
        EXPECT_EQ(units->GetUserUnit(HF_HEAD_2), HF_HEAD_IN);
    }
    EXPECT_EQ(copy.GetAtmosphere(HF_KPA, false), 101.325);
    EXPECT_EQ(target.GetAtmosphere(HF_KPA, false), 88.0);
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
}

}  // namespace
