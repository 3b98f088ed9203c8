#include "tools/check/FluidProperties.h"

#include <fmt/core.h>

#include <algorithm>
#include <cmath>

#include "hydrofacts/hydrofacts.h"
#include "tools/Numbers.h"

namespace hydrofacts::command {
namespace {

constexpr int kSteps = 100;

struct Range {
    double from;
    double to;
};

/// A fluid in the units of its formulas. Its constants are those of the file: the loaded ones are
/// rounded.
class LoadedFluid : public CFluid {
  public:
    LoadedFluid(const FluidRecords& records, Findings& findings)
        : CFluid(HF_KELVIN, HF_KPA, 1, 0.0), m_records(records), m_findings(findings) {}

    void Check(const LibraryPlace& place) {
        if (LoadFluidTable(place.directory.c_str(), place.name.c_str()) == 0) {
            m_findings.Error(0, 0, "the library refuses the table");
            return;
        }
        CheckSaturation(SLOT_LIQUID_SAT_PRES, "saturation pressure");
        CheckSaturation(SLOT_VAPOR_SAT_PRES, "saturation pressure of the vapor");
        if (FormulasExist(FLUID_LIQUID)) CheckLiquid();
        if (FormulasExist(FLUID_VAPOR)) CheckVapor();
    }

  private:
    double Property(int slot, double temperature, double pressure = 0.0) const {
        return m_formulas[slot].CalcResult(temperature, pressure, m_records.molecularWt,
                                           m_records.criticalTemp, m_records.criticalPres);
    }

    void Warn(int slot, const std::string& reason) {
        m_findings.Warning(m_records.formulaLines[static_cast<std::size_t>(slot)], 0, reason);
    }

    // Calls check(temperature) over a range until it finds something, which is told once.
    template <class Check>
    static void Over(const Range& range, Check check) {
        for (int i = 0; i <= kSteps; ++i) {
            const double t =
                i == kSteps ? range.to : range.from + (range.to - range.from) * i / kSteps;
            if (!check(t)) return;
        }
    }

    // Not-a-number isn't above anything either.
    bool Demand(int slot, const char* what, double value, double least, double temperature) {
        if (value > least && std::isfinite(value)) return true;
        Warn(slot, fmt::format("{} is {} at {} K, which is in its range", what,
                               std::isfinite(value) ? ShortNumber(value, 4) : "not a number",
                               ShortNumber(temperature, 6)));
        return false;
    }

    // From the lowest temperature of either phase to the critical one: states are found by it.
    Range SaturationRange() const {
        double from = m_records.criticalTemp;
        if (HasFormula(SLOT_LIQUID_DENSITY)) from = std::min(from, m_records.liquidMinTemp);
        if (HasFormula(SLOT_VAPOR_DENSITY)) from = std::min(from, m_records.vaporMinTemp);
        return {from, m_records.criticalTemp};
    }

    void CheckSaturation(int slot, const char* what) {
        if (!HasFormula(slot)) return;
        double last = 0.0;
        double lastAt = 0.0;
        Over(SaturationRange(), [&](double t) {
            const double pressure = Property(slot, t);
            if (!Demand(slot, what, pressure, 0.0, t)) return false;
            if (pressure < last) {
                Warn(slot, fmt::format("{} falls from {} K to {} K", what, ShortNumber(lastAt, 6),
                                       ShortNumber(t, 6)));
                return false;
            }
            last = pressure;
            lastAt = t;
            return true;
        });
    }

    // A liquid has its properties up to the critical temperature, whatever its range says.
    void CheckLiquid() {
        const Range range = {m_records.liquidMinTemp,
                             std::min(m_records.liquidMaxTemp, m_records.criticalTemp)};
        CheckPositive(SLOT_LIQUID_DENSITY, "liquid density", range);
        CheckPositive(SLOT_LIQUID_VISCOSITY, "liquid viscosity", range);
    }

    void CheckPositive(int slot, const char* what, const Range& range) {
        Over(range, [&](double t) { return Demand(slot, what, Property(slot, t), 0.0, t); });
    }

    void CheckVapor() {
        const Range range = {m_records.vaporMinTemp, m_records.vaporMaxTemp};
        Over(range, [&](double t) {
            return Demand(SLOT_VAPOR_DENSITY, "vapor density",
                          Property(SLOT_VAPOR_DENSITY, t, HighestVaporPressure(t)), 0.0, t);
        });
        CheckPositive(SLOT_VAPOR_VISCOSITY, "vapor viscosity", range);
        Over(range, [&](double t) {
            return Demand(SLOT_VAPOR_SPHEAT, "the ratio of specific heats",
                          Property(SLOT_VAPOR_SPHEAT, t), 1.0, t);
        });
    }

    // Just below saturation, where there is one.
    double HighestVaporPressure(double temperature) const {
        constexpr double kBelow = 0.99;
        if (temperature >= m_records.criticalTemp) return m_records.vaporMaxPres;
        const int slot =
            HasFormula(SLOT_VAPOR_SAT_PRES) ? SLOT_VAPOR_SAT_PRES : SLOT_LIQUID_SAT_PRES;
        return std::min(m_records.vaporMaxPres, kBelow * Property(slot, temperature));
    }

    bool HasFormula(int slot) const { return m_formulas[slot].m_type != 0; }

    const FluidRecords& m_records;
    Findings& m_findings;
};

}  // namespace

void CheckFluidProperties(const LibraryPlace& place, const FluidRecords& records,
                          Findings& findings) {
    LoadedFluid(records, findings).Check(place);
}

}  // namespace hydrofacts::command
