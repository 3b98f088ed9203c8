#include <iterator>
#include <regex>

#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;

const std::string kBaseUnits = " --temperature-unit K --pressure-unit kPa --absolute";

class PlotCommand : public SampleTables {
  protected:
    PlotCommand() {
        // The formulas give 950 and 1 at 300 K, an ideal gas k = 4/3 and Z = 1.
        Write("check_points.csv",
              "name,property,state,temperature_K,pressure_kPa,value,use,source\n"
              "Other,density,liquid,300,0,nonsense,check,Book\n"
              "\"Sample\",density,liquid,300,100,1000,check,Book\r\n"
              "Sample,density,liquid,320,100,940,fit,\"A, B\"\n"
              "Sample,density,liquid,380,100,910,check,Book\n"
              "Sample,viscosity,liquid,300,0,0.5,check,Book\n"
              "Sample,compressibility,vapor,400,50,0.8,check,Book\n"
              "Sample,compressibility,vapor,400,60,0.9,check,Book\n");
    }

    nlohmann::json Panels(const std::string& arguments) {
        return RunForJson("plot " + arguments)["panels"];
    }
    std::string Plot(const std::string& what, const std::string& file) const {
        return "plot " + what + " -o \"" + m_folder.Path(file) + "\"";
    }
};

// The tables' formulas are told in SampleTables.h. Below the liquid's range, at 280 K, there is no
// state; a vapor of 200 kPa is one above 400 K.
TEST_F(PlotCommand, DrawsWhatTheFormulasGiveOverTheirRanges) {
    const auto density = Panels("Sample density -p 50 -p 200" + kBaseUnits);
    ASSERT_EQ(density.size(), 2U);
    EXPECT_EQ(density[0]["title"], "Sample: density of the liquid");
    EXPECT_EQ(density[0]["x"], "temperature, K");
    EXPECT_EQ(density[0]["y"], "density, kg/m\u00B3");
    const auto liquid = density[0]["series"][0];
    EXPECT_EQ(liquid["points"].front()[0], 280.0);
    EXPECT_EQ(liquid["points"].back()[0], 400.0);
    EXPECT_EQ(liquid["points"][100][0], 340.0);
    EXPECT_NEAR(liquid["points"][100][1], 930.0, 1e-9);
    const auto vapor = density[1]["series"];
    EXPECT_EQ(vapor[0]["label"], "50 kPa absolute");
    EXPECT_EQ(vapor[0]["points"].front()[0], 280.0);
    EXPECT_EQ(vapor[0]["points"].back()[0], 500.0);
    EXPECT_NEAR(vapor[0]["points"].back()[1], 50 * 20 / (8.3144 * 500), 1e-9);
    EXPECT_EQ(vapor[1]["points"].front()[0], 401.25);  // the first of 200 steps behind 400 K

    const auto ratios = Panels("Sample k")[0]["series"][0]["points"];
    EXPECT_NEAR(ratios.front()[1], 4.0 / 3, 1e-9);
    EXPECT_EQ(Panels("Sample viscosity --state LIQUID").size(), 1U);
    const auto saturation = Panels("Sample vapor-pressure" + kBaseUnits)[0]["series"];
    ASSERT_EQ(saturation.size(), 1U);
    EXPECT_NEAR(saturation[0]["points"].back()[1], 250.0, 1e-9);
    const auto blend = Panels("Blend vapor-pressure" + kBaseUnits)[0]["series"];
    EXPECT_EQ(blend[0]["label"], "bubble point");
    EXPECT_NEAR(blend[1]["points"].back()[1], 200.0, 1e-9);  // T - 250 kPa at the critical point
}

// 400 K is 260.33 °F, 900 kg/m³ are 56.185 lb/ft³; 14.6959 psi is 101.325 kPa.
TEST_F(PlotCommand, SpeaksTheUsersUnits) {
    const auto panels = Panels("Sample density -p 0");
    const auto last = panels[0]["series"][0]["points"].back();
    EXPECT_NEAR(last[0], 260.33, 1e-6);
    EXPECT_NEAR(last[1], 56.185, 1e-3);
    const auto isobar = panels[1]["series"][0];
    EXPECT_EQ(isobar["label"], "0 psi gauge");
    EXPECT_NEAR(isobar["points"].back()[1], 101.325 * 20 / (8.3144 * 500) / 16.018463, 1e-6);
}

TEST_F(PlotCommand, ComparesWithTheCheckPoints) {
    const auto series = Panels("sample density --state liquid" + kBaseUnits)[0]["series"];
    ASSERT_EQ(series.size(), 3U);
    EXPECT_EQ(series[1]["kind"], "fitted");
    EXPECT_EQ(series[1]["label"], "A, B, fitted to");
    EXPECT_EQ(series[2]["kind"], "not fitted");
    EXPECT_EQ(series[2]["points"], "[[300, 1000], [380, 910]]"_json);
    // An isobar has the points of its own pressure.
    const auto isobar = Panels("Sample compressibility -p 50" + kBaseUnits)[0]["series"];
    ASSERT_EQ(isobar.size(), 2U);
    EXPECT_EQ(isobar[1]["points"], "[[400, 0.8]]"_json);

    const auto off = Panels("Sample density --deviation" + kBaseUnits);
    ASSERT_EQ(off.size(), 1U);                                     // the vapor has none
    EXPECT_NEAR(off[0]["series"][2]["points"][0][1], -5.0, 1e-9);  // 950 for 1000
    ExpectRefused("plot Sample k --deviation --json", "no check points");
    Write("check_points.csv", "name\nSample,density,liquid,x,0,1,fit,y\n");
    ExpectRefused("plot Sample density --json",
                  "check_points.csv:2: field 4: \"x\" is not a number");
}

TEST_F(PlotCommand, RefusesWhatCannotBeDrawn) {
    ExpectAllRefused(
        "plot ",
        {
            {"Sample colour --json", "density, viscosity, vapor-pressure, k and compressibility"},
            {"Sample density", "--output FILE.svg"},
            {"Sample density -o a.pdf", "a.pdf: a plot is named *.svg"},
            {"Sample density -o a.svg -o b.svg", "--output: At Most 1 required but received 2."},
            {"Sample k -p 3 --json", "doesn't depend on the pressure"},
            {"Sample k --state liquid --json", "not a property of a liquid"},
            {"oil k --json", "no vapor formulas"},
            {"Sample density -p x --json", "\"x\" is not a number"},
        });
    ExpectRefused(Plot("Sample k", "missing/a.gp"), "can't be written");
    const Outcome outside = Run("plot Sample density -p 6000 --json" + kBaseUnits);
    EXPECT_EQ(outside.status, 3);
    EXPECT_THAT(outside.err, HasSubstr("up to 5000 kPa absolute"));
}

TEST_F(PlotCommand, WritesAScriptThatHoldsItsData) {
    Write("It's odd.FTBL", SampleTable());
    const Outcome outcome = Run(Plot("\"It's odd\" viscosity", "a.GP"));
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("a.GP: 2 curves, 0 check points\n"));
    const std::string script = m_folder.Read("a.GP");
    EXPECT_THAT(script, HasSubstr("set title 'It''s odd: viscosity of the liquid'"));
    EXPECT_THAT(script, HasSubstr("set ylabel 'viscosity, cP'"));
    EXPECT_THAT(script, HasSubstr("\n260.33 0\nEND\n"));
}

#ifndef _WIN32

// Nothing in a name is carried out or taken for a mark. Each mark is drawn once more in the legend.
TEST_F(PlotCommand, GnuplotDrawsItWithTextsAsTheyAre) {
    const std::string name = "`touch x` $(touch y) {a}_b^2 @c";
    Write(name + ".FTBL", SampleTable());
    const std::string row = "\n" + name + ",density,liquid,";
    Write("check_points.csv",
          row + "300,0,1000,check,Book" + row + "380,0,910,check,Book" + row + "320,0,940,fit,B");
    const Outcome outcome = Run(Plot("'" + name + "' density --state liquid", "a.svg"));
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("a.svg: 1 curve, 3 check points\n"));
    const std::string svg = m_folder.Read("a.svg");
    EXPECT_THAT(svg, HasSubstr(name + ": density of the liquid"));
    EXPECT_THAT(svg, HasSubstr("density, lb/ft\u00B3"));
    EXPECT_THAT(svg, HasSubstr("Book, not fitted to"));
    const std::regex mark("<use xlink:href='#gpPt6' transform");
    EXPECT_EQ(std::distance(std::sregex_iterator(svg.begin(), svg.end(), mark), {}), 2 + 1);
    EXPECT_THAT(svg, HasSubstr("</svg>\n"));
    EXPECT_FALSE(std::filesystem::exists("x"));
}

TEST_F(PlotCommand, SaysThatGnuplotIsMissingOrFails) {
    const std::string before = ::getenv("PATH");
    const std::string plot = Plot("Sample k --state vapor", "a.svg");
    ::setenv("PATH", m_tables.c_str(), 1);
    ExpectRefused(plot, "plotting needs gnuplot");
    Write("gnuplot", "#!/bin/sh\necho no ink >&2\nexit 1\n");
    std::filesystem::permissions(m_tables + "/gnuplot", std::filesystem::perms::owner_all);
    ExpectRefused(plot, "gnuplot failed.\nhydrofacts: no ink.");
    ::setenv("PATH", before.c_str(), 1);
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("a.svg")));
}

#endif

}  // namespace
