#ifndef QUILLBASE_CONVERSION_H
#define QUILLBASE_CONVERSION_H

#include "quillbase/UnitIds.h"

/// Converts a temperature between any two of °F, °R, °C and K, by the exact ratio 9/5 and the exact
/// offsets 459.67 °F and 273.15 K (ITS-90; NIST SP 811, B.8). An id that is none of the four is
/// taken as °F.
double ConvertTemp(double value, HF_TUNITS from, HF_TUNITS to);

/// Converts between the true pressures, ids 0 to 7; gauge stays gauge. Any other id, heads of
/// liquid included, is taken as psi: a head has no pressure without a fluid. The pascals in one
/// unit, all after NIST SP 811, B.8, with standard gravity of 9.80665 m/s²:
/// - psi: 6894.757293168361, which is 4.4482216152605 N / (0.0254 m)² to sixteen digits
/// - in H2O, mm H2O: conventional water of 1000 kg/m³, 249.08891 and 9.80665
/// - mm Hg: conventional mercury of 13595.1 kg/m³, 133.322387415; in Hg is 25.4 of these
double ConvertPressure(double value, HF_PUNITS from, HF_PUNITS to);

#endif
