#include "tools/ValveMethods.h"

#include <algorithm>
#include <iterator>

namespace hydrofacts::command {
namespace {

// clang-format off
constexpr ValveMethod kMethods[] = {
    { 1, "constant K",         "K as given",                                                                    {"K"}},
    { 2, "multiple of fT",     "K = n fT",                                                                      {"n"}},
    { 3, "bend by radius",     "K = n fT at the angle given, in degrees",                                       {"r/d", "n", "angle"}},
    { 4, "two-K",              "K = K1/Re + K\u221E (1 + 1/d), d the inside diameter in inches",                {"K1", "K\u221E"}},
    { 5, "three-K",            "K = K1/Re + Ki (1 + Kd/D^0.3), D the nominal size in inches",                   {"K1", "Ki", "Kd"}},
    { 6, "cone, by sine",      "K = a (1 - \u03B2\u00B2)^b sin(\u03B8/2)^c, on the velocity in the small bore", {"a", "b", "c"}},
    { 7, "cone, by tangent",   "K = a (1 - \u03B2\u00B2)^b tan(\u03B8/2)^c, on the velocity in the small bore", {"a", "b", "c"}},
    { 8, "falling with Re",    "K = K0 (Re0/Re)^m",                                                             {"K0", "Re0", "m"}},
    { 9, "K by nominal size",  "K by nominal size, up to and including each limit",                             {}},
    {13, "fT by nominal size", "the friction factor fT, not a K, up to and including each limit",               {}},
    {20, "user's K",           "K that the user enters",                                                        {"K"}},
    {21, "user's Cv",          "Cv that the user enters, US gallons per minute of water at 1 psi",              {"Cv"}},
    {22, "user's Kv",          "Kv that the user enters, m\u00B3/h of water at 1 bar",                          {"Kv"}},
};
// clang-format on

}  // namespace

const ValveMethod* FindValveMethod(int formula) {
    const auto* const found =
        std::find_if(std::begin(kMethods), std::end(kMethods),
                     [formula](const ValveMethod& method) { return method.formula == formula; });
    return found == std::end(kMethods) ? nullptr : found;
}

}  // namespace hydrofacts::command
