#ifndef HYDROFACTS_TABLES_PROPERTYCHOICE_H
#define HYDROFACTS_TABLES_PROPERTYCHOICE_H

#include <optional>
#include <string>

#include "tables/Correlation.h"

namespace hydrofacts::tables {

/// The formula that a table takes for one property, and what is known of it.
struct ChosenFormula {
    CFormula formula;
    Range range;              ///< In which it may be used.
    std::string source;       ///< Where its coefficients come from.
    bool fitted = false;      ///< Fitted here, and not published.
    std::string checkSource;  ///< Where the check points come from; empty if there are none.
    Deviation deviation;      ///< From check points that it was not fitted to.
};

/// Chooses the formula of a property for the range of temperatures that is wanted. The published
/// row is taken unless it strays too far from the check data, leaves a good part of the range out,
/// or the fluid asks for fits; then a fit to the check data takes its place where that is better.
/// Nothing, if there is neither a row that the table format can carry nor check data enough for a
/// fit.
std::optional<ChosenFormula> ChooseFormula(Property property, const FluidData& fluid,
                                           const Range& wanted);

/// The deviation in percent up to which a published row is taken as it is.
double LargestAccepted(Property property);

}  // namespace hydrofacts::tables

#endif
