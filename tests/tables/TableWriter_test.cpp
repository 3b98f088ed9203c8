// The program that writes the fluid tables: what it makes of published rows, and what it refuses.

#include <iterator>
#include <regex>

#include "tables/CheckPoints.h"
#include "tables/Checks.h"
#include "tables/Fit.h"
#include "tables/LeftOut.h"
#include "tables/TableFile.h"
#include "tests/tables/SpoiledData.h"

namespace {

using namespace hydrofacts::tables;
using ::testing::HasSubstr;

FluidData Fluid(const std::string& name) {
    for (const FluidData& fluid : ReadReferenceData(HYDROFACTS_FLUID_DATA)) {
        if (fluid.options.name == name) return fluid;
    }
    throw std::runtime_error("no such fluid: " + name);
}

TEST(SpoiledData, IsRefusedWithFileLineAndField) {
    const Spoiling kRows[] = {
        {"constants.csv", ",-0.008,", ",-0,008,", ": has 11 fields where the heading has 10"},
        {"constants.csv", ",-0.008,", ",-.008x,", "acentric_factor: '-.008x' is not a number"},
        {"constants.csv", ",-0.008,", ",nan,", "field acentric_factor: 'nan' is not a number"},
        {"constants.csv", ",-0.008,", ",1e999,", "field acentric_factor: '1e999' is out of range"},
        {"constants.csv", ",-0.008,", ",,", "field acentric_factor: is empty"},
        {"constants.csv", ",source", ",sauce", "field source: the file has no such column"},
        {"constants.csv", "\nAir,", "\n\"Air,", "a quote is not closed"},
        {"constants.csv", "7664-41-7", "7664-41-8", "constants.csv: field cas: has no 7664-41-7"},
        {"fluids.csv", "Redlich-Kwong", "Rietveld", "equation_of_state: 'Rietveld' is no equation"},
        {"fluids.csv", "Ammonia,7664-41-7", "Ammonia,132259-10-0", "field cas: stands twice"},
        {"fluids.csv", "Ammonia", "A/B", "field name: holds a character"},
        {"fluids.csv", "Ammonia", "Amm\xC3\xB3nia", "field name: holds a character"},
        {"fluids.csv", "Ammonia", "Ammonia with a name far too long", "name: is longer than 30"},
        {"withheld.csv", "liquid_viscosity", "colour", "withheld.csv:2: field property: 'colour'"},
        {"vapor_pressure.csv", ",101,", ",1e300,", ":2: field equation_form: '1e300' is no form"},
        {"vapor_pressure.csv", ",59.15,", ",0,", "field t_min_K: must be greater than 0"},
        {"vapor_pressure.csv", ",59.15,132.45,", ",132.45,59.15,", "t_max_K: must be greater"},
    };
    ExpectRefusals(HYDROFACTS_FLUID_DATA, kRows, ReadReferenceData);
    const Spoiling lineEnd{"fluids.csv", "\n", "\r\n", ""};
    EXPECT_EQ("", MessageAfter(HYDROFACTS_FLUID_DATA, lineEnd, ReadReferenceData));
}

// No such form is in the tables, and its coefficients would do for another one.
TEST(Handbook, RowOfAFormThatTheTablesLackIsNotUsed) {
    const HandbookRow water{116, {17.863, 58.606, -95.396, 213.89, -141.26}, 273, 647, "a book"};
    EXPECT_FALSE(FromHandbook(Property::LiquidDensity, water, Fluid("Water").constants));
}

TEST(Fit, NeedsEightPoints) {
    std::vector<WeightedPoint> points;
    for (double t = 200.0; t < 270.0; t += 10.0) points.push_back({t, t, 1.0});
    const auto fit = [&points] {
        return FitProperty(Property::GasViscosity, Fluid("Water").constants, points,
                           [](const CFormula&) { return true; });
    };
    EXPECT_FALSE(fit());
    points.push_back({270.0, 270.0, 1.0});
    EXPECT_TRUE(fit());
}

// At the critical point, 500 K, the row gives exp(12) Pa.
TEST(Choice, AVaporPressureFarFromTheCriticalPointIsNotUsed) {
    FluidData fluid;
    fluid.constants = {100.0, 500.0, 1e6, 0.3, 200.0, "", 0.0, 0.0};
    fluid.handbook[Property::VaporPressure] = {
        {101, {20.0, -4000.0, 0.0, 0.0, 0.0}, 300.0, 500.0, "a book"}};
    const Choice choice = ChooseFormula(Property::VaporPressure, fluid, {300.0, 500.0});
    EXPECT_FALSE(choice.formula);
    EXPECT_THAT(choice.reason, HasSubstr("gives 0.000163 times the critical pressure"));
}

TEST(LeftOut, TheListThatIsKeptMustSayWhatWasFound) {
    const TempFolder folder;
    const LeftOut found[] = {{"A, b", "1-2-3", "liquid", "no data; none"}};
    const std::string row = "\"A, b\",1-2-3,liquid,no data; none";
    const auto message = [&](const std::string& rows) -> std::string {
        try {
            CheckLeftOut(folder.Write("left_out.csv", "name,cas,part,reason" + rows), found);
        } catch (const InputError& error) {
            return error.what();
        }
        return "";
    };
    EXPECT_EQ("", message("\n" + row + "\n"));
    EXPECT_EQ("", message("\r\n" + row + "\r\n"));
    EXPECT_THAT(message("\n"), HasSubstr("left_out.csv:2: does not say what was found: " + row));
    EXPECT_THAT(message("\n\"A, b\",1-2-3,liquid,no data\n"), HasSubstr(":2: does not say"));
    EXPECT_THAT(message("\n" + row + "\nC,1,table,x\n"),
                HasSubstr(":3: does not say what was found: no more is left out"));
}

// Air: of 25 temperatures 13 are fitted to and 12 left to judge the fit.
TEST(CheckPoints, SayWhichOfThemTheFitHasSeen) {
    const FluidData air = Fluid("Air");
    const std::string text = CheckPointLines(DesignFluid(air), air);
    const auto count = [&text](const char* use) {
        const std::regex line(std::string("Air,vapor_pressure,liquid,.*,") + use + ",.*\n");
        return std::distance(std::sregex_iterator(text.begin(), text.end(), line), {});
    };
    EXPECT_EQ(13, count("fit"));
    EXPECT_EQ(12, count("check"));
}

TEST(Checks, RefuseATableThatIsNotSound) {
    const FluidTable sound = DesignFluid(Fluid("Propane"));
    const TempFolder folder;
    const auto messageAfter = [&](auto change) -> std::string {
        FluidTable table = sound;
        change(table);
        folder.Write(table.name + ".FTBL", TableText(table));
        try {
            CheckTable(folder.Path(), table);
        } catch (const DesignError& error) {
            return error.what();
        }
        return "";
    };
    EXPECT_EQ("", messageAfter([](FluidTable&) {}));
    EXPECT_THAT(messageAfter([](FluidTable& t) { t.formulas.erase(Property::VaporPressure); }),
                HasSubstr("the table does not load"));
    EXPECT_THAT(messageAfter([](FluidTable& t) { t.constants.criticalPressure *= 1.2; }),
                HasSubstr("misses the critical pressure"));
    EXPECT_THAT(messageAfter([](FluidTable& t) { t.liquid->max = 400.0; }), HasSubstr("has no"));
    EXPECT_THAT(messageAfter([](FluidTable& t) { t.vaporDensity.maxPressure *= 100.0; }),
                HasSubstr("finds no vapor at"));
    // The same at every temperature.
    struct Case {
        Property property;
        double value;
        const char* message;
    };
    const Case cases[] = {
        {Property::VaporPressure, 100.0, "saturation pressure that does not rise"},
        {Property::LiquidDensity, 500.0, "liquid density that does not fall"},
        {Property::LiquidViscosity, 0.1, "liquid viscosity that does not fall"},
        {Property::GasViscosity, 0.01, "gas viscosity that does not rise"},
        {Property::GasHeatCapacity, 8.0, "ratio of specific heats of 1 or less"},
    };
    for (const auto& [property, value, message] : cases) {
        const std::string found = messageAfter([property = property, value = value](FluidTable& t) {
            CFormula& formula = t.formulas.at(property).formula;
            formula = CFormula();
            formula.m_type = 1;
            formula.m_coefficients[0] = value;
        });
        EXPECT_THAT(found, HasSubstr(message));
    }
}

}  // namespace
