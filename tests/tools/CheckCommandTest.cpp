#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "tests/tools/SampleTables.h"

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

class CheckCommand : public SampleTables {
  protected:
    static std::string InQuotes(const std::string& path) { return " \"" + path + "\""; }
    std::string Table(const std::string& name) const {
        return InQuotes(m_folder.Path("tables/" + name));
    }
};

constexpr const char* kPipes =
    "S|\"Steel\"\nV|\"1.0\"|test|1|7\nR|0.0018|0.04572|140\n"
    "Z|40|0.5|15|0.622|0.84|15.8|21.3\n";

TEST_F(CheckCommand, SaysWhereAndWhy) {
    Write("Steel.PTBL", TableText("S|\"Steel\"\nV|\"1.0\"|test|1|7\nR|0.0018|0.04572\n"
                                  "Z|40|0.5|15|0,622|0.84|15.8|21.3\n"));
    const Outcome outcome = Run("check" + Table("Steel.PTBL"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "");
    EXPECT_THAT(outcome.out, HasSubstr("Steel.PTBL:3: field 4: warning: Hazen-Williams C"));
    EXPECT_THAT(outcome.out, HasSubstr("Steel.PTBL:4: field 5: inside diameter (in.): \"0,622\" is "
                                       "read as 0: the decimal sign is a point\n"));
    EXPECT_THAT(outcome.out, EndsWith("\nchecked 1 pipe table: 1 error, 1 warning\n"));

    const auto json = RunForJson("check" + Table("Steel.PTBL"), 1);
    EXPECT_EQ(json["tables"]["pipe"], 1);
    EXPECT_EQ(json["errors"], 1);
    EXPECT_EQ(json["warnings"], 1);
    ASSERT_EQ(json["findings"].size(), 2U);
    EXPECT_EQ(json["findings"][0]["severity"], "warning");
    EXPECT_EQ(json["findings"][1]["severity"], "error");
    EXPECT_EQ(json["findings"][1]["line"], 4);
    EXPECT_EQ(json["findings"][1]["field"], 5);
}

TEST_F(CheckCommand, WarningsCountIfToldSo) {
    Write("Steel.PTBL", TableText("S|Steel\n" + std::string(kPipes).substr(10)));
    EXPECT_EQ(Run("check" + Table("Steel.PTBL")).status, 0);
    EXPECT_EQ(Run("check --strict" + Table("Steel.PTBL")).status, 1);
}

TEST_F(CheckCommand, TakesTheTablesOfADirectory) {
    std::filesystem::create_directory(m_folder.Path("mixed"));
    m_folder.Write("mixed/b.ptbl", TableText(kPipes));
    m_folder.Write("mixed/C.FTBL", "");
    m_folder.Write("mixed/a.vtbl", "");
    m_folder.Write("mixed/notes.txt", "");
    const auto json = RunForJson("check" + InQuotes(m_folder.Path("mixed")), 1);
    EXPECT_EQ(json["tables"]["fluid"], 1);
    EXPECT_EQ(json["tables"]["pipe"], 1);
    EXPECT_EQ(json["tables"]["valve"], 1);
    ASSERT_EQ(json["findings"].size(), 2U);
    EXPECT_THAT(std::string(json["findings"][0]["file"]), EndsWith("a.vtbl"));
    EXPECT_THAT(std::string(json["findings"][1]["file"]), EndsWith("C.FTBL"));
    const Outcome one = Run("check" + InQuotes(m_folder.Path("mixed/b.ptbl")));
    EXPECT_EQ(one.out, "checked 1 pipe table: no findings\n");
    EXPECT_EQ(one.status, 0);
}

TEST_F(CheckCommand, RefusesWhatIsNoTable) {
    ExpectRefused("check" + Table("Missing.FTBL"), "Missing.FTBL: there is no such file");
    ExpectRefused("check" + Table("Sample.FTBL") + InQuotes(m_folder.Write("a.txt", "")),
                  "a.txt: not a table file");
    ExpectRefused("check" + InQuotes(m_folder.Path()), "the directory holds no table");
    ExpectRefused("check", "FILE");
    EXPECT_THAT(Run("check --help").out, HasSubstr("Exit status:"));
}

#ifndef _WIN32
TEST_F(CheckCommand, NeitherWaitsForAPipeNorReadsATerabyte) {
    ASSERT_EQ(::mkfifo(m_folder.Path("tables/Pipe.FTBL").c_str(), 0666), 0);
    Write("Long.FTBL", "");
    ASSERT_EQ(::truncate(m_folder.Path("tables/Long.FTBL").c_str(), off_t{1} << 40), 0);
    for (const char* name : {"Pipe.FTBL", "Long.FTBL"}) {
        ExpectRefused("check" + Table(name), std::string(name) + ": the file can't be read");
    }
}
#endif

}  // namespace
