// What the library computes for the installed fluids is, to the last bit, what a plain evaluation
// of the same tables gives.

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

#include "InstalledTables.h"
#include "PlainFluid.h"
#include "hydrofacts/fluid/CFluid.h"

namespace {

void Same(const char* what, double expected, double actual) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(expected), std::bit_cast<std::uint64_t>(actual))
        << what << ": " << expected << ", " << actual;
}

TEST(FluidEvaluation, IsThatOfThePlainFormulasToTheLastBit) {
    constexpr int kTemperatures = 12;
    std::string folder = TableFolder();
    int liquids = 0;
    int vapors = 0;
    for (const std::string& name : InstalledFluids()) {
        const plain::Fluid table(folder + '/' + name + ".FTBL");
        CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
        const auto compare = [&](double t, double p, FLUIDSTATE state, int& count) {
            ASSERT_EQ(0, fluid.SetFluid(folder.data(), name.c_str(), t, p)) << name;
            if (fluid.GetFluidState() != state) return;
            SCOPED_TRACE(name + " at " + std::to_string(t) + " K, " + std::to_string(p));
            const bool liquid = state == FLUID_LIQUID;
            Same("density", liquid ? table.LiquidDensity(t) : table.VaporDensity(t, p),
                 fluid.GetDensity());
            Same("viscosity",
                 plain::FourDigits(liquid ? table.LiquidViscosity(t) : table.VaporViscosity(t)),
                 fluid.GetViscosity());
            if (liquid) {
                Same("vapor pressure", table.VaporPressure(t), fluid.GetVaporPres());
            } else {
                Same("k", plain::FourDigits(table.RatioOfSpecificHeats(t)), fluid.GetSpHeat());
            }
            ++count;
        };
        for (int i = 0; i <= kTemperatures; ++i) {
            const double part = static_cast<double>(i) / kTemperatures;
            const double cold = table.liquidMin + part * (table.liquidMax - table.liquidMin);
            const double warm = table.vaporMin + part * (table.vaporMax - table.vaporMin);
            compare(cold, 1.1 * table.VaporPressure(cold), FLUID_LIQUID, liquids);
            for (const double share : {1e-6, 0.1, 0.6, 1.0}) {
                compare(warm, share * table.maxPressure, FLUID_VAPOR, vapors);
            }
            // Just below saturation, where Newton's method has the longest way.
            compare(warm, 0.98 * table.VaporPressure(warm), FLUID_VAPOR, vapors);
        }
    }
    // Of about 480 fluids, most with both phases.
    EXPECT_GT(liquids, 4000);
    EXPECT_GT(vapors, 10000);
}

}  // namespace
