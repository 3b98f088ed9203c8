#include <hydrofacts/hydrofacts.h>

#include <cstdio>

int main() {
    char tables[260];
    GetDirectory(DIR_TABLES, tables, sizeof tables);
    CFluid water(HF_DEG_C, HF_BAR, 0, 1.01325);  // °C, bar gauge above this atmosphere
    if (water.SetFluid(tables, "Water", 20.0, 1.0) != 0 || !water.IsLiquid()) return 1;
    std::printf("%.1f kg/m3, %.3f cP\n", water.GetDensity(), water.GetViscosity());
    std::printf("10 bar = %.1f psi\n", Units().Convert(HF_PRESSURE, 10, HF_BAR, HF_PSI, nullptr));
}
