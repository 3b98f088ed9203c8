#include "tables/Fit.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <vector>

#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

using Real = long double;
using Matrix = Eigen::Matrix<Real, Eigen::Dynamic, Eigen::Dynamic>;
using Vector = Eigen::Matrix<Real, Eigen::Dynamic, 1>;
using Coefficients = std::array<Real, 5>;

constexpr int kDigits = 10;

double Rounded(Real value) { return RoundToDigits(static_cast<double>(value), kDigits); }

// Collects formulas and keeps the best.
class Contest {
  public:
    Contest(Property property, const FluidConstants& constants,
            std::span<const WeightedPoint> points, const Accept& accept)
        : m_slot(SlotOf(property)), m_constants(constants), m_points(points), m_accept(accept) {}

    std::span<const WeightedPoint> Points() const { return m_points; }
    const FluidConstants& Constants() const { return m_constants; }

    // Enters a formula. Returns its largest weighted deviation, infinite for one not accepted.
    Real Enter(int type, const Coefficients& coefficients) {
        CFormula formula;
        formula.m_slot = m_slot;
        formula.m_type = static_cast<short>(type);
        std::transform(coefficients.begin(), coefficients.end(), formula.m_coefficients, Rounded);
        const double score = Score(formula);
        if (!(score < m_bestScore)) {
            return score;
        }
        if (!m_accept(formula)) {
            return INFINITY;
        }
        m_bestScore = score;
        m_best = formula;
        return score;
    }

    const std::optional<CFormula>& Best() const { return m_best; }

  private:
    double Score(const CFormula& formula) const {
        double worst = 0.0;
        for (const WeightedPoint& point : m_points) {
            const double value = Evaluate(formula, m_constants, point.temperature);
            const double deviation = point.weight * std::fabs(value / point.value - 1.0);
            if (!(deviation <= worst)) {
                worst = std::isnan(deviation) ? INFINITY : deviation;
            }
        }
        return worst;
    }

    int m_slot;
    const FluidConstants& m_constants;
    std::span<const WeightedPoint> m_points;
    const Accept& m_accept;
    double m_bestScore = INFINITY;
    std::optional<CFormula> m_best;
};

// Solves for the coefficients of `terms(point)`, which sum to `target(point)`, both multiplied by
// the point's weight. Columns are scaled to unit length first.
template <int kTerms, class Terms, class Target>
std::array<Real, kTerms> Solve(std::span<const WeightedPoint> points, Terms terms, Target target) {
    const auto rows = static_cast<Eigen::Index>(points.size());
    Matrix a(rows, kTerms);
    Vector b(rows);
    for (Eigen::Index i = 0; i < rows; ++i) {
        const WeightedPoint& point = points[static_cast<std::size_t>(i)];
        const std::array<Real, kTerms> row = terms(point);
        for (int j = 0; j < kTerms; ++j) {
            a(i, j) = point.weight * row[static_cast<std::size_t>(j)];
        }
        b(i) = point.weight * target(point);
    }
    const Vector scale = a.colwise().norm().transpose();
    for (int j = 0; j < kTerms; ++j) {
        a.col(j) /= scale(j);
    }
    const Vector x = a.colPivHouseholderQr().solve(b);
    std::array<Real, kTerms> result;
    for (int j = 0; j < kTerms; ++j) {
        result[static_cast<std::size_t>(j)] = x(j) / scale(j);
    }
    return result;
}

// Scans a nonlinear coefficient: a coarse grid, then finer ones around the best place.
template <class Try>
void Scan(Real from, Real to, Real step, int refinements, Try attempt) {
    Real best = from;
    Real bestScore = INFINITY;
    for (int level = 0; level <= refinements; ++level) {
        const auto count = static_cast<int>(std::lround((to - from) / step));
        for (int i = 0; i <= count; ++i) {
            const Real place = from + static_cast<Real>(i) * step;
            const Real score = attempt(place);
            if (score < bestScore) {
                bestScore = score;
                best = place;
            }
        }
        from = best - step;
        to = best + step;
        step /= 10;
    }
}

// exp(c0 + c1/t + c2 ln t + c3 t^c4), times `unit` in the unit of the property.
void FitExponential(Contest& contest, Real unit) {
    // Temperatures are divided by the critical one, so that the columns are of like size.
    const Real tc = contest.Constants().criticalTemperature;
    Scan(-12.0L, 12.0L, 0.25L, 2, [&](Real power) -> Real {
        // Here the last term repeats the first, the second or nearly the third.
        if (std::fabs(power) < 0.1L || std::fabs(power + 1) < 0.1L) {
            return INFINITY;
        }
        const auto x = Solve<4>(
            contest.Points(),
            [&](const WeightedPoint& point) {
                const Real t = point.temperature / tc;
                return std::array<Real, 4>{1.0L, 1 / t, std::log(t), std::pow(t, power)};
            },
            [&](const WeightedPoint& point) { return std::log(point.value / unit); });
        return contest.Enter(
            2, {x[0] - x[2] * std::log(tc), x[1] * tc, x[2], x[3] * std::pow(tc, -power), power});
    });
}

// 0.1333 * 10^(c0 + c1/t + c2 log10 t + (c3/1e3) t + (c4/1e6) t^2), in kPa.
void FitTenPowerPressure(Contest& contest) {
    const Real tc = contest.Constants().criticalTemperature;
    const auto x = Solve<5>(
        contest.Points(),
        [&](const WeightedPoint& point) {
            const Real t = point.temperature / tc;
            return std::array<Real, 5>{1.0L, 1 / t, std::log10(t), t, t * t};
        },
        [](const WeightedPoint& point) { return std::log10(point.value / 0.1333L); });
    contest.Enter(3, {x[0] - x[2] * std::log10(tc), x[1] * tc, x[2], x[3] / tc * 1e3L,
                      x[4] / (tc * tc) * 1e6L});
}

// 10^(c0 + c1/t + (c2/100) t + (c3/1e6) t^2), in cP.
void FitTenPowerViscosity(Contest& contest) {
    const Real tc = contest.Constants().criticalTemperature;
    const auto x = Solve<4>(
        contest.Points(),
        [&](const WeightedPoint& point) {
            const Real t = point.temperature / tc;
            return std::array<Real, 4>{1.0L, 1 / t, t, t * t};
        },
        [](const WeightedPoint& point) { return std::log10(Real{point.value}); });
    contest.Enter(3, {x[0], x[1] * tc, x[2] / tc * 100, x[3] / (tc * tc) * 1e6L, 0.0L});
}

// c0 + c1 t + ... + c4 t^4.
void FitPolynomial(Contest& contest) {
    const Real tc = contest.Constants().criticalTemperature;
    const auto x = Solve<5>(
        contest.Points(),
        [&](const WeightedPoint& point) {
            const Real t = point.temperature / tc;
            const Real v = point.value;
            return std::array<Real, 5>{1 / v, t / v, t * t / v, t * t * t / v, t * t * t * t / v};
        },
        [](const WeightedPoint&) { return 1.0L; });
    contest.Enter(
        1, {x[0], x[1] / tc, x[2] / (tc * tc), x[3] / (tc * tc * tc), x[4] / (tc * tc * tc * tc)});
}

// mw c0 / c1^(1 + (1 - t/c2)^c3): linear in the logarithms of c0 and c1.
void FitRackett(Contest& contest) {
    const Real mw = contest.Constants().molecularWeight;
    const Real tc = contest.Constants().criticalTemperature;
    for (int stretch = 0; stretch <= 10; ++stretch) {
        const Real c2 = tc * (1 + stretch * 0.005L);
        Scan(0.05L, 0.8L, 0.025L, 2, [&](Real c3) -> Real {
            const auto x = Solve<2>(
                contest.Points(),
                [&](const WeightedPoint& point) {
                    return std::array<Real, 2>{1.0L,
                                               -(1 + std::pow(1 - point.temperature / c2, c3))};
                },
                [&](const WeightedPoint& point) { return std::log(point.value / mw); });
            return contest.Enter(2, {std::exp(x[0]), std::exp(x[1]), c2, c3, 0.0L});
        });
    }
}

// 1000 c0 t^c1 / (1 + c2/t + c3/t^2): linear once multiplied by the denominator.
void FitGasViscosity(Contest& contest) {
    const Real tc = contest.Constants().criticalTemperature;
    Scan(0.2L, 1.5L, 0.05L, 2, [&](Real c1) -> Real {
        const auto x = Solve<3>(
            contest.Points(),
            [&](const WeightedPoint& point) {
                const Real t = point.temperature / tc;
                return std::array<Real, 3>{std::pow(t, c1) / point.value, -1 / t, -1 / (t * t)};
            },
            [](const WeightedPoint&) { return 1.0L; });
        return contest.Enter(
            2, {x[0] * std::pow(tc, -c1) / 1000, c1, x[1] * tc, x[2] * tc * tc, 0.0L});
    });
}

// (c0 + c1 (u/sinh u)^2 + c3 (v/cosh v)^2) / 1000 with u = c2/t and v = c4/t.
Real TryHeatCapacity(Contest& contest, Real c2, Real c4) {
    const auto square = [](Real x) { return x * x; };
    const auto x = Solve<3>(
        contest.Points(),
        [&](const WeightedPoint& point) {
            const Real u = c2 / point.temperature;
            const Real v = c4 / point.temperature;
            const Real cp = 1000 * point.value;
            return std::array<Real, 3>{1 / cp, square(u / std::sinh(u)) / cp,
                                       square(v / std::cosh(v)) / cp};
        },
        [](const WeightedPoint&) { return 1.0L; });
    return contest.Enter(2, {x[0], x[1], c2, x[2], c4});
}

// The two temperatures of the form are scanned in steps of a ratio, then more finely around the
// best.
void FitHeatCapacity(Contest& contest) {
    constexpr Real kCoarse = 1.12L;
    constexpr Real kFine = 1.01L;
    Real bestScore = INFINITY;
    Real best2 = 1000;
    Real best4 = 1000;
    const auto scan = [&](Real from2, Real to2, Real from4, Real to4, Real ratio) {
        for (Real c2 = from2; c2 <= to2; c2 *= ratio) {
            for (Real c4 = from4; c4 <= to4; c4 *= ratio) {
                const Real score = TryHeatCapacity(contest, c2, c4);
                if (score < bestScore) {
                    bestScore = score;
                    best2 = c2;
                    best4 = c4;
                }
            }
        }
    };
    scan(400, 4500, 150, 3500, kCoarse);
    scan(best2 / kCoarse, best2 * kCoarse, best4 / kCoarse, best4 * kCoarse, kFine);
}

}  // namespace

std::optional<CFormula> FitProperty(Property property, const FluidConstants& constants,
                                    std::span<const WeightedPoint> points, const Accept& accept) {
    constexpr std::size_t kFewest = 8;
    if (points.size() < kFewest) {
        return std::nullopt;
    }
    Contest contest(property, constants, points, accept);
    switch (property) {
        case Property::VaporPressure:
        case Property::DewPressure:
            FitExponential(contest, 0.001L);
            FitTenPowerPressure(contest);
            break;
        case Property::LiquidDensity:
            FitRackett(contest);
            FitPolynomial(contest);
            break;
        case Property::LiquidViscosity:
            FitExponential(contest, 1000.0L);
            FitTenPowerViscosity(contest);
            break;
        case Property::GasViscosity:
            FitGasViscosity(contest);
            FitPolynomial(contest);
            break;
        case Property::GasHeatCapacity:
            FitPolynomial(contest);
            FitHeatCapacity(contest);
            break;
    }
    return contest.Best();
}

}  // namespace hydrofacts::tables
