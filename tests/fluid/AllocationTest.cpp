#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "hydrofacts/units/Atmospheric_Pressure_Equations.h"
#include "tests/fluid/TestFluid.h"

// Not on Windows, where a library's calls of operator new don't reach the program's.
#ifndef _WIN32

namespace {

std::atomic<long> allocations{0};

// NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory): these are what
// operator new is made of
void* Count(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

// Apart, since the compiler takes an inlined call of free for a mismatch.
[[gnu::noinline]] void Release(void* memory) { std::free(memory); }
// NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)

}  // namespace

// Those for arrays call these.
void* operator new(std::size_t size) { return Count(size); }
void operator delete(void* memory) noexcept { Release(memory); }
void operator delete(void* memory, std::size_t) noexcept { Release(memory); }

namespace {

double AllProperties(TestFluid& fluid) {
    return fluid.GetDensity() + fluid.GetUDensity() + fluid.GetDensityUS() + fluid.GetSG() +
           fluid.GetUDenSG() + fluid.GetViscosity() + fluid.CentistokesRounded() +
           fluid.GetSpHeat() + fluid.GetVaporPres() + fluid.GetUVaporPres() +
           fluid.GetAbsPressure() + fluid.MaxCompressiblePressure(350.0) +
           fluid.CalcZ(350.0, 300.0, true) + static_cast<int>(fluid.FindFluidState(350.0, 300.0)) +
           fluid.GetDensityValue().value_in(0) + fluid.GetPressureValue().value_in(HF_PSI);
}

double AllConversions(const Units& units, const CFluid& fluid) {
    double sum = 0.0;
    for (int type = HF_TEMPERATURE; type <= HF_HEAD_2; ++type) {
        for (int from = HF_USER_UNIT; from < 26; ++from) {
            for (int to = 0; to < 26; ++to)
                sum += units.Convert(static_cast<HF_UNIT_TYPES>(type), 1.5, from, to, &fluid);
        }
    }
    return sum;
}

TEST(Allocation, GettersAndConversionsAllocateNothing) {
    TableFolder folder;
    FluidText hardlyVolatile;
    hardlyVolatile.formulas[0] = "P1\t1\t1.23456789e-29";
    TestFluid fluids[] = {folder.Fluid({}, 300.0, 500.0), folder.Fluid({}, 350.0, 300.0),
                          folder.Fluid(hardlyVolatile, 300.0, 500.0)};
    for (TestFluid& fluid : fluids) {
        const long before = allocations;
        const double properties = AllProperties(fluid);
        const double conversions = AllConversions(*fluid.m_pUnits, fluid);
        const UnitValue<1, 0> air =
            Atmospheric_Pressure_Equations::atmospheric_pressure_at_elevation({HF_LEN_M, 500.0});
        EXPECT_EQ(allocations, before);
        EXPECT_NE(properties + conversions + air.raw_value(), 0.0);
    }
    const long before = allocations;
    EXPECT_NE(fluids[0].GetViscosityValue().raw_value(), 0.0);
    EXPECT_GT(allocations, before);  // the count does count what the library allocates
}

}  // namespace
#endif
