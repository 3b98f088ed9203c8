#include <gmock/gmock.h>

#include <optional>

#include "demo/PropertyCurve.h"
#include "tests/fluid/TestFluid.h"

namespace demo {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::SizeIs;

struct Axes {
    double left, right, bottom, top;
};

/// What a curve has at both ends of the axis.
using Ends = std::pair<double, double>;

void ExpectPicture(const PlotPicture& picture, const Axes& axes, const std::vector<Ends>& curves,
                   double temperature, std::optional<double> mark) {
    const POINT topLeft = picture.frame.points.at(0);
    const POINT bottomRight = picture.frame.points.at(2);
    // To a pixel.
    const auto expectAt = [&](const POINT& point, double x, double y) {
        const double right = (x - axes.left) / (axes.right - axes.left);
        const double up = (y - axes.bottom) / (axes.top - axes.bottom);
        EXPECT_NEAR(point.x, topLeft.x + right * (bottomRight.x - topLeft.x), 1.0) << x;
        EXPECT_NEAR(point.y, bottomRight.y - up * (bottomRight.y - topLeft.y), 1.0) << y;
    };
    ASSERT_THAT(picture.curves, SizeIs(curves.size()));
    for (std::size_t i = 0; i < curves.size(); ++i) {
        expectAt(picture.curves[i].points.front(), axes.left, curves[i].first);
        expectAt(picture.curves[i].points.back(), axes.right, curves[i].second);
    }
    ASSERT_THAT(picture.marks, SizeIs(mark ? 1 : 0));
    if (mark) expectAt(picture.marks[0], temperature, *mark);
}

class PropertyCurveTest : public ::testing::Test {
  protected:
    PropertyCurveTest() {
        units_.SetSystem(HF_METRIC, true);
        units_.SetUserUnit(HF_TEMPERATURE, HF_KELVIN);
        units_.SetUserUnit(HF_PRESSURE, HF_KPA);
        units_.SetAbsolute(true);
    }

    bool Set(const CFluid& fluid, Property property) {
        return curve_.Set(fluid, units_, property, "Title");
    }
    void ExpectCurves(const FluidText& table, Property property, double temperature,
                      const Axes& axes, const std::vector<Ends>& curves,
                      std::optional<double> mark) {
        SCOPED_TRACE(testing::PrintToString(property) + " at " + std::to_string(temperature));
        ASSERT_TRUE(Set(folder_.Fluid(table, temperature, 600.0), property));
        ExpectPicture(Draw(), axes, curves, temperature, mark);
    }
    PlotPicture Draw(SIZE size = {600, 400}) const { return curve_.Draw(size, 10, 6); }

    TableFolder folder_;
    Units units_;
    PropertyCurve curve_;
};

TEST(PlotTicks, AreMultiplesOfOneTwoOrFiveWithTheDecimalsOfTheirStep) {
    EXPECT_THAT(MakeTicks(0.0, 905.0, 4).values, ElementsAre(0.0, 500.0));
    EXPECT_THAT(MakeTicks(-7.0, 13.0, 4).values, ElementsAre(-5.0, 0.0, 5.0, 10.0));
    EXPECT_THAT(MakeTicks(0.0, 0.3, 3).values,
                ElementsAre(0.0, DoubleEq(0.1), DoubleEq(0.2), DoubleEq(0.1 * 3)));
    EXPECT_THAT(MakeTicks(990.0, 1010.0, 10).values, SizeIs(11));  // 2 apart
    EXPECT_EQ(TickText(0.5, 0.05, ','), "0,50");
    EXPECT_EQ(TickText(-1e-18, 0.05, ','), "0");
    EXPECT_EQ(TickText(2.5e7, 5e6, ','), "2,5e+07");
}

// Of a fluid with liquid below and vapor above 350 K, at 600 kPa.
TEST_F(PropertyCurveTest, EndsWhereTheStateDoes) {
    const auto gas = [](double t) { return 600.0 * 28.9586 / (8.314462618 * t); };  // p M / (R T)
    ExpectCurves({}, Property::Density, 300, {295, 350, 850, 905}, {{905, 850}}, 900);
    ExpectCurves({}, Property::Density, 450, {350, 500, 4, 6}, {{gas(350), gas(500)}}, gas(450));
    // An axis begins at zero if the curve falls by more than half.
    FluidText thin;
    thin.formulas[3] = "P4\t1\t3\t-0.008";
    ExpectCurves(thin, Property::Viscosity, 300, {295, 350, 0, 0.65}, {{0.64, 0.2}}, 0.6);
    FluidText blend;
    blend.formulas[1] = kDewSide;  // 600 kPa at 355 K
    ExpectCurves(blend, Property::Viscosity, 400, {355, 500, 0.0135, 0.015}, {{0.01355, 0.015}},
                 0.014);
    // The vapor pressures go up to the critical point, the lower one from where it is above zero.
    const Axes saturation{295, 400, 0, 1100};
    ExpectCurves(blend, Property::VaporPressure, 300, saturation, {{50, 1100}, {0, 1050}}, 100);
    // Above the critical temperature a fluid has none.
    ExpectCurves({}, Property::VaporPressure, 450, saturation, {{50, 1100}}, std::nullopt);
}

TEST_F(PropertyCurveTest, FollowsTheUsersUnitsAndDecimalSign) {
    units_.SetUserUnit(HF_TEMPERATURE, HF_DEG_C);
    folder_.Add("Plain", {});
    TestFluid fluid(&units_);
    ASSERT_EQ(fluid.SetFluid(folder_.path.data(), "Plain", 26.85, 600.0), 0);
    curve_.SetDecimalSign(',');
    ASSERT_TRUE(Set(fluid, Property::Viscosity));
    const PlotPicture picture = Draw();
    ExpectPicture(picture, {21.85, 76.85, 1.77, 1.83}, {{1.828456, 1.773456}}, 26.85, 1.823456);
    std::vector<std::string> texts;
    for (const PlotText& text : picture.texts) texts.push_back(text.text);
    EXPECT_THAT(texts, ::testing::IsSupersetOf({"Title, cP", "\xB0\x43", "1,800", "50"}));
}

TEST_F(PropertyCurveTest, IsAMarkInTheMiddleForAFluidOfTheUsers) {
    CFluid fluid(&units_);
    fluid.SetFluidProperties("Brine", FLUID_USER_LIQUID, 300.0, 600.0, 1100.0, 1.5, 3.0, 0.0, 0.0,
                             0.0, 0.0, 18.0);
    ASSERT_TRUE(Set(fluid, Property::Density));
    ExpectPicture(Draw(), {250, 350, 0, 1100}, {}, 300, 1100);
}

TEST_F(PropertyCurveTest, IsNotDrawnWhereThereIsNothingOrNoRoom) {
    EXPECT_FALSE(Set(folder_.Fluid({}, 300.0, 600.0), Property::HeatRatio)) << "of a liquid";
    EXPECT_FALSE(Set(folder_.Fluid({}, 290.0, 600.0), Property::Density)) << "too cold";
    curve_.Clear("Nothing");
    EXPECT_THAT(Draw().texts, ElementsAre(::testing::Field(&PlotText::text, "Nothing")));
    ASSERT_TRUE(Set(folder_.Fluid({}, 300.0, 600.0), Property::Density));
    for (const SIZE size : {SIZE{0, 0}, SIZE{20, 400}, SIZE{400, 20}}) {
        EXPECT_THAT(Draw(size).curves, ::testing::IsEmpty());
    }
}

}  // namespace
}  // namespace demo
