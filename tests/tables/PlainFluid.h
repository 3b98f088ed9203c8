#ifndef HYDROFACTS_TESTS_TABLES_PLAINFLUID_H
#define HYDROFACTS_TESTS_TABLES_PLAINFLUID_H

// A fluid table evaluated as plainly as can be: read with streams, computed formula by formula in
// the order in which they are printed, rounded through text. Slow, and easy to check by eye.

#include <array>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

namespace plain {

constexpr double R = 8.3144;

struct Formula {
    int type = 0;
    std::array<double, 5> c{};

    double Poly(double t) const {
        return c[0] + c[1] * t + c[2] * (t * t) + c[3] * (t * t * t) + c[4] * (t * t * t * t);
    }
    double Expo(double t) const {
        return std::exp(c[0] + c[1] / t + c[2] * std::log(t) + c[3] * std::pow(t, c[4]));
    }
};

/// To four digits, halves up: the digits are cut from the whole decimal number that a double is.
inline double FourDigits(double value) {
    constexpr int kAllDigits = 60;
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::scientific << std::setprecision(kAllDigits) << value;
    const std::string digits = text.str();  // 4.8225000…e+02
    const int four = std::stoi(digits.substr(0, 1) + digits.substr(2, 3));
    const int rounded = digits[5] >= '5' ? four + 1 : four;
    const int exponent = std::stoi(digits.substr(digits.find('e') + 1)) - 3;
    std::istringstream back(std::to_string(rounded) + "e" + std::to_string(exponent));
    back.imbue(std::locale::classic());
    back >> value;
    return value;
}

/// Temperatures in kelvin, pressures in absolute kPa, as in the table.
struct Fluid {
    double mw = 0.0, tc = 0.0, pc = 0.0;
    double liquidMin = 0.0, liquidMax = 0.0, vaporMin = 0.0, vaporMax = 0.0, maxPressure = 0.0;
    std::array<Formula, 7> slots;

    explicit Fluid(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        for (std::string line; std::getline(file, line);) {
            std::istringstream fields(line);
            fields.imbue(std::locale::classic());
            std::string key;
            fields >> key;
            if (key == "D") {
                fields >> mw >> tc >> pc >> liquidMin >> liquidMax >> vaporMin >> vaporMax >>
                    maxPressure;
            } else if (key.size() == 2 && key[0] == 'P') {
                Formula& formula = slots.at(static_cast<std::size_t>(key[1] - '1'));
                fields >> formula.type;
                for (double& coefficient : formula.c) fields >> coefficient;
            }
        }
    }

    double VaporPressure(double t) const {
        const auto& [type, c] = slots[0];
        if (type == 1) return slots[0].Poly(t);
        if (type == 2) return slots[0].Expo(t) / 1000.0;
        const double x = c[0] + c[1] / t + c[2] * std::log10(t) + (c[3] / 1000.0) * t +
                         (c[4] / 1000000.0) * (t * t);
        return x < 308.0 ? 0.1333 * std::pow(10.0, x) : 0.0;
    }

    // A fluid keeps its critical temperature as a user sees it; only what is derived from it at
    // loading takes the table's.
    double Tc() const { return FourDigits(tc); }

    double LiquidDensity(double t) const {
        const auto& [type, c] = slots[2];
        if (type == 1) return slots[2].Poly(t);
        if (type == 2) return mw * c[0] / std::pow(c[1], 1.0 + std::pow(1.0 - t / c[2], c[3]));
        return 1000.0 * c[0] * std::pow(c[1], -std::pow(1.0 - t / Tc(), 0.2857142857142857));
    }

    double LiquidViscosity(double t) const {
        const auto& [type, c] = slots[3];
        if (type == 1) return slots[3].Poly(t);
        if (type == 2) return 1000.0 * slots[3].Expo(t);
        return std::pow(10.0, c[0] + c[1] / t + (c[2] / 100.0) * t + (c[3] / 1000000.0) * (t * t));
    }

    double Z(double t, double p) const {
        const auto& [type, c] = slots[4];
        if (type == 1) return 1.0;
        const double u = type == 2 ? 2.0 : 1.0;
        const double w = type == 2 ? -1.0 : 0.0;
        double covolume = 0.08664 * R * tc / pc;
        double attraction = 0.42748 * R * R * tc * tc / pc;
        double slope = 1.574 * c[0] + 0.48 - 0.176 * c[0] * c[0];
        if (type == 2) {
            covolume = 0.0778 * R * tc / pc;
            attraction = 0.45724 * R * R * tc * tc / pc;
            slope = 1.54226 * c[0] + 0.37464 - 0.26992 * c[0] * c[0];
        }
        const double G = p / (R * R * t * t);
        const double B = covolume * p / (R * t);
        double A = 0.0;
        if (type == 3) {
            attraction = 0.42748 * R * R * std::pow(tc, 2.5) / pc;
            A = attraction * (1.0 / std::sqrt(t)) * G;
        } else {
            const double s = 1.0 + slope * (1.0 - std::sqrt(t / Tc()));
            A = attraction * s * s * G;
        }
        const double a2 = -(1.0 + B - u * B);
        const double a1 = A + w * (B * B) - u * B - u * (B * B);
        const double a0 = -(A * B + w * (B * B) + w * (B * B * B));
        double z = 1.0;
        for (int steps = 1; true; ++steps) {
            const double old = z;
            const double f = z * z * z + a2 * (z * z) + a1 * z + a0;
            const double d = 3.0 * (z * z) + 2.0 * a2 * z + a1;
            z = z - f / d;
            if (!(std::fabs(z - old) > 0.00001) || steps == 500) return z;
        }
    }

    double VaporDensity(double t, double p) const { return (p * mw) / (Z(t, p) * (R * t)); }

    double VaporViscosity(double t) const {
        const auto& [type, c] = slots[5];
        if (type == 1) return slots[5].Poly(t);
        if (type == 2) {
            return 1000.0 * c[0] * std::pow(t, c[1]) / (1.0 + c[2] / t + c[3] / (t * t));
        }
        return (c[0] + (c[1] / 100.0) * t + (c[2] / 1000000.0) * (t * t)) / 10000.0;
    }

    double RatioOfSpecificHeats(double t) const {
        const auto& [type, c] = slots[6];
        double cp = slots[6].Poly(t);
        if (type == 2) {
            const double u = (c[2] / t) / std::sinh(c[2] / t);
            const double v = (c[4] / t) / std::cosh(c[4] / t);
            cp = (c[0] + c[1] * (u * u) + c[3] * (v * v)) / 1000.0;
        } else if (type == 3) {
            cp = (c[0] + (c[1] / 1000.0) * t + (c[2] / 1000000.0) * (t * t) +
                  (c[3] / 1000000000.0) * (t * t * t)) *
                 4.1868;
        }
        return cp / (cp - R);
    }
};

}  // namespace plain

#endif
