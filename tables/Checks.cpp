#include "tables/Checks.h"

#include <algorithm>
#include <cmath>

#include "hydrofacts/fluid/CFluid.h"
#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

constexpr int kSteps = 120;
// The equations of state put the critical point at 0.307 to 0.333; below it a liquid begins.
constexpr double kSmallestVaporZ = 0.29;

/// A fluid in kelvin and absolute kPa, with its data in reach.
class LoadedFluid : public CFluid {
  public:
    LoadedFluid(std::string folder, const FluidTable& table)
        : CFluid(HF_KELVIN, HF_KPA, 1, 0.0),
          m_folder(std::move(folder)),
          m_fluidName(table.name),
          m_densestAt(table.constants.densestAt) {
        // The limits that the fluid dialog passes.
        if (LoadFluidTable(m_folder.c_str(), m_fluidName.c_str(), 7.0, 1.0) == 0) {
            Fail("does not load");
        }
    }

    void Check() {
        CheckSaturation();
        if (FormulasExist(FLUID_LIQUID)) {
            CheckLiquid();
        }
        if (FormulasExist(FLUID_VAPOR)) {
            CheckVapor();
            CheckVaporStates();
        }
    }

  private:
    [[noreturn]] void Fail(const std::string& what) const {
        throw DesignError("the table " + what);
    }

    void Demand(bool holds, const char* what, double temperature) const {
        if (!holds) {
            Fail(std::string(what) + " at " + RoundedNumber(temperature, 6) + " K");
        }
    }

    double Slot(int slot, double temperature) const {
        return m_formulas[slot].CalcResult(temperature, 0.0, m_molecularWt, m_criticalTemp,
                                           m_criticalPres);
    }

    double BubblePressure(double temperature) const {
        return Slot(SLOT_LIQUID_SAT_PRES, temperature);
    }

    double DewPressure(double temperature) const {
        const bool own = m_formulas[SLOT_VAPOR_SAT_PRES].m_type != 0;
        return Slot(own ? SLOT_VAPOR_SAT_PRES : SLOT_LIQUID_SAT_PRES, temperature);
    }

    /// Calls use(temperature) over a range, both ends included.
    template <class Use>
    static void Over(double from, double to, Use use) {
        for (int i = 0; i <= kSteps; ++i) {
            use(i == kSteps ? to : from + (to - from) * i / kSteps);
        }
    }

    // State finding reads the saturation pressure all the way to the critical point.
    void CheckSaturation() {
        const bool liquid = FormulasExist(FLUID_LIQUID);
        double lastBubble = 0.0;
        double lastDew = 0.0;
        const double from =
            liquid ? m_liquidMinTemp : std::min(m_vaporMinTemp, 0.9 * m_criticalTemp);
        Over(from, m_criticalTemp, [&](double t) {
            const double bubble = BubblePressure(t);
            const double dew = DewPressure(t);
            Demand(bubble > lastBubble, "has a saturation pressure that does not rise", t);
            Demand(dew > lastDew, "has a dew pressure that does not rise", t);
            Demand(dew <= bubble, "has a dew pressure above the bubble pressure", t);
            lastBubble = bubble;
            lastDew = dew;
        });
        const double atCritical = BubblePressure(m_criticalTemp) / m_criticalPres;
        Demand(std::fabs(atCritical - 1.0) < 0.05,
               "has a saturation pressure that misses the critical pressure", m_criticalTemp);
        // Above the critical point it still limits the pressure that the compressibility is taken
        // at.
        Over(m_criticalTemp, std::max(m_criticalTemp, m_vaporMaxTemp), [&](double t) {
            Demand(DewPressure(t) > 0.95 * m_criticalPres,
                   "has a saturation pressure that falls above the critical point", t);
        });
    }

    void CheckLiquid() {
        double lastDensity = INFINITY;
        double lastViscosity = INFINITY;
        Over(m_liquidMinTemp, m_liquidMaxTemp, [&](double t) {
            const double pressure = 1.01 * BubblePressure(t);
            m_state = FLUID_LIQUID;
            m_temperature = t;
            m_pressure = pressure;
            const double density = GetDensity();
            const double viscosity = GetViscosity(t);
            Demand(density > 0.0 && viscosity > 0.0, "has no positive liquid properties", t);
            Demand(density < lastDensity || t < m_densestAt,
                   "has a liquid density that does not fall", t);
            Demand(viscosity < lastViscosity, "has a liquid viscosity that does not fall", t);
            Demand(SetPointIsValid(t, pressure, FLUID_LIQUID) == 1, "has no valid liquid", t);
            if (pressure < m_criticalPres) {
                Demand(FindFluidState(t, pressure) == FLUID_LIQUID, "finds no liquid", t);
            }
            lastDensity = density;
            lastViscosity = viscosity;
        });
    }

    void CheckVapor() {
        double lastViscosity = 0.0;
        Over(m_vaporMinTemp, m_vaporMaxTemp, [&](double t) {
            m_state = FLUID_VAPOR;
            const double viscosity = GetViscosity(t);
            Demand(viscosity > lastViscosity, "has a gas viscosity that does not rise", t);
            Demand(GetSpHeat(t) > 1.0, "has a ratio of specific heats of 1 or less", t);
            const double thin = 1e-6 * std::min(m_vaporMaxPres, DewPressure(t));
            Demand(std::fabs(m_formulas[SLOT_VAPOR_DENSITY].CalcZ(t, thin, m_criticalTemp) - 1.0) <
                       1e-4,
                   "has a compressibility other than 1 at low pressure", t);
            lastViscosity = viscosity;
        });
    }

    // Along each isotherm, to saturation or to the highest pressure: a denser vapor, never a
    // liquid.
    void CheckVaporStates() {
        Over(m_vaporMinTemp, m_vaporMaxTemp, [&](double t) {
            if (t == m_criticalTemp) {
                return;  // There no state is found, whatever the pressure.
            }
            const bool below = t < m_criticalTemp;
            const double end =
                below ? std::min(m_vaporMaxPres, 0.999 * DewPressure(t)) : m_vaporMaxPres;
            double lastDensity = 0.0;
            Over(0.001 * end, end, [&](double pressure) {
                Demand(FindFluidState(t, pressure) == FLUID_VAPOR, "finds no vapor", t);
                m_state = FLUID_VAPOR;
                m_temperature = t;
                m_pressure = pressure;
                const double density = GetDensity();
                const double z = m_formulas[SLOT_VAPOR_DENSITY].CalcZ(t, pressure, m_criticalTemp);
                Demand(density > lastDensity, "has a vapor density that does not rise", t);
                Demand(z < 3.0 && (z > kSmallestVaporZ || !below),
                       "has a compressibility that is not a vapor's", t);
                lastDensity = density;
            });
        });
    }

    std::string m_folder;
    std::string m_fluidName;
    double m_densestAt;
};

}  // namespace

void CheckTable(const std::filesystem::path& folder, const FluidTable& table) {
    LoadedFluid(folder.string(), table).Check();
}

}  // namespace hydrofacts::tables
