#include "hydrofacts/units/UnitValue.h"

#include "hydrofacts/fluid/CFluid.h"
#include "quillbase/Rounding.h"

namespace {

std::unique_ptr<CFluid> CopyOf(const std::unique_ptr<CFluid>& fluid) {
    return fluid ? std::make_unique<CFluid>(*fluid) : nullptr;
}

}  // namespace

template <int type, int n>
UnitValue<type, n>::UnitValue() : UnitValue(0, 0.0) {}

template <int type, int n>
UnitValue<type, n>::UnitValue(int unitId, double number)
    : unit(unitId), value(number), units(Units::defaultUnits()) {}

template <int type, int n>
UnitValue<type, n>::UnitValue(const UnitValue& other)
    : unit(other.unit),
      value(other.value),
      fluid(CopyOf(other.fluid)),
      units(Units::defaultUnits()) {}

template <int type, int n>
UnitValue<type, n>::UnitValue(UnitValue&& other) noexcept = default;

template <int type, int n>
UnitValue<type, n>& UnitValue<type, n>::operator=(const UnitValue& other) {
    if (this != &other) *this = UnitValue(other);
    return *this;
}

template <int type, int n>
UnitValue<type, n>& UnitValue<type, n>::operator=(UnitValue&& other) noexcept = default;

template <int type, int n>
UnitValue<type, n>::~UnitValue() = default;

template <int type, int n>
UnitValue<type, n>::UnitValue(int unitId, const CFluid& ofFluid) requires(type == HF_VISCOSITY)
    : UnitValue(unitId, ofFluid, 0.0) {}

template <int type, int n>
UnitValue<type, n>::UnitValue(int unitId, const CFluid& ofFluid,
                              double number) requires(type == HF_VISCOSITY)
    : unit(unitId),
      value(number),
      fluid(std::make_unique<CFluid>(ofFluid)),
      units(Units::defaultUnits()) {}

template <int type, int n>
double UnitValue<type, n>::raw_value() const {
    return value;
}

template <int type, int n>
void UnitValue<type, n>::set_value(double newValue) {
    value = newValue;
}

template <int type, int n>
void UnitValue<type, n>::set_unit(int newUnit) {
    unit = newUnit;
    fluid.reset();
}

template <int type, int n>
double UnitValue<type, n>::value_in(int to) const {
    return units->Convert(static_cast<HF_UNIT_TYPES>(type), value, unit, to, fluid.get());
}

template <int type, int n>
double UnitValue<type, n>::value_in(int to, const CFluid* other) const
    requires(type == HF_VISCOSITY) {
    constexpr int kCentipoise = 0;
    if (other == nullptr) return value_in(to);
    if (fluid && !EqualDbl(fluid->GetDensity(), other->GetDensity())) {
        return units->Convert(HF_VISCOSITY, value_in(kCentipoise), kCentipoise, to, other);
    }
    return units->Convert(HF_VISCOSITY, value, unit, to, other);
}

template <int type, int n>
void UnitValue<type, n>::assign(const UnitValue& source) requires(type == HF_VISCOSITY) {
    value = source.value_in(unit, fluid.get());
}

template class UnitValue<HF_TEMPERATURE, 0>;
template class UnitValue<HF_PRESSURE, 0>;
template class UnitValue<HF_DENSITY, 0>;
template class UnitValue<HF_VISCOSITY, 0>;
template class UnitValue<HF_LENGTH, 0>;
