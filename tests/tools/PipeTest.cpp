#include <vector>

#include "tests/tools/SampleTables.h"
#include "tools/Lengths.h"

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// Figures that tell the columns apart: inside and outside diameters in in, then in mm.
const std::string kSamplePipe = TableText(
    "S|\"Sample pipe, 25 \xB0"
    "C\"\nV|\"2.0\"|test|1|7\nR|0.002|0.05|120\n"
    "Z|40|0.5|15|0.6|0.8|16|20\nZ|40|2|50|2|2.5|52|60\nZ|40|2.5|65|3|3.5|64|73\n"
    "Z|Type K|2|50|1.5|1.6|40|41\n");

class PipeCommand : public CommandRunner {
  protected:
    PipeCommand() {
        std::filesystem::create_directory(m_folder.Path("tables"));
        Write("Sample Pipe", kSamplePipe);
    }
    void Write(const std::string& material, const std::string& text) {
        m_folder.Write("tables/" + material + ".PTBL", text);
    }
    std::string Line(const std::string& arguments) const {
        return arguments + " --tables \"" + m_folder.Path("tables") + "\"";
    }
    nlohmann::json Pipe(const std::string& arguments) {
        return RunForJson(Line("pipe \"sample pipe\" " + arguments));
    }
    void ExpectPipeRefused(const std::string& arguments, const std::string& message) {
        ExpectRefused(Line("pipe \"sample pipe\" " + arguments), message);
    }
};

TEST_F(PipeCommand, ListsMaterialsInBothUnitSystems) {
    Write("No metric", TableText("R|0.001\nZ|1|1|25|1|2|25|50\n"));
    Write("Broken", "no table at all\n");
    const auto us = RunForJson(Line("pipes"));
    ASSERT_EQ(us["materials"].size(), 2U);
    EXPECT_EQ(us["units"]["roughness"], "in");
    EXPECT_EQ(us["materials"][0]["hazen_williams_c"], nullptr);
    const auto sample = us["materials"][1];
    EXPECT_EQ(sample["material"], "Sample Pipe");
    EXPECT_EQ(sample["schedules"], 2);
    EXPECT_EQ(sample["roughness"], 0.002);
    EXPECT_EQ(sample["hazen_williams_c"], 120.0);
    EXPECT_EQ(sample["title"],
              "Sample pipe, 25 \u00B0"
              "C");

    const Outcome metric = Run(Line("pipes --units METRIC"));
    EXPECT_EQ(metric.status, 0);
    EXPECT_THAT(metric.out, HasSubstr("ROUGHNESS (mm)"));
    EXPECT_THAT(metric.out, HasSubstr("Sample Pipe          2  0.05            120  2.0"));
    EXPECT_THAT(metric.out, Not(HasSubstr("No metric")));
    EXPECT_THAT(metric.err, HasSubstr("No metric.PTBL: no roughness in mm."));
    EXPECT_THAT(metric.err, HasSubstr("Broken.PTBL: not a valid pipe table."));
}

TEST_F(PipeCommand, ShowsTheSchedulesOfAMaterial) {
    const Outcome outcome = Run(Line("pipe \"SAMPLE pipe\""));
    EXPECT_THAT(
        outcome.out,
        HasSubstr("Sample Pipe: roughness 0.002 in, Hazen-Williams C 120\nSample pipe, 25 "));
    EXPECT_THAT(outcome.out, HasSubstr("FROM (in)  TO (in)\n40            3  0.5        2.5\n"));
    const auto json = Pipe("--units metric");
    ASSERT_EQ(json["schedules"].size(), 2U);
    EXPECT_EQ(json["schedules"][1]["schedule"], "Type K");
    EXPECT_EQ(json["schedules"][1]["sizes"][0]["inside_diameter"], 40.0);
    EXPECT_EQ(json["roughness"], 0.05);
}

// Flow area pi / 4 x 2² = 3.14159 in², relative roughness 0.002 / 2.
TEST_F(PipeCommand, ShowsASize) {
    const auto us = Pipe("40 2");
    EXPECT_EQ(us["schedule"], "40");
    EXPECT_EQ(us["nominal"], 2.0);
    EXPECT_EQ(us["inside_diameter"], 2.0);
    EXPECT_EQ(us["outside_diameter"], 2.5);
    EXPECT_EQ(us["wall"], 0.25);
    EXPECT_NEAR(us["flow_area"], 3.14159265, 1e-8);
    EXPECT_NEAR(us["relative_roughness"], 0.001, 1e-15);
    EXPECT_EQ(us["next_size"], 2.5);
    EXPECT_EQ(us["previous_size"], 0.5);
    EXPECT_EQ(us["units"]["flow_area"], "in\u00B2");

    const Outcome metric = Run(Line("pipe \"sample pipe\" 40 65 --units metric"));
    EXPECT_EQ(metric.status, 0);
    EXPECT_THAT(metric.out, HasSubstr("size 65 mm: inside diameter 64 mm\n"));
    EXPECT_THAT(metric.out, HasSubstr("Wall              4.5 mm\n"));
    EXPECT_THAT(metric.out, HasSubstr("3217 mm\u00B2"));  // pi / 4 x 64² = 3216.99
    EXPECT_THAT(metric.out, HasSubstr("Next size         none\nPrevious size     50 mm\n"));
}

TEST_F(PipeCommand, FindsSizesBesideAndNearest) {
    const struct {
        const char* arguments;
        double nominal;
    } cases[] = {
        {"40 1/2", 0.5},
        {"40 \"2 1/2\"", 2.5},
        {"40 1/2 --next", 2.0},
        {"40 2.5 --previous", 2.0},
        {"40 1 --next", 2.0},        // none of the sizes itself
        {"40 99 --previous", 2.5},   // above all of them
        {"40 --diameter 2.4", 2.0},  // between 2 and 3
        {"40 --diameter 2.5", 2.5},  // the larger one at equal distance
        {"40 --diameter 0.01", 0.5},
        {"40 --diameter 60 --units metric", 65.0},  // between 52 and 64
    };
    for (const auto& row : cases) EXPECT_EQ(Pipe(row.arguments)["nominal"], row.nominal);
    EXPECT_EQ(Pipe("40 --diameter 2.4")["nearest_to"], 2.4);
    EXPECT_THAT(Run(Line("pipe \"sample pipe\" 40 --diameter 2.4")).out,
                HasSubstr("2 in, 0.4 in less than 2.4\n"));
}

TEST_F(PipeCommand, SaysWhatIsNear) {
    ExpectRefused(Line("pipe smaple"), "no pipe material \"smaple\" in ");
    ExpectRefused(Line("pipe \"Smaple Pipe\""), "did you mean Sample Pipe?");
    ExpectPipeRefused("\"type l\"", "did you mean Type K?");
    ExpectPipeRefused("80", "no schedule \"80\"; its schedules are 40 and Type K.");
    ExpectPipeRefused("40 2.2", "no size 2.2 in; its neighbours are 2 and 2.5 in.");
    ExpectPipeRefused("40 65", "the largest is 2.5 in; with --units metric it has 65 mm.");
    ExpectPipeRefused("40 0.1", "the smallest is 0.5 in.");
    ExpectPipeRefused("40 2.5 --next", "has no size above 2.5 in.");
    ExpectPipeRefused("40 0.5 --previous", "has no size below 0.5 in.");
}

TEST_F(PipeCommand, RefusesWhatMakesNoSense) {
    ExpectPipeRefused("40 two", "\"two\" is not a size");
    ExpectPipeRefused("40 -2", "\"-2\" is not a size");
    ExpectPipeRefused("40 --next", "go on from a SIZE");
    ExpectPipeRefused("40 2 --next --previous", "not both");
    ExpectPipeRefused("--diameter 2", "say which");
    ExpectPipeRefused("40 2 --diameter 2", "leave SIZE out");
    ExpectPipeRefused("40 --diameter 0", "0 is not above zero");
    ExpectPipeRefused("40 --diameter 2,5", "the decimal sign is a point");
    ExpectPipeRefused("40 2 --units imperial", "imperial");
    ExpectRefused("pipes --tables \"" + m_folder.Path() + "\"", "holds no pipe table (*.PTBL)");
}

// A part of a schedule would give wrong neighbours, and a size "nan" is found by no number.
TEST_F(PipeCommand, DamagedSchedulesAreNamed) {
    Write("Damaged", TableText("R|0.002|0.05|120\nZ|10|2|50|2|2.5|52|60\nZ|10|3|80|0|3|0|80\n"
                               "Z|40|nan|50|2|2.5|52|60\nZ|80|2|50|2|2.5|52|60\n"));
    const Outcome outcome = Run(Line("pipe Damaged"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("\n80 "));
    EXPECT_THAT(outcome.out, Not(HasSubstr("\n10 ")));
    EXPECT_THAT(outcome.err, HasSubstr("Damaged.PTBL: schedule 10 has a row that can't be used."));
    ExpectRefused(Line("pipe Damaged 10 2"), "schedule 10 has a row that can't be used");
    ExpectRefused(Line("pipe Damaged 40 --diameter 2"), "Damaged.PTBL: schedule 40 has a ");
    Write("Empty", TableText("R|0.002|0.05|120\n"));
    ExpectRefused(Line("pipe Empty 40"), "Empty.PTBL: no schedules");
}

TEST_F(PipeCommand, ASecondDimensionThatIsNoDiameterHasNoWall) {
    Write("Walls", TableText("R|0.002|0.05|120\nZ|40|2|50|2|0.25|52|4\n"));
    const auto json = RunForJson(Line("pipe Walls 40 2"));
    EXPECT_EQ(json["second_dimension"], 0.25);
    EXPECT_FALSE(json.contains("wall"));
    EXPECT_THAT(Run(Line("pipe Walls 40")).out, HasSubstr("INSIDE (in)  SECOND (in)\n"));
}

TEST(NominalSizes, AreNumbersAndFractions) {
    using hydrofacts::command::NominalSizeIn;
    EXPECT_EQ(NominalSizeIn("3/8"), 0.375);
    EXPECT_EQ(NominalSizeIn("2-1/2"), 2.5);
    EXPECT_EQ(NominalSizeIn("1 1/4"), 1.25);
    for (const char* text : {"", "/", "1/", "/2", "1/0", "1 1", "a 1/2", "1/-2", "1//2"}) {
        EXPECT_EQ(NominalSizeIn(text), std::nullopt) << text;
    }
}

}  // namespace
