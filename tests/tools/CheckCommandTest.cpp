#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "tests/tools/SampleTables.h"

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

// All but the title.
const std::string kPipes =
    TableText("V|\"1.0\"|test|1|7\nR|0.0018|0.04572|140\nZ|40|0.5|15|0.622|0.84|15.8|21.3\n");

class CheckCommand : public OwnTables {
  protected:
    std::string Check(const std::string& name) const { return "check \"" + m_tables + name + "\""; }
};

TEST_F(CheckCommand, SaysWhereAndWhy) {
    Write("Steel.PTBL", TableText("S|\"Steel\"\nV|\"1.0\"|test|1|7\nR|0.0018|0.04572\n"
                                  "Z|40|0.5|15|0,622|0.84|15.8|21.3\n"));
    const Outcome outcome = Run(Check("/Steel.PTBL"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "");
    EXPECT_THAT(outcome.out, HasSubstr("Steel.PTBL:3: field 4: warning: Hazen-Williams C"));
    EXPECT_THAT(outcome.out, EndsWith("\nchecked 1 pipe table: 1 error, 1 warning\n"));

    const auto json = RunForJson(Check("/Steel.PTBL"), 1);
    ASSERT_EQ(json["findings"].size(), 2U);
    EXPECT_EQ(json["findings"][0]["severity"], "warning");
    EXPECT_EQ(json["findings"][1]["severity"], "error");
    EXPECT_EQ(json["findings"][1]["line"], 4);
    EXPECT_EQ(json["findings"][1]["field"], 5);
}

TEST_F(CheckCommand, WarningsCountIfToldSo) {
    Write("Warned.PTBL", TableText("S|Steel\n") + kPipes);
    EXPECT_EQ(Run(Check("/Warned.PTBL")).status, 0);
    EXPECT_EQ(Run(Check("/Warned.PTBL") + " --strict").status, 1);
}

TEST_F(CheckCommand, TakesTheTablesOfADirectory) {
    Write("b.ptbl", TableText("S|\"Steel\"\n") + kPipes);
    Write("C.FTBL", "");
    Write("a.vtbl", "");
    Write("notes.txt", "");
    const auto json = RunForJson(Check(""), 1);
    EXPECT_EQ(json["tables"], R"({"fluid": 1, "pipe": 1, "valve": 1})"_json);
    ASSERT_EQ(json["findings"].size(), 2U);
    EXPECT_THAT(std::string(json["findings"][0]["file"]), EndsWith("a.vtbl"));
    EXPECT_THAT(std::string(json["findings"][1]["file"]), EndsWith("C.FTBL"));
    EXPECT_EQ(Run(Check("/b.ptbl")).out, "checked 1 pipe table: no findings\n");
}

TEST_F(CheckCommand, RefusesWhatIsNoTableOrCannotBeRead) {
    Write("a.txt", "");
    ExpectRefused(Check("/Missing.FTBL"), "Missing.FTBL: there is no such file");
    ExpectRefused(Check("/a.txt"), "a.txt: not a table file");
    ExpectRefused(Check(""), "the directory holds no table");
#ifndef _WIN32
    // A pipe is not waited for, nor a terabyte read.
    ASSERT_EQ(::mkfifo(m_folder.Path("tables/Pipe.FTBL").c_str(), 0666), 0);
    Write("Long.FTBL", "");
    ASSERT_EQ(::truncate(m_folder.Path("tables/Long.FTBL").c_str(), off_t{1} << 40), 0);
    ExpectRefused(Check("/Pipe.FTBL"), "Pipe.FTBL: the file can't be read");
    ExpectRefused(Check("/Long.FTBL"), "Long.FTBL: the file can't be read");
#endif
}

}  // namespace
