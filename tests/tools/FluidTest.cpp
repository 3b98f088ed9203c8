#include <vector>

#include "tests/tools/SampleTables.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

using FluidCommand = SampleTables;
using FluidsCommand = SampleTables;

// The sample's own.
const std::string kBaseUnits = " --temperature-unit K --pressure-unit kPa --absolute";

// 300 K is 80.33 °F. 150 kPa absolute is 21.7557 psi absolute, 7.0598 psi above the atmosphere.
TEST_F(FluidCommand, PressuresAreGaugeAboveTheAtmosphere) {
    const auto us = RunForJson("fluid Sample -t 80.33 -p 7.0598");
    EXPECT_EQ(us["user_density"], 59.31);        // 950 / 16.01794
    EXPECT_EQ(us["user_vapor_pressure"], 14.5);  // 100 kPa, absolute: 14.504
    const auto state = [&](const std::string& pressure) -> std::string {
        return RunForJson("fluid Sample -t 26.85 --units metric -p " + pressure)["state"];
    };
    EXPECT_EQ(state("0"), "liquid");  // 101.325 kPa, above 100
    EXPECT_EQ(state("0 --atmosphere 0.9"), "vapor");
    EXPECT_EQ(state("-0.02"), "vapor");
    EXPECT_EQ(state("1.013 --absolute"), "liquid");
    const auto vapor = RunForJson("fluid Sample -t 300 -p 50" + kBaseUnits);
    EXPECT_EQ(vapor["specific_gravity"], 0.691);  // 20 / 28.9586
    EXPECT_EQ(vapor["specific_heat_ratio"], 1.333);
}

TEST_F(FluidCommand, UnitsFollowTheSystemUnlessGiven) {
    const auto units = [&](const std::string& options) {
        return RunForJson("fluid Sample -t 300 -p 9 --temperature-unit K" + options)["units"];
    };
    EXPECT_EQ(units("")["user_density"], "kg/m\u00B3");
    EXPECT_EQ(units(" --units US")["pressure"], "psi");
    EXPECT_EQ(units(" --units us --pressure-unit \"IN HG\"")["pressure"], "in Hg");
}

TEST_F(FluidCommand, SpeaksPlainlyInUtf8) {
    const Outcome outcome = Run("fluid \"gas ONLY\" -t 26.85 -p -0.5 --units metric");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, StartsWith("Gas only is a vapor at 26.85 \u00B0C and -0.5 bar gauge"));
    EXPECT_THAT(outcome.out, HasSubstr("Sample at 25 \u00B0"
                                       "C (version 2.1)"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("Liquid formulas")));
}

TEST_F(FluidCommand, RefusesWhatItCannotUse) {
    Write("Broken.FTBL", "S\t\"Broken\"\r\nV\t\"1\"\tx\t1\t7\r\n");
    ExpectRefused("table Broken", "Broken.FTBL: not a valid fluid table");
    ExpectAllRefused("fluid ",
                     {
                         {"Smaple -t 1 -p 1", "did you mean Sample?"},
                         {"gas -t 1 -p 1", "did you mean Gas only?"},
                         {"Xyzzyx -t 1 -p 1", "hydrofacts fluids"},
                         {"../tables/Sample -t 1 -p 1", "no fluid"},
                         {"Broken -t 1 -p 1", "Broken.FTBL: not a valid fluid table"},
                         {"Sample -t 20 -p 1,5", "the decimal sign is a point"},
                         {"Sample -t \"\" -p 1", "not a number"},
                         {"Sample -t 20 -p 1 --units imperial", "imperial"},
                         {"Sample -t 20 -p 1 --temperature-unit X", "\u00B0F, \u00B0R, \u00B0C, K"},
                         {"Sample -t 20 -p 1 --pressure-unit psig", "write psi"},
                         {"Sample -t 20 -p 1 --pressure-unit ft", "head of fluid"},
                         {"Sample -t 20 -p 1 --atmosphere -1", "--atmosphere"},
                     });
}

TEST_F(FluidCommand, NamesTheLimitThatWasPassed) {
    const struct {
        const char* fluidAndPoint;
        const char* sentence;
    } cases[] = {
        {"Sample -t 270 -p 150", "270 K is below the lowest liquid temperature, 280 K"},
        {"Sample -t 510 -p 100", "510 K is above the highest vapor temperature, 500 K"},
        {"Sample -t 300 -p 100",
         "100 kPa absolute is the saturation pressure at 300 K, 100 kPa absolute"},
        {"Blend -t 300 -p 70",
         "between the saturation pressures at 300 K, 100 kPa absolute of the liquid and 50 kPa "
         "absolute of the vapor"},
        {"Sample -t 300 -p 9000", "9000 kPa absolute is not below the critical pressure, 8000 kPa"},
        {"Sample -t 450 -p 100", "450 K is the critical temperature"},
        {"Sample -t 300 -p 0", "0 kPa absolute is not above vacuum"},
        {"Sample -t -3 -p 10", "-3 K is not above absolute zero"},
        {"\"Gas only\" -t 300 -p 150",
         "150 kPa absolute is above the saturation pressure at 300 K, 100 kPa absolute, and the "
         "table has no liquid formulas"},
        {"oil -t 300 -p 50",
         "50 kPa absolute is below the saturation pressure at 300 K, 100 kPa absolute, and the "
         "table has no vapor formulas"},
        {"oil -t 460 -p 50",
         "460 K is above the critical temperature, 450 K, and the table has no vapor formulas"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.fluidAndPoint);
        const Outcome outcome = Run("fluid " + (row.fluidAndPoint + kBaseUnits));
        EXPECT_EQ(outcome.status, 3);
        EXPECT_THAT(outcome.out, HasSubstr("has no state"));
        EXPECT_THAT(outcome.err, HasSubstr(row.sentence));
    }
    // 5000 kPa is 725.189 psi, less the atmosphere of 14.696 psi 710.493.
    EXPECT_THAT(Run("fluid Sample -t 370 -p 800").err,
                HasSubstr("800 psi gauge is above the highest vapor pressure, 710.493 "
                          "psi gauge (725.189 psi absolute)"));
    const auto json = RunForJson("fluid Sample -t -40 -p 1", 3);
    EXPECT_EQ(json["state"], "none");
    EXPECT_EQ(json["density"], 0.0);
    EXPECT_EQ(json["molecular_weight"], 20.0);
}

TEST_F(FluidsCommand, ListsUsableTablesWithoutRegardToCase) {
    Write("Broken.FTBL", "no table at all\n");
    Write("A name of thirty-one characters.FTBL", SampleTable());
    Write("notes.txt", "not a table");
    const auto names = [&](const std::string& options) {
        std::vector<std::string> listed;
        for (const auto& fluid : RunForJson("fluids" + options)) listed.push_back(fluid["name"]);
        return listed;
    };
    EXPECT_THAT(names(""), ElementsAre("Blend", "Gas only", "oil", "Sample"));
    EXPECT_THAT(names(" --state liquid"), ElementsAre("Blend", "oil", "Sample"));
    EXPECT_THAT(names(" --state VAPOR"), ElementsAre("Blend", "Gas only", "Sample"));
    EXPECT_EQ(RunForJson("fluids")[2]["states"], R"(["liquid"])"_json);
    const Outcome outcome = Run("fluids");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.err, HasSubstr("Broken.FTBL: not a valid fluid table"));
    EXPECT_THAT(outcome.out, HasSubstr("Gas only  vapor          2.1      1 to 7  Sample at 25"));
}

TEST_F(FluidsCommand, SaysWhichDirectoryIsOfNoUse) {
    ExpectAllRefused("fluids --tables \"" + m_folder.Path(),
                     {
                         {"/nowhere\"", "nowhere: the table directory can't be read"},
                         {"\"", "holds no fluid table"},
                         {"/tables/Sample.FTBL\"", "can't be read"},
                         {std::string(300, 'x') + "\"", "too long"},
                     });
}

}  // namespace
