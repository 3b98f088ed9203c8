#include "bench/Operations.h"

#include <benchmark/benchmark.h>

#include <array>
#include <numeric>
#include <string>

#include "hydrofacts/hydrofacts.h"

namespace {

using benchmark::DoNotOptimize;

class Fluid : public CFluid {
  public:
    Fluid(const char* name, double celsius, double kPa) : CFluid(HF_DEG_C, HF_KPA, 1, 0.0) {
        SetFluid(Folder(), name, celsius, kPa);
    }
    using CFluid::FindFluidState;
    using CFluid::LoadFluidTable;

    static char* Folder() {
        static std::string folder = [] {
            char path[260] = "";
            GetDirectory(DIR_TABLES, path, 0);
            return std::string(path);
        }();
        return folder.data();
    }
};

class Pipe : public CPipeTable {
  public:
    Pipe() : CPipeTable(HF_US) {
        LoadMaterial(Fluid::Folder(), "Steel B36.10M");
        LoadPipeList("40", nullptr);
    }
};

class Valves : public CValveTable {
  public:
    Valves() { Load(); }
    void Load() {
        static const std::array<int, 23> all = [] {
            std::array<int, 23> numbers{};
            std::iota(numbers.begin(), numbers.end() - 1, 1);  // the last one ends the list
            return numbers;
        }();
        LoadValveTable(Fluid::Folder(), "Standard", HF_US, all.data());
    }
};

// What the operations work on, made once.
const Units& Us() {
    static const Units units(HF_US);
    return units;
}
Fluid& Water() {
    static Fluid water("Water", 80.0, 500.0);
    return water;
}
// A gas far from saturation, and one within a hundredth of it.
Fluid& Methane() {
    static Fluid methane("Methane", 25.0, 6000.0);
    return methane;
}
Fluid& Propane() {
    static Fluid propane("Propane", 60.0, 2090.0);
    return propane;
}
Pipe& SteelPipe() {
    static Pipe pipe;
    return pipe;
}
Valves& StandardValves() {
    static Valves valves;
    return valves;
}

// What the arguments are is not known to the compiler.
template <typename T>
T Given(T value) {
    volatile T hidden = value;
    return hidden;
}

void Convert(HF_UNIT_TYPES type, int from, int to, const CFluid* fluid = nullptr) {
    DoNotOptimize(Us().Convert(Given(type), Given(12.0), Given(from), Given(to), fluid));
}

void ConvertByText() {
    static char from[] = "ft";
    static char to[] = "mm";
    DoNotOptimize(Us().Convert(HF_LENGTH, Given(12.0), from, to));
}

void ListInto(int (CPipeTableList::*list)(char*, int, double, double) const) {
    static const CPipeTableList installed(HF_US);
    static char buffer[10000];
    DoNotOptimize((installed.*list)(buffer, sizeof buffer, 0.0, 0.0));
}

void ListSizes() {
    static const CPipeTableList installed(HF_US);
    static char buffer[10000];
    DoNotOptimize(installed.ListPipeSizes(buffer, sizeof buffer, "Steel B36.10M", "40"));
}

void Elevation() {
    const UnitValue<HF_LENGTH, 0> elevation(HF_LEN_M, Given(1600.0));
    DoNotOptimize(
        Atmospheric_Pressure_Equations::atmospheric_pressure_at_elevation(elevation).raw_value());
}

// clang-format off
constexpr bench::Operation kOperations[] = {
    {"convert length",                  [] { Convert(HF_LENGTH, HF_LEN_FT, HF_LEN_MM); }},
    {"convert to user unit",            [] { Convert(HF_LENGTH, HF_LEN_M, HF_USER_UNIT); }},
    {"convert temperature",             [] { Convert(HF_TEMPERATURE, HF_DEG_F, HF_KELVIN); }},
    {"convert pressure",                [] { Convert(HF_PRESSURE, HF_BAR, HF_PSI); }},
    {"convert volume flow",             [] { Convert(HF_FLOW, HF_M3_HR, HF_BPD); }},
    {"convert mass to volume flow",     [] { Convert(HF_FLOW, HF_KG_HR, HF_M3_HR, &Water()); }},
    {"convert by text",                 [] { ConvertByText(); }},
    {"atmosphere at elevation",         [] { Elevation(); }},
    {"liquid density",                  [] { DoNotOptimize(Water().GetDensity()); }},
    {"liquid density in user unit",     [] { DoNotOptimize(Water().GetUDensity()); }},
    {"liquid specific gravity",         [] { DoNotOptimize(Water().GetSG()); }},
    {"liquid viscosity",                [] { DoNotOptimize(Water().GetViscosity()); }},
    {"liquid viscosity in centistokes", [] { DoNotOptimize(Water().CentistokesRounded()); }},
    {"vapor pressure",                  [] { DoNotOptimize(Water().GetVaporPres()); }},
    {"vapor pressure in user unit",     [] { DoNotOptimize(Water().GetUVaporPres()); }},
    {"vapor density",                   [] { DoNotOptimize(Methane().GetDensity()); }},
    {"vapor density near saturation",   [] { DoNotOptimize(Propane().GetDensity()); }},
    {"vapor viscosity",                 [] { DoNotOptimize(Methane().GetViscosity()); }},
    {"ratio of specific heats",         [] { DoNotOptimize(Methane().GetSpHeat()); }},
    {"compressibility",                 [] { DoNotOptimize(Methane().CalcZ(Given(298.15), 6000.0, false)); }},
    {"largest vapor pressure",          [] { DoNotOptimize(Propane().MaxCompressiblePressure(Given(60.0))); }},
    {"state of a liquid",               [] { DoNotOptimize(Water().FindFluidState(Given(80.0), 500.0)); }},
    {"state of a vapor",                [] { DoNotOptimize(Methane().FindFluidState(Given(25.0), 6000.0)); }},
    {"load a fluid",                    [] { DoNotOptimize(Water().LoadFluidTable(Fluid::Folder(), "Water")); }},
    {"load a pipe schedule",            [] { SteelPipe().LoadMaterial(Fluid::Folder(), "Steel B36.10M");
                                              SteelPipe().LoadPipeList("40", nullptr); }},
    {"load a valve table",              [] { StandardValves().Load(); }},
    {"pipe diameter of a size",         [] { DoNotOptimize(SteelPipe().PipeDia(Given(12.0))); }},
    {"pipe diameter of a text",         [] { DoNotOptimize(SteelPipe().PipeDia("12")); }},
    {"pipe size of a diameter",         [] { DoNotOptimize(SteelPipe().PipeSize(Given(11.0))); }},
    {"next pipe size",                  [] { DoNotOptimize(SteelPipe().NextSize(Given(12.0))); }},
    {"previous pipe size",              [] { DoNotOptimize(SteelPipe().PrevSize(Given(12.0))); }},
    {"find a valve",                    [] { DoNotOptimize(StandardValves().Find("Ball")); }},
    {"list pipe tables",                [] { ListInto(&CPipeTableList::ListPipeTables); }},
    {"list pipe sizes",                 [] { ListSizes(); }},
};
// clang-format on

}  // namespace

std::span<const bench::Operation> bench::Operations() { return kOperations; }
