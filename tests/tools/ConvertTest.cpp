#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;

using ConvertCommand = SampleTables;
using ElevationCommand = CommandRunner;
using UnitsCommand = CommandRunner;

const std::string kAt300K =
    " --fluid sample -t 300 --temperature-unit K --pressure-unit kPa --absolute -p ";
const std::string kLiquid = kAt300K + "150";  // 950 kg/m³
const std::string kVapor = kAt300K + "50";    // 0.4009 kg/m³, 20 kg/kmol

// By the definitions of the units; the flow ratios are those of the catalog.
TEST_F(ConvertCommand, ConvertsByDefinitionOrByTheDensityOfAFluid) {
    const struct {
        std::string arguments;
        double expected;
        double tolerance;
    } cases[] = {
        {"1 in mm --measure length", 25.4, 1e-9},
        {"212 degF degC", 100.0, 1e-9},
        {"-.5 m cm", -50.0, 1e-9},
        {"+5 bar kPa", 500.0, 1e-9},
        {"1e2 mm m --measure HEAD", 0.1, 1e-9},
        {"4.4028675 gpm m3/hr", 1.0, 1e-9},
        {"3600 kg/hr kg/s", 1.0, 1e-9},
        {"2 sg kg/m3", 1994.4, 1e-9},
        {"1 ft2 in2", 144.0, 1e-9},
        {"10 m kPa" + kLiquid, 950 * 9.80665 * 10 / 1000, 1e-3},
        {"93.163175 kPa \"m H2O\"" + kLiquid, 10.0, 1e-3},
        {"1 cP cSt" + kLiquid, 1 / 0.95, 1e-3},
        {"1 cSt cP" + kLiquid, 0.95, 1e-3},
        {"950 kg/hr m3/hr" + kLiquid, 1.0, 1e-3},
        {"1 m3/s kg/s" + kVapor, 50 * 20 / (8.3144 * 300), 1e-3},
        {"100 scfm lb/hr" + kVapor, 100 * 60 * 0.0764 * 20 / 28.9586, 1e-3},
    };
    for (const auto& row : cases) {
        const double result = RunForJson("convert " + row.arguments)["result"];
        EXPECT_NEAR(result / row.expected, 1.0, row.tolerance) << row.arguments;
    }
}

TEST_F(ConvertCommand, RefusesWhatHasNoAnswer) {
    ExpectAllRefused(
        "convert ",
        {
            {"1 cP cSt", "needs a fluid"},
            {"1 kg/hr gpm", "needs a fluid"},
            {"1 scfm kg/hr", "needs a fluid"},
            {"1 scfm cfm", "needs a fluid"},
            {"1 scfm kg/hr --fluid Sample -t 300 -p 9 --temperature-unit K", "measure of gas"},
            {"1 m kPa --fluid Sample", "-t TEMP -p PRES"},
            {"1 m kPa -t 20 -p 1", "--fluid"},
            {"1 m ft", "pressure and of length"},
            {"1 psi ft/s", "no conversion"},
            {"1 psi furlong", "units of pressure are psi, kPa, bar"},
            {"1 furlong fathom", "hydrofacts units"},
            {"1 psi bar --measure velocity", "m/s, ft/s"},
            {"1 OTHER gpm", "OTHER"},
            {"-300 C K", "absolute zero"},
            {"1.5.2 psi bar", "\"1.5.2\" is not a number"},
        });
    EXPECT_EQ(Run("convert 1 m kPa --fluid Sample -t -99 -p 0").status, 3);
}

TEST_F(UnitsCommand, TellsWhatOneOfAUnitIs) {
    const auto flow = RunForJson("units Flow")["units"];
    EXPECT_EQ(flow[9]["factor"], 4.4028675);
    EXPECT_EQ(flow[9]["base"], "US gpm");
    EXPECT_NEAR(flow[14]["factor"], 3600.0, 1e-6);  // kg/sec in kg/hr
    EXPECT_EQ(flow[14]["base"], "kg/hr");
    EXPECT_EQ(flow[18]["base"], "scfm");
    EXPECT_FALSE(flow[25].contains("factor"));
    EXPECT_THAT(Run("units pressure").out, HasSubstr("ft H2O  12  head of a fluid\n"));
}

// U.S. Standard Atmosphere 1976: 101.325 kPa at sea level, 84.556 kPa at 1500 m, 12.2277 psi at
// 5000 ft, 106.22 kPa at -400 m.
TEST_F(ElevationCommand, TellsTheStandardAtmosphereWithinItsLimits) {
    const auto pressure = [&](const std::string& arguments) -> double {
        return RunForJson("elevation " + arguments)["pressure"];
    };
    EXPECT_NEAR(pressure("0 m --pressure-unit kpa"), 101.325, 0.01);
    EXPECT_NEAR(pressure("1500 m"), 0.84556, 0.0001);
    EXPECT_NEAR(pressure("5000 ft"), 12.2277, 0.002);
    EXPECT_NEAR(pressure("-400 m --pressure-unit mmHg"), 106.22 / 0.133322387, 0.2);
    for (const char* inside : {"-10000 ft", "15000 ft", "-3.048 km", "4572 m"}) {
        EXPECT_GT(pressure(inside), 0.0) << inside;
    }
    const Outcome outside = Run("elevation -10001 ft");
    EXPECT_EQ(outside.status, 3);
    EXPECT_EQ(outside.out, "");
    EXPECT_THAT(outside.err, HasSubstr("from -10000 to 15000 ft"));
    ExpectRefused("elevation 10 psi", "m, km, cm, mm, in, ft, yd, mi");
    ExpectRefused("elevation 10k m", "not a number");
    ExpectRefused("elevation 10 m --pressure-unit ft", "head of fluid");
}

}  // namespace
