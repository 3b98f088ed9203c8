#ifndef HYDROFACTS_TABLES_NOMINALSIZE_H
#define HYDROFACTS_TABLES_NOMINALSIZE_H

#include <string>

namespace hydrofacts::tables {

/// The metric name (DN) of an inch size (NPS): by the table of ISO 6708 and ASME B36.10M up to
/// 3 1/2 in., 25 for each inch from 4 in. up. 5/8 in., which has no DN of its own, is 16. 0.0 for a
/// size that has none.
double NominalDiameter(double inches);

/// The text that "%g" prints for a number, with a point in every locale.
std::string GeneralNumber(double value);

}  // namespace hydrofacts::tables

#endif
