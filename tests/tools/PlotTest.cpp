#include <cmath>
#include <string>

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
        return RunForJson(WithTables("plot " + arguments))["panels"];
    }
    std::string Output(const std::string& name) const { return m_folder.Path(name); }
};

// The value of a curve at one of its temperatures.
double ValueAt(const nlohmann::json& series, double temperature) {
    for (const auto& point : series["points"]) {
        if (std::abs(double(point[0]) - temperature) < 1e-6) return point[1];
    }
    return std::nan("");
}

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
    EXPECT_NEAR(ValueAt(liquid, 340), 930.0, 1e-9);
    const auto vapor = density[1]["series"];
    EXPECT_EQ(vapor[0]["label"], "50 kPa absolute");
    EXPECT_EQ(vapor[0]["points"].front()[0], 280.0);
    EXPECT_NEAR(ValueAt(vapor[0], 500), 50 * 20 / (8.3144 * 500), 1e-9);
    EXPECT_EQ(vapor[1]["points"].front()[0], 401.25);  // the first of 200 steps behind 400 K

    EXPECT_NEAR(ValueAt(Panels("Sample k" + kBaseUnits)[0]["series"][0], 300), 4.0 / 3, 1e-9);
    EXPECT_EQ(Panels("Sample viscosity --state LIQUID").size(), 1U);
    const auto blend = Panels("Blend vapor-pressure" + kBaseUnits)[0]["series"];
    EXPECT_EQ(blend[0]["label"], "bubble point");
    EXPECT_NEAR(ValueAt(blend[1], 450), 200.0, 1e-9);  // T - 250 kPa at the critical point
}

// 400 K is 260.33 °F, 900 kg/m³ are 56.185 lb/ft³; 14.6959 psi is 101.325 kPa.
TEST_F(PlotCommand, SpeaksTheUsersUnits) {
    const auto panels = Panels("Sample density -p 0");
    const auto last = panels[0]["series"][0]["points"].back();
    EXPECT_NEAR(last[0], 260.33, 1e-6);
    EXPECT_NEAR(last[1], 56.185, 1e-3);
    EXPECT_EQ(panels[1]["series"][0]["label"], "0 psi gauge");
    EXPECT_NEAR(panels[1]["series"][0]["points"].back()[1],
                101.325 * 20 / (8.3144 * 500) / 16.018463, 1e-6);
}

TEST_F(PlotCommand, ComparesWithTheCheckPoints) {
    const auto series = Panels("sample density --state liquid" + kBaseUnits)[0]["series"];
    ASSERT_EQ(series.size(), 3U);
    EXPECT_EQ(series[1]["kind"], "fitted");
    EXPECT_EQ(series[1]["label"], "A, B, fitted to");
    EXPECT_EQ(series[2]["kind"], "not fitted");
    EXPECT_EQ(series[2]["points"], nlohmann::json::parse("[[300, 1000], [380, 910]]"));
    // An isobar has the points of its own pressure.
    const auto isobar = Panels("Sample compressibility -p 50" + kBaseUnits)[0]["series"];
    ASSERT_EQ(isobar.size(), 2U);
    EXPECT_EQ(isobar[1]["points"], nlohmann::json::parse("[[400, 0.8]]"));

    const auto off = Panels("Sample density --deviation" + kBaseUnits);
    ASSERT_EQ(off.size(), 1U);                                     // the vapor has none
    EXPECT_NEAR(off[0]["series"][2]["points"][0][1], -5.0, 1e-9);  // 950 for 1000
    ExpectRefused(WithTables("plot Sample k --deviation --json"), "no check points");
    Write("check_points.csv", "name\nSample,density,liquid,x,0,1,fit,y\n");
    ExpectRefused(WithTables("plot Sample density --json"),
                  "check_points.csv:2: field 4: \"x\" is not a number");
}

TEST_F(PlotCommand, RefusesWhatCannotBeDrawn) {
    const struct {
        const char* arguments;
        const char* message;
    } cases[] = {
        {"Smaple density --json", "did you mean Sample?"},
        {"Sample colour --json", "density, viscosity, vapor-pressure, k and compressibility"},
        {"Sample density", "--output FILE.svg"},
        {"Sample density -o a.pdf", "a.pdf: a plot is named *.svg"},
        {"Sample k -p 3 --json", "doesn't depend on the pressure"},
        {"Sample k --state liquid --json", "not a property of a liquid"},
        {"oil k --json", "no vapor formulas"},
        {"Sample density -p x --json", "\"x\" is not a number"},
    };
    for (const auto& row : cases) {
        ExpectRefused(WithTables(std::string("plot ") + row.arguments), row.message);
    }
    const Outcome outside = Run(WithTables("plot Sample density -p 6000 --json" + kBaseUnits));
    EXPECT_EQ(outside.status, 3);
    EXPECT_THAT(outside.err, HasSubstr("up to 5000 kPa absolute"));
    ExpectRefused(WithTables("plot Sample k -o \"" + Output("missing/a.gp") + "\""),
                  "can't be written");
}

TEST_F(PlotCommand, WritesAScriptThatHoldsItsData) {
    Write("It's odd.FTBL", SampleTable());
    const Outcome outcome =
        Run(WithTables("plot \"It's odd\" viscosity -o \"" + Output("a.GP") + "\""));
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("a.GP: 2 curves, 0 check points\n"));
    const std::string script = m_folder.Read("a.GP");
    EXPECT_THAT(script, HasSubstr("set title 'It''s odd: viscosity of the liquid'"));
    EXPECT_THAT(script, HasSubstr("set ylabel 'viscosity, cP'"));
    EXPECT_THAT(script, HasSubstr("\n260.33 0\nEND\n"));
}

#ifndef _WIN32

std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

/// Another search path for programs, as long as it lives.
class SearchPath {
  public:
    explicit SearchPath(const std::string& path) : m_before(::getenv("PATH")) {
        ::setenv("PATH", path.c_str(), 1);
    }
    ~SearchPath() { ::setenv("PATH", m_before.c_str(), 1); }
    SearchPath(const SearchPath&) = delete;
    SearchPath& operator=(const SearchPath&) = delete;

  private:
    std::string m_before;
};

TEST_F(PlotCommand, GnuplotDrawsIt) {
    const Outcome outcome =
        Run(WithTables("plot Sample density --state liquid -o \"" + Output("a.svg") + "\""));
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("a.svg: 1 curve, 3 check points\n"));
    const std::string svg = m_folder.Read("a.svg");
    EXPECT_THAT(svg, HasSubstr("Sample: density of the liquid"));
    EXPECT_THAT(svg, HasSubstr("density, lb/ft\u00B3"));
    EXPECT_THAT(svg, HasSubstr("Book, not fitted to"));
    EXPECT_EQ(Count(svg, "<use xlink:href='#gpPt6' transform"), 2U + 1U);  // and one in the legend
    EXPECT_EQ(Count(svg, "<use xlink:href='#gpPt5' transform"), 1U + 1U);
    EXPECT_TRUE(svg.ends_with("</svg>\n\n") || svg.ends_with("</svg>\n"))
        << svg.substr(svg.size() - 9);
}

// Nothing in a name is carried out or taken for a mark.
TEST_F(PlotCommand, TextsAreDrawnAsTheyAre) {
    const std::string name = "It's `touch x` $(touch y) {a}_b^2 @c";
    Write(name + ".FTBL", SampleTable());
    std::string quoted = name;
    quoted.replace(quoted.find('\''), 1, "'\\''");
    const Outcome outcome =
        Run(WithTables("plot '" + quoted + "' k -o \"" + Output("a.svg") + "\""));
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(m_folder.Read("a.svg"),
                HasSubstr("`touch x` $(touch y) {a}_b^2 @c: ratio of specific heats"));
    EXPECT_FALSE(std::filesystem::exists("x"));
}

TEST_F(PlotCommand, SaysThatGnuplotIsMissingOrFails) {
    const std::string plot =
        WithTables("plot Sample k --state vapor -o \"" + Output("a.svg") + "\"");
    {
        const SearchPath nowhere(m_folder.Path("tables"));
        ExpectRefused(plot, "plotting needs gnuplot");
    }
    std::filesystem::create_directory(m_folder.Path("bin"));
    const std::string program =
        m_folder.Write("bin/gnuplot", "#!/bin/sh\necho no ink >&2\nexit 1\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    const SearchPath broken(m_folder.Path("bin"));
    ExpectRefused(plot, "gnuplot failed.\nhydrofacts: no ink.");
    EXPECT_FALSE(std::filesystem::exists(Output("a.svg")));
}

#endif

}  // namespace
