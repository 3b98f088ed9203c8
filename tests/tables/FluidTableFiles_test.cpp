// The text of the installed fluid tables, read without the library.

#include <gtest/gtest.h>

#include <fstream>

#include "InstalledTables.h"
#include "tables/Csv.h"

namespace {

TEST(FluidTableFiles, EveryFluidOfTheDataIsThereOrLeftOut) {
    using hydrofacts::tables::ReadCsv;
    const std::filesystem::path folder = HYDROFACTS_FLUID_DATA;
    std::vector<std::string> expected;
    for (const auto& row : ReadCsv(folder / "fluids.csv")) {
        expected.push_back(row.Text("name"));
    }
    EXPECT_EQ(ReadCsv(folder / "constants.csv").size(), expected.size());
    for (const auto& row : ReadCsv(folder / "left_out.csv")) {
        if (row.Text("part") == "table") {
            std::erase(expected, row.Text("name"));
        }
    }
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(expected, InstalledFluids());
}

// What dialogs show of a table, and what other readers of the format count on.
TEST(FluidTableFiles, HoldTheirRecordsInOrderWithARemarkOnEach) {
    const std::vector<std::string> order = {"S",  "V",  "D",  "P1", "P2",
                                            "P3", "P4", "P5", "P6", "P7"};
    for (const std::string& name : InstalledFluids()) {
        SCOPED_TRACE(name);
        std::ifstream file(std::filesystem::path(TableFolder()) / (name + ".FTBL"),
                           std::ios::binary);
        std::vector<std::string> records;
        bool remark = false;
        for (std::string line; std::getline(file, line);) {
            EXPECT_TRUE(line.ends_with('\r')) << line;
            EXPECT_LE(line.size(), 259U) << line;
            const std::string key = line.substr(0, line.find('\t'));
            if (key == "S") {
                EXPECT_TRUE(line.starts_with("S\t\"" + name)) << line;
            }
            if (!line.starts_with('*')) {
                records.push_back(key);
                EXPECT_TRUE(remark || line.ends_with("\t0\r") || key == "S" || key == "V") << line;
            }
            remark = line.starts_with('*');
        }
        EXPECT_EQ(order, records);
    }
}

}  // namespace
