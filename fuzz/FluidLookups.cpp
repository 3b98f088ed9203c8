#include <memory>
#include <string>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "hydrofacts/fluid/CFluid.h"

namespace hydrofacts::fuzz {
namespace {

class OpenFluid : public CFluid {
  public:
    using CFluid::CalcDen;
    using CFluid::CalcSG;
    using CFluid::CFluid;
    using CFluid::CheckNewAtmPressure;
    using CFluid::FindFluidState;
    using CFluid::m_pUnits;
};

void CallGetters(OpenFluid& fluid, double tempK) {
    fluid.GetUDensity();
    fluid.GetDensityUS();
    fluid.GetSG();
    fluid.GetUDenSG();
    fluid.GetUDenSG(1);
    fluid.GetViscosity();
    fluid.GetViscosity(tempK);
    fluid.CentistokesRounded();
    fluid.GetSpHeat();
    fluid.GetSpHeat(tempK);
    fluid.GetVaporPres();
    fluid.GetUVaporPres();
    fluid.GetAbsPressure();
    fluid.MaxCompressiblePressure(fluid.GetTemperature());
    fluid.CalcZ(tempK, fluid.kPaPres(fluid.GetPressure(), 0), true);
    fluid.CalcZ(tempK, 1.0, false);
    fluid.GetTemperatureValue();
    fluid.GetPressureValue().value_in(HF_PSI);
    fluid.GetAbsPressureValue();
    fluid.GetVaporPresValue().value_in(HF_KPA);
    fluid.GetCriticalPresValue();
    fluid.GetDensityValue().value_in(0);
    fluid.GetViscosityValue().value_in(1);
}

void CallConversions(const OpenFluid& fluid, double value) {
    for (int type = HF_TEMPERATURE - 1; type <= HF_HEAD_2 + 1; ++type) {
        for (int from = HF_USER_UNIT; from < 27; from += 4) {
            for (int to = HF_USER_UNIT; to < 27; to += 3)
                fluid.m_pUnits->Convert(static_cast<HF_UNIT_TYPES>(type), value, from, to, &fluid);
        }
    }
}

void RequireSoundState(OpenFluid& fluid) {
    const FLUIDSTATE state = fluid.GetFluidState();
    Require(state == FLUID_NONE || state == FLUID_LIQUID || state == FLUID_VAPOR,
            "a table fluid has one of three states");
    if (state == FLUID_NONE) {
        Require(fluid.GetDensity() == 0.0 && fluid.GetViscosity() == 0.0 &&
                    fluid.GetVaporPres() == 0.0 && fluid.GetSG() == 0.0 &&
                    fluid.GetSpHeat() == 0.0 && fluid.CentistokesRounded() == 0.0,
                "no state, no properties");
        return;
    }
    Require(fluid.GetDensity() > 0.0 && fluid.GetViscosity() > 0.0, "a state has properties");
    Require(fluid.SetPointIsValid(fluid.GetTemperature(), fluid.GetPressure()) == 1,
            "a state is found where the set point is valid");
}

}  // namespace

// The head chooses units and set points, the rest is the table.
void fluid_lookups(Bytes bytes) {
    Input input(bytes);
    const auto temperatureUnit = static_cast<HF_TUNITS>(input.Below(4));
    const auto pressureUnit = static_cast<HF_PUNITS>(input.Below(8));
    const std::uint8_t modes = input.Byte();
    const double temperature = input.Number();
    const double pressure = input.Number();
    const double other = input.Number();
    Scratch().Write("Fuzz.FTBL", input.Text());
    std::string folder = Scratch().Path();

    OpenFluid fluid(temperatureUnit, pressureUnit, modes & 1, 1.0);
    if (fluid.SetFluid(folder.data(), "Fuzz", temperature, pressure) != 0) return;
    RequireSoundState(fluid);
    CallGetters(fluid, other);
    CallConversions(fluid, other);
    fluid.FindFluidState(other, pressure);
    fluid.SetPointIsValid(other, pressure, FLUID_VAPOR);
    fluid.UpdateAtmPressure(other);
    fluid.CheckNewAtmPressure();
    RequireSoundState(fluid);

    if ((modes & 2) != 0) fluid.SetIdealGas(true);
    fluid.SetFluidVapor(other);
    Require(fluid.GetFluidState() == FLUID_VAPOR, "SetFluidVapor makes a vapor");
    CallGetters(fluid, other);
    fluid.SetIdealGas(false);

    const OpenFluid copy(fluid);
    Require(copy.GetFluidName() == std::string("Fuzz"), "a copy has the name");
    // Typed properties, of numbers that a table has led to.
    OpenFluid typed;
    typed.SetFluidProperties("Typed", (modes & 4) != 0 ? FLUID_USER_LIQUID : FLUID_USER_VAPOR,
                             temperature, pressure, (modes & 8) != 0 ? other : fluid.GetDensity(),
                             other, pressure, 1.4, (modes & 16) != 0 ? other : 0.0, other,
                             temperature, fluid.GetMolecularWt());
    CallGetters(typed, other);
    CallConversions(typed, other);
    fluid = typed;
    fluid.CalcDen(other);
    fluid.CalcSG(other);
    CallGetters(fluid, other);
}

}  // namespace hydrofacts::fuzz
