#include "quillbase/Conversion.h"

#include "quillbase/UnitScales.h"

double ConvertTemp(double value, HF_TUNITS from, HF_TUNITS to) {
    return quillbase::TemperatureIn(to, value, from);
}

double ConvertPressure(double value, HF_PUNITS from, HF_PUNITS to) {
    return quillbase::PressureIn(to, value, from);
}
