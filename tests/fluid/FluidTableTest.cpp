#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/fluid/TestFluid.h"
#include "tests/support/TableText.h"

namespace {

/// The text of a table with one part in the place of another, both as TableText takes them.
std::string With(const char* from, const char* to) {
    std::string text = FluidText().Text();
    const std::string former = TableText(from);
    return text.replace(text.find(former), former.size(), TableText(to));
}

int Load(TestFluid& fluid, const TableFolder& folder, const std::string& text, double high = 0.0,
         double low = 0.0) {
    folder.Write("Plain.FTBL", text);
    return fluid.LoadFluidTable(folder.path.c_str(), "Plain", high, low);
}

// The derived constants of the equation of state need the critical values in K and kPa.
TEST(FluidTable, CriticalValuesGoIntoUserUnitsBehindTheFormulas) {
    const TableFolder folder;
    TestFluid fluid;  // °F and psi
    ASSERT_EQ(Load(fluid, folder, With("P5|1", "P5|2|0.2")), 1);
    EXPECT_EQ(fluid.GetMolecularWt(), 28.9586);
    EXPECT_EQ(fluid.GetCriticalTemp(), 260.3);  // 400 K = 260.33 °F
    EXPECT_EQ(fluid.GetCriticalPres(), 159.5);  // 1100 kPa = 159.54 psi
    EXPECT_DOUBLE_EQ(fluid.m_formulas[4].m_coefficients[1], 0.0778 * 8.3144 * 400.0 / 1100.0);
}

TEST(FluidTable, EveryCauseOfAnInvalidTableIsFound) {
    const std::string texts[] = {
        "",
        std::string(100000, 'P'),
        With("V|\"1.0\"|x|3|5\n", ""),
        With("V|", "D|1\nV|"),
        With("V|", "v|"),
        With("D|", "d|"),
        With("|500|5000", "|500|0"),
        With("|500|5000", "|500"),
        With("|400|1100", "|||1100"),
        With("|400|1100", "|x|1100"),
        With("P1|1|-2900|10", "P1|0"),
        With("P1|1|-2900|10", "P1|1|1|-1"),
        With("P3|", "P4|"),
        With("P7|", "P8|"),
        With("P4|1|2.123456|-0.001\nP5|1\nP6|1", "P4|0\nP5|1\nP6|0"),
        With("P3|1|1200|-1\nP4|1|2.123456|-0.001\nP5", "V|1\nP4|1|2\nD"),
    };
    const TableFolder folder;
    for (const std::string& text : texts) {
        TestFluid fluid;
        EXPECT_EQ(Load(fluid, folder, text), 0) << text;
    }
    std::filesystem::create_directory(folder.Path("Folder.FTBL"));
    for (const std::string& name :
         {std::string("None"), std::string(400, 'n'), std::string("Folder")})
        EXPECT_EQ(TestFluid().LoadFluidTable(folder.path.c_str(), name.c_str()), 0);
}

TEST(FluidTable, IncompleteSetsAreLeftOut) {
    const struct {
        std::string text;
        bool liquid;
        int equation;
    } kCases[] = {
        {FluidText().Text(), true, 1},
        {With("P3|1", "P3|0"), false, 1},
        {With("P4|1|2.123456|-0.001", "P4"), false, 1},
        {With("P4|1|2.123456|-0.001\nP5|1", "P4|0\nP5|2|0.2"), false, 2},
        {With("P5|1", "P5|0"), true, 0},
        {With("P5|1\nP6|1", "P5|2|0.2\nP6|0"), true, 0},
        {With("P7|1", "P7|0"), true, 0},
        // A stray record takes the place of a slot, which is then absent.
        {With("P7", "V|stray"), true, 0},
        // A range that sets no limit.
        {With("295|500|5000\nP1|1|-2900|10\nP2|0\nP3|1|1200|-1\nP4|1|2.123456|-0.001\nP5|1",
              "0|0|1\nP1|1|-2900|10\nP2|0\nP3|1|1200|-1\nP4|1|2.123456|-0.001\nP5|0"),
         true, 0},
    };
    const TableFolder folder;
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        TestFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
        EXPECT_EQ(Load(fluid, folder, c.text), 1);
        EXPECT_EQ(fluid.FormulasExist(FLUID_LIQUID), c.liquid);
        EXPECT_EQ(fluid.FormulasExist(FLUID_VAPOR), c.equation != 0);
        EXPECT_FALSE(fluid.FormulasExist(FLUID_NONE));
        EXPECT_EQ(fluid.EqnState(), c.equation);
        EXPECT_EQ(fluid.FindFluidState(350.0, 700.0), c.liquid ? FLUID_LIQUID : FLUID_NONE);
        EXPECT_EQ(fluid.FindFluidState(350.0, 500.0), c.equation != 0 ? FLUID_VAPOR : FLUID_NONE);
    }
}

TEST(FluidTable, RemarksAndLineEndsDoNotMatter) {
    const TableFolder folder;
    FluidText remarks;
    remarks.title = "\r\n\tD stands not first\r\n" + std::string(600, 'r') + std::string(5, '\0');
    remarks.constants += "\tbehind the last field\r\n\r\n# remark\r\nd\tp1\tv";
    remarks.formulas[6] += "\t0\t0\t0\t0\t6\t7\r\nD\tP\tV";
    std::string unixLines = FluidText().Text();
    std::erase(unixLines, '\r');
    TestFluid plain;
    ASSERT_EQ(Load(plain, folder, FluidText().Text()), 1);
    for (const std::string& text :
         {remarks.Text(), unixLines, With("D|28.9586|400|1100|", "Data||28.9586|400|1100||")}) {
        TestFluid fluid;
        EXPECT_EQ(Load(fluid, folder, text), 1) << text;
        EXPECT_TRUE(fluid == plain);
    }
}

TEST(FluidTable, FailuresLeaveWhatWasReadSoFar) {
    TableFolder folder;
    // A refused level: the constants, the critical values converted, no formula.
    TestFluid fluid;
    EXPECT_EQ(Load(fluid, folder, FluidText().Text(), 2.0, 1.0), 0);
    EXPECT_EQ(fluid.GetCriticalTemp(), 260.3);
    EXPECT_EQ(fluid.m_formulas[0].m_type, 0);
    EXPECT_EQ(Load(fluid, folder, FluidText().Text(), 3.0, 5.0), 1);
    // A damaged record: the slots ahead of it are the file's, the ones behind it the former ones.
    fluid = folder.Fluid({}, 300.0, 500.0);
    ASSERT_EQ(Load(fluid, folder, With("28.9586|400", "18|350")), 1);
    EXPECT_EQ(Load(fluid, folder, With("P4|1", "P9|1")), 0);
    EXPECT_EQ(fluid.GetMolecularWt(), 28.9586);
    EXPECT_EQ(fluid.m_formulas[4].m_type, 1);
    EXPECT_EQ(fluid.m_formulas[2].m_type, 0);  // without viscosity
    // No file: the constants are zero, the formulas stay; name, state and set point too.
    fluid = folder.Fluid({}, 300.0, 500.0);
    EXPECT_EQ(fluid.LoadFluidTable(folder.path.c_str(), "None"), 0);
    EXPECT_EQ(fluid.GetMolecularWt(), 0.0);
    EXPECT_EQ(fluid.m_formulas[2].m_type, 1);
    EXPECT_STREQ(fluid.GetFluidName(), "Plain");
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    // A short file, and one whose last record has no line end, which is dropped.
    std::string text = FluidText().Text();
    text.resize(text.size() - 2);
    EXPECT_EQ(Load(fluid, folder, text), 1);
    EXPECT_EQ(fluid.EqnState(), 0);
    EXPECT_EQ(Load(fluid, folder, text.substr(0, text.find("P3"))), 0);
    EXPECT_FALSE(fluid.FormulasExist(FLUID_LIQUID));
}

TEST(FluidTable, FileIsReadAgainOnlyForAnotherNameOrForALiquid) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    const auto set = [&](const char* name, auto... point) {
        return fluid.SetFluid(folder.path.data(), name, point...);
    };
    EXPECT_EQ(set("Plain", 395.0), 0);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_EQ(fluid.GetPressure(), 0.0);
    EXPECT_EQ(set("Plain", 395.1), 0);  // beyond the range
    EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE);

    std::filesystem::remove(folder.Path("Plain.FTBL"));
    EXPECT_EQ(set("Plain", 310.0, 600.0), 0);
    EXPECT_EQ(fluid.GetDensity(), 890.0);
    EXPECT_EQ(set("Plain", 320.0), 1);
    EXPECT_EQ(fluid.GetTemperature(), 320.0);
    EXPECT_EQ(set("plain", 330.0, 700.0), 1);
    EXPECT_STREQ(fluid.GetFluidName(), "plain");
    EXPECT_EQ(fluid.GetTemperature(), 320.0);
    // The failed load left a usable first formula, so the name counts as loaded.
    EXPECT_EQ(set("plain", 330.0, 700.0), 0);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE);
    EXPECT_EQ(set(fluid.GetFluidName(), 330.0), 1);
}

TEST(FluidTable, LongNamesAreCutInTheFluidNotInThePath) {
    TableFolder folder;
    const std::string name(80, 'n');
    folder.Add(name, {});
    CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), name.c_str(), 300.0, 500.0), 0);
    EXPECT_EQ(fluid.GetFluidName(), name.substr(0, 63));
    fluid.SetFluidProperties(name.c_str(), FLUID_USER_LIQUID, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1);
    EXPECT_EQ(fluid.GetFluidName(), name.substr(0, 62));
}

}  // namespace
