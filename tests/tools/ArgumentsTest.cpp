#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;

using CommandArguments = SampleTables;

TEST_F(CommandArguments, TakesAnOptionInAllItsForms) {
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
        const Outcome plain = Run(WithTables(row.plain));
        const Outcome other = Run("--tables \"" + Directory() + "\" " + row.other);
        EXPECT_EQ(plain.status, 0) << plain.err;
        EXPECT_EQ(other.status, 0) << other.err;
        EXPECT_EQ(plain.out, other.out);
    }
}

TEST_F(CommandArguments, SaysWhatIsWrongWithThem) {
    const struct {
        const char* arguments;
        const char* message;
    } cases[] = {
        {"fluids --state solid", "--state: solid not in {liquid,vapor}."},
        {"fluids --state \"\"", "--state:  not in {liquid,vapor}."},
        {"fluids --state", "--state: 1 required liquid|vapor missing."},
        {"fluids --state liquid --state vapor", "--state: At Most 1 required but received 2."},
        {"fluids --stat liquid", "not expected: liquid --stat."},
        {"fluids --tables", "--tables: 1 required DIR missing."},
        {"elevation", "VALUE is required."},
        {"elevation 1", "UNIT is required."},
        {"elevation 1 m 2", "not expected: 2."},
        {"elevation 1 m --pressure-unit", "--pressure-unit: 1 required U missing."},
        {"convert 1 -psi bar", "TO is required."},
        {"fluid Water -t 20", "--pressure is required."},
        {"check", "FILE is required."},
        // A pressure a time, though it may be repeated.
        {"plot Water density -p 10 20 --json", "not expected: 20."},
        {"plot Water density -o a.svg -o b.svg", "--output: At Most 1 required but received 2."},
        // "/x" is a path, not an option.
        {"units /x", "unknown measure \"/x\""},
    };
    for (const auto& row : cases) ExpectRefused(row.arguments, row.message);
}

TEST_F(CommandArguments, AreListedByTheHelp) {
    const std::string help = Run("plot --help").out;
    EXPECT_THAT(help, HasSubstr("  --state liquid|vapor "));
    EXPECT_THAT(help, HasSubstr("\nSet point:\n  -p,--pressure PRES "));
    EXPECT_THAT(help, HasSubstr("\nUnits:\n  --units us|metric "));
    EXPECT_THAT(Run("fluid --help").out, HasSubstr("  -t,--temperature TEMP REQUIRED"));
}

}  // namespace
