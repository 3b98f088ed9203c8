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

/// A formula, or the reason why there is none.
struct Choice {
    std::optional<ChosenFormula> formula;
    std::string reason;
};

/// Chooses the formula of a property for the range of temperatures that is wanted: the published
/// row or a fit to the check data, whichever lies closer to check points that the fit has not
/// seen. A row is used only where it is sound. A row of the vapor pressure that does not meet the
/// critical point is replaced by a formula fitted to it and to the critical point, if one follows
/// it closely.
Choice ChooseFormula(Property property, const FluidData& fluid, const Range& wanted);

/// The deviation in percent up to which a published row is taken as it is.
double LargestAccepted(Property property);

}  // namespace hydrofacts::tables

#endif
