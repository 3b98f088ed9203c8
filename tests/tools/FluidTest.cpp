#include <vector>

#include "tests/tools/SampleTables.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class FluidCommand : public SampleTables {
  protected:
    nlohmann::json Fluid(const std::string& arguments) {
        return RunForJson(WithTables("fluid " + arguments));
    }
};

const std::string kBaseUnits = " --temperature-unit K --pressure-unit kPa --absolute";

TEST_F(FluidCommand, TellsALiquid) {
    const auto json = Fluid("Sample -t 300 -p 150" + kBaseUnits);
    EXPECT_EQ(json["name"], "Sample");
    EXPECT_EQ(json["state"], "liquid");
    EXPECT_EQ(json["temperature"], 300.0);
    EXPECT_EQ(json["pressure"], 150.0);
    EXPECT_NEAR(json["density"], 950.0, 1e-9);
    EXPECT_EQ(json["user_density"], 950.0);
    EXPECT_EQ(json["specific_gravity"], 0.953);
    EXPECT_EQ(json["viscosity"], 1.0);
    EXPECT_NEAR(json["vapor_pressure"], 100.0, 1e-9);
    EXPECT_EQ(json["user_vapor_pressure"], 100.0);
    EXPECT_EQ(json["specific_heat_ratio"], 0.0);
    EXPECT_EQ(json["molecular_weight"], 20.0);
    EXPECT_EQ(json["critical_temperature"], 450.0);
    EXPECT_EQ(json["critical_pressure"], 8000.0);
    EXPECT_EQ(json["equation_of_state"], 1);
    EXPECT_EQ(json["units"]["temperature"], "K");
    EXPECT_EQ(json["units"]["density"], "kg/m\u00B3");
    EXPECT_EQ(json.size(), 16U);
}

TEST_F(FluidCommand, TellsAVapor) {
    const auto json = Fluid("Sample -t 300 -p 50" + kBaseUnits);
    EXPECT_EQ(json["state"], "vapor");
    EXPECT_NEAR(json["density"], 50.0 * 20.0 / (8.3144 * 300.0), 1e-12);
    EXPECT_EQ(json["specific_gravity"], 0.691);  // 20 / 28.9586
    EXPECT_EQ(json["viscosity"], 0.01);
    EXPECT_EQ(json["specific_heat_ratio"], 1.333);
}

// 300 K is 80.33 °F. 150 kPa absolute is 21.7557 psi absolute, 7.0598 psi above the atmosphere.
TEST_F(FluidCommand, PressuresAreGaugeAboveTheAtmosphere) {
    const auto us = Fluid("Sample -t 80.33 -p 7.0598");
    EXPECT_EQ(us["units"]["pressure"], "psi");
    EXPECT_EQ(us["units"]["user_density"], "lb/ft\u00B3");
    EXPECT_EQ(us["user_density"], 59.31);        // 950 / 16.01794
    EXPECT_EQ(us["user_vapor_pressure"], 14.5);  // 100 kPa, absolute: 14.504
    const std::string point = "Sample -t 26.85 --units metric -p ";
    EXPECT_EQ(Fluid(point + "0")["state"], "liquid");  // 101.325 kPa, above 100
    EXPECT_EQ(Fluid(point + "0 --atmosphere 0.9")["state"], "vapor");
    EXPECT_EQ(Fluid(point + "-0.02")["state"], "vapor");
    EXPECT_EQ(Fluid(point + "1.013 --absolute")["state"], "liquid");
}

TEST_F(FluidCommand, UnitsFollowTheSystemUnlessGiven) {
    const auto units = [&](const std::string& options) {
        const auto json = Fluid("Sample -t 300 -p 9" + options + " --temperature-unit K");
        return std::vector<std::string>{json["units"]["pressure"], json["units"]["user_density"]};
    };
    EXPECT_THAT(units(""), ElementsAre("bar", "kg/m\u00B3"));
    EXPECT_THAT(units(" --units US"), ElementsAre("psi", "lb/ft\u00B3"));
    EXPECT_THAT(units(" --units us --pressure-unit \"IN HG\""),
                ElementsAre("in Hg", "lb/ft\u00B3"));
}

TEST_F(FluidCommand, SpeaksPlainlyInUtf8) {
    const Outcome outcome = Run(WithTables("fluid sample -t 26.85 -p 1 --units metric"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("Sample is a liquid at 26.85 \u00B0C and 1 bar gauge: 950 "
                                       "kg/m\u00B3, 1.00 cP\n"));
    EXPECT_THAT(outcome.out, HasSubstr("2.01325 bar absolute (atmosphere 1.01325 bar)"));
    EXPECT_THAT(outcome.out, HasSubstr("1.053 cSt"));  // 1 / 0.95 cSt
    EXPECT_THAT(outcome.out, HasSubstr("1.000 bar absolute"));
    EXPECT_THAT(outcome.out, HasSubstr("6.85 to 126.85 \u00B0C"));
    EXPECT_THAT(outcome.out, HasSubstr("Sample at 25 \u00B0"
                                       "C (version 2.1)"));

    const Outcome vapor = Run(WithTables("fluid \"gas ONLY\" -t 460 -p 5" + kBaseUnits));
    EXPECT_THAT(vapor.out, HasSubstr("Ratio of specific heats"));
    EXPECT_THAT(vapor.out, HasSubstr("none, above the critical temperature"));
    EXPECT_THAT(vapor.out, Not(HasSubstr("Liquid formulas")));
}

TEST_F(FluidCommand, RefusesWhatItCannotUse) {
    Write("Broken.FTBL", "S\t\"Broken\"\r\nV\t\"1\"\tx\t1\t7\r\n");
    const struct {
        const char* arguments;
        const char* message;
    } cases[] = {
        {"fluid Smaple -t 1 -p 1", "did you mean Sample?"},
        {"fluid gas -t 1 -p 1", "did you mean Gas only?"},
        {"fluid Xyzzyx -t 1 -p 1", "hydrofacts fluids"},
        {"fluid ../tables/Sample -t 1 -p 1", "no fluid"},
        {"fluid Broken -t 1 -p 1", "Broken.FTBL: not a valid fluid table"},
        {"fluid Sample -t 20x -p 1", "\"20x\" is not a number"},
        {"fluid Sample -t 20 -p 1,5", "the decimal sign is a point"},
        {"fluid Sample -t inf -p 1", "\"inf\" is not a number"},
        {"fluid Sample -t \"\" -p 1", "not a number"},
        {"fluid Sample -t 20", "--pressure is required"},
        {"fluid Sample -t 20 -p 1 --units imperial", "imperial"},
        {"fluid Sample -t 20 -p 1 --temperature-unit X", "\u00B0F, \u00B0R, \u00B0C, K"},
        {"fluid Sample -t 20 -p 1 --pressure-unit furlong", "psi, kPa, bar"},
        {"fluid Sample -t 20 -p 1 --pressure-unit psig", "write psi"},
        {"fluid Sample -t 20 -p 1 --pressure-unit ft", "head of fluid"},
        {"fluid Sample -t 20 -p 1 --atmosphere -1", "--atmosphere"},
    };
    for (const auto& row : cases) ExpectRefused(WithTables(row.arguments), row.message);
}

}  // namespace
