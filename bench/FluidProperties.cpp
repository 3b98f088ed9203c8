// The getters of a table fluid against the same formulas written out.

#include <benchmark/benchmark.h>

#include <cmath>

#include "bench/Ratios.h"
#include "bench/Toluene.h"

namespace {

using namespace bench;

constexpr double R = 8.3144;

double Exponential(const double (&c)[5], double t) {
    return std::exp(c[0] + c[1] / t + c[2] * std::log(t) + c[3] * std::pow(t, c[4]));
}

double PlainDensity(double t) {
    const auto& c = kLiquidDensity;
    return kMolecularWeight * c[0] / std::pow(c[1], 1.0 + std::pow(1.0 - t / c[2], c[3]));
}

double PlainVaporDensity(double t, double p) {
    const double b = 0.0778 * R * kCriticalTemp / kCriticalPres;
    const double a = 0.45724 * R * R * kCriticalTemp * kCriticalTemp / kCriticalPres;
    const double w = kAcentricFactor;
    const double m = 1.54226 * w + 0.37464 - 0.26992 * w * w;
    const double s = 1.0 + m * (1.0 - std::sqrt(t / kCriticalTemp));
    const double A = a * s * s * p / (R * R * t * t);
    const double B = b * p / (R * t);
    const double a2 = B - 1.0;
    const double a1 = A - 3.0 * B * B - 2.0 * B;
    const double a0 = -(A * B - B * B - B * B * B);
    double Z = 1.0;
    double old = 0.0;
    do {
        old = Z;
        Z -= (Z * Z * Z + a2 * Z * Z + a1 * Z + a0) / (3.0 * Z * Z + 2.0 * a2 * Z + a1);
    } while (std::fabs(Z - old) > 0.00001);
    return p * kMolecularWeight / (Z * R * t);
}

template <typename Get>
void Liquid(benchmark::State& state, Get get) {
    const CFluid fluid = Toluene(80.0, 500.0);
    for (auto _ : state) benchmark::DoNotOptimize(get(fluid));
}

template <typename Formula>
void Plain(benchmark::State& state, Formula formula) {
    double t = 353.15;
    for (auto _ : state) {
        benchmark::DoNotOptimize(t);
        benchmark::DoNotOptimize(formula(t));
    }
}

void LiquidDensity(benchmark::State& state) {
    Liquid(state, [](const CFluid& fluid) { return fluid.GetDensity(); });
}
void LiquidViscosity(benchmark::State& state) {
    Liquid(state, [](const CFluid& fluid) { return fluid.GetViscosity(); });
}
void VaporPressure(benchmark::State& state) {
    Liquid(state, [](const CFluid& fluid) { return fluid.GetVaporPres(); });
}
void PlainLiquidDensity(benchmark::State& state) { Plain(state, PlainDensity); }
void PlainLiquidViscosity(benchmark::State& state) {
    Plain(state, [](double t) { return 1000.0 * Exponential(kLiquidViscosity, t); });
}
void PlainVaporPressure(benchmark::State& state) {
    Plain(state, [](double t) { return Exponential(kVaporPressure, t) / 1000.0; });
}

void VaporDensity(benchmark::State& state) {
    const CFluid fluid = Toluene(250.0, 800.0);
    for (auto _ : state) benchmark::DoNotOptimize(fluid.GetDensity());
}
void BareNewton(benchmark::State& state) {
    double t = 523.15;
    double p = 901.325;
    for (auto _ : state) {
        benchmark::DoNotOptimize(t);
        benchmark::DoNotOptimize(p);
        benchmark::DoNotOptimize(PlainVaporDensity(t, p));
    }
}

BENCHMARK(LiquidDensity);
BENCHMARK(PlainLiquidDensity);
BENCHMARK(LiquidViscosity);
BENCHMARK(PlainLiquidViscosity);
BENCHMARK(VaporPressure);
BENCHMARK(PlainVaporPressure);
BENCHMARK(VaporDensity);
BENCHMARK(BareNewton);

const Ratio density("LiquidDensity", "PlainLiquidDensity", 1.3);
const Ratio viscosity("LiquidViscosity", "PlainLiquidViscosity", 1.3);
const Ratio vaporPressure("VaporPressure", "PlainVaporPressure", 1.3);
const Ratio vaporDensity("VaporDensity", "BareNewton", 1.2);

}  // namespace
