// The fluid as an object: its life, its units, its plain accessors.

#include "hydrofacts/fluid/CFluid.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "hydrofacts/formula/Constants.h"
#include "quillbase/Rounding.h"
#include "quillbase/Text.h"

namespace {

constexpr std::int32_t kNoSavedEquation = -1;

}  // namespace

CFluid::CFluid()
    : m_pUnits(new Units(HF_US)), m_bOwnsUnits(true), m_savedEqnState(kNoSavedEquation) {
    ClearFluid();
}

CFluid::CFluid(HF_TUNITS tunit, HF_PUNITS punit, int bAbsolute, double atmPressure) : CFluid() {
    SetUnits(tunit, punit, bAbsolute, atmPressure);
}

// The settings of a borrowed object may be changed through this fluid: the parameter's const is the
// given signature.
CFluid::CFluid(const Units* units)
    : m_pUnits(const_cast<Units*>(units)), m_bOwnsUnits(false), m_savedEqnState(kNoSavedEquation) {
    ClearFluid();
}

CFluid::CFluid(const CFluid& other)
    : m_pUnits(new Units(HF_US)), m_bOwnsUnits(true), m_savedEqnState(kNoSavedEquation) {
    *this = other;
}

CFluid::~CFluid() { ReleaseUnits(); }

void CFluid::operator=(const CFluid& other) {
    if (this == &other) return;
    std::copy(std::begin(other.m_name), std::end(other.m_name), m_name);
    if (!m_bOwnsUnits) {
        m_pUnits = other.m_pUnits;
    } else if (other.m_pUnits != nullptr) {
        *m_pUnits = *other.m_pUnits;
    }
    m_state = other.m_state;
    m_molecularWt = other.m_molecularWt;
    m_criticalTemp = other.m_criticalTemp;
    m_criticalPres = other.m_criticalPres;
    m_liquidMinTemp = other.m_liquidMinTemp;
    m_liquidMaxTemp = other.m_liquidMaxTemp;
    m_vaporMinTemp = other.m_vaporMinTemp;
    m_vaporMaxTemp = other.m_vaporMaxTemp;
    m_vaporMaxPres = other.m_vaporMaxPres;
    for (std::size_t i = 0; i < std::size(m_formulas); ++i) m_formulas[i] = other.m_formulas[i];
    m_temperature = other.m_temperature;
    m_pressure = other.m_pressure;
}

bool CFluid::operator==(const CFluid& other) const {
    return std::strcmp(m_name, other.m_name) == 0 &&
           std::equal(std::begin(m_formulas), std::end(m_formulas), std::begin(other.m_formulas)) &&
           EqualDbl(m_molecularWt, other.m_molecularWt) &&
           EqualDbl(m_criticalTemp, other.m_criticalTemp) &&
           EqualDbl(m_criticalPres, other.m_criticalPres) &&
           EqualDbl(m_liquidMinTemp, other.m_liquidMinTemp) &&
           EqualDbl(m_liquidMaxTemp, other.m_liquidMaxTemp) &&
           EqualDbl(m_vaporMinTemp, other.m_vaporMinTemp) &&
           EqualDbl(m_vaporMaxTemp, other.m_vaporMaxTemp) &&
           EqualDbl(m_vaporMaxPres, other.m_vaporMaxPres) &&
           EqualDbl(m_temperature, other.m_temperature) && EqualDbl(m_pressure, other.m_pressure);
}

void CFluid::ClearFluid() {
    std::fill(std::begin(m_name), std::end(m_name), '\0');
    m_state = FLUID_NONE;
    m_temperature = 0.0;
    m_pressure = 0.0;
    m_molecularWt = 0.0;
    m_criticalTemp = 0.0;
    m_criticalPres = 0.0;
    m_liquidMinTemp = 0.0;
    m_liquidMaxTemp = 0.0;
    m_vaporMinTemp = 0.0;
    m_vaporMaxTemp = 0.0;
    m_vaporMaxPres = 0.0;
    std::int32_t slot = 0;
    for (CFormula& formula : m_formulas) formula.m_slot = slot++;
}

// Derived classes see a plain pointer and a flag, so this is the one place that gives the object
// back.
void CFluid::ReleaseUnits() {
    if (m_bOwnsUnits) delete m_pUnits;
    m_pUnits = nullptr;
    m_bOwnsUnits = false;
}

void CFluid::SetUnits(const Units* units) {
    ReleaseUnits();
    m_pUnits = const_cast<Units*>(units);
}

void CFluid::SetUnits(HF_TUNITS tunit, HF_PUNITS punit, int bAbsolute, double atmPressure) {
    m_pUnits->SetUserUnit(HF_TEMPERATURE, tunit);
    m_pUnits->SetUserUnit(HF_PRESSURE, punit);
    const bool metric = tunit == HF_DEG_C || tunit == HF_KELVIN;
    m_pUnits->SetSystem(metric ? HF_METRIC : HF_US, false);
    m_pUnits->SetAtmosphere(bAbsolute != 0 ? 0.0 : atmPressure, punit);
    m_pUnits->SetAbsolute(bAbsolute != 0);
}

void CFluid::SetEnglishOrMetric(HF_UNITS system) { m_pUnits->SetSystem(system, false); }

HF_TUNITS CFluid::GetTunit() const {
    return static_cast<HF_TUNITS>(m_pUnits->GetUserUnit(HF_TEMPERATURE));
}

HF_PUNITS CFluid::GetPunit() const {
    return static_cast<HF_PUNITS>(m_pUnits->GetUserUnit(HF_PRESSURE));
}

const char* CFluid::GetTempUnits() const { return m_pUnits->GetString(HF_TEMPERATURE); }

const char* CFluid::GetPresUnits() const { return m_pUnits->GetString(HF_PRESSURE); }

const char* CFluid::GetFluidName() const { return m_name; }

FLUIDSTATE CFluid::GetFluidState() { return m_state; }

double CFluid::GetTemperature() const { return m_temperature; }

double CFluid::GetPressure() const { return m_pressure; }

double CFluid::GetMolecularWt() const { return m_molecularWt; }

double CFluid::GetCriticalTemp() const { return m_criticalTemp; }

double CFluid::GetCriticalPres() const { return m_criticalPres; }

bool CFluid::IsLiquid() const { return m_state == FLUID_LIQUID || m_state == FLUID_USER_LIQUID; }

bool CFluid::IsTableFluid() const { return m_state == FLUID_LIQUID || m_state == FLUID_VAPOR; }

int CFluid::EqnState() { return m_formulas[SLOT_VAPOR_DENSITY].m_type; }

bool CFluid::IsIdealGas() const {
    return m_formulas[SLOT_VAPOR_DENSITY].m_type == hydrofacts::kIdealGas;
}

void CFluid::SetIdealGas() { m_formulas[SLOT_VAPOR_DENSITY].m_type = hydrofacts::kIdealGas; }

// The coefficients stay in both directions, so a real-gas equation comes back whole.
void CFluid::SetIdealGas(bool on) {
    CFormula& density = m_formulas[SLOT_VAPOR_DENSITY];
    if (on) {
        m_savedEqnState = density.m_type;
        density.m_type = hydrofacts::kIdealGas;
        return;
    }
    const bool known = m_savedEqnState >= hydrofacts::kNoVapor &&
                       m_savedEqnState <= hydrofacts::kSoaveRedlichKwong;
    density.m_type =
        known ? static_cast<std::int16_t>(m_savedEqnState) : std::int16_t{hydrofacts::kIdealGas};
}
