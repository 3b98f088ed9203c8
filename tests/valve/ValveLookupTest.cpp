// Finding devices by today's names and by the older ones in two parts.

#include <gtest/gtest.h>

#include <string>

#include "hydrofacts/valve/CValveTable.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

constexpr std::int16_t kFitting = 0;
constexpr std::int16_t kBend = 1;
constexpr std::int16_t kValve = 2;

class ValveLookup : public ::testing::Test {
  protected:
    CValveTable Load(std::string_view lines) const {
        folder.Write("T.VTBL", TableText(lines));
        constexpr int kWanted[] = {1, 2, 3, 20, 0};
        CValveTable loaded;
        EXPECT_EQ(loaded.LoadValveTable(folder.Path().c_str(), "T", HF_US, kWanted), 1);
        return loaded;
    }
    TempFolder folder;
    const CValveTable table = Load(
        "Z|Fitting|\"Entrance, Sharp Edged\"|1\nZ|Fitting|\"Entrance, Flush, r/d 0.02\"|1\n"
        "Z|Fitting|\"Mitre, Angle 90\"|2\nZ|Fitting|\"Gate\"|2\n"
        "Z|Bend|\"Elbow, Long radius, r/d 1.5\"|3\nZ|Bend|\"Elbow, Short radius, r/d 1\"|3\n"
        "Z|Bend|\"Elbow\"|3\n"
        "Z|Valve|\"Gate\"|1\nZ|Valve|\"Globe, Angle\"|2\nZ|Valve|\"Globe\"|2\n");
};

std::string NameOf(const CValveType* record) { return record == nullptr ? "none" : record->name; }

TEST_F(ValveLookup, FindPassesOverCaseAndValveDataDoesNot) {
    ASSERT_NE(table.Find("gate"), nullptr);
    EXPECT_EQ(table.Find("gate")->device_type, kFitting);
    EXPECT_EQ(table.Find("Gat"), nullptr);
    EXPECT_EQ(table.Find(nullptr), nullptr);

    EXPECT_EQ(NameOf(table.ValveData("Globe", 2, kValve)), "Globe");
    EXPECT_EQ(NameOf(table.ValveData("", 2, kValve)), "Globe, Angle");
    EXPECT_EQ(NameOf(table.ValveData("globe", 2, kValve)), "none");
    EXPECT_EQ(NameOf(table.ValveData("Globe", 1, kValve)), "none");
    EXPECT_EQ(NameOf(table.ValveData("Globe", 2, kBend)), "none");
    EXPECT_EQ(NameOf(table.ValveData("", 2, 5)), "none");
}

TEST_F(ValveLookup, OlderNamesAreRewrittenAndFound) {
    struct Case {
        const char *name, *subname;
        std::int16_t formula, type;
        const char *rewritten, *found;
    };
    constexpr std::int16_t kNone = 77;
    const Case cases[] = {
        {"Entrance", "Sharp-Edged", kNone, kFitting, "Sharp Edged", "Entrance, Sharp Edged"},
        {"Mitre", "Angle-90", kNone, kFitting, "Angle 90", "Mitre, Angle 90"},
        {"Entrance", "Flush - r/d 0.02", kNone, kFitting, "FFlush, r/d 0.02",
         "Entrance, Flush, r/d 0.02"},
        {"Elbow", "Long - r/d 1.5", kNone, kBend, "Long radius, r/d 1.5",
         "Elbow, Long radius, r/d 1.5"},
        {"Elbow", "Short - r/d 1", kNone, kBend, "Short radius, r/d 1",
         "Elbow, Short radius, r/d 1"},
        {"gLOBE", "VALVE", kNone, kValve, "", "Globe"},
        {"Globe", "angle", kNone, kValve, "angle", "Fixed K"},
        {"Globe", "", 1, kValve, "", "Gate"},
        {"Globe", "", kNone, 9, "", "Fixed K"},
        {"", "Angle", kNone, kValve, "Angle", "Globe, Angle"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.subname);
        char subname[21] = "";
        std::string(c.subname).copy(subname, sizeof subname - 1);
        EXPECT_EQ(NameOf(table.ValveDataV6(c.name, subname, c.formula, c.type)), c.found);
        EXPECT_STREQ(subname, c.rewritten);
    }
}

TEST_F(ValveLookup, LastResortIsTheTablesOwnFixedResistanceOrNothing) {
    char subname[21] = "";
    const CValveTable own = Load("Z|Other|\"First\"|1\nZ|Other|\"Own K\"|20\n");
    EXPECT_EQ(NameOf(own.ValveDataV6("x", subname, 77, kValve)), "Own K");
    const CValveTable empty;
    EXPECT_EQ(empty.Find("Gate"), nullptr);
    EXPECT_EQ(empty.ValveData("", 1, kValve), nullptr);
    EXPECT_EQ(empty.ValveDataV6("Gate", subname, 1, kValve), nullptr);
}

}  // namespace
