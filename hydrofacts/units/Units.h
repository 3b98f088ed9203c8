#ifndef HYDROFACTS_UNITS_UNITS_H
#define HYDROFACTS_UNITS_UNITS_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "hydrofacts/units/UnitTypes.h"
#include "quillbase/CAtmPressure.h"
#include "win32/Win32.h"

class CFluid;
namespace hydrofacts {
class BaseUnits;
}

/// The units a user works in: a unit system, one user unit for each of the twelve measures,
/// absolute or gauge pressure, and the atmospheric pressure between the two. Also the catalogs of
/// all units and the conversion between any two units of a measure.
///
///     Units units(HF_METRIC);
///     double psi = units.Convert(HF_PRESSURE, 1.0, HF_BAR, HF_PSI, nullptr);
///
/// The catalogs are shared by the whole process. Conversion only reads, and any number of threads
/// may convert at once; SetCustomUnit and changes to one object are to be made while nobody
/// converts.
class HYDROFACTS_API Units : public CAtmPressure {
  public:
    /// One row of a catalog. The rows stand in the order in which lists show them.
    struct t_unit {
        std::int32_t id;  ///< the number that callers store; not the row's place
        char text[16];    ///< display text, Windows-1252
        double factor;    ///< its meaning depends on the catalog
        bool mass_based;  ///< true only in a custom flow unit: `factor` is kg/hr
    };

    /// Starts with the default units of the system, absolute pressures, the standard atmosphere.
    Units(HF_UNITS system = HF_US);

    /// Takes over user units, absolute flag and system, but not the atmosphere: the new object has
    /// the standard one.
    Units(const Units& other);

    /// Takes over everything, the atmosphere included.
    Units& operator=(const Units& other);

    ~Units();

    /// Sets the unit system; with `setDefaults` also all twelve user units, to those of HF_US for
    /// HF_US and to those of HF_METRIC for anything else.
    void SetSystem(HF_UNITS system, bool setDefaults);
    /// Whether the system is HF_US.
    bool bUS() const;
    /// Whether the system is HF_METRIC; a system that is neither is none of the two.
    bool bMetric() const;

    /// The object with which every UnitValue converts; a change made through it is seen by all.
    static Units* defaultUnits();

    /// The id of the user unit of a measure. The measure must be one of the twelve.
    int GetUserUnit(HF_UNIT_TYPES type) const;

    /// Sets the user unit of a measure and returns the former one. Neither argument is checked.
    int SetUserUnit(HF_UNIT_TYPES type, int id);

    /// Whether pressures in user units are absolute (true, as in a new object) or gauge.
    /// @{
    void SetAbsolute(bool absolute);
    bool GetAbsolute() const;
    /// @}

    /// Reads the atmospheric pressure from an ini file of the host; if that fails it stays.
    void InitAtmosphere(char* file);

    /// Writes the atmospheric pressure, in the user pressure unit, to an ini file of the host.
    void SaveAtmosphere(char* file);

    /// Sets the atmospheric pressure, absolute, in a unit that may be HF_USER_UNIT. A head of
    /// liquid has no pressure without a fluid and is taken as psi.
    void SetAtmosphere(double value, HF_PUNITS unit);

    /// What has to be added to a pressure in user units to make it absolute, in a unit that may be
    /// HF_USER_UNIT: 0.0 in absolute mode, unless `force` asks for the pressure itself.
    double GetAtmosphere(HF_PUNITS unit, bool force) const;

    /// Gives the row OTHER of a catalog a factor and a text (cut to 15 characters), for every
    /// object of the process. `type` is one of HF_FLOW (factor: US gpm, or kg/hr if `mass_based`),
    /// HF_DENSITY (kg/m³), HF_VELOCITY (m/s), HF_POWER (kW), HF_LENGTH (m); any other does nothing.
    void SetCustomUnit(HF_UNIT_TYPES type, double factor, const char* text, bool mass_based);

    /// Shows a value, given in unit `from`, in a control in the user unit, rounded for display; a
    /// zero empties the control.
    void SetDlgItemDoubleUF(HWND dialog, int control, double value, HF_UNIT_TYPES type, int from,
                            CFluid* fluid);

    /// The id of the first unit of a measure with that text, without regard to the case of ASCII
    /// letters; -1 if there is none or the measure doesn't exist.
    static int GetUnit(const char* text, HF_UNIT_TYPES type);

    /// The text of a unit; null if the measure has no such unit or doesn't exist.
    static const char* GetString(HF_UNIT_TYPES type, int id);

    /// The text of the user unit of a measure.
    const char* GetString(HF_UNIT_TYPES type) const;

    /// Adds a unit's text to a combo box, with the id as the item's data.
    void AddItemToComboList(HWND dialog, unsigned control, HF_UNIT_TYPES type, int id);

    /// Converts a value; `from` and `to` are ids of the measure or HF_USER_UNIT. An id of no unit
    /// is taken as the catalog's first row (a flow of no unit is 0.0), a measure that doesn't exist
    /// gives the value back. The absolute flag and the atmosphere play no part: a gauge pressure
    /// stays gauge.
    ///
    /// `fluid` may be null where no density is needed. Without a fluid a head and a pressure
    /// convert to 0.0, cSt to 0.0, cP to infinity, a mass flow to infinity and a volume flow to a
    /// mass flow of 0.0; standard volume and any other class of flow to 0.0. A flow of zero is 0.0
    /// in every unit. A custom unit without a factor gives 0.0 as `from` and infinity as `to`.
    double Convert(HF_UNIT_TYPES type, double value, int from, int to, const CFluid* fluid) const;

    /// Converts to the user unit.
    double Convert(HF_UNIT_TYPES type, double value, int from, const CFluid* fluid) const;

    /// Converts between two units given by their texts, without a fluid; a text of no unit gives
    /// the value back unchanged.
    double Convert(HF_UNIT_TYPES type, double value, char* from, char* to) const;

  private:
    friend class hydrofacts::BaseUnits;

    HYDROFACTS_HIDDEN static t_unit* GetTUnitArray(HF_UNIT_TYPES type, int& count);
    HYDROFACTS_HIDDEN static t_unit GetTUnit(HF_UNIT_TYPES type, int id);
    HYDROFACTS_HIDDEN double ConvertPressureOrHead(double value, int from, int to,
                                                   const CFluid* fluid) const;
    HYDROFACTS_HIDDEN static double CrossHeadAndPressure(double value, int from, int to,
                                                         const CFluid* fluid);
    HYDROFACTS_HIDDEN static double ConvertViscosity(double value, int from, int to,
                                                     const CFluid* fluid);
    HYDROFACTS_HIDDEN static double Convert_Flow(double value, HF_FLOW_UNITS from, HF_FLOW_UNITS to,
                                                 const CFluid* fluid);
    HYDROFACTS_HIDDEN static double ConvertFlowByDensity(double value, HF_FLOW_UNITS from,
                                                         HF_FLOW_UNITS to, const CFluid* fluid);

    HYDROFACTS_HIDDEN static std::array<t_unit, 4> Temperature;
    HYDROFACTS_HIDDEN static std::array<t_unit, 14> Pressure;
    HYDROFACTS_HIDDEN static std::array<t_unit, 26> Flow;
    HYDROFACTS_HIDDEN static std::array<t_unit, 4> Density;
    HYDROFACTS_HIDDEN static std::array<t_unit, 2> Viscosity;
    HYDROFACTS_HIDDEN static std::array<t_unit, 3> Velocity;
    HYDROFACTS_HIDDEN static std::array<t_unit, 3> Power;
    HYDROFACTS_HIDDEN static std::array<t_unit, 9> Length;
    HYDROFACTS_HIDDEN static std::array<t_unit, 5> Area;
    HYDROFACTS_HIDDEN static std::array<t_unit, 2> ThrustPerLength;
    HYDROFACTS_HIDDEN static Units basic_units;

    static constexpr int kMeasures = 12;

    /// What two units of a measure convert by.
    enum class Basis : unsigned char {
        kRatio,     ///< their factors alone; a row's place is its id
        kPressure,  ///< pascals, or the density of the liquid for a head
        kOther,     ///< a rule of the measure's own
    };

    /// A measure's rows, and where the row of an id stands if not at the id's own place.
    struct Catalog {
        t_unit* rows;
        const unsigned char* rowOfId;
        std::uint32_t count;
        Basis basis;
    };
    HYDROFACTS_HIDDEN static const Catalog kCatalogs[kMeasures];

    /// The row of an id, or the first row. The measure must be one of the twelve.
    HYDROFACTS_HIDDEN static const t_unit& FindRow(HF_UNIT_TYPES type, int id) {
        const Catalog& catalog = kCatalogs[type];
        const auto index = static_cast<std::uint32_t>(id);
        if (index >= catalog.count) return catalog.rows[0];
        return catalog.rows[catalog.rowOfId == nullptr ? index : catalog.rowOfId[index]];
    }

    bool m_absolute;
    std::array<int, kMeasures> m_userUnits;
    HF_UNITS m_system;
};

#endif
