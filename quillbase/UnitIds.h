#ifndef QUILLBASE_UNITIDS_H
#define QUILLBASE_UNITIDS_H

// The ids of the temperature and pressure units. They stand at the bottom of the project because
// the conversions of this library take them; hosts get them from hydrofacts/units/Units.h. An id is
// a stable number that callers store, not a place in a list.

enum HF_TUNITS : int {
    HF_DEG_F = 0,
    HF_DEG_R = 1,
    HF_DEG_C = 2,
    HF_KELVIN = 3,
};

enum HF_PUNITS : int {
    /// Stands for the user's unit of the measure concerned; in no list of units.
    HF_USER_UNIT = -2,

    // True pressures.
    HF_PSI = 0,
    HF_KPA = 1,
    HF_BAR = 2,
    HF_IN_H2O = 3,
    HF_IN_HG = 4,
    HF_MM_H2O = 5,
    HF_MM_HG = 6,
    HF_PA = 7,

    // Heads of the liquid at hand, also the two that name water: they need a density.
    HF_HEAD_FT = 8,
    HF_HEAD_M = 9,
    HF_HEAD_IN = 10,
    HF_HEAD_MM = 11,
    HF_FT_H2O = 12,
    HF_M_H2O = 13,
};

#endif
