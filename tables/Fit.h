#ifndef HYDROFACTS_TABLES_FIT_H
#define HYDROFACTS_TABLES_FIT_H

#include <functional>
#include <optional>
#include <span>

#include "tables/Correlation.h"

namespace hydrofacts::tables {

/// A point to fit to. The weight multiplies its relative deviation.
struct WeightedPoint {
    double temperature;
    double value;
    double weight;
};

/// A fit keeps only formulas that pass this.
using Accept = std::function<bool(const CFormula&)>;

/// Fits a formula to points by linear least squares of the relative deviations, in each form that
/// the property's slot offers, scanning the coefficients that are not linear, and gives the one
/// with the smallest largest deviation from these points. Coefficients are rounded to ten
/// significant digits, and the rounded ones are what is judged. Nothing, if there are too few
/// points or none is accepted.
///
/// The arithmetic is in long double, so that rounding gives the same digits on every platform.
std::optional<CFormula> FitProperty(Property property, const FluidConstants& constants,
                                    std::span<const WeightedPoint> points, const Accept& accept);

}  // namespace hydrofacts::tables

#endif
