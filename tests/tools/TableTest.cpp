#include "tests/tools/SampleTables.h"
#include "tools/table/FormulaText.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class TableCommand : public SampleTables {
  protected:
    TableCommand() {
        Write(
            "Told.FTBL",
            TableText("* by hand\nS|\"Told\"\n* ahead\nV|\"1.2\"|test|1|7\n"
                      "D|20|450.125|8000|280|400|250|500|5000\n"
                      "* Pressures: a straight line,\n*   by hand.\n\nP1|1|-200|1\nP2|0\n"
                      "# 25 \xB0"
                      "C\nP3|1|1100|-0.5\nP4|0\nP5|1|0\nP6|1|0.01\nP7|1|33.2576\n* at the end\n"));
    }
};

// 280 K is 6.85 °C, 450.125 K 176.975 °C, 8000 kPa 80 bar.
TEST_F(TableCommand, ShowsRangesFormulasAndRemarksWhereTheyBelong) {
    const Outcome sample = Run(WithTables("table sample --units metric"));
    EXPECT_EQ(sample.status, 0);
    EXPECT_THAT(sample.out, HasSubstr("Liquid formulas     6.85 to 126.85 \u00B0"
                                      "C\n"));
    EXPECT_THAT(sample.out, HasSubstr("-23.15 to 226.85 \u00B0"
                                      "C, up to 50 bar absolute\n"));
    EXPECT_THAT(sample.out, HasSubstr("P4  liquid viscosity, cP\n    4 - 0.01 T\n"));

    const Outcome told = Run(WithTables("table told --units metric"));
    EXPECT_THAT(told.out, HasSubstr("176.975 \u00B0"
                                    "C, 80 bar absolute\n"));
    EXPECT_THAT(told.out, HasSubstr("Liquid formulas     none\n"));
    EXPECT_THAT(told.out, HasSubstr("\nby hand\nahead\n\n"
                                    "P1  saturation pressure, kPa absolute\n"
                                    "    -200 + 1 T\n"
                                    "    Pressures: a straight line,\n"
                                    "    by hand.\n"));
    EXPECT_THAT(told.out, HasSubstr("P3  liquid density, kg/m\u00B3\n    left out: "));
    EXPECT_THAT(told.out, HasSubstr("    25 \u00B0"
                                    "C\n"));
    EXPECT_THAT(told.out, HasSubstr("\nat the end\n"));
}

TEST_F(TableCommand, GivesProgramsTheCoefficients) {
    const auto json = RunForJson(WithTables("table Told --units us"));
    EXPECT_EQ(json["title"], "Told");
    EXPECT_EQ(json["liquid"], nullptr);
    EXPECT_NEAR(json["vapor"]["lowest_temperature"], -9.67, 1e-9);  // 250 K in °F
    EXPECT_NEAR(json["critical_pressure"], 8000 / 6.894757293, 1e-6);
    ASSERT_EQ(json["formulas"].size(), 7U);
    const auto pressure = json["formulas"][0];
    EXPECT_EQ(pressure["record"], "P1");
    EXPECT_EQ(pressure["type"], 1);
    EXPECT_EQ(pressure["equation"], "c0 + c1 T + c2 T\u00B2 + c3 T\u00B3 + c4 T\u2074");
    EXPECT_THAT(pressure["coefficients"], ElementsAre(-200.0, 1.0, 0.0, 0.0, 0.0));
    EXPECT_EQ(pressure["remarks"][1], "by hand.");
    EXPECT_EQ(json["formulas"][2]["type"], 0);  // left out
    EXPECT_EQ(json["remarks"][2], "at the end");
}

TEST_F(TableCommand, SaysWhatIsNearOrCannotBeUsed) {
    Write("Broken.FTBL", "S\t\"Broken\"\r\nV\t\"1\"\tx\t1\t7\r\n");
    ExpectRefused(WithTables("table Smaple"), "did you mean Sample?");
    ExpectRefused(WithTables("table Broken"), "Broken.FTBL: not a valid fluid table");
    ExpectRefused(WithTables("table Sample --units imperial"), "imperial");
}

// As the records are described in docs/add-a-fluid.md.
TEST(FormulaText, WritesOutEveryForm) {
    const struct {
        short slot;
        const char* record;
        const char* text;
    } cases[] = {
        {0, "P1\t1\t1\t0\t-2\t0\t3e-9", "1 - 2 T\u00B2 + 3e-09 T\u2074"},
        {0, "P1\t2\t69\t-5599.6\t-7\t6e-6\t2", "exp(69 - 5599.6/T - 7 ln T + 6e-06 T^2) / 1000"},
        {1, "P2\t2\t69\t-5\t-7", "exp(69 - 5/T - 7 ln T) / 1000"},
        {1, "P2\t3\t1\t-2\t3\t4\t5",
         "0.1333 \u00B7 10^(1 - 2/T + 3 log T + 4 T/10\u00B3 + 5 T\u00B2/10\u2076)"},
        {2, "P3\t2\t1.2\t0.25\t508.2\t0.29", "M \u00B7 1.2 / 0.25^(1 + (1 - T/508.2)^0.29)"},
        {2, "P3\t3\t1.2\t0.25", "1000 \u00B7 1.2 / 0.25^((1 - T/Tc)^(2/7))"},
        {3, "P4\t2\t-14\t1023\t0\t5\t-8.5", "1000 exp(-14 + 1023/T + 5 T^-8.5)"},
        {3, "P4\t3\t1\t2\t3\t4", "10^(1 + 2/T + 3 T/10\u00B2 + 4 T\u00B2/10\u2076)"},
        {4, "P5\t1\t0", "p M / (R T): ideal gas"},
        {4, "P5\t2\t0.3", "p M / (Z R T), Z by Peng-Robinson with the acentric factor 0.3"},
        {5, "P6\t2\t3e-8\t0.97\t23\t-4", "1000 \u00B7 3e-08 T^0.97 / (1 + 23/T - 4/T\u00B2)"},
        {5, "P6\t3\t1\t2\t3", "(1 + 2 T/10\u00B2 + 3 T\u00B2/10\u2076) / 10\u2074"},
        {6, "P7\t2\t5\t6\t7\t8\t9",
         "(5 + 6 ((7/T) / sinh(7/T))\u00B2 + 8 ((9/T) / cosh(9/T))\u00B2) / 1000"},
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
