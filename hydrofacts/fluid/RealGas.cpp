// The fluid as a compressible vapor.

#include <atomic>

#include "hydrofacts/fluid/CFluid.h"

// The pressure, kPa absolute, below which the fluid is a vapor at `tempK`. A formula that is absent
// gives 0.0, so the liquid side stands in for a vapor side that is not there.
double CFluid::SaturationLimit(double tempK) const {
    double saturation = m_formulas[SLOT_VAPOR_SAT_PRES].CalcResult(tempK, 0.0, 0.0, 0.0, 0.0);
    if (saturation == 0.0) {
        saturation = m_formulas[SLOT_LIQUID_SAT_PRES].CalcResult(tempK, 0.0, 0.0, 0.0, 0.0);
    }
    return m_vaporMaxPres > saturation ? saturation : m_vaporMaxPres;
}

double CFluid::MaxCompressiblePressure(double temperature) {
    double kPa = 0.0;
    if (temperature > m_criticalTemp) {
        kPa = m_vaporMaxPres / 2.0;
    } else {
        const double limit = SaturationLimit(KTemp(temperature));
        kPa = limit - 0.01 * limit;
    }
    return m_pUnits->Convert(HF_PRESSURE, kPa, HF_KPA, nullptr) -
           m_pUnits->GetAtmosphere(HF_USER_UNIT, false);
}

void CFluid::SetFluidVapor(double pressure) {
    m_pressure = pressure;
    if (m_state == FLUID_USER_VAPOR) return;
    m_state = FindFluidState(m_temperature, m_pressure);
    if (m_state == FLUID_VAPOR) return;
    m_pressure = MaxCompressiblePressure(m_temperature);
    m_state = FLUID_VAPOR;
}

// The pressure cap stays at the coldest temperature since the last reset: a pressure below it needs
// no saturation formula at any warmer one. The kept values are one set for the process, atomic so
// that careless use from two threads gives a wrong number at worst.
double CFluid::CalcZ(double tempK, double presKPa, bool reset) const {
    constexpr double kNoTemperature = -1.0;
    constexpr double kBelowSaturation = 0.99;
    static std::atomic<double> s_lastTemp{kNoTemperature};
    static std::atomic<double> s_pressureCap{0.0};
    static std::atomic<double> s_criticalTempK{KTemp(m_criticalTemp)};

    if (reset) {
        s_lastTemp = kNoTemperature;
        s_criticalTempK = KTemp(m_criticalTemp);
    }
    if (!(presKPa > 0.0)) return 1.0;

    const CFormula& equation = m_formulas[SLOT_VAPOR_DENSITY];
    if (s_lastTemp > tempK || s_lastTemp < 0.0) {
        s_pressureCap = SaturationLimit(tempK) * kBelowSaturation;
        s_lastTemp = tempK;
        if (s_pressureCap < presKPa) return equation.CalcZ(tempK, s_pressureCap, s_criticalTempK);
    }
    if (s_pressureCap < presKPa) {
        const double cap = SaturationLimit(tempK) * kBelowSaturation;
        if (cap < presKPa) return equation.CalcZ(tempK, cap, s_criticalTempK);
    }
    return equation.CalcZ(tempK, presKPa, s_criticalTempK);
}
