#ifndef HYDROFACTS_FORMULA_CONSTANTS_H
#define HYDROFACTS_FORMULA_CONSTANTS_H

namespace hydrofacts {

/// kJ/(kmol K), as the fitted formulas and the tables use it (CODATA's figure ends in ...46).
inline constexpr double kGasConstant = 8.3144;

/// What the type of the vapor density formula names.
enum EquationOfState {
    kNoVapor = 0,
    kIdealGas = 1,
    kPengRobinson = 2,
    kRedlichKwong = 3,
    kSoaveRedlichKwong = 4,
};

}  // namespace hydrofacts

#endif
