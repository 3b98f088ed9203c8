#include "tests/tools/SampleTables.h"
#include "tools/table/FormulaText.h"

namespace {

using ::testing::HasSubstr;

using TableCommand = SampleTables;

// 8000 kPa are 80 bar, 250 K -23.15 °C.
TEST_F(TableCommand, ShowsRangesFormulasAndRemarksWhereTheyBelong) {
    Write("Told.FTBL",
          TableText("* by hand\nS|\"Told\"\n* ahead\nV|\"1.2\"|test|1|7\n"
                    "D|20|450.125|8000|280|400|250|500|5000\n"
                    "* Pressures: a straight line,\n*   by hand.\n\nP1|1|-200|1\nP2|0\n"
                    "# 25 \xB0"
                    "C\nP3|1|1100|-0.5\nP4|0\nP5|1|0\nP6|1|0.01\nP7|1|33.2576\n* at the end\n"));
    const Outcome told = Run("table told --units metric");
    EXPECT_EQ(told.status, 0);
    EXPECT_THAT(told.out, HasSubstr("\nby hand\nahead\n\n"
                                    "P1  saturation pressure, kPa absolute\n"
                                    "    -200 + 1 T\n"
                                    "    Pressures: a straight line,\n"
                                    "    by hand.\n"));
    EXPECT_THAT(told.out, HasSubstr("P3  liquid density, kg/m\u00B3\n    left out: "));
    EXPECT_THAT(told.out, HasSubstr("    25 \u00B0"
                                    "C\n"));
    EXPECT_THAT(told.out, HasSubstr("\nat the end\n"));

    const auto json = RunForJson("table Told --units metric");
    EXPECT_EQ(json["liquid"], nullptr);
    EXPECT_NEAR(json["vapor"]["lowest_temperature"], -23.15, 1e-9);
    EXPECT_NEAR(json["critical_pressure"], 80.0, 1e-9);
    ASSERT_EQ(json["formulas"].size(), 7U);
    EXPECT_EQ(json["formulas"][0]["remarks"][1], "by hand.");
    EXPECT_EQ(json["formulas"][2]["type"], 0);  // left out
}

// As the records are described in docs/add-a-fluid.md; docs/command.md shows the other forms.
TEST(FormulaText, WritesOutTheForms) {
    const struct {
        short slot;
        const char* record;
        const char* text;
    } cases[] = {
        {0, "P1\t1\t1\t0\t-2\t0\t3e-9", "1 - 2 T\u00B2 + 3e-09 T\u2074"},
        {0, "P1\t2\t69\t-5599.6\t-7\t6e-6\t2", "exp(69 - 5599.6/T - 7 ln T + 6e-06 T^2) / 1000"},
        {2, "P3\t3\t1.2\t0.25", "1000 \u00B7 1.2 / 0.25^((1 - T/Tc)^(2/7))"},
        {3, "P4\t3\t1\t2\t3\t4", "10^(1 + 2/T + 3 T/10\u00B2 + 4 T\u00B2/10\u2076)"},
        {4, "P5\t1\t0", "p M / (R T): ideal gas"},
        {5, "P6\t2\t3e-8\t0.97\t23\t-4", "1000 \u00B7 3e-08 T^0.97 / (1 + 23/T - 4/T\u00B2)"},
        {5, "P6\t3\t1\t2\t3", "(1 + 2 T/10\u00B2 + 3 T\u00B2/10\u2076) / 10\u2074"},
        {6, "P7\t3\t1\t2\t3\t4",
         "4.1868 (1 + 2 T/10\u00B3 + 3 T\u00B2/10\u2076 + 4 T\u00B3/10\u2079)"},
        {6, "P7\t4\t1", ""},
    };
    for (const auto& row : cases) {
        std::string record = row.record;
        CFormula formula;
        ASSERT_EQ(formula.LoadFormula(row.slot, record.data(), 500.0, 4000.0), 0) << row.record;
        EXPECT_EQ(hydrofacts::command::WrittenOut(formula), row.text);
    }
}

}  // namespace
