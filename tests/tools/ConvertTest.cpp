#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;

class ConvertCommand : public SampleTables {
  protected:
    double Result(const std::string& arguments) {
        return RunForJson("convert " + arguments)["result"];
    }
};

// By the definitions of the units; the flow ratios are those of the catalog.
TEST_F(ConvertCommand, ConvertsWithoutAFluid) {
    const struct {
        const char* arguments;
        double expected;
    } cases[] = {
        {"1 in mm --measure length", 25.4},
        {"-40 F C", -40.0},
        {"212 degF degC", 100.0},
        {"-.5 m cm", -50.0},
        {"+5 bar kPa", 500.0},
        {"1e2 mm m --measure HEAD", 0.1},
        {"1 psi bar", 0.06894757293168361},
        {"4.4028675 gpm m3/hr", 1.0},
        {"3600 kg/hr kg/s", 1.0},
        {"2 sg kg/m3", 1994.4},
        {"1 ft2 in2", 144.0},
        {"3 cP cP", 3.0},
        {"0 scfm scfh", 0.0},
    };
    for (const auto& row : cases) {
        EXPECT_NEAR(Result(row.arguments), row.expected, 1e-9 * std::abs(row.expected) + 1e-12)
            << row.arguments;
    }
}

// A liquid of 950 kg/m³ and a vapor of 0.4009 kg/m³ and 20 kg/kmol.
TEST_F(ConvertCommand, ConvertsByTheDensityOfAFluid) {
    const std::string units = " --temperature-unit K --pressure-unit kPa --absolute";
    const std::string liquid = " --fluid sample -t 300 -p 150" + units;
    const std::string vapor = " --fluid sample -t 300 -p 50" + units;
    const struct {
        std::string arguments;
        double expected;
    } cases[] = {
        {"10 m kPa" + liquid, 950 * 9.80665 * 10 / 1000},
        {"93.163175 kPa \"m H2O\"" + liquid, 10.0},
        {"1 cP cSt" + liquid, 1 / 0.95},
        {"1 cSt cP" + liquid, 0.95},
        {"950 kg/hr m3/hr" + liquid, 1.0},
        {"1 m3/s kg/s" + vapor, 50 * 20 / (8.3144 * 300)},
        {"100 scfm lb/hr" + vapor, 100 * 60 * 0.0764 * 20 / 28.9586},
    };
    for (const auto& row : cases) {
        EXPECT_NEAR(Result(WithTables(row.arguments)), row.expected, 1e-3 * row.expected)
            << row.arguments;
    }
    EXPECT_THAT(Run(WithTables("convert 1 cP cSt" + liquid)).out,
                HasSubstr("Sample, a liquid at 300 K and 150 kPa absolute: 950.0 kg/m\u00B3"));
}

TEST_F(ConvertCommand, RefusesWhatHasNoAnswer) {
    const struct {
        const char* arguments;
        const char* message;
    } cases[] = {
        {"10 m kPa", "joined by the fluid's density"},
        {"0 psi ft", "needs a fluid"},
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
        {"1 psi bar --measure weight", "temperature, pressure, flow"},
        {"1 OTHER gpm", "OTHER"},
        {"1 gpm other", "OTHER"},
        {"-300 C K", "absolute zero"},
        {"1.5.2 psi bar", "\"1.5.2\" is not a number"},
        {"nan psi bar", "\"nan\" is not a number"},
        {"1e999 psi bar", "not a number"},
    };
    for (const auto& row : cases) {
        ExpectRefused(WithTables(std::string("convert ") + row.arguments), row.message);
    }
    EXPECT_EQ(Run(WithTables("convert 1 m kPa --fluid Sample -t -99 -p 0")).status, 3);
}

}  // namespace
