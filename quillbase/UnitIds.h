#ifndef QUILLBASE_UNITIDS_H
#define QUILLBASE_UNITIDS_H

/// @file
/// The ids of the temperature and pressure units. They stand at the bottom of the project because
/// the conversions of this library take them; hosts get them from hydrofacts/units/Units.h. An id
/// is a stable number that callers store, not a place in a list.

/// The units of temperature.
enum HF_TUNITS : int {
    HF_DEG_F = 0,   ///< °F
    HF_DEG_R = 1,   ///< °R, Rankine: °F above absolute zero
    HF_DEG_C = 2,   ///< °C
    HF_KELVIN = 3,  ///< K
};

/// The units of pressure, and heads, which are pressures only together with a density.
enum HF_PUNITS : int {
    /// Stands for the user's unit of the measure concerned; in no list of units.
    HF_USER_UNIT = -2,

    // True pressures.
    HF_PSI = 0,     ///< psi, pounds per square inch
    HF_KPA = 1,     ///< kPa
    HF_BAR = 2,     ///< bar
    HF_IN_H2O = 3,  ///< in H2O, inches of water: a pressure
    HF_IN_HG = 4,   ///< in Hg, inches of mercury
    HF_MM_H2O = 5,  ///< mm H2O, millimetres of water: a pressure
    HF_MM_HG = 6,   ///< mm Hg, millimetres of mercury
    HF_PA = 7,      ///< Pa

    // Heads of the liquid at hand, also the two that name water: they need a density.
    HF_HEAD_FT = 8,   ///< ft of the liquid
    HF_HEAD_M = 9,    ///< m of the liquid
    HF_HEAD_IN = 10,  ///< in of the liquid
    HF_HEAD_MM = 11,  ///< mm of the liquid
    HF_FT_H2O = 12,   ///< ft of the liquid, though the text says ft H2O
    HF_M_H2O = 13,    ///< m of the liquid, though the text says m H2O
};

#endif
