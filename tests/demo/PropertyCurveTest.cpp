#include <gmock/gmock.h>

#include <cmath>

#include "demo/PropertyCurve.h"
#include "tests/fluid/TestFluid.h"

namespace demo {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr SIZE kSize{600, 400};
constexpr int kTextHeight = 10;
constexpr int kCharWidth = 6;

/// Where the values of a picture lie, worked out from its frame and the ends of its axes.
class Axes {
  public:
    Axes(const PlotPicture& picture, double left, double right, double bottom, double top)
        : topLeft_(picture.frame.points.at(0)),
          bottomRight_(picture.frame.points.at(2)),
          left_(left),
          right_(right),
          bottom_(bottom),
          top_(top) {}

    /// To a pixel.
    void ExpectAt(const POINT& point, double x, double y) const {
        EXPECT_NEAR(point.x, X(x), 1.0) << x;
        EXPECT_NEAR(point.y, Y(y), 1.0) << y;
    }

  private:
    double X(double x) const {
        return topLeft_.x + (x - left_) / (right_ - left_) * (bottomRight_.x - topLeft_.x);
    }
    double Y(double y) const {
        return bottomRight_.y - (y - bottom_) / (top_ - bottom_) * (bottomRight_.y - topLeft_.y);
    }

    POINT topLeft_;
    POINT bottomRight_;
    double left_;
    double right_;
    double bottom_;
    double top_;
};

class PropertyCurveTest : public ::testing::Test {
  protected:
    PropertyCurveTest() {
        units_.SetSystem(HF_METRIC, true);
        units_.SetUserUnit(HF_TEMPERATURE, HF_KELVIN);
        units_.SetUserUnit(HF_PRESSURE, HF_KPA);
        units_.SetAbsolute(true);
    }

    /// Of a fluid with liquid below and vapor above 350 K, at 600 kPa.
    PlotPicture Draw(Property property, const FluidText& table = {}, double temperature = 300.0) {
        const TestFluid fluid = folder_.Fluid(table, temperature, 600.0);
        EXPECT_TRUE(curve_.Set(fluid, units_, property, "Title"));
        return curve_.Draw(kSize, kTextHeight, kCharWidth);
    }

    TableFolder folder_;
    Units units_;
    PropertyCurve curve_;
};

TEST(PlotTicks, AreMultiplesOfOneTwoOrFive) {
    EXPECT_THAT(MakeTicks(0.0, 905.0, 4).values, ElementsAre(0.0, 500.0));
    EXPECT_THAT(MakeTicks(-7.0, 13.0, 4).values, ElementsAre(-5.0, 0.0, 5.0, 10.0));
    EXPECT_THAT(MakeTicks(0.0, 0.3, 3).values,
                ElementsAre(0.0, DoubleEq(0.1), DoubleEq(0.2), DoubleEq(0.1 * 3)));
    EXPECT_THAT(MakeTicks(990.0, 1010.0, 10).values, SizeIs(11));  // 2 apart
    EXPECT_THAT(MakeTicks(1.0, 1.0, 4).values, IsEmpty());
    EXPECT_THAT(MakeTicks(0.0, INFINITY, 4).values, IsEmpty());
    EXPECT_THAT(MakeTicks(0.0, 8.0, 0).values, ElementsAre(0.0));
}

TEST(PlotTicks, HaveTheDecimalsOfTheirStep) {
    EXPECT_EQ(TickText(500.0, 500.0, '.'), "500");
    EXPECT_EQ(TickText(-5.0, 5.0, '.'), "-5");
    EXPECT_EQ(TickText(0.5, 0.05, ','), "0,50");
    EXPECT_EQ(TickText(-1e-18, 0.05, ','), "0");
    EXPECT_EQ(TickText(2.5e7, 5e6, ','), "2,5e+07");
}

TEST_F(PropertyCurveTest, ACurveEndsWhereTheStateDoes) {
    const PlotPicture liquid = Draw(Property::Density, {}, 300.0);
    ASSERT_THAT(liquid.curves, SizeIs(1));
    const Axes axes(liquid, 295.0, 350.0, 850.0, 905.0);
    axes.ExpectAt(liquid.curves[0].points.front(), 295.0, 1200.0 - 295.0);
    axes.ExpectAt(liquid.curves[0].points.back(), 350.0, 1200.0 - 350.0);
    ASSERT_THAT(liquid.marks, SizeIs(1));
    axes.ExpectAt(liquid.marks[0], 300.0, 900.0);

    // The ideal gas: p M / (R T), 5.97 to 4.18 kg/m³.
    const auto gas = [](double t) { return 600.0 * 28.9586 / (8.314462618 * t); };
    const PlotPicture vapor = Draw(Property::Density, {}, 450.0);
    ASSERT_THAT(vapor.curves, SizeIs(1));
    const Axes axesOfVapor(vapor, 350.0, 500.0, 4.0, 6.0);
    axesOfVapor.ExpectAt(vapor.curves[0].points.front(), 350.0, gas(350.0));
    axesOfVapor.ExpectAt(vapor.curves[0].points.back(), 500.0, gas(500.0));
    axesOfVapor.ExpectAt(vapor.marks.at(0), 450.0, gas(450.0));
}

TEST_F(PropertyCurveTest, AnAxisBeginsAtZeroIfTheCurveFallsByMoreThanHalf) {
    FluidText table;
    table.formulas[3] = "P4\t1\t3\t-0.008";  // 0.64 cP at 295 K, 0.2 cP at 350 K
    const PlotPicture picture = Draw(Property::Viscosity, table);
    const Axes axes(picture, 295.0, 350.0, 0.0, 0.65);
    axes.ExpectAt(picture.curves.at(0).points.back(), 350.0, 0.2);
}

TEST_F(PropertyCurveTest, ABlendHasBubblesAndDew) {
    FluidText blend;
    blend.formulas[1] = kDewSide;  // 600 kPa at 355 K
    const PlotPicture vapor = Draw(Property::Viscosity, blend, 400.0);
    ASSERT_THAT(vapor.curves, SizeIs(1));
    const Axes axes(vapor, 355.0, 500.0, 0.0135, 0.015);
    axes.ExpectAt(vapor.curves[0].points.front(), 355.0, 0.01355);
    axes.ExpectAt(vapor.marks.at(0), 400.0, 0.014);

    // The vapor pressures go up to the critical point, the lower one from where it is above zero.
    const PlotPicture pressures = Draw(Property::VaporPressure, blend);
    ASSERT_THAT(pressures.curves, SizeIs(2));
    const Axes axesOfPressure(pressures, 295.0, 400.0, 0.0, 1100.0);
    axesOfPressure.ExpectAt(pressures.curves[0].points.front(), 295.0, 50.0);
    axesOfPressure.ExpectAt(pressures.curves[0].points.back(), 400.0, 1100.0);
    axesOfPressure.ExpectAt(pressures.curves[1].points.front(), 295.0, 0.0);
    axesOfPressure.ExpectAt(pressures.curves[1].points.back(), 400.0, 1050.0);
    axesOfPressure.ExpectAt(pressures.marks.at(0), 300.0, 100.0);
}

TEST_F(PropertyCurveTest, FollowsTheUsersUnitsAndDecimalSign) {
    units_.SetUserUnit(HF_TEMPERATURE, HF_DEG_C);
    folder_.Add("Plain", {});
    TestFluid fluid(&units_);
    ASSERT_EQ(fluid.SetFluid(folder_.path.data(), "Plain", 26.85, 600.0), 0);
    curve_.SetDecimalSign(',');
    ASSERT_TRUE(curve_.Set(fluid, units_, Property::Viscosity, "Title"));
    const PlotPicture picture = curve_.Draw(kSize, kTextHeight, kCharWidth);
    Axes(picture, 21.85, 76.85, 1.77, 1.83).ExpectAt(picture.marks.at(0), 26.85, 1.823456);
    std::vector<std::string> texts;
    for (const PlotText& text : picture.texts) texts.push_back(text.text);
    EXPECT_THAT(texts, ::testing::IsSupersetOf({"Title, cP",
                                                "\xB0"
                                                "C",
                                                "1,800", "50"}));
}

TEST_F(PropertyCurveTest, WhatIsNotThereIsNotDrawn) {
    const TestFluid liquid = folder_.Fluid({}, 300.0, 600.0);
    EXPECT_FALSE(curve_.Set(liquid, units_, Property::HeatRatio, "Title"));

    // Above the critical temperature a fluid has no vapor pressure.
    const PlotPicture pressures = Draw(Property::VaporPressure, {}, 450.0);
    EXPECT_THAT(pressures.curves, SizeIs(1));
    EXPECT_THAT(pressures.marks, IsEmpty());
    const TestFluid none = folder_.Fluid({}, 290.0, 600.0);
    EXPECT_FALSE(curve_.Set(none, units_, Property::Density, "Title"));
    curve_.Clear("Nothing");
    const PlotPicture message = curve_.Draw(kSize, kTextHeight, kCharWidth);
    EXPECT_THAT(message.frame.points, SizeIs(5));
    EXPECT_THAT(message.grid, IsEmpty());
    ASSERT_THAT(message.texts, SizeIs(1));
    EXPECT_EQ(message.texts[0].text, "Nothing");

    Draw(Property::Density);
    for (const SIZE size : {SIZE{0, 0}, SIZE{20, 400}, SIZE{400, 20}}) {
        EXPECT_THAT(curve_.Draw(size, kTextHeight, kCharWidth).curves, IsEmpty());
    }
}

TEST_F(PropertyCurveTest, AFluidOfTheUsersIsAMarkInTheMiddle) {
    CFluid fluid(&units_);
    fluid.SetFluidProperties("Brine", FLUID_USER_LIQUID, 300.0, 600.0, 1100.0, 1.5, 3.0, 0.0, 0.0,
                             0.0, 0.0, 18.0);
    ASSERT_TRUE(curve_.Set(fluid, units_, Property::Density, "Title"));
    const PlotPicture picture = curve_.Draw(kSize, kTextHeight, kCharWidth);
    EXPECT_THAT(picture.curves, IsEmpty());
    Axes(picture, 250.0, 350.0, 0.0, 1100.0).ExpectAt(picture.marks.at(0), 300.0, 1100.0);
    EXPECT_FALSE(curve_.Set(fluid, units_, Property::HeatRatio, "Title"));
}

}  // namespace
}  // namespace demo
