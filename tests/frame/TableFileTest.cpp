#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "hydrofacts/frame/TableFile.h"
#include "win32/Win32.h"

namespace {

using Fields = std::vector<std::string>;

Fields Cut(std::string line) {
    Fields fields;
    for (char* field = hydrofacts::NextField(line.data()); field != nullptr;
         field = hydrofacts::NextField(nullptr)) {
        fields.emplace_back(field);
    }
    EXPECT_EQ(hydrofacts::NextField(nullptr), nullptr);
    return fields;
}

TEST(TableFile, RunsOfDelimitersSeparateFields) {
    const struct {
        const char* line;
        Fields fields;
    } kCases[] = {
        {"\t\r\tP1\t2\r", {"P1", "2"}},
        {"a b\t \tc", {"a b", " ", "c"}},
        {"", {}},
        {"\t\t\r", {}},
    };
    for (const auto& c : kCases) EXPECT_EQ(Cut(c.line), c.fields) << c.line;
}

TEST(TableFile, PositionOfTheCutIsEachThreadsOwn) {
    std::string mine = "a\tb";
    EXPECT_STREQ(hydrofacts::NextField(mine.data()), "a");
    std::thread([] {
        EXPECT_EQ(hydrofacts::NextField(nullptr), nullptr);
        EXPECT_EQ(Cut("x\ty\tz"), (Fields{"x", "y", "z"}));
    }).join();
    EXPECT_STREQ(hydrofacts::NextField(nullptr), "b");
}

TEST(TableFile, NumberFieldsLeaveTheDefaultWhereTheyHoldNone) {
    std::string line = "1.5\t 2e3x\t  \tabc\t0x10\t\r\t-4e-1\r0x\t1e5e\t+.25\r";
    const struct {
        bool read;
        double value;
    } kFields[] = {{true, 1.5},  {true, 2000.0}, {true, 7.0},  {false, 7.0},
                   {true, 16.0}, {true, -0.4},   {false, 7.0}, {true, 1e5},
                   {true, 0.25}, {false, 7.0},   {false, 7.0}};
    char* start = line.data();
    for (const auto& field : kFields) {
        double value = 7.0;
        EXPECT_EQ(ReadDoubleField(start, &value) != 0, field.read);
        EXPECT_EQ(value, field.value);
        start = nullptr;
    }
}

TEST(TableFile, LevelsAreTestedAgainstTheLimits) {
    const struct {
        const char* line;
        double high;
        double low;
        bool within;
    } kCases[] = {
        {"V\t\"1\"\tx\t7\t1", 7.0, 1.0, true},
        {"V\t\"1\"\tx\t7.5\t9", 7.0, 1.0, false},
        {"V\t\"1\"\tx\t7\t0.5", 7.0, 1.0, false},
        {"V\t\"1\"\tx\t9\t9", 0.0, 0.0, true},
        {"V\t\"1\"\tx\t9\t0.5", 0.0, 1.0, false},
        {"V\t\"1\"\tx\t3", 7.0, 3.0, true},  // the missing high level is the low one
        {"V\t\"1\"\tx\t3", 7.0, 4.0, false},
        {"V", 7.0, 1.0, false},  // without levels: 0.0
    };
    for (const auto& c : kCases) {
        std::string line = c.line;
        EXPECT_EQ(hydrofacts::LevelsAreWithin(line.data(), c.high, c.low), c.within)
            << c.line << c.low;
    }
}

TEST(TableFile, PathHasAtMost259Characters) {
    using hydrofacts::TablePath;
    const std::string separator(1, win32::kPathSeparator);
    EXPECT_EQ(TablePath("dir", "Water", ".FTBL").c_str(), "dir" + separator + "Water.FTBL");
    const std::string longest(259 - 1 - 5 - 5, 'd');
    EXPECT_EQ(TablePath(longest.c_str(), "Water", ".FTBL").c_str(),
              longest + separator + "Water.FTBL");
    EXPECT_STREQ(TablePath((longest + "d").c_str(), "Water", ".FTBL").c_str(), "");
}

}  // namespace
