#ifndef QUILLBASE_CATMPRESSURE_H
#define QUILLBASE_CATMPRESSURE_H

#include "quillbase/UnitIds.h"
#include "win32/Export.h"

/// The atmospheric pressure that stands between gauge and absolute pressure. A new object holds the
/// standard atmosphere, 101.325 kPa exactly (14.696 psi). The value is kept in the unit in which it
/// was given, so that it comes back in that unit unchanged.
class HYDROFACTS_API CAtmPressure {
  public:
    /// The standard atmosphere.
    CAtmPressure();
    ~CAtmPressure();

    /// The same pressure in the same unit.
    /// @{
    CAtmPressure(const CAtmPressure&) = default;
    CAtmPressure& operator=(const CAtmPressure&) = default;
    /// @}

    /// Sets the pressure, absolute, in a true pressure unit (ids 0 to 7; any other counts as psi).
    void SetValue(double value, HF_PUNITS unit);

    /// The pressure, absolute, in a true pressure unit (ids 0 to 7; any other counts as psi).
    double Value(HF_PUNITS unit) const;

    /// Takes the pressure from the host's ini file: section [Atmosphere], keys Pressure (a number
    /// with a point) and Unit (the text of a true pressure unit). False, with the object unchanged,
    /// if the file can't be read, a key is missing, the number is not finite or is below zero, or
    /// the unit is unknown.
    bool GetFromINI(char* file);

    /// Writes a pressure to the host's ini file, to the keys that GetFromINI reads. All else in the
    /// file stays byte for byte. The file is replaced in one step: after a failure (false) or a
    /// crash it is either the old one or the new one, whole. The object itself is not changed.
    bool SetToINI(double value, HF_PUNITS unit, char* file);

  private:
    double value_;
    HF_PUNITS unit_;
};

#endif
