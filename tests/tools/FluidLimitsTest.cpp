#include "tests/tools/SampleTables.h"

namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

using FluidLimits = SampleTables;

constexpr const char* kLibraryMessage =
    "hydrofacts: Fluid properties are not available at the specified temperature and pressure.\n";

// In kelvin and kPa absolute, the sample's own units.
TEST_F(FluidLimits, NameTheOneThatWasPassed) {
    const struct {
        const char* fluidAndPoint;
        const char* sentence;
    } cases[] = {
        {"Sample -t 270 -p 150", "270 K is below the lowest liquid temperature, 280 K"},
        {"Sample -t 270 -p 1", "270 K is below the lowest liquid temperature, 280 K"},
        {"Sample -t 420 -p 500", "420 K is above the highest liquid temperature, 400 K"},
        {"Sample -t 510 -p 100", "510 K is above the highest vapor temperature, 500 K"},
        {"Sample -t 460 -p 6000",
         "6000 kPa absolute is above the highest vapor pressure, 5000 kPa absolute"},
        {"Sample -t 300 -p 100",
         "100 kPa absolute is the saturation pressure at 300 K, 100 kPa absolute"},
        {"Blend -t 300 -p 70",
         "between the saturation pressures at 300 K, 100 kPa absolute of the liquid and 50 kPa "
         "absolute of the vapor"},
        {"Sample -t 300 -p 9000", "9000 kPa absolute is not below the critical pressure, 8000 kPa"},
        {"Sample -t 450 -p 100", "450 K is the critical temperature"},
        {"Sample -t 300 -p 0", "0 kPa absolute is not above vacuum"},
        {"Sample -t -3 -p 10", "-3 K is not above absolute zero"},
        {"\"Gas only\" -t 300 -p 150",
         "150 kPa absolute is above the saturation pressure at 300 K, 100 kPa absolute, and the "
         "table has no liquid formulas"},
        {"oil -t 300 -p 50",
         "50 kPa absolute is below the saturation pressure at 300 K, 100 kPa absolute, and the "
         "table has no vapor formulas"},
        {"oil -t 460 -p 50",
         "460 K is above the critical temperature, 450 K, and the table has no vapor formulas"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.fluidAndPoint);
        const Outcome outcome =
            Run(WithTables(std::string("fluid ") + row.fluidAndPoint +
                           " --temperature-unit K --pressure-unit kPa --absolute"));
        EXPECT_EQ(outcome.status, 3);
        EXPECT_THAT(outcome.out, HasSubstr("has no state"));
        EXPECT_THAT(outcome.err, StartsWith(kLibraryMessage));
        EXPECT_THAT(outcome.err, HasSubstr(row.sentence));
    }
}

// 5000 kPa is 725.189 psi, less the atmosphere of 14.696 psi 710.493; 400 K is 260.33 °F.
TEST_F(FluidLimits, AreToldInTheUsersUnits) {
    const Outcome pressure = Run(WithTables("fluid Sample -t 370 -p 800"));
    EXPECT_THAT(pressure.err,
                HasSubstr("800 psi gauge is above the highest vapor pressure, 710.493 "
                          "psi gauge (725.189 psi absolute)"));
    const Outcome temperature = Run(WithTables("fluid Sample -t 270 -p 100"));
    EXPECT_THAT(temperature.err,
                HasSubstr("Sample: 270 \u00B0F is above the highest liquid temperature, 260.33 "
                          "\u00B0F"));
}

TEST_F(FluidLimits, LeaveAnObjectInTheStateNone) {
    const auto json = RunForJson(WithTables("fluid Sample -t -40 -p 1 --units metric"), 3);
    EXPECT_EQ(json["state"], "none");
    EXPECT_EQ(json["temperature"], -40.0);
    EXPECT_EQ(json["density"], 0.0);
    EXPECT_EQ(json["molecular_weight"], 20.0);
}

}  // namespace
