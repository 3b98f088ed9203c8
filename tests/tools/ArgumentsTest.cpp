#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;

using CommandArguments = SampleTables;

TEST_F(CommandArguments, TakesAnOptionInAllItsForms) {
    const std::string tables = " --tables \"" + m_tables + "\" ";
    m_tables.clear();
    const struct {
        const char* plain;
        const char* other;
    } cases[] = {
        {"fluids --state vapor", "fluids --state=VAPOR"},
        {"fluids --state liquid --json", "--json fluids --state Liquid"},
        {"fluid Sample -t 80 -p 1", "fluid --pressure=1 Sample --temperature 80"},
        {"fluid Sample -t 20 -p 1 --units metric", "fluid -t20 --units Metric -p1 Sample"},
        {"table Sample --json", "table --json -- Sample"},
        {"plot Sample density -p 10 -p 20 --json", "plot --json -p10 Sample --pressure=20 density"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.other);
        const Outcome plain = Run(row.plain + tables);
        const Outcome other = Run(tables + row.other);
        EXPECT_EQ(plain.status, 0) << plain.err;
        EXPECT_EQ(other.status, 0) << other.err;
        EXPECT_EQ(plain.out, other.out);
    }
}

TEST_F(CommandRunner, SaysWhatIsWrongWithTheArguments) {
    ExpectAllRefused(
        "",
        {
            {"fluids --state solid", "--state: solid not in {liquid,vapor}."},
            {"fluids --state", "--state: 1 required liquid|vapor missing."},
            {"fluids --state liquid --state vapor", "--state: At Most 1 required but received 2."},
            {"fluids --stat liquid", "not expected: liquid --stat."},
            {"elevation 1", "UNIT is required."},
            {"convert 1 -psi bar", "TO is required."},
            {"fluid Water -t 20", "--pressure is required."},
            {"check", "FILE is required."},
            // A pressure a time, though it may be repeated.
            {"plot Water density -p 10 20 --json", "not expected: 20."},
            // "/x" is a path, not an option.
            {"units /x", "unknown measure \"/x\"; the measures are temperature, pressure, flow"},
            {"elevatoin 1 m", "did you mean elevation?"},
        });
    const Outcome nothing = Run("");
    EXPECT_EQ(nothing.status, 2);
    EXPECT_THAT(nothing.err, HasSubstr("Usage: hydrofacts"));
}

TEST_F(CommandRunner, HelpsWithEveryCommand) {
    for (const char* command : {"", "fluids", "fluid", "table", "plot", "pipes", "pipe", "valves",
                                "valve", "convert", "units", "elevation", "check"}) {
        const Outcome outcome = Run(std::string(command) + " --help");
        EXPECT_EQ(outcome.status, 0) << command;
        EXPECT_THAT(outcome.out, HasSubstr("Examples:\n  hydrofacts ")) << command;
    }
    EXPECT_THAT(Run("plot --help").out, HasSubstr("\nSet point:\n  -p,--pressure PRES "));
    EXPECT_THAT(Run("--version").out, ::testing::MatchesRegex("hydrofacts .+\\..+\\..+\n"));
}

// 998.25 kg/m³ at 20 °C and 2 bar (IAPWS-95). ASME B36.10M: 2.375 less twice 0.154.
TEST_F(CommandRunner, FindsTheTablesThatItWasBuiltWith) {
    const auto water = RunForJson("fluid water -t 20 -p 1 --units metric");
    EXPECT_NEAR(water["density"], 998.25, 0.0005 * 998.25);
    EXPECT_EQ(RunForJson("pipe \"Steel B36.10M\" 40 2")["inside_diameter"], 2.067);
    EXPECT_THAT(Run("valve Standard Fitting").out, HasSubstr("\nElbow 90 Standard "));
}

}  // namespace
