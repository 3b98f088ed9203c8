#include <gtest/gtest.h>

#include <memory>

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/units/Atmospheric_Pressure_Equations.h"
#include "hydrofacts/units/UnitValue.h"

namespace {

using Length = UnitValue<7, 0>;
using Viscosity = UnitValue<4, 0>;

CFluid LiquidOfDensity(double kgPerM3) {
    CFluid fluid(HF_DEG_C, HF_BAR, 0, 1.0);
    fluid.SetFluidProperties("Liquid", FLUID_USER_LIQUID, 20.0, 0.0, kgPerM3, 1.0, 0.0, 0.0, 0.0,
                             0.0, 0.0, 0.0);
    return fluid;
}

TEST(UnitValue, SettersDoNotConvertAndANewUnitLetsGoOfTheFluid) {
    Length length(HF_LEN_M, 1.0);
    length.set_unit(HF_LEN_FT);
    EXPECT_DOUBLE_EQ(length.value_in(HF_LEN_IN), 12.0);
    Viscosity viscosity(1, LiquidOfDensity(500.0), 10.0);
    viscosity.set_unit(1);
    EXPECT_EQ(viscosity.value_in(0), 0.0);
}

TEST(UnitValue, UserUnitIsThatOfTheSharedUnits) {
    const int former = Units::defaultUnits()->SetUserUnit(HF_LENGTH, HF_LEN_CM);
    EXPECT_DOUBLE_EQ(Length(HF_LEN_M, 2.0).value_in(HF_USER_UNIT), 200.0);
    Units::defaultUnits()->SetUserUnit(HF_LENGTH, former);
}

TEST(UnitValue, CopyOwnsItsFluidAndSharedUnits) {
    Units others;
    auto source = std::make_unique<Viscosity>(1, LiquidOfDensity(500.0), 10.0);
    source->units = &others;
    const Viscosity copy(*source);
    Viscosity assigned;
    assigned = *source;
    source.reset();
    for (const Viscosity* value : {&copy, static_cast<const Viscosity*>(&assigned)}) {
        EXPECT_EQ(value->units, Units::defaultUnits());
        EXPECT_NEAR(value->value_in(0), 10.0 / 999.93656 * 500.0, 1e-14);
    }
}

TEST(UnitValue, DynamicViscosityStaysFromFluidToFluid) {
    const CFluid light = LiquidOfDensity(500.0);
    const CFluid heavy = LiquidOfDensity(1000.0);
    const Viscosity source(1, light, 10.0);
    Viscosity target(1, heavy);
    target.assign(source);
    EXPECT_NEAR(target.raw_value(), 5.0, 1e-14);
    EXPECT_NEAR(source.value_in(1, &heavy), 5.0, 1e-14);
    EXPECT_EQ(source.value_in(1, &light), 10.0);
    // Without a fluid of its own it is taken in the other's.
    EXPECT_EQ(Viscosity(1, 10.0).value_in(1, &heavy), 10.0);
    EXPECT_NEAR(Viscosity(1, 10.0).value_in(0, &heavy), 10.0 / 999.93656 * 1000.0, 1e-13);
}

// U.S. Standard Atmosphere 1976: 101325, 84307 and 57182 Pa. Good to 0.02%, since 14.697 psi at sea
// level is a rounded figure.
TEST(AtmosphereEquation, FollowsTheStandardAtmosphere) {
    constexpr double kPoints[][2] = {{0.0, 14.696}, {5000.0, 12.228}, {15000.0, 8.2935}};
    for (const auto& [feet, psi] : kPoints) {
        const auto pressure =
            Atmospheric_Pressure_Equations::atmospheric_pressure_at_elevation({HF_LEN_FT, feet});
        EXPECT_EQ(pressure.unit, HF_PSI);
        EXPECT_NEAR(pressure.raw_value(), psi, 2e-4 * psi) << feet;
    }
}

}  // namespace
