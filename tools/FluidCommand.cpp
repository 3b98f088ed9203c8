#include <fmt/core.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Encoding.h"
#include "tools/Failure.h"
#include "tools/FluidAtSetPoint.h"
#include "tools/Measures.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Program.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(With --json: density in kg/m³, viscosity in cP, vapor_pressure in kPa absolute, molecular_weight in
kg/kmol; the others in the units that "units" tells, user_vapor_pressure and critical_pressure
absolute. equation_of_state: 0 none, 1 ideal gas, 2 Peng-Robinson, 3 Redlich-Kwong, 4
Soave-Redlich-Kwong. What a fluid doesn't have is 0; in the state "none" that is every property.

Examples:
  hydrofacts fluid Water -t 20 -p 1 --units metric
  hydrofacts fluid Air -t 70 -p 100
  hydrofacts fluid "Carbon dioxide" -t -20 -p 30 --units metric --absolute
  hydrofacts fluid Propane -t 300 -p 2000 --temperature-unit K --pressure-unit kPa --json
  hydrofacts fluid Methane -t 15 -p 4 --units metric --atmosphere 0.85)";

const char* StateName(FLUIDSTATE state) {
    switch (state) {
        case FLUID_LIQUID:
            return "liquid";
        case FLUID_VAPOR:
            return "vapor";
        default:
            return "none";
    }
}

std::string DensityUnit(const Units& units) { return UnitText(HF_DENSITY, units.bUS() ? 0 : 1); }

nlohmann::ordered_json ToJson(const std::string& name, const SetPoint& point, TableFluid& fluid) {
    const std::string temperature = point.TemperatureUnit();
    const std::string pressure = point.PressureUnit();
    const std::string kgPerM3 = UnitText(HF_DENSITY, 1);
    return {
        {"name", name},
        {"state", StateName(fluid.GetFluidState())},
        {"temperature", fluid.GetTemperature()},
        {"pressure", fluid.GetPressure()},
        {"density", fluid.GetDensity()},
        {"user_density", fluid.GetUDensity()},
        {"specific_gravity", fluid.GetSG()},
        {"viscosity", fluid.GetViscosity()},
        {"vapor_pressure", fluid.GetVaporPres()},
        {"user_vapor_pressure", fluid.GetUVaporPres()},
        {"specific_heat_ratio", fluid.GetSpHeat()},
        {"molecular_weight", fluid.GetMolecularWt()},
        {"critical_temperature", fluid.GetCriticalTemp()},
        {"critical_pressure", fluid.GetCriticalPres()},
        {"equation_of_state", fluid.EqnState()},
        {"units",
         {{"temperature", temperature},
          {"pressure", pressure},
          {"density", kgPerM3},
          {"user_density", DensityUnit(point.UserUnits())},
          {"viscosity", UnitText(HF_VISCOSITY, 0)},
          {"vapor_pressure", UnitText(HF_PRESSURE, HF_KPA)},
          {"user_vapor_pressure", pressure},
          {"molecular_weight", "kg/kmol"},
          {"critical_temperature", temperature},
          {"critical_pressure", pressure}}},
    };
}

std::string Headline(const std::string& name, const SetPoint& point, TableFluid& fluid) {
    if (fluid.GetFluidState() == FLUID_NONE) {
        return fmt::format("{} has no state at {}\n\n", name, point.Text());
    }
    return fmt::format("{} is a {} at {}: {} {}, {} cP\n\n", name, StateName(fluid.GetFluidState()),
                       point.Text(), SignificantNumber(fluid.GetUDensity(), 3),
                       DensityUnit(point.UserUnits()), SignificantNumber(fluid.GetViscosity(), 3));
}

void AddProperties(Rows& rows, const SetPoint& point, TableFluid& fluid) {
    const Units& units = point.UserUnits();
    const bool liquid = fluid.GetFluidState() == FLUID_LIQUID;
    const double centistokes = units.Convert(HF_VISCOSITY, fluid.GetViscosity(), 0, 1, &fluid);
    const auto add = [&](const char* what, const std::string& value) {
        rows.push_back({what, value});
    };
    add("Density",
        fmt::format("{} {}", SignificantNumber(fluid.GetUDensity()), DensityUnit(units)));
    add("Specific gravity",
        liquid ? fmt::format("{:.3f} (water of 997.2 kg/m\u00B3 = 1)", fluid.GetSG())
               : fmt::format("{} (air = 1, by molecular weight)",
                             SignificantNumber(fluid.GetSG(), 3)));
    add("Viscosity", SignificantNumber(fluid.GetViscosity()) + " cP");
    add("Kinematic viscosity", SignificantNumber(centistokes) + " cSt");
    add("Vapor pressure",
        fluid.HasVaporPressure()
            ? fmt::format("{} {}", SignificantNumber(fluid.GetUVaporPres()), AbsoluteUnit(units))
            : "none, above the critical temperature");
    if (liquid) return;
    add("Ratio of specific heats", SignificantNumber(fluid.GetSpHeat()));
    add("Compressibility factor", SignificantNumber(fluid.Compressibility()));
}

void AddConstants(Rows& rows, const SetPoint& point, TableFluid& fluid) {
    rows.push_back({"Molecular weight", ShortNumber(fluid.GetMolecularWt()) + " kg/kmol"});
    rows.push_back({"Critical point",
                    fmt::format("{} {}, {} {}", SignificantNumber(fluid.GetCriticalTemp()),
                                point.TemperatureUnit(), SignificantNumber(fluid.GetCriticalPres()),
                                AbsoluteUnit(point.UserUnits()))});
    rows.push_back({"Equation of state", EquationName(fluid.EqnState())});
    if (fluid.HasLiquid()) rows.push_back({"Liquid formulas", fluid.LiquidRange()});
    if (fluid.HasVapor()) rows.push_back({"Vapor formulas", fluid.VaporRange()});
}

void AddTable(Rows& rows, const TableName& table) {
    rows.push_back({"Table", TitleText(ReadTableHead(table))});
}

void ShowFluid(const Options& options, const std::string& name, const SetPointOptions& setPoint) {
    const SetPoint point(setPoint);
    const TableDirectory directory(options.tables, kFluidTables);
    const TableName table = directory.Require(name);
    TableFluid fluid(point.UserUnits());
    LoadAtSetPoint(fluid, directory, table, point);
    const bool hasState = fluid.GetFluidState() != FLUID_NONE;
    if (options.json) {
        PrintJson(ToJson(table.name, point, fluid));
    } else {
        Print(Headline(table.name, point, fluid));
        Rows rows = {{"Temperature", point.TemperatureText()}, {"Pressure", point.PressureText()}};
        if (hasState) AddProperties(rows, point, fluid);
        AddConstants(rows, point, fluid);
        AddTable(rows, table);
        PrintRows(rows);
    }
    RequireState(fluid, table);
}

struct FluidOptions {
    std::string name;
    SetPointOptions setPoint;
};

}  // namespace

void AddFluidCommand(Command& program, Options& options) {
    const auto own = std::make_shared<FluidOptions>();
    Command command = program.AddCommand("fluid", "Show a fluid's properties at a set point");
    command.AddWord("NAME", own->name, "The fluid, in any case").Require();
    AddSetPointOptions(command, own->setPoint, true);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, own] { ShowFluid(options, own->name, own->setPoint); });
}

}  // namespace hydrofacts::command
