#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class PipeCommand : public OwnTables {
  protected:
    // Figures that tell the columns apart: inside and outside diameters in in, then in mm.
    PipeCommand() {
        Write("Sample Pipe.PTBL",
              TableText("S|\"Sample pipe\"\nV|\"2.0\"|test|1|7\nR|0.002|0.05|120\n"
                        "Z|40|0.5|15|0.6|0.8|16|20\nZ|40|2|50|2|2.5|52|60\n"
                        "Z|40|2.5|65|3|3.5|64|73\nZ|Type K|2|50|1.5|1.6|40|41\n"));
    }
    nlohmann::json Pipe(const std::string& arguments) {
        return RunForJson("pipe \"sample pipe\" " + arguments);
    }
};

TEST_F(PipeCommand, ListsMaterialsThatHaveTheUnits) {
    Write("No metric.PTBL", TableText("R|0.001\nZ|1|1|25|1|2|25|50\n"));
    Write("Broken.PTBL", "no table at all\n");
    const auto us = RunForJson("pipes")["materials"];
    ASSERT_EQ(us.size(), 2U);
    EXPECT_EQ(us[0]["hazen_williams_c"], nullptr);

    const Outcome metric = Run("pipes --units METRIC");
    EXPECT_EQ(metric.status, 0);
    EXPECT_THAT(metric.out, HasSubstr("ROUGHNESS (mm)"));
    EXPECT_THAT(metric.out, HasSubstr("Sample Pipe          2  0.05            120  2.0"));
    EXPECT_THAT(metric.out, Not(HasSubstr("No metric")));
    EXPECT_THAT(metric.err, HasSubstr("No metric.PTBL: no roughness in mm."));
    EXPECT_THAT(metric.err, HasSubstr("Broken.PTBL: not a valid pipe table."));
}

TEST_F(PipeCommand, GivesProgramsSchedulesAndSizes) {
    const auto material = Pipe("--units metric");
    EXPECT_EQ(material["roughness"], 0.05);
    ASSERT_EQ(material["schedules"].size(), 2U);
    EXPECT_EQ(material["schedules"][1]["schedule"], "Type K");
    EXPECT_EQ(material["schedules"][1]["sizes"][0]["inside_diameter"], 40.0);
    EXPECT_EQ(Pipe("40 65 --units metric")["next_size"], nullptr);
}

TEST_F(PipeCommand, FindsSizesBesideAndNearest) {
    const struct {
        const char* arguments;
        double nominal;
    } cases[] = {
        {"40 1/2", 0.5},
        {"40 \"2 1/2\"", 2.5},
        {"40 2-1/2", 2.5},
        {"40 1/2 --next", 2.0},
        {"40 2.5 --previous", 2.0},
        {"40 1 --next", 2.0},        // none of the sizes itself
        {"40 99 --previous", 2.5},   // above all of them
        {"40 --diameter 2.4", 2.0},  // between 2 and 3
        {"40 --diameter 2.5", 2.5},  // the larger one at equal distance
        {"40 --diameter 0.01", 0.5},
        {"40 --diameter 60 --units metric", 65.0},  // between 52 and 64
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Pipe(row.arguments)["nominal"], row.nominal) << row.arguments;
    }
}

TEST_F(PipeCommand, SaysWhatIsNearOrMakesNoSense) {
    ExpectRefused("pipe smaple", "no pipe material \"smaple\" in ");
    ExpectRefused("pipe \"Smaple Pipe\"", "did you mean Sample Pipe?");
    ExpectAllRefused("pipe \"sample pipe\" ",
                     {
                         {"\"type l\"", "did you mean Type K?"},
                         {"80", "no schedule \"80\"; its schedules are 40 and Type K."},
                         {"40 0.1", "the smallest is 0.5 in."},
                         {"40 65", "the largest is 2.5 in; with --units metric it has 65 mm."},
                         {"40 2.5 --next", "has no size above 2.5 in."},
                         {"40 0.5 --previous", "has no size below 0.5 in."},
                         {"40 two", "\"two\" is not a size"},
                         {"40 -2", "\"-2\" is not a size"},
                         {"40 1/0", "\"1/0\" is not a size"},
                         {"40 1//2", "\"1//2\" is not a size"},
                         {"40 --next", "go on from a SIZE"},
                         {"40 2 --next --previous", "not both"},
                         {"--diameter 2", "say which"},
                         {"40 2 --diameter 2", "leave SIZE out"},
                         {"40 --diameter 0", "0 is not above zero"},
                     });
}

// A part of a schedule would give wrong neighbours, and a size "nan" is found by no number.
TEST_F(PipeCommand, DamagedSchedulesAreNamed) {
    Write("Damaged.PTBL", TableText("R|0.002|0.05|120\nZ|10|2|50|2|2.5|52|60\nZ|10|3|80|0|3|0|80\n"
                                    "Z|40|nan|50|2|2.5|52|60\nZ|80|2|50|2|2.5|52|60\n"));
    const Outcome outcome = Run("pipe Damaged");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("\n80 "));
    EXPECT_THAT(outcome.out, Not(HasSubstr("\n10 ")));
    EXPECT_THAT(outcome.err, HasSubstr("Damaged.PTBL: schedule 10 has a row that can't be used."));
    ExpectRefused("pipe Damaged 10 2", "schedule 10 has a row that can't be used");
    ExpectRefused("pipe Damaged 40 --diameter 2", "Damaged.PTBL: schedule 40 has a ");
    Write("Empty.PTBL", TableText("R|0.002|0.05|120\n"));
    ExpectRefused("pipe Empty 40", "Empty.PTBL: no schedules");
}

TEST_F(PipeCommand, ASecondDimensionThatIsNoDiameterHasNoWall) {
    Write("Walls.PTBL", TableText("R|0.002|0.05|120\nZ|40|2|50|2|0.25|52|4\n"));
    const auto json = RunForJson("pipe Walls 40 2");
    EXPECT_EQ(json["second_dimension"], 0.25);
    EXPECT_FALSE(json.contains("wall"));
    EXPECT_THAT(Run("pipe Walls 40").out, HasSubstr("INSIDE (in)  SECOND (in)\n"));
}

}  // namespace
