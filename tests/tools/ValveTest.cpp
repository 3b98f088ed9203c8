#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;

class ValveCommand : public OwnTables {
  protected:
    ValveCommand() {
        Write("Sample Valves.VTBL",
              TableText("S|\"Sample valves\"\nV|\"2.0\"|test|1|7\n"
                        "Z|Fitting|\"Elbow, \xB0\"|1|0.75|0|0|3\n"
                        "Z|Bend|\"Bend\"|3|1.5|12|90|4\n"
                        "Z|Valve|\"Gate\"|9|0.2|2|50|8\nZ|Valve|\"Gate\"|9|0.4|0.5|15|8\n"
                        "Z|Valve|\"Gate\"|9|0.1|8|200|8\nZ|Valve|\"One Size\"|9|0.3|2|50|8\n"
                        "Z|Other|\"Foreign\"|30000|1|2|3|13\nZ|Other|\"Odd\"|-7|4|5|6|13\n"));
    }
    nlohmann::json Devices(const std::string& arguments) {
        return RunForJson("valve \"sample valves\" " + arguments)["devices"];
    }
};

// Other has two of its own and the three for the user's figures.
TEST_F(ValveCommand, CountsDevicesByTypeInUsableTables) {
    Write("Broken.VTBL", "no table at all\n");
    EXPECT_THAT(Run("valves").err, HasSubstr("Broken.VTBL: not a valid valve table."));
    const auto tables = RunForJson("valves --units metric")["tables"];
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(tables[0]["devices"],
              R"({"Fitting": 1, "Bend": 1, "Valve": 2, "Check Valve": 0, "Other": 5})"_json);
}

TEST_F(ValveCommand, TellsNumbersAndTheirMeaning) {
    const Outcome outcome = Run("valve \"SAMPLE valves\"");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("Elbow, \u00B0"));
    EXPECT_THAT(outcome.out, HasSubstr(" 3  bend by radius     r/d 1.5, n 12, angle 90\n"));
    EXPECT_THAT(outcome.out, HasSubstr("up to 0.5 in: 0.4, 2 in: 0.2, and above: 0.1\n"));
    EXPECT_THAT(outcome.out, HasSubstr("every size: 0.3\n"));
    EXPECT_THAT(outcome.out, HasSubstr("30000  not known here  1, 2, 3\n"));
    EXPECT_THAT(Run("valve \"sample valves\" \"check valve\"").out,
                HasSubstr("No devices of the type Check Valve\n"));
}

TEST_F(ValveCommand, JsonIsComplete) {
    EXPECT_EQ(Devices("").size(), 9U);
    EXPECT_EQ(Devices("bend")[0]["numbers"], R"({"r/d": 1.5, "n": 12, "angle": 90})"_json);
    const auto gate = Devices("Valve --units metric")[0];
    EXPECT_EQ(gate["data"], R"([15, 0.4, 50, 0.2, 9999, 0.1])"_json);
    EXPECT_EQ(gate["rows"][0], R"({"limit": 15, "value": 0.4})"_json);
    EXPECT_EQ(gate["rows"][2], R"({"limit": null, "value": 0.1})"_json);
    const auto foreign = Devices("other")[0];
    EXPECT_EQ(foreign["formula"], 30000);
    EXPECT_EQ(foreign["method"], nullptr);
    EXPECT_EQ(foreign["data"], R"([1, 2, 3])"_json);
}

TEST_F(ValveCommand, SaysWhatIsNear) {
    ExpectRefused("valve \"Smaple Valves\"", "did you mean Sample Valves?");
    ExpectRefused("valve xyz", "`hydrofacts valves` lists what is installed");
    ExpectRefused("valve \"sample valves\" check", "did you mean Check Valve?");
    ExpectRefused("valve \"sample valves\" xyz",
                  "the types are Fitting, Bend, Valve, Check Valve and Other.");
}

}  // namespace
