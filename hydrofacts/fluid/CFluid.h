#ifndef HYDROFACTS_FLUID_CFLUID_H
#define HYDROFACTS_FLUID_CFLUID_H

/// @file
/// A fluid at a set point, and its states.

#include <cstdint>

#include "hydrofacts/formula/CFormula.h"
#include "hydrofacts/units/UnitValue.h"
#include "hydrofacts/units/Units.h"
#include "win32/Export.h"

class TextFile;

/// The state of a fluid at its set point.
enum FLUIDSTATE : int {
    FLUID_NONE = 0,    ///< nothing set, or the set point is outside what the fluid's data allow
    FLUID_LIQUID = 1,  ///< a table has the properties of the liquid there
    FLUID_VAPOR = 2,   ///< a table has the properties of the vapor there
    FLUID_USER_LIQUID = 3,  ///< the properties were given, not computed
    FLUID_USER_VAPOR = 4,   ///< the same of a vapor
};

/// One fluid at one set point of temperature and pressure.
///
///     CFluid fluid(HF_DEG_C, HF_BAR, 0, 1.01325);    // gauge pressures above 1.01325 bar
///     fluid.SetFluid(tableDirectory, "Water", 20.0, 1.0);
///     if (fluid.GetFluidState() == FLUID_LIQUID) use(fluid.GetDensity(), fluid.GetViscosity());
///
/// A table fluid computes its properties from the formulas of a table file; a user-defined fluid
/// (SetFluidProperties) gives back what it was given. Temperatures and pressures that go in and out
/// are in the units of the fluid's unit object, pressures gauge unless that object is in absolute
/// mode; formulas and ranges are in kelvin, kPa absolute, kg/m³, cP and kg/kmol. The user units
/// must stand before a table is loaded: the load turns the critical values into them.
///
/// In the state FLUID_NONE every property is 0.0. A fluid belongs to one thread at a time, even for
/// reading; different fluids may be used by different threads at once.
class HYDROFACTS_API CFluid {
  public:
    /// A fluid with a unit object of its own, in US units.
    CFluid();

    /// A fluid with a unit object of its own, set as SetUnits does.
    CFluid(HF_TUNITS tunit, HF_PUNITS punit, int bAbsolute, double atmPressure);

    /// A fluid on a unit object of the caller's, who keeps it alive.
    CFluid(const Units* units);

    /// The copy owns a unit object with the settings of the other's.
    CFluid(const CFluid& other);

    ~CFluid();

    /// Copies the fluid. A fluid that owns its unit object copies the other's settings into it; one
    /// that borrows its unit object borrows the other's from then on.
    void operator=(const CFluid& other);

    /// The same fluid at the same set point: name, formulas, constants, ranges, temperature and
    /// pressure. State and units play no part.
    bool operator==(const CFluid& other) const;

    // Units

    /// Borrows a unit object of the caller's, who keeps it alive.
    void SetUnits(const Units* units);

    /// Sets the units on the current unit object, borrowed or not: temperature and pressure unit,
    /// the system (metric for °C and K, else US), absolute or gauge, and the atmosphere in `punit`,
    /// which is 0.0 in absolute mode whatever is passed.
    void SetUnits(HF_TUNITS tunit, HF_PUNITS punit, int bAbsolute, double atmPressure);

    /// Sets the system, which density follows (lb/ft³ or kg/m³); the user units stay.
    void SetEnglishOrMetric(HF_UNITS system);

    /// The user units of the unit object as it is now, and their texts.
    /// @{
    HF_TUNITS GetTunit() const;
    HF_PUNITS GetPunit() const;
    const char* GetTempUnits() const;
    const char* GetPresUnits() const;
    /// @}

    // The fluid and its set point

    /// Makes this the named fluid of a table directory at a set point in user units. Returns 1 if
    /// the table is missing or invalid, with set point and state as they were; else 0, and
    /// GetFluidState tells whether the fluid has a state there. The file is read only if the name
    /// differs from the present one or no table is loaded.
    int SetFluid(char* directory, const char* name, double temperature, double pressure);

    /// Makes this the named fluid as a liquid at a temperature in user units and pressure 0.0,
    /// where the liquid formulas hold; the saturation pressure isn't looked at. Reads the file each
    /// time. Returns 1 if the table is missing or invalid, with the state as it was; else 0.
    int SetFluid(char* directory, const char* name, double temperature);

    /// Makes this a fluid of given properties. `state` is FLUID_USER_LIQUID or FLUID_USER_VAPOR;
    /// anything but the first counts as vapor. Temperature, pressure (gauge unless absolute),
    /// `vaporPres` (absolute) and the critical values are in user units, density in lb/ft³ in the
    /// US system and else in kg/m³, viscosity in cP. The name is cut to 62 characters.
    ///
    /// A density or `sg` of 0.0 is not given and is computed from the other. A negative density of
    /// a vapor is computed by the ideal gas law whenever it is asked for. Nothing is refused; a
    /// vapor with neither density nor `sg` has a density from its molecular weight by the ideal gas
    /// law, 0.0 without one.
    void SetFluidProperties(const char* name, FLUIDSTATE state, double temperature, double pressure,
                            double density, double viscosity, double vaporPres, double spHeat,
                            double sg, double criticalPres, double criticalTemp,
                            double molecularWt);

    /// Sets the pressure (user unit) and makes the fluid a vapor: if it is none there, the pressure
    /// becomes MaxCompressiblePressure. The state is FLUID_VAPOR in any case, a user-defined vapor
    /// stays one. Whether the formulas hold there is for SetPointIsValid to say.
    void SetFluidVapor(double pressure);

    /// The name of the table or the one given; empty if there is no fluid. It belongs to this
    /// object.
    const char* GetFluidName() const;
    /// The state found when the set point was last set.
    FLUIDSTATE GetFluidState();

    /// Temperature of the set point, user unit.
    double GetTemperature() const;
    /// Pressure of the set point, user unit, gauge unless in absolute mode.
    double GetPressure() const;
    /// Absolute pressure of the set point, user unit.
    double GetAbsPressure() const;
    /// kg/kmol.
    double GetMolecularWt() const;
    /// User temperature unit of the time of loading.
    double GetCriticalTemp() const;
    /// Absolute, user pressure unit of the time of loading.
    double GetCriticalPres() const;

    /// Whether the state is FLUID_LIQUID or FLUID_USER_LIQUID.
    bool IsLiquid() const;
    /// Whether the state is FLUID_LIQUID or FLUID_VAPOR.
    bool IsTableFluid() const;

    /// Whether the fluid has sound properties at a point in user units, in the given state or in
    /// its own: 1 if the point is in the formulas' ranges and density, viscosity and vapor pressure
    /// (for a vapor: ratio of specific heats) come out above zero, else 0. Always 0 but for
    /// FLUID_LIQUID and FLUID_VAPOR.
    /// @{
    int SetPointIsValid(double temperature, double pressure, FLUIDSTATE state);
    int SetPointIsValid(double temperature, double pressure);
    /// @}

    /// Gives the unit object a new atmospheric pressure in the user pressure unit, unless the fluid
    /// has no name. The state is not looked at again. Always true.
    bool UpdateAtmPressure(double atmPressure);

    // Properties at the set point

    /// kg/m³.
    double GetDensity() const;
    /// lb/ft³ in the US system, else kg/m³; four significant digits. 0.0 for a user-defined vapor
    /// whose density is computed.
    double GetUDensity() const;
    /// lb/ft³ in either system.
    double GetDensityUS() const;
    /// To water of 997.2 kg/m³ for a liquid, three decimal places; to air of 28.9586 kg/kmol for a
    /// vapor, three significant digits.
    double GetSG() const;
    /// GetSG if `bSG` is not 0, else GetUDensity.
    double GetUDenSG(int bSG);
    /// GetSG if the user density unit is sg, else GetUDensity.
    double GetUDenSG();
    /// cP, four significant digits.
    double GetViscosity() const;
    /// cP at another temperature in kelvin, not rounded.
    double GetViscosity(double tempK) const;
    /// cSt, one decimal place below 10, none from 10 on.
    double CentistokesRounded() const;
    /// Ratio of specific heats of a vapor, four significant digits; 0.0 for a liquid.
    double GetSpHeat() const;
    /// The same at another temperature in kelvin, not rounded.
    double GetSpHeat(double tempK);
    /// kPa absolute. A vapor's is that of its liquid at the temperature; 0.0 for a user-defined
    /// vapor.
    double GetVaporPres() const;
    /// User pressure unit, absolute, four significant digits.
    double GetUVaporPres() const;
    /// The same as GetUVaporPres.
    double GetUVaporPresKTX();

    // The vapor as a real gas

    /// The equation of state: 0 none, 1 ideal gas, 2 Peng-Robinson, 3 Redlich-Kwong,
    /// 4 Soave-Redlich-Kwong.
    int EqnState();
    /// Whether the equation of state is that of the ideal gas.
    bool IsIdealGas() const;

    /// Makes the vapor an ideal gas for good.
    void SetIdealGas();
    /// Makes the vapor an ideal gas, or puts back the equation that the last SetIdealGas(true) put
    /// aside; without one it stays ideal.
    void SetIdealGas(bool on);

    /// The highest pressure at which the fluid counts as vapor at a temperature: 99% of the lower
    /// of saturation pressure and table limit, half the table limit above the critical temperature.
    /// User units, gauge unless in absolute mode.
    double MaxCompressiblePressure(double temperature);

    /// The compressibility factor at `tempK` (K) and `presKPa` (kPa absolute), the pressure held
    /// below 99% of saturation. 1.0 for a pressure of zero or less. What was computed last is kept
    /// for the whole process: pass `reset` on the first call for each fluid. From several threads
    /// at once no memory is harmed, but they disturb each other's results.
    double CalcZ(double tempK, double presKPa, bool reset) const;

    // Between user units and base units

    /// User temperature unit to kelvin.
    double KTemp(double temperature) const;
    /// User pressure unit to kPa absolute; the atmosphere is added unless `bAbsolute` is not 0.
    double kPaPres(double pressure, int bAbsolute) const;

    // Measures tagged with their units

    /// What the getter of the same name gives, in the user unit: GetVaporPresValue that of
    /// GetUVaporPres. The critical pressure is tagged with the user unit of now.
    /// @{
    UnitValue<HF_TEMPERATURE, 0> GetTemperatureValue() const;
    UnitValue<HF_PRESSURE, 0> GetPressureValue() const;
    UnitValue<HF_PRESSURE, 0> GetAbsPressureValue() const;
    UnitValue<HF_PRESSURE, 0> GetVaporPresValue() const;
    UnitValue<HF_PRESSURE, 0> GetCriticalPresValue() const;
    /// @}
    /// In lb/ft³ in the US system, else in kg/m³.
    UnitValue<HF_DENSITY, 0> GetDensityValue() const;
    /// In the user viscosity unit, with a copy of this fluid.
    UnitValue<HF_VISCOSITY, 0> GetViscosityValue() const;

  protected:
    /// Forgets the fluid: name, state, set point, constants and ranges. The formulas stay, and are
    /// not used without the ranges.
    void ClearFluid();

    /// Reads lines until one begins with D, P or V or the file ends. `line` has room for 260 bytes;
    /// `size` is not used.
    void ReadFluidRecords(TextFile* file, char* line, int size);

    /// Loads a table: 1 if the fluid is usable, 0 if the table is missing or invalid or its levels
    /// lie outside the limits (0.0: no limit). After a failure the numbers may be partly those of
    /// the file; slots behind the end of a short file are empty.
    /// @{
    int LoadFluidTable(const char* directory, const char* name, double highLimit, double lowLimit);
    int LoadFluidTable(const char* directory, const char* name);
    /// @}

    /// The state of this table fluid at a point in user units; FLUID_NONE between the saturation
    /// curves and outside the data.
    FLUIDSTATE FindFluidState(double temperature, double pressure);
    /// Whether there are formulas for FLUID_LIQUID or FLUID_VAPOR; no other state has any.
    bool FormulasExist(FLUIDSTATE state);
    /// The range test, in kelvin and kPa absolute: 1 or 0.
    int FormulasAreValid(FLUIDSTATE state, double tempK, double presKPa);
    /// Finds the state again after a change of the atmosphere; true if it stayed.
    bool CheckNewAtmPressure();

    /// Specific gravity of a density in the fluid's system. Fills in the molecular weight of a
    /// user-defined vapor that has none.
    double CalcSG(double density) const;
    /// Density, in the fluid's system, of a specific gravity.
    double CalcDen(double sg);

    /// Density in the fluid's system, lb/ft³ or kg/m³, to kg/m³.
    double kgDen(double density) const;
    /// Density in kg/m³ to the fluid's system, four significant digits.
    double UserDen(double densityKg) const;
    /// Kelvin to the user unit, four significant digits.
    double UserTemp(double tempK);
    /// kPa absolute to the user unit, four significant digits. A `bAbsolute` of 0 takes the
    /// atmosphere off, so that the result is a user pressure.
    double UserPres(double presKPa, int bAbsolute) const;

    char m_name[64];               ///< the table's name or the one given
    Units* m_pUnits;               ///< the unit object, owned or borrowed
    bool m_bOwnsUnits;             ///< whether it goes with this fluid
    FLUIDSTATE m_state;            ///< as of the last set point
    mutable double m_molecularWt;  ///< kg/kmol; CalcSG fills it in
    double m_criticalTemp;         ///< user unit of the time of loading
    double m_criticalPres;         ///< user unit of the time of loading, absolute
    double m_liquidMinTemp;        ///< K
    double m_liquidMaxTemp;        ///< K
    double m_vaporMinTemp;         ///< K
    double m_vaporMaxTemp;         ///< K
    double m_vaporMaxPres;         ///< kPa absolute
    CFormula m_formulas[7];        ///< by FORMULASLOT
    double m_temperature;          ///< user unit
    double m_pressure;             ///< user unit, gauge unless in absolute mode
    std::int32_t m_savedEqnState;  ///< the equation that SetIdealGas(true) put aside

  private:
    /// @cond
    /// A set point and the critical temperature in the units of the formulas.
    struct BasePoint {
        double tK;
        double pKPa;
        double tcK;
    };
    /// @endcond

    HYDROFACTS_HIDDEN void ReleaseUnits();
    HYDROFACTS_HIDDEN BasePoint ToBase(double temperature, double pressure) const;
    HYDROFACTS_HIDDEN double Evaluate(int slot, const BasePoint& point) const;
    HYDROFACTS_HIDDEN double EvaluateAtSetPoint(int slot) const;
    HYDROFACTS_HIDDEN double SaturationLimit(double tempK) const;
    HYDROFACTS_HIDDEN bool ReadTable(TextFile& file, double highLimit, double lowLimit);
    HYDROFACTS_HIDDEN bool ReadConstants(TextFile& file, char* line);
    HYDROFACTS_HIDDEN bool ReadFormulas(TextFile& file, char* line);
    HYDROFACTS_HIDDEN bool DropIncompleteSets();
};

#endif
