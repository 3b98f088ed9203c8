#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/fluid/TestFluid.h"

namespace {

template <typename Change>
FluidText Changed(Change change) {
    FluidText table;
    change(table);
    return table;
}

int Load(TestFluid& fluid, const TableFolder& folder, const std::string& text, double high = 0.0,
         double low = 0.0) {
    folder.Write("Plain.FTBL", text);
    return fluid.LoadFluidTable(folder.path.c_str(), "Plain", high, low);
}

TEST(FluidTable, ConstantsGoIntoTheirMembersAndCriticalValuesIntoUserUnits) {
    const TableFolder folder;
    TestFluid fluid;  // °F and psi
    ASSERT_EQ(Load(fluid, folder, FluidText().Text()), 1);
    EXPECT_EQ(fluid.GetMolecularWt(), 28.9586);
    EXPECT_EQ(fluid.GetCriticalTemp(), 260.3);  // 400 K = 260.33 °F
    EXPECT_EQ(fluid.GetCriticalPres(), 159.5);  // 1100 kPa = 159.54 psi
    EXPECT_EQ(fluid.FormulasAreValid(FLUID_LIQUID, 295.0, 0.0), 1);
    EXPECT_EQ(fluid.FormulasAreValid(FLUID_LIQUID, 395.0, 0.0), 1);
    EXPECT_EQ(fluid.FormulasAreValid(FLUID_LIQUID, 395.1, 0.0), 0);
    EXPECT_EQ(fluid.FormulasAreValid(FLUID_VAPOR, 500.0, 5000.0), 1);
    EXPECT_EQ(fluid.FormulasAreValid(FLUID_VAPOR, 500.0, 5000.1), 0);
    EXPECT_EQ(fluid.FormulasAreValid(FLUID_VAPOR, 294.9, 0.0), 0);
    EXPECT_EQ(fluid.FormulasAreValid(FLUID_USER_VAPOR, 1.0, 1.0), 1);
}

// The derived constants of the equation of state need the critical values in K and kPa.
TEST(FluidTable, FormulasAreLoadedWithTheCriticalValuesOfTheFile) {
    const TableFolder folder;
    TestFluid fluid;
    ASSERT_EQ(
        Load(fluid, folder, Changed([](FluidText& t) { t.formulas[4] = kPengRobinson; }).Text()),
        1);
    EXPECT_DOUBLE_EQ(fluid.m_formulas[4].m_coefficients[1], 0.0778 * 8.3144 * 400.0 / 1100.0);
}

TEST(FluidTable, EveryCauseOfAnInvalidTableIsFound) {
    const std::string whole = FluidText().Text();
    const std::string texts[] = {
        "",
        whole.substr(whole.find("D\t")),  // no V record
        "D\t1\r\n" + whole,               // ahead of it another record
        Changed([](FluidText& t) { t.version = "v\t\"1\"\tx\t3\t5"; }).Text(),
        Changed([](FluidText& t) { t.constants = "d\t1\t2"; }).Text(),
        Changed([](FluidText& t) {
            t.constants = "D\t29\t400\t1100\t295\t395\t295\t500\t0";
        }).Text(),
        Changed([](FluidText& t) { t.constants = "D\t29\t400\t1100\t295\t395\t295\t500"; }).Text(),
        Changed([](FluidText& t) { t.constants = "D\t29\t\t\t1100\t295\t395\t295\t500\t"; }).Text(),
        Changed([](FluidText& t) {
            t.constants = "D\t29\t400\tx\t295\t395\t295\t500\t5000";
        }).Text(),
        Changed([](FluidText& t) { t.formulas[0] = "P1\t0"; }).Text(),
        Changed([](FluidText& t) { t.formulas[0] = "P1\t1\t1\t-1"; }).Text(),
        Changed([](FluidText& t) { std::swap(t.formulas[2], t.formulas[3]); }).Text(),
        Changed([](FluidText& t) { t.formulas[6] = "P8\t1\t33"; }).Text(),
        Changed([](FluidText& t) {
            t.formulas[3] = "P4\t0";
            t.formulas[5] = "P6\t0";
        }).Text(),
        Changed([](FluidText& t) {
            t.formulas[2] = "V\t\"1\"";
            t.formulas[4] = "D\t1";
        }).Text(),
        std::string(100000, 'P'),
    };
    const TableFolder folder;
    for (const std::string& text : texts) {
        TestFluid fluid;
        EXPECT_EQ(Load(fluid, folder, text), 0) << text;
    }
    TestFluid fluid;
    EXPECT_EQ(fluid.LoadFluidTable(folder.path.c_str(), "None"), 0);
    EXPECT_EQ(fluid.LoadFluidTable(folder.path.c_str(), std::string(400, 'n').c_str()), 0);
    std::filesystem::create_directory(folder.Path("Folder.FTBL"));
    EXPECT_EQ(fluid.LoadFluidTable(folder.path.c_str(), "Folder"), 0);
}

TEST(FluidTable, IncompleteSetsAreLeftOut) {
    const struct {
        FluidText table;
        bool liquid;
        int equation;
    } kCases[] = {
        {{}, true, 1},
        {Changed([](FluidText& t) { t.formulas[2] = "P3\t0"; }), false, 1},
        {Changed([](FluidText& t) { t.formulas[3] = "P4"; }), false, 1},
        {Changed([](FluidText& t) { t.formulas[4] = "P5\t0"; }), true, 0},
        {Changed([](FluidText& t) {
             t.formulas[4] = kPengRobinson;
             t.formulas[5] = "P6\t0";
         }),
         true, 0},
        {Changed([](FluidText& t) { t.formulas[6] = "P7\t0"; }), true, 0},
        {Changed([](FluidText& t) {
             t.formulas[4] = kPengRobinson;
             t.formulas[3] = "P4\t0";
         }),
         false, 2},
        // A stray record takes the place of a slot, which is then absent.
        {Changed([](FluidText& t) { t.formulas[6] = "V\tstray"; }), true, 0},
    };
    const TableFolder folder;
    for (const auto& c : kCases) {
        TestFluid fluid;
        EXPECT_EQ(Load(fluid, folder, c.table.Text()), 1);
        EXPECT_EQ(fluid.FormulasExist(FLUID_LIQUID), c.liquid);
        EXPECT_EQ(fluid.FormulasExist(FLUID_VAPOR), c.equation != 0);
        EXPECT_FALSE(fluid.FormulasExist(FLUID_NONE));
        EXPECT_EQ(fluid.EqnState(), c.equation);
        EXPECT_EQ(fluid.m_formulas[3].m_type != 0, c.liquid);
        EXPECT_EQ(fluid.m_formulas[5].m_type != 0, c.equation != 0);
    }
}

TEST(FluidTable, RemarksAndLineEndsDoNotMatter) {
    const TableFolder folder;
    const FluidText remarks = Changed([](FluidText& t) {
        t.title = "\r\n\tD stands not first\r\n" + std::string(600, 'r') + std::string(5, '\0');
        t.constants += "\tbehind the last field\r\n\r\n# remark\r\nd\tp1\tv";
        t.formulas[6] += "\t0\t0\t0\t0\t6\t7\r\nD\tP\tV";
    });
    const FluidText unixLines = Changed([](FluidText& t) { t.lineEnd = "\n"; });
    const FluidText tabs = Changed([](FluidText& t) {
        t.constants = "Data\t\t28.9586\t400\t1100\t\t295\t395\t295\t500\t5000\t";
    });
    TestFluid plain;
    ASSERT_EQ(Load(plain, folder, FluidText().Text()), 1);
    for (const FluidText& table : {remarks, unixLines, tabs}) {
        TestFluid fluid;
        EXPECT_EQ(Load(fluid, folder, table.Text()), 1) << table.Text();
        EXPECT_TRUE(fluid == plain);
    }
}

TEST(FluidTable, LevelsAreTestedAgainstTheLimits) {
    const struct {
        const char* version;
        double high;
        double low;
        int usable;
    } kCases[] = {
        {"V\t\"1\"\tx\t7\t1", 7.0, 1.0, 1},   {"V\t\"1\"\tx\t7.5\t1", 7.0, 1.0, 0},
        {"V\t\"1\"\tx\t7\t0.5", 7.0, 1.0, 0}, {"V\t\"1\"\tx\t7.5\t0.5", 0.0, 0.0, 1},
        {"V\t\"1\"\tx\t3", 7.0, 3.0, 1},      {"V\t\"1\"\tx\t3", 7.0, 4.0, 0},
    };
    const TableFolder folder;
    for (const auto& c : kCases) {
        TestFluid fluid;
        const std::string text = Changed([&c](FluidText& t) { t.version = c.version; }).Text();
        EXPECT_EQ(Load(fluid, folder, text, c.high, c.low), c.usable) << c.version;
        // What a refused level leaves: the constants, the critical values converted, no formula.
        EXPECT_EQ(fluid.GetCriticalTemp(), 260.3);
        EXPECT_EQ(fluid.m_formulas[0].m_type, c.usable);
    }
}

TEST(FluidTable, FailuresLeaveWhatWasReadSoFar) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    // A damaged record: the slots ahead of it are the file's, the ones behind it the former ones.
    ASSERT_EQ(Load(fluid, folder, Changed([](FluidText& t) {
                                      t.constants = "D\t18\t350\t900\t290\t340\t290\t400\t4000";
                                      t.formulas[2] = "P3\t1\t1100\t-1";
                                      t.formulas[3] = "P9";
                                  }).Text()),
              0);
    EXPECT_EQ(fluid.GetMolecularWt(), 18.0);
    EXPECT_EQ(fluid.GetCriticalTemp(), 350.0);
    EXPECT_EQ(fluid.m_formulas[0].m_type, 1);
    EXPECT_EQ(fluid.m_formulas[4].m_type, 1);
    EXPECT_EQ(fluid.m_formulas[2].m_type, 0);  // without viscosity
    // No file: the constants are zero, the formulas stay; name, state and set point too.
    fluid = folder.Fluid({}, 300.0, 500.0);
    EXPECT_EQ(fluid.LoadFluidTable(folder.path.c_str(), "None"), 0);
    EXPECT_EQ(fluid.GetMolecularWt(), 0.0);
    EXPECT_EQ(fluid.GetCriticalTemp(), 0.0);
    EXPECT_EQ(fluid.m_formulas[2].m_type, 1);
    EXPECT_STREQ(fluid.GetFluidName(), "Plain");
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_EQ(fluid.GetPressure(), 500.0);
}

// Also of a file whose last record has no line end, which is dropped.
TEST(FluidTable, SlotsBehindTheEndOfAShortFileAreEmpty) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    std::string text = FluidText().Text();
    text.resize(text.size() - 2);
    EXPECT_EQ(Load(fluid, folder, text), 1);
    EXPECT_EQ(fluid.EqnState(), 0);
    EXPECT_EQ(fluid.m_formulas[6].m_coefficients[0], 0.0);
    EXPECT_EQ(Load(fluid, folder, text.substr(0, text.find("P3"))), 0);
    for (int slot = 2; slot < 7; ++slot) EXPECT_EQ(fluid.m_formulas[slot].m_type, 0);
}

TEST(FluidTable, FileIsReadAgainOnlyForAnotherName) {
    TableFolder folder;
    TestFluid fluid = folder.Fluid({}, 300.0, 500.0);
    std::filesystem::remove(folder.Path("Plain.FTBL"));
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), "Plain", 310.0, 600.0), 0);
    EXPECT_EQ(fluid.GetDensity(), 890.0);
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), "Plain", 320.0), 1);  // this form always reads
    EXPECT_EQ(fluid.GetTemperature(), 320.0);
    EXPECT_EQ(fluid.GetPressure(), 0.0);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_LIQUID);
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), "plain", 330.0, 700.0), 1);
    EXPECT_STREQ(fluid.GetFluidName(), "plain");
    EXPECT_EQ(fluid.GetTemperature(), 320.0);
    // The failed load left a usable first formula, so the name counts as loaded.
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), "plain", 330.0, 700.0), 0);
    EXPECT_EQ(fluid.GetFluidState(), FLUID_NONE);
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), fluid.GetFluidName(), 330.0), 1);
}

TEST(FluidTable, LongNamesAreCutInTheFluidNotInThePath) {
    TableFolder folder;
    const std::string name(80, 'n');
    folder.Add(name, {});
    CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
    EXPECT_EQ(fluid.SetFluid(folder.path.data(), name.c_str(), 300.0, 500.0), 0);
    EXPECT_EQ(fluid.GetFluidName(), name.substr(0, 63));
}

}  // namespace
