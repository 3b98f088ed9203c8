#ifndef HYDROFACTS_UNITS_UNITVALUE_H
#define HYDROFACTS_UNITS_UNITVALUE_H

#include <cstdint>
#include <memory>

#include "hydrofacts/units/Units.h"
#include "win32/Export.h"

class CFluid;

/// A number that knows its unit. `type` is the measure, an HF_UNIT_TYPES value; `n` has no effect
/// and is always 0. The library provides temperature, pressure, density, viscosity and length:
/// UnitValue<0,0>, <1,0>, <3,0>, <4,0> and <7,0>.
///
///     UnitValue<7, 0> length(HF_LEN_FT, 10.0);
///     double metres = length.value_in(HF_LEN_M);
///
/// A viscosity may carry a private copy of its fluid, whose density joins cP and cSt; no other
/// value has one, and a value without a fluid allocates nothing.
///
/// A value belongs to one thread at a time. It reads the units of Units::defaultUnits(), which are
/// not to be changed while any thread converts values.
template <int type, int n>
class UnitValue {
  public:
    /// 0.0 in the unit of id 0.
    UnitValue();

    /// A number in unit `unit`, an id of the measure, without a fluid.
    UnitValue(int unit, double value);

    /// Copies the fluid too: each value owns its own. The copy converts with Units::defaultUnits().
    UnitValue(const UnitValue& other);
    /// Takes the fluid over too, and the object that converts.
    UnitValue(UnitValue&& other) noexcept;
    /// As the copy: unit, number and fluid, with Units::defaultUnits() to convert.
    UnitValue& operator=(const UnitValue& other);
    /// As the move.
    UnitValue& operator=(UnitValue&& other) noexcept;
    ~UnitValue();

    /// A viscosity of 0.0 in unit `unit` with a copy of its fluid.
    UnitValue(int unit, const CFluid& fluid) requires(type == HF_VISCOSITY);
    /// The same with a number.
    UnitValue(int unit, const CFluid& fluid, double value) requires(type == HF_VISCOSITY);

    /// The number as it stands.
    double raw_value() const;

    /// Replaces the number; the unit stays.
    void set_value(double newValue);

    /// Replaces the unit and lets go of the fluid. The number is not converted.
    void set_unit(int newUnit);

    /// The number in another unit. HF_USER_UNIT is the user unit of Units::defaultUnits().
    double value_in(int to) const;

    /// The viscosity in unit `to` of another fluid: the dynamic viscosity stays the same where the
    /// densities differ. A null fluid is this value's own.
    double value_in(int to, const CFluid* other) const requires(type == HF_VISCOSITY);

    /// Takes on another viscosity, in this value's own unit and with its own fluid.
    void assign(const UnitValue& source) requires(type == HF_VISCOSITY);

    std::int32_t unit;              ///< id of the number's unit
    double value;                   ///< the number
    std::unique_ptr<CFluid> fluid;  ///< the fluid of a viscosity, or null
    Units* units;                   ///< converts; not owned
};

extern template class HYDROFACTS_API UnitValue<HF_TEMPERATURE, 0>;
extern template class HYDROFACTS_API UnitValue<HF_PRESSURE, 0>;
extern template class HYDROFACTS_API UnitValue<HF_DENSITY, 0>;
extern template class HYDROFACTS_API UnitValue<HF_VISCOSITY, 0>;
extern template class HYDROFACTS_API UnitValue<HF_LENGTH, 0>;

#endif
