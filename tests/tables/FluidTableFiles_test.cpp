// The text of the installed fluid tables, read without the library.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "InstalledTables.h"
#include "tables/Csv.h"

namespace {

std::string ReadFile(const std::string& name) {
    std::ifstream stream(std::filesystem::path(TableFolder()) / (name + ".FTBL"), std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find("\r\n", start);
        lines.push_back(text.substr(start, end - start));
        if (end == std::string::npos) {
            break;
        }
        start = end + 2;
    }
    return lines;
}

TEST(FluidTableFiles, CommonFluidsAreInstalled) {
    const std::vector<std::string> names = InstalledFluids();
    for (const char* const name :
         {"Air", "Ammonia", "Carbon dioxide", "Ethanol", "Methane", "Methanol", "n-Butane",
          "Nitrogen", "Oxygen", "Propane", "R-134a", "R-410A", "Toluene", "Water"}) {
        EXPECT_TRUE(std::find(names.begin(), names.end(), name) != names.end()) << name;
    }
    for (const std::string& name : names) {
        EXPECT_LE(name.size(), 30U) << name;
    }
}

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

TEST(FluidTableFiles, AreWholeLinesOfPlainTextThatEveryReaderTakes) {
    for (const std::string& name : InstalledFluids()) {
        SCOPED_TRACE(name);
        const std::string text = ReadFile(name);
        ASSERT_TRUE(text.ends_with("\r\n"));
        EXPECT_EQ(std::string::npos, text.find("\t\t"));
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'),
                  std::count(text.begin(), text.end(), '\r'));
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) {
            return (c >= ' ' && c <= '~') || c == '\t' || c == '\r' || c == '\n';
        }));
        const std::vector<std::string> lines = Lines(text);
        for (const std::string& line : lines) {
            EXPECT_LE(line.size(), 258U) << line;
        }
        // A dialog shows the first two lines and takes a hundred characters of each.
        ASSERT_GE(lines.size(), 11U);
        EXPECT_TRUE(lines[0].starts_with("S\t\"" + name));
        EXPECT_TRUE(lines[1].starts_with("V\t\""));
        EXPECT_LE(std::max(lines[0].size(), lines[1].size()), 100U);
    }
}

TEST(FluidTableFiles, HoldNineRecordsInOrderAndASourceForEach) {
    const std::vector<std::string> order = {"V", "D", "P1", "P2", "P3", "P4", "P5", "P6", "P7"};
    for (const std::string& name : InstalledFluids()) {
        SCOPED_TRACE(name);
        std::vector<std::string> records;
        bool remark = false;
        for (const std::string& line : Lines(ReadFile(name))) {
            const char key = line.empty() ? ' ' : line[0];
            if (key == 'D' || key == 'P' || key == 'V') {
                records.push_back(line.substr(0, line.find('\t')));
                const bool empty = line.ends_with("\t0") && key == 'P';
                EXPECT_TRUE(remark || empty || key == 'V') << line;
            }
            remark = key == '*';
        }
        EXPECT_EQ(order, records);
    }
}

}  // namespace
