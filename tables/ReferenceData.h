#ifndef HYDROFACTS_TABLES_REFERENCEDATA_H
#define HYDROFACTS_TABLES_REFERENCEDATA_H

#include <array>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace hydrofacts::tables {

/// The properties that are chosen or fitted. The vapor density is an equation of state, not a fit.
enum class Property {
    VaporPressure,    ///< kPa; of a mixture the bubble pressure
    DewPressure,      ///< kPa; mixtures only
    LiquidDensity,    ///< kg/m3
    LiquidViscosity,  ///< cP
    GasViscosity,     ///< cP, low density
    GasHeatCapacity,  ///< J/(mol K), ideal gas at constant pressure
};

/// A point of check data: temperature in kelvin, value in the unit of its property.
struct Point {
    double temperature;
    double value;
};

/// A gas state of the check data, in K, kPa and kg/m3.
struct GasState {
    double temperature;
    double pressure;
    double density;
};

/// A published correlation, in the form and units in which it was published (fluids/README.md).
struct HandbookRow {
    int form;
    std::array<double, 5> coefficients;
    double minTemperature;
    double maxTemperature;
    std::string source;
};

/// What fluids.csv asks for. An absent limit is worked out from the data.
struct FluidOptions {
    std::string name;
    std::string cas;
    std::optional<double> densestAt;                             ///< K
    std::optional<double> liquidMin, liquidMax;                  ///< K
    std::optional<double> vaporMin, vaporMax, vaporMaxPressure;  ///< K, K, kPa
    int equation = 0;  ///< Of state, to take in place of the usual one; 0: none is asked for.
};

struct FluidConstants {
    double molecularWeight;      ///< kg/kmol
    double criticalTemperature;  ///< K
    double criticalPressure;     ///< kPa
    double acentricFactor;
    double meltingTemperature;  ///< K, or the triple point. 0: not known
    std::string source;
    double densestAt =
        0.0;  ///< K; below it the liquid expands when it is cooled. 0: no such thing.
    double boilingTemperature = 0.0;  ///< K, at one atmosphere. 0: not known
};

/// A range of temperatures in which a published row must not be used.
struct WithheldRange {
    double minTemperature;  ///< K
    double maxTemperature;  ///< K
    std::string reason;
};

/// Check points of one property: a fit uses the first list and is judged by the second.
struct CheckPoints {
    std::vector<Point> fit;
    std::vector<Point> judge;
    std::string source;
};

/// All that is known of one fluid, points in the order of their temperatures.
struct FluidData {
    FluidOptions options;
    FluidConstants constants;
    std::map<Property, std::vector<HandbookRow>> handbook;
    std::map<Property, WithheldRange> withheld;
    std::map<Property, CheckPoints> check;
    std::vector<GasState> gasStates;
};

/// The name of an equation of state, by its type in a table.
const char* EquationName(int equation);

/// Reads the folder of CSV files. Throws InputError.
std::vector<FluidData> ReadReferenceData(const std::filesystem::path& folder);

}  // namespace hydrofacts::tables

#endif
