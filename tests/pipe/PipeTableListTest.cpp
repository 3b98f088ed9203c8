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
template <class Listing>
std::string List(int size, Listing list) {
    const auto buffer = std::make_unique<char[]>(static_cast<std::size_t>(size));
    buffer[0] = '-';
    const int result = list(buffer.get());
    return std::to_string(result) + ' ' + buffer.get();
}

class PipeTableList : public ::testing::Test {
  protected:
    PipeTableList() { SetDirectory(DIR_TABLES, folder.Path().c_str()); }
    ~PipeTableList() override { SetDirectory(DIR_TABLES, nullptr); }

    void Write(const std::string& name, std::string_view lines) const {
        folder.Write(name + ".PTBL", TableText(lines));
    }
    static std::string Tables(int size, HF_UNITS units = HF_US) {
        const CPipeTableList tables(units);
        return List(size, [&](char* text) { return tables.ListPipeTables(text, size, 9, 1); });
    }
    std::string Schedules(int size, const char* table = "T") const {
        return List(size, [&](char* text) { return list.ListPipeSchedules(text, size, table); });
    }
    static std::string Sizes(int size, const char* schedule, HF_UNITS units = HF_US) {
        const CPipeTableList sizes(units);
        return List(size,
                    [&](char* text) { return sizes.ListPipeSizes(text, size, "T", schedule); });
    }
    const CPipeTableList list{HF_US};
    TempFolder folder;
};

TEST_F(PipeTableList, TablesNeedRoomForNameTabAndZero) {
    constexpr const char* kGood = "V|\"1\"|x|1|9\nR|1|1|1\n";
    EXPECT_EQ(Tables(20), "0 -");
    Write("Brass", kGood);
    Write("Copper", kGood);
    EXPECT_THAT(Tables(14), AnyOf("2 Brass\tCopper", "2 Copper\tBrass"));
    EXPECT_THAT(Tables(13), AnyOf("-1 Brass\t", "-1 Copper\t"));
    EXPECT_EQ(Tables(6), "-1 -");
    for (const int size : {-1, 0, 6, 14, INT_MAX}) {
        const std::unique_ptr<char[]> text(list.ListPipeTables(size, 0.0, 0.0));
        EXPECT_EQ(std::strlen(text.get()), size < 14 ? 0U : 12U);
    }
    Write(std::string(31, 'n'), kGood);
    EXPECT_EQ(list.SizePipeTables(), 15 + 32);
    EXPECT_EQ(Tables(99).size(), 14U) << "too long a name is not listed";
    Write(std::string(30, 'n'), kGood);
    EXPECT_EQ(Tables(99).size(), 14U + 31U);
}

TEST_F(PipeTableList, LevelsAndRoughnessKeepTablesOut) {
    const char* const cases[][3] = {
        {"V|\"1\"|x|9.0|1.0\nR|1|1|1\n", "1 T", "1 T"},
        {"V|\"1\"|x|9.5|9.5\nR|1|1|1\n", "0 -", "0 -"},
        {"V|\"1\"|x|1|9\nR|0.1|0|1\n", "1 T", "0 -"},
        {"V|\"1\"|x|1|9\nR|smooth|0.1|1\n", "0 -", "1 T"},
        {"R|1|1|1\n", "0 -", "0 -"},
    };
    for (const auto& [lines, us, metric] : cases) {
        SCOPED_TRACE(lines);
        Write("T", lines);
        EXPECT_EQ(Tables(20, HF_US), us);
        EXPECT_EQ(Tables(20, HF_METRIC), metric);
    }
}

TEST_F(PipeTableList, SchedulesComeInTheOrderOfTheFile) {
    const char* const cases[][2] = {
        {"R|1|1|1\nZ|40|1\nZ|40|2\nZ|80|1\nZ|40|3\n", "3 40\t80\t40"},
        {"R|1|1|1\nZ|Std|1\n* remark\nZ|Std|2\nz|60|1\nZ|STD|1\n", "2 Std\tSTD"},
        {"R|1|1|1\n", "-2 -"},
        {"Z\nZ|40|1\nZ\nZ|80|1\nR", "2 40\t80"},
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
    Write("T", "R|1|1|1\nZ|40|0.5|15|0\nZ|40|abc|20\nz|40|9|9\nZ|40|1|25\nZ|80\nZ|60|2|25");
    EXPECT_EQ(Sizes(20, "40"), "2 0.5\tabc");
    EXPECT_EQ(Sizes(20, "40", HF_METRIC), "2 15\t20");
    EXPECT_EQ(Sizes(20, "80"), "0 -");
    for (const char* none : {"4", "60"}) EXPECT_EQ(Sizes(20, none), "-3 -");
}

TEST_F(PipeTableList, SchedulesAndSizesLoseTheLastTabWhenTheRoomEnds) {
    Write("T", "Z|40|0.5|15\nZ|40|10|20\nZ|80|1|25\n");
    EXPECT_EQ(Schedules(7), "2 40\t80");
    EXPECT_EQ(Schedules(6), "-1 40");
    EXPECT_EQ(Sizes(8, "40"), "2 0.5\t10");
    EXPECT_EQ(Sizes(7, "40"), "-1 0.5");
    for (const int size : {0, -5}) {
        EXPECT_STREQ(std::unique_ptr<char[]>(list.ListPipeSchedules(size, "T")).get(), "");
        EXPECT_STREQ(std::unique_ptr<char[]>(list.ListPipeSizes(size, "T", "40")).get(), "");
    }
}

}  // namespace
