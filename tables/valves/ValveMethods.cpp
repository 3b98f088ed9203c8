#include "tables/valves/ValveMethods.h"

#include <algorithm>
#include <array>

namespace hydrofacts::tables {
namespace {

constexpr std::string_view kBySize =
    "Formula 9, several rows: K up to and including a nominal size (in.; the same, mm). Up to the "
    "first size its K holds, above the last one nothing is known and its K goes on.";

// clang-format off
constexpr std::array kMethods = {
    ValveMethod{"constant",         1, 1, ValveRows::None,     "Formula 1: K. Two numbers unused."},
    ValveMethod{"friction",         2, 1, ValveRows::None,     "Formula 2: n; K = n fT. Two numbers unused."},
    ValveMethod{"bend",             3, 3, ValveRows::None,     "Formula 3: r/d, n, angle (deg); K = n fT."},
    ValveMethod{"two-K",            4, 2, ValveRows::None,     "Formula 4: K1, K2; K = K1/Re + K2 (1 + 1/d), d inside diameter (in.). One number unused."},
    ValveMethod{"three-K",          5, 3, ValveRows::None,     "Formula 5: K1, Ki, Kd; K = K1/Re + Ki (1 + Kd/D^0.3), D nominal size (in.)."},
    ValveMethod{"cone sine",        6, 3, ValveRows::None,     "Formula 6: a, b, c; K = a (1 - beta^2)^b sin(theta/2)^c, on the velocity in the small bore."},
    ValveMethod{"cone tangent",     7, 3, ValveRows::None,     "Formula 7: a, b, c; K = a (1 - beta^2)^b tan(theta/2)^c, on the velocity in the small bore."},
    ValveMethod{"Reynolds",         8, 3, ValveRows::None,     "Formula 8: K0, Re0, m; K = K0 (Re0/Re)^m."},
    ValveMethod{"by size",          9, 0, ValveRows::OwnFile,  kBySize},
    ValveMethod{"friction by size", 9, 1, ValveRows::Friction, kBySize},
    ValveMethod{"figure by size",  13, 0, ValveRows::OwnFile,  "Formula 13, several rows like those of formula 9: the friction factor fT, not a K."},
};
// clang-format on

}  // namespace

const ValveMethod* FindValveMethod(std::string_view name) {
    const auto* const found =
        std::find_if(kMethods.begin(), kMethods.end(),
                     [name](const ValveMethod& method) { return method.name == name; });
    return found == kMethods.end() ? nullptr : found;
}

const int kAllValveFormulas[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 20, 21, 22, 0};

}  // namespace hydrofacts::tables
