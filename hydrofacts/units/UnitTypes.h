#ifndef HYDROFACTS_UNITS_UNITTYPES_H
#define HYDROFACTS_UNITS_UNITTYPES_H

#include "quillbase/UnitIds.h"

/// The measures. A value is the index of the measure's user unit in a `Units` object.
enum HF_UNIT_TYPES : int {
    HF_TEMPERATURE = 0,
    HF_PRESSURE = 1,
    HF_FLOW = 2,
    HF_DENSITY = 3,
    HF_VISCOSITY = 4,
    HF_VELOCITY = 5,
    HF_POWER = 6,
    HF_LENGTH = 7,
    HF_HEAD = 8,  ///< pressure units with a head as the default
    HF_AREA = 9,
    HF_THRUST_PER_LENGTH = 10,
    HF_HEAD_2 = 11,  ///< as HF_HEAD, with a user unit of its own
};

/// The unit systems.
enum HF_UNITS : int {
    HF_US = 0,
    HF_METRIC = 1,
};

/// The units of flow; those of temperature and pressure are HF_TUNITS and HF_PUNITS.
enum HF_FLOW_UNITS : int {
    HF_US_GPM = 0,
    HF_MGD = 1,
    HF_CFM = 2,
    HF_CFS = 3,
    HF_BPH = 4,
    HF_LB_HR = 5,
    HF_LB_SEC = 6,
    HF_LB_MIN = 7,
    HF_MLB_HR = 8,
    HF_M3_HR = 9,
    HF_M3_S = 10,
    HF_LPM = 11,
    HF_L_S = 12,
    HF_KG_HR = 13,
    HF_KG_SEC = 14,
    HF_KG_MIN = 15,
    HF_GG_HR = 16,
    HF_SCFH = 17,
    HF_SCFS = 18,
    HF_SCFM = 19,
    HF_SM3_HR = 20,
    HF_SM3_S = 21,
    HF_SM3_MIN = 22,
    HF_BPD = 23,
    HF_M3_DAY = 24,
    HF_FLOW_OTHER = 25,
};

/// The units of length.
enum HF_LENGTH_UNITS : int {
    HF_LEN_M = 0,
    HF_LEN_KM = 1,
    HF_LEN_CM = 2,
    HF_LEN_MM = 3,
    HF_LEN_IN = 4,
    HF_LEN_FT = 5,
    HF_LEN_YD = 6,
    HF_LEN_MI = 7,
    HF_LEN_OTHER = 8,
};

#endif
