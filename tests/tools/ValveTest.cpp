#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;

const std::string kSampleValves = TableText(
    "S|\"Sample valves\"\nV|\"2.0\"|test|1|7\n"
    "Z|Fitting|\"Elbow, \xB0\"|1|0.75|0|0|3\n"
    "Z|Bend|\"Bend\"|3|1.5|12|90|4\n"
    "Z|Valve|\"Gate\"|9|0.2|2|50|8\nZ|Valve|\"Gate\"|9|0.4|0.5|15|8\nZ|Valve|\"Gate\"|9|0.1|8|200|"
    "8\n"
    "Z|Valve|\"One Size\"|9|0.3|2|50|8\n"
    "Z|Other|\"Foreign\"|30000|1|2|3|13\nZ|Other|\"Odd\"|-7|4|5|6|13\n");

class ValveCommand : public CommandRunner {
  protected:
    ValveCommand() {
        std::filesystem::create_directory(m_folder.Path("tables"));
        m_folder.Write("tables/Sample Valves.VTBL", kSampleValves);
    }
    std::string Line(const std::string& arguments) const {
        return arguments + " --tables \"" + m_folder.Path("tables") + "\"";
    }
    nlohmann::json Devices(const std::string& arguments) {
        return RunForJson(Line("valve \"sample valves\" " + arguments))["devices"];
    }
};

// Other has two of its own and the three for the user's figures.
TEST_F(ValveCommand, CountsDevicesByType) {
    m_folder.Write("tables/Broken.VTBL", "no table at all\n");
    const Outcome outcome = Run(Line("valves --units metric"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("TABLE          FITTING  BEND  VALVE  CHECK VALVE  OTHER"));
    EXPECT_THAT(outcome.out,
                HasSubstr("Sample Valves        1     1      2            0      5  2.0"));
    EXPECT_THAT(outcome.err, HasSubstr("Broken.VTBL: not a valid valve table."));
    const auto json = RunForJson(Line("valves"))["tables"];
    ASSERT_EQ(json.size(), 1U);
    EXPECT_EQ(json[0]["devices"]["Check Valve"], 0);
    EXPECT_EQ(json[0]["devices"]["Other"], 5);
}

TEST_F(ValveCommand, TellsNumbersAndTheirMeaning) {
    const Outcome outcome = Run(Line("valve \"SAMPLE valves\""));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("Sample Valves: Sample valves (version 2.0)\n"));
    EXPECT_THAT(outcome.out, HasSubstr("Elbow, \u00B0"));
    EXPECT_THAT(outcome.out, HasSubstr(" 3  bend by radius     r/d 1.5, n 12, angle 90\n"));
    EXPECT_THAT(outcome.out, HasSubstr("up to 0.5 in: 0.4, 2 in: 0.2, and above: 0.1\n"));
    EXPECT_THAT(outcome.out, HasSubstr("every size: 0.3\n"));
    EXPECT_THAT(outcome.out, HasSubstr("K = n fT at the angle given"));
    EXPECT_THAT(Run(Line("valve \"sample valves\" VALVE --units metric")).out,
                HasSubstr("up to 15 mm: 0.4, 50 mm: 0.2, and above: 0.1\n"));
}

TEST_F(ValveCommand, JsonIsComplete) {
    const auto bend = Devices("bend");
    ASSERT_EQ(bend.size(), 1U);
    EXPECT_EQ(bend[0]["device_type"], "Bend");
    EXPECT_EQ(bend[0]["formula"], 3);
    EXPECT_EQ(bend[0]["method"], "bend by radius");
    EXPECT_EQ(bend[0]["image"], 4);
    EXPECT_EQ(bend[0]["numbers"], nlohmann::json::parse(R"({"r/d": 1.5, "n": 12, "angle": 90})"));
    const auto gate = Devices("Valve --units metric")[0];
    EXPECT_EQ(gate["data"], nlohmann::json::parse("[15, 0.4, 50, 0.2, 9999, 0.1]"));
    EXPECT_EQ(gate["rows"][0], nlohmann::json::parse(R"({"limit": 15, "value": 0.4})"));
    EXPECT_EQ(gate["rows"][2], nlohmann::json::parse(R"({"limit": null, "value": 0.1})"));
    EXPECT_EQ(Devices("").size(), 9U);
}

TEST_F(ValveCommand, ShowsFormulaNumbersOfOtherHosts) {
    const auto other = Devices("other");
    ASSERT_EQ(other.size(), 5U);
    EXPECT_EQ(other[0]["formula"], 30000);
    EXPECT_EQ(other[0]["method"], nullptr);
    EXPECT_EQ(other[0]["data"], nlohmann::json::parse("[1, 2, 3]"));
    EXPECT_EQ(other[1]["formula"], -7);
    EXPECT_EQ(other[2]["name"], "Fixed K");
    const Outcome outcome = Run(Line("valve \"sample valves\" Other"));
    EXPECT_THAT(outcome.out, HasSubstr("30000  not known here  1, 2, 3\n"));
    EXPECT_THAT(outcome.out, HasSubstr("20  user's K\n"));
}

TEST_F(ValveCommand, SaysWhatIsNear) {
    ExpectRefused(Line("valve \"Smaple Valves\""), "did you mean Sample Valves?");
    ExpectRefused(Line("valve xyz"), "`hydrofacts valves` lists what is installed");
    ExpectRefused(Line("valve \"sample valves\" check"), "did you mean Check Valve?");
    ExpectRefused(Line("valve \"sample valves\" xyz"),
                  "the types are Fitting, Bend, Valve, Check Valve and Other.");
    ExpectRefused("valves --tables \"" + m_folder.Path() + "\"", "holds no valve table (*.VTBL)");
    EXPECT_THAT(Run(Line("valve \"sample valves\" \"check valve\"")).out,
                HasSubstr("No devices of the type Check Valve\n"));
}

// K of a standard elbow is 30 fT: 30 x 0.019 at 2 in. (Crane TP-410).
TEST_F(CommandRunner, FindsThePipesAndValvesThatItWasBuiltWith) {
    const auto pipe = RunForJson("pipe \"Steel B36.10M\" 40 2");
    EXPECT_EQ(pipe["inside_diameter"], 2.067);  // ASME B36.10M: 2.375 less twice 0.154
    const auto devices = RunForJson("valve Standard Fitting")["devices"];
    const auto elbow = std::find_if(devices.begin(), devices.end(), [](const auto& device) {
        return device["name"] == "Elbow 90 Standard";
    });
    ASSERT_NE(elbow, devices.end());
    EXPECT_EQ((*elbow)["rows"][5], nlohmann::json::parse(R"({"limit": 2, "value": 0.57})"));
}

}  // namespace
