#include "tests/tools/CommandRunner.h"

namespace {

using ::testing::HasSubstr;

using ElevationCommand = CommandRunner;

// U.S. Standard Atmosphere 1976: 101.325 kPa at sea level, 84.556 kPa at 1500 m, 12.2277 psi at
// 5000 ft, 106.22 kPa at -400 m.
TEST_F(ElevationCommand, TellsTheStandardAtmosphere) {
    const auto pressure = [&](const std::string& arguments) -> double {
        return RunForJson("elevation " + arguments)["pressure"];
    };
    EXPECT_NEAR(pressure("0 m --pressure-unit kpa"), 101.325, 0.01);
    EXPECT_NEAR(pressure("1500 m"), 0.84556, 0.0001);
    EXPECT_NEAR(pressure("5000 ft"), 12.2277, 0.002);
    EXPECT_NEAR(pressure("-400 m --pressure-unit mmHg"), 106.22 / 0.133322387, 0.2);
    EXPECT_EQ(Run("elevation 0 ft").out, "The standard atmosphere at 0 ft: 14.697 psi absolute\n");
}

TEST_F(ElevationCommand, TellsItsLimits) {
    for (const char* inside : {"-10000 ft", "15000 ft", "-3.048 km", "4572 m"}) {
        EXPECT_EQ(Run(std::string("elevation ") + inside).status, 0) << inside;
    }
    const Outcome outside = Run("elevation 4600 m");
    EXPECT_EQ(outside.status, 3);
    EXPECT_EQ(outside.out, "");
    EXPECT_THAT(outside.err, HasSubstr("4600 m is outside the standard atmosphere, which goes from "
                                       "-3048 to 4572 m"));
    EXPECT_THAT(Run("elevation -10001 ft").err, HasSubstr("from -10000 to 15000 ft"));
    ExpectRefused("elevation 10 psi", "m, km, cm, mm, in, ft, yd, mi");
    ExpectRefused("elevation 10k m", "not a number");
    ExpectRefused("elevation 10 m --pressure-unit ft", "head of fluid");
}

}  // namespace
