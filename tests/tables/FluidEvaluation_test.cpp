// What the library computes for the installed fluids is, to the last bit, what a plain evaluation
// of the same tables gives.

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>

#include "InstalledTables.h"
#include "PlainFluid.h"
#include "hydrofacts/fluid/CFluid.h"

namespace {

std::uint64_t Bits(double value) { return std::bit_cast<std::uint64_t>(value); }

/// Compares one fluid at one set point; counts what it has compared.
struct Comparison {
    const plain::Fluid& table;
    std::string where;
    int points = 0;

    void Same(const char* what, double expected, double actual) const {
        EXPECT_EQ(Bits(expected), Bits(actual))
            << where << ' ' << what << ": " << expected << ", " << actual;
    }

    void Liquid(const CFluid& fluid, double t) {
        Same("density", table.LiquidDensity(t), fluid.GetDensity());
        Same("viscosity", plain::FourDigits(table.LiquidViscosity(t)), fluid.GetViscosity());
        Same("vapor pressure", table.VaporPressure(t), fluid.GetVaporPres());
        ++points;
    }

    void Vapor(const CFluid& fluid, double t, double p) {
        Same("density", table.VaporDensity(t, p), fluid.GetDensity());
        Same("viscosity", plain::FourDigits(table.VaporViscosity(t)), fluid.GetViscosity());
        Same("k", plain::FourDigits(table.RatioOfSpecificHeats(t)), fluid.GetSpHeat());
        ++points;
    }
};

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
            Comparison at{table, name + " at " + std::to_string(t) + " K, " + std::to_string(p)};
            state == FLUID_LIQUID ? at.Liquid(fluid, t) : at.Vapor(fluid, t, p);
            count += at.points;
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
