#include "tables/ReferenceData.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "hydrofacts/formula/Constants.h"
#include "tables/Csv.h"

namespace hydrofacts::tables {
namespace {

using FluidsByCas = std::map<std::string, FluidData, std::less<>>;

constexpr double kSamePoint = 0.1;  // K

// The columns of the check files that hold a property over temperature.
constexpr std::pair<Property, const char*> kSaturationColumns[] = {
    {Property::VaporPressure, "saturation_pressure_kPa"},
    {Property::LiquidDensity, "liquid_density_kg_m3"},
    {Property::LiquidViscosity, "liquid_viscosity_cP"},
};
constexpr std::pair<Property, const char*> kGasColumns[] = {
    {Property::GasViscosity, "dilute_gas_viscosity_cP"},
    {Property::GasHeatCapacity, "ideal_gas_cp_J_per_mol_K"},
};

constexpr std::pair<Property, const char*> kHandbookFiles[] = {
    {Property::VaporPressure, "vapor_pressure.csv"},
    {Property::LiquidDensity, "liquid_density.csv"},
    {Property::LiquidViscosity, "liquid_viscosity.csv"},
    {Property::GasViscosity, "gas_viscosity.csv"},
    {Property::GasHeatCapacity, "gas_heat_capacity.csv"},
};

double PositiveNumber(const CsvRow& row, std::string_view column) {
    const double value = row.Number(column);
    if (value <= 0.0) {
        row.Fail(column, "must be greater than 0");
    }
    return value;
}

int ReadEquation(const CsvRow& row) {
    const std::string& name = row.Text("equation_of_state");
    if (name.empty()) {
        return 0;
    }
    for (int equation = kIdealGas; equation <= kSoaveRedlichKwong; ++equation) {
        if (name == EquationName(equation)) {
            return equation;
        }
    }
    row.Fail("equation_of_state", "'" + name + "' is no equation that is known");
}

FluidOptions ReadOptions(const CsvRow& row) {
    FluidOptions options;
    options.name = row.NonEmptyText("name");
    // Longer names appear in no list of fluids.
    if (options.name.size() > 30) {
        row.Fail("name", "is longer than 30 characters");
    }
    // The tables are Windows-1252, the data UTF-8, and file systems disagree about the rest.
    const bool plain = std::all_of(options.name.begin(), options.name.end(), [](char c) {
        return c >= ' ' && c <= '~' && std::string_view("/\\:*?\"<>|").find(c) == std::string::npos;
    });
    if (!plain) {
        row.Fail("name", "holds a character that not every file name can");
    }
    options.cas = row.NonEmptyText("cas");
    options.densestAt = row.OptionalNumber("densest_at_K");
    options.liquidMin = row.OptionalNumber("liquid_min_K");
    options.liquidMax = row.OptionalNumber("liquid_max_K");
    options.vaporMin = row.OptionalNumber("vapor_min_K");
    options.vaporMax = row.OptionalNumber("vapor_max_K");
    options.vaporMaxPressure = row.OptionalNumber("vapor_max_kPa");
    options.equation = ReadEquation(row);
    return options;
}

FluidConstants ReadConstants(const CsvRow& row) {
    return {PositiveNumber(row, "molecular_weight_kg_per_kmol"),
            PositiveNumber(row, "critical_temperature_K"),
            PositiveNumber(row, "critical_pressure_kPa"),
            row.Number("acentric_factor"),
            row.OptionalNumber("triple_or_melting_temperature_K").value_or(0.0),
            row.NonEmptyText("source"),
            0.0,
            row.OptionalNumber("normal_boiling_point_K").value_or(0.0)};
}

int ReadForm(const CsvRow& row) {
    const double number = row.Number("equation_form");
    for (const int form : {100, 101, 102, 105, 107, 116}) {
        if (number == form) {
            return form;
        }
    }
    row.Fail("equation_form", "'" + row.Text("equation_form") + "' is no form that is known");
}

HandbookRow ReadHandbookRow(const CsvRow& row) {
    HandbookRow result;
    result.form = ReadForm(row);
    result.coefficients = {row.Number("A"), row.Number("B"), row.Number("C"), row.Number("D"),
                           row.Number("E")};
    result.minTemperature = PositiveNumber(row, "t_min_K");
    result.maxTemperature = PositiveNumber(row, "t_max_K");
    if (result.maxTemperature <= result.minTemperature) {
        row.Fail("t_max_K", "must be greater than t_min_K");
    }
    result.source = row.NonEmptyText("source");
    return result;
}

// Calls `use(fluid, row)` for each row of a fluid that ships; other rows are left alone.
template <class Use>
void ForRowsOf(FluidsByCas& fluids, const std::filesystem::path& file, Use use) {
    for (const CsvRow& row : ReadCsv(file)) {
        const auto fluid = fluids.find(row.NonEmptyText("cas"));
        if (fluid != fluids.end()) {
            use(fluid->second, row);
        }
    }
}

void AddWithheldRange(FluidData& fluid, const CsvRow& row) {
    for (const auto& [property, file] : kHandbookFiles) {
        if (row.Text("property") + ".csv" != file) {
            continue;
        }
        if (!fluid.handbook.contains(property)) {
            row.Fail("property", "has no published row for this fluid");
        }
        fluid.withheld[property] = {PositiveNumber(row, "from_K"), PositiveNumber(row, "to_K"),
                                    row.NonEmptyText("reason")};
        return;
    }
    row.Fail("property", "'" + row.Text("property") + "' is no property that is known");
}

void SortByTemperature(std::vector<Point>& points) {
    std::stable_sort(points.begin(), points.end(),
                     [](const Point& a, const Point& b) { return a.temperature < b.temperature; });
    const auto same = [](const Point& a, const Point& b) { return a.temperature == b.temperature; };
    points.erase(std::unique(points.begin(), points.end(), same), points.end());
}

void AddPoint(FluidData& fluid, const CsvRow& row, Property property, const char* column) {
    if (row.Text(column).empty()) {
        return;
    }
    CheckPoints& points = fluid.check[property];
    points.fit.push_back({PositiveNumber(row, "T_K"), PositiveNumber(row, column)});
    points.source = row.NonEmptyText("source");
}

void AddSaturationRow(FluidData& fluid, const CsvRow& row) {
    for (const auto& [property, column] : kSaturationColumns) {
        AddPoint(fluid, row, property, column);
    }
    for (const auto& [property, column] : kGasColumns) {
        AddPoint(fluid, row, property, column);
    }
    AddPoint(fluid, row, Property::DewPressure, "dew_pressure_kPa");
    // The vapor of a mixture is that of the dew pressure.
    const double pressure = row.OptionalNumber("dew_pressure_kPa")
                                .value_or(PositiveNumber(row, "saturation_pressure_kPa"));
    fluid.gasStates.push_back(
        {PositiveNumber(row, "T_K"), pressure, PositiveNumber(row, "vapor_density_kg_m3")});
}

void AddGasRow(FluidData& fluid, const CsvRow& row) {
    for (const auto& [property, column] : kGasColumns) {
        AddPoint(fluid, row, property, column);
    }
    fluid.gasStates.push_back({PositiveNumber(row, "T_K"), PositiveNumber(row, "P_kPa"),
                               PositiveNumber(row, "density_kg_m3")});
}

// Every second point judges the fit to the others; the ends go to the fit.
void Divide(CheckPoints& points) {
    SortByTemperature(points.fit);
    std::vector<Point> all = std::exchange(points.fit, {});
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool toFit = i % 2 == 0 || i + 1 == all.size();
        (toFit ? points.fit : points.judge).push_back(all[i]);
    }
}

// Where there is a finer grid of a property, the fit takes it whole and all other points judge.
void UseFineGrid(FluidData& fluid, const std::vector<CsvRow>& rows) {
    std::map<Property, std::vector<Point>> fine;
    for (const CsvRow& row : rows) {
        if (row.NonEmptyText("cas") != fluid.options.cas) {
            continue;
        }
        for (const auto& [property, column] : kSaturationColumns) {
            fine[property].push_back({PositiveNumber(row, "T_K"), PositiveNumber(row, column)});
        }
    }
    for (auto& [property, points] : fine) {
        CheckPoints& check = fluid.check[property];
        check.judge.insert(check.judge.end(), check.fit.begin(), check.fit.end());
        // A point of the grid, or one next to it, must not judge the fit to it.
        std::erase_if(check.judge, [&fitted = points](const Point& point) {
            return std::any_of(fitted.begin(), fitted.end(), [&](const Point& other) {
                return std::fabs(other.temperature - point.temperature) < kSamePoint;
            });
        });
        SortByTemperature(check.judge);
        SortByTemperature(points);
        check.fit = std::move(points);
    }
}

FluidsByCas ReadFluidList(const std::filesystem::path& folder, std::vector<std::string>& order) {
    FluidsByCas fluids;
    for (const CsvRow& row : ReadCsv(folder / "fluids.csv")) {
        FluidData fluid;
        fluid.options = ReadOptions(row);
        order.push_back(fluid.options.cas);
        for (const auto& [cas, other] : fluids) {
            if (other.options.name == fluid.options.name) {
                row.Fail("name", "stands twice");
            }
        }
        if (!fluids.emplace(fluid.options.cas, fluid).second) {
            row.Fail("cas", "stands twice");
        }
    }
    return fluids;
}

void ReadAllConstants(const std::filesystem::path& folder, FluidsByCas& fluids) {
    std::map<std::string, int> seen;
    ForRowsOf(fluids, folder / "constants.csv", [&seen](FluidData& fluid, const CsvRow& row) {
        if (++seen[fluid.options.cas] > 1) {
            row.Fail("cas", "stands twice");
        }
        fluid.constants = ReadConstants(row);
        fluid.constants.densestAt = fluid.options.densestAt.value_or(0.0);
    });
    for (const auto& [cas, fluid] : fluids) {
        if (!seen.contains(cas)) {
            throw InputError((folder / "constants.csv").generic_string() + ": field cas: has no " +
                             cas + ", which fluids.csv lists as " + fluid.options.name);
        }
    }
}

}  // namespace

const char* EquationName(int equation) {
    switch (equation) {
        case kPengRobinson:
            return "Peng-Robinson";
        case kRedlichKwong:
            return "Redlich-Kwong";
        case kSoaveRedlichKwong:
            return "Soave-Redlich-Kwong";
        default:
            return "ideal gas";
    }
}

std::vector<FluidData> ReadReferenceData(const std::filesystem::path& folder) {
    std::vector<std::string> order;
    FluidsByCas fluids = ReadFluidList(folder, order);
    ReadAllConstants(folder, fluids);
    for (const auto& [property, file] : kHandbookFiles) {
        ForRowsOf(fluids, folder / file, [p = property](FluidData& fluid, const CsvRow& row) {
            fluid.handbook[p].push_back(ReadHandbookRow(row));
        });
    }
    ForRowsOf(fluids, folder / "withheld.csv", AddWithheldRange);
    ForRowsOf(fluids, folder / "check_saturation.csv", AddSaturationRow);
    ForRowsOf(fluids, folder / "check_gas.csv", AddGasRow);
    const std::vector<CsvRow> fine = ReadCsv(folder / "check_water_fine.csv");

    std::vector<FluidData> result;
    for (const std::string& cas : order) {
        FluidData& fluid = fluids.at(cas);
        for (auto& [property, points] : fluid.check) {
            Divide(points);
        }
        UseFineGrid(fluid, fine);
        result.push_back(std::move(fluid));
    }
    return result;
}

}  // namespace hydrofacts::tables
