#include <vector>

#include "tests/tools/SampleTables.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class FluidsCommand : public SampleTables {
  protected:
    std::vector<std::string> Names(const std::string& options) {
        std::vector<std::string> names;
        for (const auto& fluid : RunForJson(WithTables("fluids" + options))) {
            names.push_back(fluid["name"]);
        }
        return names;
    }
};

TEST_F(FluidsCommand, ListsNamesWithoutRegardToCase) {
    EXPECT_THAT(Names(""), ElementsAre("Blend", "Gas only", "oil", "Sample"));
    EXPECT_THAT(Names(" --state liquid"), ElementsAre("Blend", "oil", "Sample"));
    EXPECT_THAT(Names(" --state VAPOR"), ElementsAre("Blend", "Gas only", "Sample"));
}

TEST_F(FluidsCommand, TellsStatesAndHeadLines) {
    const auto oil = RunForJson(WithTables("fluids"))[2];
    EXPECT_EQ(oil["states"], nlohmann::json::array({"liquid"}));
    EXPECT_EQ(oil["title"],
              "Sample at 25 \u00B0"
              "C");
    EXPECT_EQ(oil["version"], "2.1");
    EXPECT_EQ(oil["low_level"], 1.0);
    EXPECT_EQ(oil["high_level"], 7.0);

    const Outcome outcome = Run(WithTables("fluids"));
    EXPECT_THAT(outcome.out, HasSubstr("Blend     liquid, vapor  2.1      1 to 7  Sample at 25"));
    EXPECT_THAT(outcome.out, HasSubstr("Gas only  vapor          2.1      1 to 7  Sample at 25"));
}

TEST_F(FluidsCommand, NamesInvalidTablesAndListsTheOthers) {
    Write("Broken.FTBL", "no table at all\n");
    Write("A name of thirty-one characters.FTBL", SampleTable());
    Write("notes.txt", "not a table");
    const Outcome outcome = Run(WithTables("fluids"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.err, HasSubstr("Broken.FTBL: not a valid fluid table"));
    EXPECT_THAT(outcome.out, HasSubstr("Sample"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("Broken")));
    EXPECT_THAT(outcome.out, Not(HasSubstr("thirty-one")));
}

TEST_F(FluidsCommand, SaysWhichDirectoryIsOfNoUse) {
    const std::string missing = m_folder.Path("nowhere");
    ExpectRefused("fluids --tables \"" + missing + "\"",
                  "nowhere: the table directory can't be read");
    ExpectRefused("fluids --tables \"" + m_folder.Path() + "\"", "holds no fluid table");
    ExpectRefused("fluids --tables \"" + m_folder.Write("file", "") + "\"", "can't be read");
    ExpectRefused("fluids --tables " + std::string(300, 'x'), "too long");
}

TEST_F(CommandRunner, FindsTheTablesThatItWasBuiltWith) {
    const auto water = RunForJson("fluid water -t 20 -p 1 --units metric");
    EXPECT_EQ(water["name"], "Water");
    EXPECT_EQ(water["state"], "liquid");
    // 998.25 kg/m³ and 1.0016 cP at 20 °C and 2 bar (IAPWS-95, IAPWS R12-08).
    EXPECT_NEAR(water["density"], 998.25, 0.0005 * 998.25);
    EXPECT_NEAR(water["viscosity"], 1.0016, 0.005 * 1.0016);
}

TEST_F(CommandRunner, HelpsAndRefuses) {
    for (const char* command : {"", "fluids", "fluid", "table", "plot", "pipes", "pipe", "valves",
                                "valve", "convert", "units", "elevation", "check"}) {
        const Outcome outcome = Run(std::string(command) + " --help");
        EXPECT_EQ(outcome.status, 0) << command;
        EXPECT_THAT(outcome.out, HasSubstr("Examples:\n  hydrofacts ")) << command;
        EXPECT_EQ(outcome.err, "") << command;
    }
    EXPECT_THAT(Run("--help").out, HasSubstr("Exit status:"));
    EXPECT_THAT(Run("--version").out, ::testing::MatchesRegex("hydrofacts .+\\..+\\..+\n"));
    const Outcome nothing = Run("");
    EXPECT_EQ(nothing.status, 2);
    EXPECT_THAT(nothing.err, HasSubstr("Usage: hydrofacts"));
    ExpectRefused("elevatoin 1 m", "did you mean elevation?");
    ExpectRefused("units flow pressure", "pressure");
    ExpectRefused("units --frobnicate", "--frobnicate");
}

}  // namespace
