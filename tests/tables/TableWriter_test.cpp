// The program that writes the tables: what it makes of published rows, how it fits, what it
// refuses.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "tables/CheckPoints.h"
#include "tables/Checks.h"
#include "tables/Csv.h"
#include "tables/Fit.h"
#include "tables/LeftOut.h"
#include "tables/TableFile.h"
#include "tests/support/TempFolder.h"
#include "tests/tables/PipeValveSpoiledData.h"

namespace {

using namespace hydrofacts::tables;
namespace fs = std::filesystem;

const FluidData& Fluid(const std::string& name) {
    static const std::vector<FluidData> all = ReadReferenceData(HYDROFACTS_FLUID_DATA);
    for (const FluidData& fluid : all) {
        if (fluid.options.name == name) {
            return fluid;
        }
    }
    throw std::runtime_error("no such fluid: " + name);
}

TEST(SpoiledData, IsRefusedWithFileLineAndField) {
    const Spoiling kRows[] = {
        {"constants.csv", ",28.96,", ",28,96,", ": has 11 fields where the heading has 10"},
        {"constants.csv", ",28.96,", ",28.96x,",
         "field molecular_weight_kg_per_kmol: '28.96x' is not a number"},
        {"constants.csv", ",28.96,", ",-28.96,",
         "field molecular_weight_kg_per_kmol: must be greater than 0"},
        {"constants.csv", ",28.96,", ",nan,", "'nan' is not a number"},
        {"constants.csv", ",28.96,", ",1e999,", "'1e999' is out of range"},
        {"constants.csv", ",28.96,", ",,", "field molecular_weight_kg_per_kmol: is empty"},
        {"constants.csv", "\nAir,", "\n\"Air,", "a quote is not closed"},
        {"constants.csv", "acentric_factor", "acentric",
         "field acentric_factor: the file has no such column"},
        {"constants.csv", "7664-41-7", "7664-41-8", "constants.csv: field cas: has no 7664-41-7"},
        {"fluids.csv", "Redlich-Kwong", "Rietveld",
         "field equation_of_state: 'Rietveld' is no equation that is known"},
        {"withheld.csv", "liquid_viscosity", "colour",
         "withheld.csv:2: field property: 'colour' is no property that is known"},
        {"fluids.csv", "Ammonia,7664-41-7", "Ammonia,132259-10-0", "field cas: stands twice"},
        {"fluids.csv", "Ammonia", "A/B", "field name: holds a character"},
        {"fluids.csv", "Ammonia", "Amm\xC3\xB3nia", "field name: holds a character"},
        {"vapor_pressure.csv", ",101,", ",1e300,",
         "vapor_pressure.csv:2: field equation_form: '1e300' is no form that is known"},
        {"fluids.csv", "Ammonia", "A name of more than thirty characters",
         "field name: is longer than 30"},
        {"vapor_pressure.csv", ",59.15,132.45,", ",132.45,59.15,",
         "field t_max_K: must be greater than t_min_K"},
    };
    for (const Spoiling& row : kRows) {
        const std::string message = MessageAfter(HYDROFACTS_FLUID_DATA, row, ReadReferenceData);
        EXPECT_THAT(message, ::testing::HasSubstr(row.message));
        EXPECT_THAT(message, ::testing::HasSubstr(std::string(row.file) + ":"));
    }
    EXPECT_EQ("", MessageAfter(HYDROFACTS_FLUID_DATA, {"fluids.csv", "\n", "\r\n", ""},
                               ReadReferenceData));
}

// Toluene at 300 K by hand from its published coefficients.
TEST(Handbook, RowsBecomeFormulasOfTheTable) {
    const FluidData& toluene = Fluid("Toluene");
    const auto value = [&](Property property) {
        const auto formula =
            FromHandbook(property, toluene.handbook.at(property).front(), toluene.constants);
        return formula ? Evaluate(*formula, toluene.constants, 300.0) : 0.0;
    };
    // exp(76.945 - 6729.8/300 - 8.179 ln 300 + 5.3017e-6 300^2) = exp(8.33825) Pa
    EXPECT_NEAR(4.1808, value(Property::VaporPressure), 0.001);
    // 92.138 * 0.8792 / 0.27136^(1 + (1 - 300/591.75)^0.29241)
    EXPECT_NEAR(862.2, value(Property::LiquidDensity), 0.05);
    // 1000 * 8.7268e-7 * 300^0.49397 / (1 + 323.79/300)
    EXPECT_NEAR(0.0070236, value(Property::GasViscosity), 1e-6);
    // Ethanol's polynomial for low temperatures: 32585 + 87.4 * 150 + 0.05 * 150^2 J/(kmol K)
    const HandbookRow polynomial{100, {32585, 87.4, 0.05, 0, 0}, 50, 200, "a book"};
    const auto formula = FromHandbook(Property::GasHeatCapacity, polynomial, toluene.constants);
    ASSERT_TRUE(formula);
    EXPECT_NEAR(46.82, Evaluate(*formula, toluene.constants, 150.0), 1e-9);
    // The table format has no such form.
    const HandbookRow water{116, {17.863, 58.606, -95.396, 213.89, -141.26}, 273, 647, "a book"};
    EXPECT_FALSE(FromHandbook(Property::LiquidDensity, water, toluene.constants));
}

/// Points of a function of the temperature.
template <class Function>
std::vector<WeightedPoint> Sample(double from, double to, double step, Function function) {
    std::vector<WeightedPoint> points;
    for (double t = from; t <= to; t += step) {
        points.push_back({t, function(t), 1.0});
    }
    return points;
}

// Correlations of the literature, sampled, come back between the samples.
TEST(Fit, FindsTheCorrelationThatThePointsCameFrom) {
    const FluidConstants constants{100.0, 500.0, 4000.0, 0.3, 200.0, "", 0.0};
    const auto anything = [](const CFormula&) { return true; };
    struct Row {
        Property property;
        double (*function)(double);
        double percent;
    };
    const Row kRows[] = {
        // kPa, exponent 2; a tail of ten digits is what rounding leaves.
        {Property::VaporPressure,
         [](double t) {
             return std::exp(59.0 - 5000.0 / t - 6.0 * std::log(t) + 6e-6 * t * t) / 1000.0;
         },
         1e-5},
        {Property::LiquidDensity,
         [](double t) {
             return 100.0 * 1.2 / std::pow(0.26, 1.0 + std::pow(1.0 - t / 500.0, 0.3));
         },
         1e-5},
        {Property::LiquidViscosity,
         [](double t) { return 1000.0 * std::exp(-11.0 + 900.0 / t - 3e-7 * t * t); }, 1e-4},
        {Property::GasViscosity,
         [](double t) { return 1000.0 * 3e-7 * std::pow(t, 0.7) / (1.0 + 120.0 / t); }, 1e-5},
        {Property::GasHeatCapacity,
         [](double t) {
             const double u = 1000.0 / t;
             const double v = 500.0 / t;
             return 40.0 + 90.0 * std::pow(u / std::sinh(u), 2) +
                    50.0 * std::pow(v / std::cosh(v), 2);
         },
         0.02},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(SlotOf(row.property));
        const auto fit = FitProperty(row.property, constants,
                                     Sample(200.0, 480.0, 10.0, row.function), anything);
        ASSERT_TRUE(fit);
        for (double t = 203.0; t < 480.0; t += 7.0) {
            const double expected = row.function(t);
            EXPECT_NEAR(expected, Evaluate(*fit, constants, t), expected * row.percent / 100.0)
                << t;
        }
    }
}

TEST(Fit, GivesNothingForTooFewPointsOrIfNothingIsAccepted) {
    const FluidConstants constants{100.0, 500.0, 4000.0, 0.3, 200.0, "", 0.0};
    const auto line = [](double t) { return t; };
    EXPECT_FALSE(FitProperty(Property::GasViscosity, constants, Sample(200, 260, 10, line),
                             [](const CFormula&) { return true; }));
    EXPECT_FALSE(FitProperty(Property::GasViscosity, constants, Sample(200, 480, 10, line),
                             [](const CFormula&) { return false; }));
}

FluidConstants Constants(double tc, double pc) { return {100.0, tc, pc, 0.3, 200.0, "", 0.0, 0.0}; }

// A viscosity that is lowest at 300 K: ln = 900/t + 3 ln t, so 900/t^2 = 3/t there.
TEST(Handbook, OnlyThePartOfARowThatGoesTheRightWayIsSound) {
    const HandbookRow row{101, {-25.0, 900.0, 3.0, 0.0, 0.0}, 200.0, 400.0, "a book"};
    const auto formula = FromHandbook(Property::LiquidViscosity, row, Constants(500.0, 4000.0));
    ASSERT_TRUE(formula);
    const Range sound =
        SoundPart(Property::LiquidViscosity, *formula, Constants(500.0, 4000.0), {200.0, 350.0});
    EXPECT_EQ(200.0, sound.min);
    EXPECT_NEAR(300.0, sound.max, 0.4);
}

/// A fluid of which only a vapor pressure is known: exp(20 - 4000/t) Pa up to 450 K.
FluidData OnlyVaporPressure(double criticalPressure) {
    FluidData fluid;
    fluid.constants = Constants(500.0, criticalPressure);
    fluid.handbook[Property::VaporPressure] = {
        {101, {20.0, -4000.0, 0.0, 0.0, 0.0}, 300.0, 500.0, "a book"}};
    return fluid;
}

// At 500 K the row gives exp(12) Pa = 162.755 kPa.
TEST(Choice, AVaporPressureMeetsTheCriticalPoint) {
    struct Row {
        double criticalPressure;
        const char* source;
    };
    for (const Row& row : {Row{162.0, "a book"}, Row{190.0, "fitted to the row of a book, 300 to"},
                           Row{150.0, "fitted to the row of a book, 300 to"}}) {
        SCOPED_TRACE(row.criticalPressure);
        const FluidData fluid = OnlyVaporPressure(row.criticalPressure);
        const Choice choice = ChooseFormula(Property::VaporPressure, fluid, {300.0, 500.0});
        ASSERT_TRUE(choice.formula);
        EXPECT_THAT(choice.formula->source, ::testing::StartsWith(row.source));
        const auto value = [&](double t) {
            return Evaluate(choice.formula->formula, fluid.constants, t);
        };
        EXPECT_NEAR(row.criticalPressure, value(500.0), 0.021 * row.criticalPressure);
        // exp(20 - 4000/330) and exp(20 - 4000/350) Pa
        EXPECT_NEAR(2.6395, value(330.0), 0.02 * 2.6395);
        EXPECT_NEAR(5.2794, value(350.0), 0.02 * 5.2794);
    }
    const Choice far = ChooseFormula(Property::VaporPressure, OnlyVaporPressure(1e6), {300, 500});
    EXPECT_FALSE(far.formula);
    EXPECT_THAT(far.reason, ::testing::HasSubstr("gives 0.000163 times the critical pressure"));
}

TEST(Choice, AWithheldRowIsCutOrNotUsed) {
    FluidData fluid = OnlyVaporPressure(162.0);
    fluid.handbook[Property::LiquidViscosity] = {
        {101, {-11.0, 900.0, 0.0, 0.0, 0.0}, 200.0, 400.0, "a book"}};
    const auto choose = [&](double from, double to) {
        fluid.withheld[Property::LiquidViscosity] = {from, to, "two books differ"};
        return ChooseFormula(Property::LiquidViscosity, fluid, {200.0, 450.0});
    };
    EXPECT_EQ(340.0, choose(340.0, 1000.0).formula->range.max);
    EXPECT_EQ(250.0, choose(100.0, 250.0).formula->range.min);
    EXPECT_EQ(400.0, choose(500.0, 600.0).formula->range.max);
    const Choice nothing = choose(1.0, 1000.0);
    EXPECT_FALSE(nothing.formula);
    EXPECT_EQ("no liquid viscosity: the published row is withheld, two books differ",
              nothing.reason);
}

TEST(LeftOut, TheListThatIsKeptMustSayWhatWasFound) {
    const TempFolder folder;
    const fs::path file = fs::path(folder.Path()) / "left_out.csv";
    const std::vector<LeftOut> found = {{"A, b", "1-2-3", "liquid", "no data; none"}};
    const auto message = [&](const std::string& text) -> std::string {
        std::ofstream(file, std::ios::binary) << text;
        try {
            CheckLeftOut(file, found);
        } catch (const InputError& error) {
            return error.what();
        }
        return "";
    };
    using ::testing::HasSubstr;
    const std::string heading = "name,cas,part,reason\n";
    EXPECT_EQ("", message(heading + "\"A, b\",1-2-3,liquid,no data; none\n"));
    EXPECT_EQ("", message("name,cas,part,reason\r\n\"A, b\",1-2-3,liquid,no data; none\r\n"));
    EXPECT_THAT(message(heading), HasSubstr("left_out.csv:2: does not say what was found: \"A, b"));
    EXPECT_THAT(message(heading + "\"A, b\",1-2-3,liquid,no data\n"), HasSubstr(":2: does not"));
    EXPECT_THAT(message(heading + "\"A, b\",1-2-3,liquid,no data; none\nC,1,table,x\n"),
                HasSubstr(":3: does not say what was found: no more is left out"));
    EXPECT_THAT(message(""), HasSubstr(":1: does not"));
}

// Methane: 25 temperatures, 13 of them fitted to and 12 left to judge the fit. The first, 90.694 K,
// lies a hair below the table.
TEST(CheckPoints, SayWhichOfThemTheFitHasSeen) {
    const FluidData& methane = Fluid("Methane");
    const std::string text = CheckPointLines(DesignFluid(methane), methane);
    std::map<std::string, int> counts;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_THAT(line, ::testing::StartsWith("Methane,"));
        if (line.find("vapor_pressure,liquid") != std::string::npos) {
            ++counts[line.find(",fit,") != std::string::npos ? "fit" : "check"];
        }
    }
    EXPECT_EQ(12, counts["fit"]);
    EXPECT_EQ(12, counts["check"]);
}

/// A sound table, spoiled and checked.
class Checks : public ::testing::Test {
  protected:
    std::string MessageFor(const FluidTable& table) {
        const fs::path folder = m_folder.Path();
        std::ofstream(folder / (table.name + ".FTBL"), std::ios::binary) << TableText(table);
        try {
            CheckTable(folder, table);
        } catch (const DesignError& error) {
            return error.what();
        }
        return "";
    }

    TempFolder m_folder;
};

TEST_F(Checks, RefuseATableThatIsNotSound) {
    const FluidTable sound = DesignFluid(Fluid("Propane"));
    ASSERT_EQ("", MessageFor(sound));
    const auto spoil = [&](auto change) {
        FluidTable table = sound;
        change(table);
        return MessageFor(table);
    };
    const auto coefficient = [](FluidTable& table, Property property, int index) -> double& {
        return table.formulas.at(property).formula.m_coefficients[index];
    };
    using ::testing::HasSubstr;
    EXPECT_THAT(spoil([&](FluidTable& t) { t.formulas.erase(Property::VaporPressure); }),
                HasSubstr("the table does not load"));
    EXPECT_THAT(spoil([&](FluidTable& t) { t.constants.criticalPressure *= 1.2; }),
                HasSubstr("misses the critical pressure"));
    EXPECT_THAT(spoil([&](FluidTable& t) { t.liquid->max = 400.0; }), HasSubstr("has no"));
    EXPECT_THAT(spoil([&](FluidTable& t) { coefficient(t, Property::GasViscosity, 1) = -0.5; }),
                HasSubstr("gas viscosity that does not rise"));
    EXPECT_THAT(spoil([&](FluidTable& t) {
                    t.formulas.at(Property::GasHeatCapacity).formula = CFormula();
                    t.formulas.at(Property::GasHeatCapacity).formula.m_type = 1;
                    coefficient(t, Property::GasHeatCapacity, 0) = 8.0;
                }),
                HasSubstr("ratio of specific heats of 1 or less"));
}

}  // namespace
