#ifndef HYDROFACTS_UNITS_UNITTYPES_H
#define HYDROFACTS_UNITS_UNITTYPES_H

/// @file
/// The measures, the unit systems, and the ids of the units of flow and length. What a unit is
/// worth stands on the page of units.

#include "quillbase/UnitIds.h"

/// The measures. A value is the index of the measure's user unit in a `Units` object.
enum HF_UNIT_TYPES : int {
    HF_TEMPERATURE = 0,         ///< HF_TUNITS
    HF_PRESSURE = 1,            ///< HF_PUNITS; gauge or absolute is not a matter of the unit
    HF_FLOW = 2,                ///< HF_FLOW_UNITS: volume, mass, standard volume of a gas
    HF_DENSITY = 3,             ///< 0 lb/ft³, 1 kg/m³, 2 sg, 3 the custom unit
    HF_VISCOSITY = 4,           ///< 0 cP, 1 cSt
    HF_VELOCITY = 5,            ///< 0 m/s, 1 ft/s, 2 the custom unit
    HF_POWER = 6,               ///< 0 kW, 1 hp, 2 the custom unit
    HF_LENGTH = 7,              ///< HF_LENGTH_UNITS
    HF_HEAD = 8,                ///< pressure units with a head as the default
    HF_AREA = 9,                ///< 0 m², 1 ft², 2 in², 3 mm², 4 cm²
    HF_THRUST_PER_LENGTH = 10,  ///< 0 lb/ft, 1 kg/m
    HF_HEAD_2 = 11,             ///< as HF_HEAD, with a user unit of its own
};

/// The unit systems.
enum HF_UNITS : int {
    HF_US = 0,      ///< by default °F, psi, US gpm, lb/ft³, cP, ft/s, hp, in, ft, in², lb/ft
    HF_METRIC = 1,  ///< by default °C, bar, m³/hr, kg/m³, cP, m/s, kW, mm, m, cm², kg/m
};

/// The units of flow; those of temperature and pressure are HF_TUNITS and HF_PUNITS.
enum HF_FLOW_UNITS : int {
    HF_US_GPM = 0,       ///< US gallons per minute
    HF_MGD = 1,          ///< million US gallons per day
    HF_CFM = 2,          ///< cubic feet per minute
    HF_CFS = 3,          ///< cubic feet per second
    HF_BPH = 4,          ///< barrels of 42 US gallons per hour
    HF_LB_HR = 5,        ///< pounds per hour, a mass flow
    HF_LB_SEC = 6,       ///< pounds per second, a mass flow
    HF_LB_MIN = 7,       ///< pounds per minute, a mass flow
    HF_MLB_HR = 8,       ///< million pounds per hour, a mass flow
    HF_M3_HR = 9,        ///< cubic metres per hour
    HF_M3_S = 10,        ///< cubic metres per second
    HF_LPM = 11,         ///< litres per minute
    HF_L_S = 12,         ///< litres per second
    HF_KG_HR = 13,       ///< a mass flow
    HF_KG_SEC = 14,      ///< a mass flow
    HF_KG_MIN = 15,      ///< a mass flow
    HF_GG_HR = 16,       ///< million kilograms per hour, a mass flow
    HF_SCFH = 17,        ///< standard cubic feet of a gas per hour
    HF_SCFS = 18,        ///< standard cubic feet of a gas per second
    HF_SCFM = 19,        ///< standard cubic feet of a gas per minute
    HF_SM3_HR = 20,      ///< standard cubic metres of a gas per hour
    HF_SM3_S = 21,       ///< standard cubic metres of a gas per second
    HF_SM3_MIN = 22,     ///< standard cubic metres of a gas per minute
    HF_BPD = 23,         ///< barrels of 42 US gallons per day
    HF_M3_DAY = 24,      ///< cubic metres per day
    HF_FLOW_OTHER = 25,  ///< the custom unit, see Units::SetCustomUnit
};

/// The units of length.
enum HF_LENGTH_UNITS : int {
    HF_LEN_M = 0,      ///< metre
    HF_LEN_KM = 1,     ///< kilometre
    HF_LEN_CM = 2,     ///< centimetre
    HF_LEN_MM = 3,     ///< millimetre
    HF_LEN_IN = 4,     ///< inch of 25.4 mm
    HF_LEN_FT = 5,     ///< foot of 0.3048 m
    HF_LEN_YD = 6,     ///< yard
    HF_LEN_MI = 7,     ///< statute mile
    HF_LEN_OTHER = 8,  ///< the custom unit, see Units::SetCustomUnit
};

#endif
