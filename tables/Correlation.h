#ifndef HYDROFACTS_TABLES_CORRELATION_H
#define HYDROFACTS_TABLES_CORRELATION_H

#include <optional>
#include <span>

#include "hydrofacts/formula/CFormula.h"
#include "tables/ReferenceData.h"

namespace hydrofacts::tables {

/// A range of temperatures in kelvin, both ends included.
struct Range {
    double min;
    double max;

    bool Holds(double temperature) const { return min <= temperature && temperature <= max; }
    double Span() const { return max - min; }
};

/// No table goes higher, K.
constexpr double kHighestTemperature = 2000.0;

/// The formula slot of a property: 0 for the vapor pressure to 6 for the heat capacity.
int SlotOf(Property property);

/// The published row as a formula of the table format; nothing if the format has no such form.
std::optional<CFormula> FromHandbook(Property property, const HandbookRow& row,
                                     const FluidConstants& constants);

/// The library's value of a formula at a temperature in kelvin, in the unit of its property. The
/// ratio of specific heats is turned back into the heat capacity that it came from.
double Evaluate(const CFormula& formula, const FluidConstants& constants, double temperature);

/// How far a formula lies from points that it was not made from. All deviations are in percent.
struct Deviation {
    std::size_t count = 0;
    double largest = 0.0;
    double largestAt = 0.0;  ///< K
    double mean = 0.0;
    Range range{0.0, 0.0};  ///< Of the points compared.
};

Deviation Measure(const CFormula& formula, const FluidConstants& constants,
                  std::span<const Point> points, const Range& within);

/// Whether the formula is positive over the range and goes the way of its property: pressures and
/// gas viscosity rise, liquid viscosity falls, liquid density falls (water may rise below 4 degrees
/// Celsius), the heat capacity exceeds the gas constant. A vapor pressure must also not turn back
/// above the critical temperature, where the limit of the compressibility is read from it.
bool HasSoundShape(Property property, const CFormula& formula, const FluidConstants& constants,
                   const Range& range);

/// The longest part of the range in which the formula is positive and goes the way of its property.
Range SoundPart(Property property, const CFormula& formula, const FluidConstants& constants,
                const Range& range);

/// How the tables and reports name a property: "liquid density".
const char* PropertyName(Property property);

}  // namespace hydrofacts::tables

#endif
