// The three real-gas equations of state as one cubic in Z.

#include <cmath>

#include "hydrofacts/formula/CFormula.h"
#include "hydrofacts/formula/Constants.h"

namespace {

constexpr double R = hydrofacts::kGasConstant;

/// Z³ + a2 Z² + a1 Z + a0
struct Cubic {
    double a2;
    double a1;
    double a0;
};

// u and w tell the equations apart; A and B are the reduced attraction and covolume.
Cubic MakeCubic(double u, double w, double A, double B) {
    return {-(1.0 + B - u * B), A + w * (B * B) - u * B - u * (B * B),
            -(A * B + w * (B * B) + w * (B * B * B))};
}

double RootFromIdealGas(const Cubic& cubic) {
    constexpr double kLastStep = 0.00001;
    constexpr int kMostSteps = 500;
    double Z = 1.0;
    for (int step = 0; step < kMostSteps; ++step) {
        const double old = Z;
        const double f = Z * Z * Z + cubic.a2 * (Z * Z) + cubic.a1 * Z + cubic.a0;
        const double d = 3.0 * (Z * Z) + 2.0 * cubic.a2 * Z + cubic.a1;
        Z = Z - f / d;
        if (!(std::fabs(Z - old) > kLastStep)) break;  // not-a-number ends the search too
    }
    return Z;
}

}  // namespace

double CFormula::CalcZ(double t, double p, double tc) const {
    const double G = p / (R * R * t * t);
    const double B = m_coefficients[1] * p / (R * t);
    const double attraction = m_coefficients[2];
    const double slope = m_coefficients[3];
    switch (m_type) {
        case hydrofacts::kPengRobinson: {
            const double s = 1.0 + slope * (1.0 - std::sqrt(t / tc));
            return RootFromIdealGas(MakeCubic(2.0, -1.0, attraction * s * s * G, B));
        }
        case hydrofacts::kRedlichKwong: {
            const double s = 1.0 / std::sqrt(t);
            return RootFromIdealGas(MakeCubic(1.0, 0.0, attraction * s * G, B));
        }
        case hydrofacts::kSoaveRedlichKwong: {
            const double s = 1.0 + slope * (1.0 - std::sqrt(t / tc));
            return RootFromIdealGas(MakeCubic(1.0, 0.0, attraction * s * s * G, B));
        }
        default:
            return 1.0;
    }
}
