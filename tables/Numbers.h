#ifndef HYDROFACTS_TABLES_NUMBERS_H
#define HYDROFACTS_TABLES_NUMBERS_H

#include <string>

namespace hydrofacts::tables {

/// The shortest text that reads back as the same number, with a point in every locale.
std::string ExactNumber(double value);

/// The number to a few significant digits, for people.
std::string RoundedNumber(double value, int digits);

/// The double nearest to `value` with that many significant decimal digits.
double RoundToDigits(double value, int digits);

}  // namespace hydrofacts::tables

#endif
