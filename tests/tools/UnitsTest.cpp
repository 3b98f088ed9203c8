#include "tests/tools/CommandRunner.h"

namespace {

using ::testing::HasSubstr;

using UnitsCommand = CommandRunner;

TEST_F(UnitsCommand, TellsWhatOneOfAUnitIs) {
    const auto flow = RunForJson("units Flow")["units"];
    EXPECT_EQ(flow[9]["text"], "m\u00B3/hr");
    EXPECT_EQ(flow[9]["factor"], 4.4028675);
    EXPECT_EQ(flow[9]["base"], "US gpm");
    EXPECT_NEAR(flow[14]["factor"], 3600.0, 1e-6);  // kg/sec in kg/hr
    EXPECT_EQ(flow[14]["base"], "kg/hr");
    EXPECT_EQ(flow[18]["base"], "scfm");
    EXPECT_FALSE(flow[25].contains("factor"));

    const Outcome plain = Run("units pressure");
    EXPECT_THAT(plain.out, HasSubstr("psi      0  6.894757293 kPa\n"));
    EXPECT_THAT(plain.out, HasSubstr("ft H2O  12  head of a fluid\n"));
    ExpectRefused("units weight", "temperature, pressure, flow");
}

}  // namespace
