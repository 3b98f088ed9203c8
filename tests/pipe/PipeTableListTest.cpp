// Lists of the installed pipe tables, of schedules and of sizes. A result is written here as the
// number returned and the text; "-" is a buffer that is left as it was.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <memory>
#include <string>

#include "hydrofacts/pipe/CPipeTableList.h"
#include "quillbase/Directory.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

using ::testing::AnyOf;

// Calls a listing with a buffer of exactly that many bytes, so that a sanitizer sees one too many.
template <class... Arguments>
std::string List(int size, HF_UNITS units,
                 int (CPipeTableList::*list)(char*, int, Arguments...) const,
                 std::type_identity_t<Arguments>... arguments) {
    const auto buffer = std::make_unique<char[]>(static_cast<std::size_t>(size));
    buffer[0] = '-';
    const int result = (CPipeTableList(units).*list)(buffer.get(), size, arguments...);
    return std::to_string(result) + ' ' + buffer.get();
}

class PipeTableList : public ::testing::Test {
  protected:
    void SetUp() override { SetDirectory(DIR_TABLES, folder.Path().c_str()); }
    void TearDown() override { SetDirectory(DIR_TABLES, nullptr); }

    void Write(const std::string& name, std::string_view lines) const {
        folder.Write(name + ".PTBL", TableText(lines));
    }
    static std::string Tables(int size, double high, double low, HF_UNITS units = HF_US) {
        return List(size, units, &CPipeTableList::ListPipeTables, high, low);
    }
    static std::string Schedules(int size, const char* table = "T") {
        return List(size, HF_US, &CPipeTableList::ListPipeSchedules, table);
    }
    static std::string Sizes(int size, const char* schedule, HF_UNITS units = HF_US) {
        return List(size, units, &CPipeTableList::ListPipeSizes, "T", schedule);
    }
    const CPipeTableList list{HF_US};
    TempFolder folder;
};

TEST_F(PipeTableList, TablesNeedRoomForNameTabAndZero) {
    constexpr const char* kGood = "V|\"1\"|x|1|9\nR|1|1|1\n";
    EXPECT_EQ(list.SizePipeTables(), 2);
    EXPECT_EQ(Tables(20, 0, 0), "0 -");
    for (const char* name : {"Brass", "Copper"}) Write(name, kGood);
    EXPECT_EQ(list.SizePipeTables(), 15);
    EXPECT_THAT(Tables(14, 0, 0), AnyOf("2 Brass\tCopper", "2 Copper\tBrass"));
    EXPECT_THAT(Tables(13, 0, 0), AnyOf("-1 Brass\t", "-1 Copper\t"));
    EXPECT_EQ(Tables(6, 0, 0), "-1 -");
    for (const int size : {-1, 0, 6, 14, INT_MAX}) {
        const std::unique_ptr<char[]> text(list.ListPipeTables(size, 0.0, 0.0));
        EXPECT_EQ(std::strlen(text.get()), size < 14 ? 0U : 12U);
    }
    Write(std::string(31, 'n'), kGood);
    EXPECT_EQ(list.SizePipeTables(), 15 + 32);
    EXPECT_EQ(Tables(99, 0, 0).size(), 14U);
    Write(std::string(30, 'n'), kGood);
    EXPECT_EQ(Tables(99, 0, 0).size(), 14U + 31U);
}

TEST_F(PipeTableList, FiltersKeepTablesOut) {
    struct Case {
        const char* lines;
        double high, low;
        bool us, metric;
    };
    const Case cases[] = {
        {"V|\"1\"|x|9.0|1.0\nR|1|1|1\n", 9, 1, true, true},
        {"V|\"1\"|x|9.5|9.5\nR|1|1|1\n", 9, 1, false, false},
        {"V|\"1\"|x|0.1|0.5\nR|1|1|1\n", 9, 1, false, false},
        {"V|\"1\"|x|0.1|0.5\nR|1|1|1\n", 9, 0, true, true},
        {"V|\"1\"\nR|1|1|1\n", 9, 1, false, false},
        {"V|\"1\"|x|1|9\nR|0.1|0|1\n", 0, 0, true, false},
        {"V|\"1\"|x|1|9\nR|smooth|0.1|1\n", 0, 0, false, true},
        {"V|\"1\"|x|1|9\nR| |0.1\n", 0, 0, false, true},
        {"V|\"1\"|x|1|9\nR|1|1|1", 0, 0, false, false},
        {"R|1|1|1\n", 0, 0, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.lines);
        Write("T", c.lines);
        EXPECT_EQ(Tables(20, c.high, c.low, HF_US), c.us ? "1 T" : "0 -");
        EXPECT_EQ(Tables(20, c.high, c.low, HF_METRIC), c.metric ? "1 T" : "0 -");
    }
}

TEST_F(PipeTableList, SchedulesComeInTheOrderOfTheFile) {
    const char* const cases[][2] = {
        {"R|1|1|1\nZ|40|1\nZ|40|2\nZ|80|1\nZ|40|3\n", "3 40\t80\t40"},
        {"R|1|1|1\nZ|Std|1\n* remark\nZ|Std|2\nZ|STD|1\n", "2 Std\tSTD"},
        {"R|1|1|1\n", "-2 -"},
        {"z|40|1\n", "-2 -"},
        {"Z|40|1\nR|1|1|1\nZ|40|2\nz|60|1\nZ|80|1\n", "2 40\t80"},
        {"Z\nZ|40|1\nZ\nZ|80|1\nR", "2 40\t80"},
        {"Z\n", "0 -"},
        {"Z|40|1\nZ|80|1", "1 40"},
    };
    EXPECT_EQ(Schedules(20, "absent"), "-2 -");
    for (const auto& [lines, expected] : cases) {
        SCOPED_TRACE(lines);
        Write("T", lines);
        EXPECT_EQ(Schedules(20), expected);
    }
}

TEST_F(PipeTableList, SizesAreTheColumnOfTheSystem) {
    EXPECT_EQ(Sizes(20, "40"), "-2 -");
    Write("T", "R|1|1|1\nZ|40|0.5|15|0\nZ|40|abc|20\nz|40|9|9\nZ|40|1|25\nZ|80|1|25\nZ|80|2\n");
    EXPECT_EQ(Sizes(20, "40"), "2 0.5\tabc");
    EXPECT_EQ(Sizes(20, "40", HF_METRIC), "2 15\t20");
    EXPECT_EQ(Sizes(20, "80", HF_METRIC), "1 25");
    EXPECT_EQ(Sizes(20, "4"), "-3 -");
    Write("T", "R|1|1|1\nZ|40\nZ|60|1|25");
    EXPECT_EQ(Sizes(20, "40"), "0 -");
    EXPECT_EQ(Sizes(20, "60"), "-3 -");
}

TEST_F(PipeTableList, SchedulesAndSizesLoseTheLastTabWhenTheRoomEnds) {
    Write("T", "Z|40|0.5|15\nZ|40|10|20\nZ|80|1|25\n");
    EXPECT_EQ(Schedules(7), "2 40\t80");
    EXPECT_EQ(Schedules(6), "-1 40");
    EXPECT_EQ(Schedules(3), "-1 -");
    EXPECT_EQ(Sizes(8, "40"), "2 0.5\t10");
    EXPECT_EQ(Sizes(7, "40"), "-1 0.5");
    for (const int size : {6, 1, 0, -5}) {
        const std::unique_ptr<char[]> schedules(list.ListPipeSchedules(size, "T"));
        const std::unique_ptr<char[]> sizes(list.ListPipeSizes(size, "T", "40"));
        EXPECT_STREQ(schedules.get(), size == 6 ? "40" : "");
        EXPECT_STREQ(sizes.get(), size == 6 ? "0.5" : "");
    }
}

}  // namespace
