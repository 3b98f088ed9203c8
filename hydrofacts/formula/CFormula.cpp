#include "hydrofacts/formula/CFormula.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "hydrofacts/formula/Constants.h"
#include "hydrofacts/frame/TableFile.h"
#include "quillbase/Numbers.h"
#include "quillbase/Rounding.h"

namespace {

using hydrofacts::kGasConstant;
using Coefficients = const double (&)[5];

double Polynomial(Coefficients c, double t) {
    return c[0] + c[1] * t + c[2] * (t * t) + c[3] * (t * t * t) + c[4] * (t * t * t * t);
}

double Exponential(Coefficients c, double t) {
    return std::exp(c[0] + c[1] / t + c[2] * std::log(t) + c[3] * std::pow(t, c[4]));
}

double SaturationPressure(const CFormula& formula, double t) {
    constexpr double kPaPerMmHg = 0.1333;
    constexpr double kOverflow = 308.0;
    Coefficients c = formula.m_coefficients;
    switch (formula.m_type) {
        case 1:
            return Polynomial(c, t);
        case 2:
            return Exponential(c, t) / 1000.0;
        case 3: {
            const double x = c[0] + c[1] / t + c[2] * std::log10(t) + (c[3] / 1000.0) * t +
                             (c[4] / 1000000.0) * (t * t);
            // The liquid side alone is kept from overflow; the comparison refuses not-a-number too.
            if (formula.m_slot == SLOT_LIQUID_SAT_PRES && !(x < kOverflow)) return 0.0;
            return kPaPerMmHg * std::pow(10.0, x);
        }
        default:
            return 0.0;
    }
}

double LiquidDensity(const CFormula& formula, double t, double mw, double tc) {
    constexpr double kTwoSevenths = 0.2857142857142857;
    Coefficients c = formula.m_coefficients;
    switch (formula.m_type) {
        case 1:
            return Polynomial(c, t);
        case 2:
            return mw * c[0] / std::pow(c[1], 1.0 + std::pow(1.0 - t / c[2], c[3]));
        case 3:
            return 1000.0 * c[0] * std::pow(c[1], -std::pow(1.0 - t / tc, kTwoSevenths));
        default:
            return 0.0;
    }
}

double LiquidViscosity(const CFormula& formula, double t) {
    Coefficients c = formula.m_coefficients;
    switch (formula.m_type) {
        case 1:
            return Polynomial(c, t);
        case 2:
            return 1000.0 * Exponential(c, t);
        case 3:
            return std::pow(10.0,
                            c[0] + c[1] / t + (c[2] / 100.0) * t + (c[3] / 1000000.0) * (t * t));
        default:
            return 0.0;
    }
}

double VaporViscosity(const CFormula& formula, double t) {
    Coefficients c = formula.m_coefficients;
    switch (formula.m_type) {
        case 1:
            return Polynomial(c, t);
        case 2:
            return 1000.0 * c[0] * std::pow(t, c[1]) / (1.0 + c[2] / t + c[3] / (t * t));
        case 3:
            return (c[0] + (c[1] / 100.0) * t + (c[2] / 1000000.0) * (t * t)) / 10000.0;
        default:
            return 0.0;
    }
}

double HyperbolicHeatCapacity(Coefficients c, double t) {
    const double u = c[2] / t;
    const double v = c[4] / t;
    const double sinhTerm = u / std::sinh(u);
    const double coshTerm = v / std::cosh(v);
    return (c[0] + c[1] * (sinhTerm * sinhTerm) + c[3] * (coshTerm * coshTerm)) / 1000.0;
}

double CubicHeatCapacity(Coefficients c, double t) {
    constexpr double kJoulesPerCalorie = 4.1868;
    return (c[0] + (c[1] / 1000.0) * t + (c[2] / 1000000.0) * (t * t) +
            (c[3] / 1000000000.0) * (t * t * t)) *
           kJoulesPerCalorie;
}

double HeatCapacity(const CFormula& formula, double t) {
    switch (formula.m_type) {
        case 1:
            return Polynomial(formula.m_coefficients, t);
        case 2:
            return HyperbolicHeatCapacity(formula.m_coefficients, t);
        case 3:
            return CubicHeatCapacity(formula.m_coefficients, t);
        default:
            return 0.0;
    }
}

double RatioOfSpecificHeats(const CFormula& formula, double t) {
    const double cp = HeatCapacity(formula, t);
    return cp == 0.0 ? 0.0 : cp / (cp - kGasConstant);  // not -0.0
}

// What the equations of state need beside the acentric factor: covolume, attraction parameter,
// temperature slope.
void DeriveEquationOfState(CFormula& formula, double tc, double pc) {
    constexpr double R = kGasConstant;
    auto& c = formula.m_coefficients;
    switch (formula.m_type) {
        case hydrofacts::kPengRobinson:
            c[1] = 0.0778 * R * tc / pc;
            c[2] = 0.45724 * R * R * tc * tc / pc;
            c[3] = 1.54226 * c[0] + 0.37464 - 0.26992 * c[0] * c[0];
            break;
        case hydrofacts::kRedlichKwong:
            c[1] = 0.08664 * R * tc / pc;
            c[2] = 0.42748 * R * R * std::pow(tc, 2.5) / pc;
            break;
        case hydrofacts::kSoaveRedlichKwong:
            c[1] = 0.08664 * R * tc / pc;
            c[2] = 0.42748 * R * R * tc * tc / pc;
            c[3] = 1.574 * c[0] + 0.48 - 0.176 * c[0] * c[0];
            break;
        default:
            break;
    }
}

bool HasNumber(const char* field, std::int32_t wanted) {
    std::int32_t number = 0;
    return field != nullptr && quillbase::ScanInteger(field + 1, &number) == 1 && number == wanted;
}

}  // namespace

CFormula::CFormula() : m_slot(0), m_type(0), m_coefficients{} {}

void CFormula::operator=(const CFormula& other) {
    if (this == &other) return;
    m_slot = other.m_slot;
    m_type = other.m_type;
    std::copy(std::begin(other.m_coefficients), std::end(other.m_coefficients), m_coefficients);
}

bool CFormula::operator==(const CFormula& other) const {
    return m_slot == other.m_slot && m_type == other.m_type &&
           std::equal(std::begin(m_coefficients), std::end(m_coefficients),
                      std::begin(other.m_coefficients), EqualDbl);
}

void CFormula::ClearFormula() {
    m_type = 0;
    std::fill(std::begin(m_coefficients), std::end(m_coefficients), 0.0);
}

int CFormula::LoadFormula(short slot, char* line, double tc, double pc) {
    ClearFormula();
    m_slot = slot;
    char* rest = line;
    if (!HasNumber(hydrofacts::TakeField(rest), slot + 1)) return 1;

    const char* typeField = hydrofacts::TakeField(rest);
    std::int32_t type = 0;
    if (typeField != nullptr && quillbase::ScanInteger(typeField, &type) == 1) {
        m_type = static_cast<std::int16_t>(type);
    }
    if (m_type != 0) {
        for (double& coefficient : m_coefficients) {
            if (hydrofacts::TakeReal(rest, &coefficient) == 0) break;
        }
    }
    if (slot == SLOT_VAPOR_DENSITY) {
        DeriveEquationOfState(*this, tc, pc);
        return 0;
    }
    const auto& c = m_coefficients;
    return m_type != 0 && c[0] + c[1] + c[2] + c[3] + c[4] == 0.0 ? 1 : 0;
}

double CFormula::CalcResult(double t, double p, double mw, double tc, double) const {
    switch (m_slot) {
        case SLOT_LIQUID_SAT_PRES:
        case SLOT_VAPOR_SAT_PRES:
            return SaturationPressure(*this, t);
        case SLOT_LIQUID_DENSITY:
            return LiquidDensity(*this, t, mw, tc);
        case SLOT_LIQUID_VISCOSITY:
            return LiquidViscosity(*this, t);
        case SLOT_VAPOR_DENSITY:
            return (p * mw) / (CalcZ(t, p, tc) * (kGasConstant * t));
        case SLOT_VAPOR_VISCOSITY:
            return VaporViscosity(*this, t);
        case SLOT_VAPOR_SPHEAT:
            return RatioOfSpecificHeats(*this, t);
        default:
            return 0.0;
    }
}
