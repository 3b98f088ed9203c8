// Loading a pipe table, what a copy of one owns, and lookups in its sizes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hydrofacts/pipe/CPipeTable.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

using ::testing::ElementsAre;

// Welded and seamless steel pipe, ASME B36.10M: inches and millimetres are two published sets.
constexpr const char* kSteel =
    "S|\"Steel\"\nV|\"1.0\"|x|1|9\nR|0.0018|0.0457|140\nZ|40|1|25|1.049|0.133|26.64|3.38\n"
    "Z|40|2|50|2.067|0.154|52.48|3.91\nZ|40|3|80|3.068|0.216|77.92|5.49\n";

// A host's own class sees the rows.
class OpenTable : public CPipeTable {
  public:
    using CPipeTable::CPipeTable;

    std::vector<double> Sizes() const {
        std::vector<double> sizes;
        for (auto* row = pipe_list; row != nullptr; row = row->next) sizes.push_back(row->nominal);
        return sizes;
    }
    const t_pipe_size& First() const { return *pipe_list; }
};

class PipeTable : public ::testing::Test {
  protected:
    void Write(const std::string& name, std::string_view lines) const {
        folder.Write(name, TableText(lines));
    }
    OpenTable Load(HF_UNITS units, const char* material, const char* schedule) const {
        OpenTable table(units);
        EXPECT_TRUE(table.LoadMaterial(folder.Path().c_str(), material));
        EXPECT_TRUE(table.LoadPipeList(schedule, nullptr));
        return table;
    }
    TempFolder folder;
};

TEST_F(PipeTable, ChangeOfTheSystemReadsItsColumns) {
    Write("Steel.PTBL", kSteel);
    OpenTable table = Load(HF_US, "Steel", "40");
    EXPECT_EQ(table.GetAbsRoughnessValue().unit, HF_LEN_IN);
    EXPECT_THAT(table.Sizes(), ElementsAre(1, 2, 3));
    EXPECT_EQ(table.First().second_dim, 0.133);

    table.SetPipeUnit(HF_METRIC, nullptr);
    EXPECT_EQ(table.GetAbsRoughness(), 0.0457);
    EXPECT_EQ(table.GetAbsRoughnessValue().unit, HF_LEN_MM);
    EXPECT_THAT(table.Sizes(), ElementsAre(25, 50, 80));
    EXPECT_EQ(table.First().inside_dia, 26.64);
    EXPECT_EQ(table.First().second_dim, 3.38);

    Write("Steel.PTBL", "S|\"Steel\"\n");
    table.SetPipeUnit(HF_US, nullptr);
    EXPECT_FALSE(table.IsValid());
    EXPECT_EQ(table.GetAbsRoughness(), 0.0);
}

TEST_F(PipeTable, MaterialRecordGivesWhatItHas) {
    struct Case {
        const char* lines;
        HF_UNITS units;
        bool loads;
        double roughness, c;
    };
    // 0.0018 and 140, or 0.0457, are what the object had from Steel before.
    const Case cases[] = {
        {"Z|40|1|2|3|4|5|6\nR|0.5|12.7|150\n", HF_METRIC, true, 12.7, 150},
        {"R|0.5|12.7\n", HF_US, true, 0.5, 0},
        {"R|smooth|12.7|150", HF_US, true, 0.0018, 150},
        {"R|0.5\n", HF_METRIC, true, 0.0457, 0},
        {"r|0.5|12.7|150\n", HF_US, false, 0.0018, 140},
    };
    Write("Steel.PTBL", kSteel);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.lines);
        OpenTable table = Load(c.units, "Steel", "40");
        Write("Odd.PTBL", c.lines);
        EXPECT_EQ(table.LoadMaterial(folder.Path().c_str(), "Odd"), c.loads);
        EXPECT_EQ(table.GetAbsRoughness(), c.roughness);
        EXPECT_EQ(table.GetHWC(), c.c);
        EXPECT_FALSE(table.IsValid());
    }
}

TEST_F(PipeTable, ScheduleEndsWhereItsRowsEnd) {
    struct Case {
        std::string lines;
        bool loads;
        std::vector<double> sizes;
    };
    const std::string row = "Z|40|1|1|1|1|1|1";
    const Case cases[] = {
        {row + "\nZ|80|2|2|2|2|2|2\nZ|40|3|3|3|3|3|3\n", true, {1}},
        {row + "\n* remark\nZ|40|3|3|3|3|3|3\n", true, {1}},
        {"z|40|1|1|1|1|1|1\nZ\n*|x\nZ|40|3|3|3|3|3|3\nZ|40|2|2|2|2|2|2", true, {3}},
        {row + "\nZ\nZ|40|3|3|3|3|3|3\n", false, {1}},
        {row + "\nZ|40|0|2|2|2|2|2\n", false, {1}},
        {row + "\nZ|40|2|2|abc|2|2|2\n", false, {1}},
        {"Z|40|1||1|1|1|1|1\nZ|40||2|2|2|2|2\n", true, {1, 2}},
        {"Z|40S|1|1|1|1|1|1\nZ|4|1|1|1|1|1|1\n", false, {}},
        {row + std::string(200, '1') + "\nZ|40|2|2|2|2|2|2\n", true, {1, 2}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.lines);
        Write("Odd.PTBL", "R|1|1|1\n" + c.lines);
        OpenTable table(HF_US);
        ASSERT_TRUE(table.LoadMaterial(folder.Path().c_str(), "Odd"));
        EXPECT_EQ(table.LoadPipeList("40", nullptr), c.loads);
        EXPECT_EQ(table.Sizes(), c.sizes);
    }
}

TEST_F(PipeTable, NamesAreExactAndBounded) {
    const std::string longest(31, 'n');
    const std::string rows = "R|1|1|1\nZ|Std|1|1|1|1|1|1\nZ|" + longest + "|2|2|2|2|2|2\n";
    Write("Steel.ptbl", rows + "Z|" + longest + "n|3|3|3|3|3|3\n");
    OpenTable table = Load(HF_US, "Steel", "Std");
    EXPECT_TRUE(table.LoadPipeList(table.GetScheduleName(), nullptr));
    for (const std::string& name : {std::string("STD"), std::string(), longest + "n"}) {
        EXPECT_FALSE(table.LoadPipeList(name.c_str(), nullptr));
        EXPECT_FALSE(table.IsValid());
    }
    EXPECT_TRUE(table.LoadPipeList(longest.c_str(), nullptr));
    EXPECT_FALSE(table.LoadMaterial(std::string(300, 'd').c_str(), "Steel"));

    Write(longest + "nnn.PTBL", kSteel);
    EXPECT_TRUE(table.LoadMaterial(folder.Path().c_str(), (longest + "nnn").c_str()));
    EXPECT_EQ(table.GetMaterialName(), longest);
}

TEST_F(PipeTable, CopiesOwnTheirRows) {
    constexpr std::size_t kRows = 200000;  // too many for a release that recurses
    std::string lines = "R|1|1|1\n";
    for (std::size_t i = 0; i < kRows; ++i) lines += "Z|40|1|1|1|1|1|1\n";
    Write("Long.PTBL", lines);
    OpenTable source = Load(HF_METRIC, "Long", "40");
    OpenTable target(HF_US);
    target = source;
    source.ClearPipeList();
    const OpenTable& same = target;
    target = same;
    EXPECT_EQ(target.Sizes().size(), kRows);
}

TEST_F(PipeTable, LookupsCompareExactlyAndTakeTheLargerOfTwoNearest) {
    Write("T.PTBL",
          "R|1|1\nZ|40|1|10|1.25|1|11|1\nZ|40|2|20|2.25|1|21|1\nZ|40|3|30|3.5|1|31|1\n"
          "Z|40|3|30|3.6|1|32|1\n");
    OpenTable table = Load(HF_US, "T", "40");
    const auto lookUp = [&table](double x) {
        return std::vector{table.PipeDia(x), table.PipeSize(x), table.NextSize(x),
                           table.PrevSize(x)};
    };
    EXPECT_THAT(lookUp(0.5), ElementsAre(0, 1, 1, 0));
    EXPECT_THAT(lookUp(1), ElementsAre(1.25, 1, 2, 0));
    EXPECT_THAT(lookUp(1.75), ElementsAre(0, 2, 2, 1));
    EXPECT_THAT(lookUp(2), ElementsAre(2.25, 2, 3, 1));
    EXPECT_THAT(lookUp(2.0000001), ElementsAre(0, 2, 3, 2));
    EXPECT_THAT(lookUp(3), ElementsAre(3.5, 3, 0, 2));
    EXPECT_THAT(lookUp(9), ElementsAre(0, 3, 0, 3));
    for (const char* text : {"2", "2.00", " 2 in"}) EXPECT_EQ(table.PipeDia(text), 2.25);
    for (const char* text : {"", "(2)", "2.5"}) EXPECT_EQ(table.PipeDia(text), 0.0);

    table.SetPipeUnit(HF_METRIC, nullptr);
    const UnitValue<HF_LENGTH, 0> found = table.PipeDia(UnitValue<7, 0>(HF_LEN_CM, 2.0));
    EXPECT_EQ(found.unit, HF_LEN_MM);
    EXPECT_EQ(found.value, 21.0);
    EXPECT_EQ(table.PipeDia(UnitValue<7, 0>(HF_LEN_IN, 2.0)).value, 0.0);

    table.ClearPipeList();
    EXPECT_THAT(lookUp(20), ElementsAre(0, 0, 0, 0));
}

}  // namespace
