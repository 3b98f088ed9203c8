#include <fmt/core.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Measures.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Platform.h"
#include "tools/Program.h"
#include "tools/TableFluid.h"
#include "tools/table/FluidTableText.h"
#include "tools/table/FormulaText.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(Each formula stands there with its coefficients, in the units of the table whatever --units says: T
in K, pressures in kPa absolute. Below it are the table's remarks on it, which in the installed
tables say where it comes from and how far it is off. What a pipe or valve table holds is shown by
`hydrofacts pipe` and `hydrofacts valve`.

With --json: "formulas" has one object for each of P1 to P7, whose "type" is 0 where there is no
formula; "coefficients" are those of "equation".

Examples:
  hydrofacts table Water --units metric
  hydrofacts table R-134a --temperature-unit K --pressure-unit kPa
  hydrofacts table "My acetone" --tables . --json)";

constexpr std::size_t kIndent = 4;
constexpr int kLimitDigits = 7;
constexpr FORMULASLOT kSlots[] = {
    SLOT_LIQUID_SAT_PRES, SLOT_VAPOR_SAT_PRES,  SLOT_LIQUID_DENSITY, SLOT_LIQUID_VISCOSITY,
    SLOT_VAPOR_DENSITY,   SLOT_VAPOR_VISCOSITY, SLOT_VAPOR_SPHEAT,
};

using Json = nlohmann::ordered_json;

/// A fluid table that was asked for.
struct ShownTable {
    ShownTable(const Options& options, const std::string& name, const UnitOptions& unitOptions)
        : fluid(units) {
        SetUserUnits(units, unitOptions);
        units.SetAbsolute(true);
        const TableDirectory directory(options.tables, kFluidTables);
        table = directory.Require(name);
        if (!fluid.Load(directory, table)) throw directory.NotUsable(table);
        head = ReadTableHead(table);
        text = ReadFluidTableText(table);
    }
    ShownTable(const ShownTable&) = delete;
    ShownTable& operator=(const ShownTable&) = delete;

    double Temperature(double kelvin) const {
        return units.Convert(HF_TEMPERATURE, kelvin, HF_KELVIN, nullptr);
    }
    double Pressure(double kPa) const { return units.Convert(HF_PRESSURE, kPa, HF_KPA, nullptr); }

    Units units;
    TableFluid fluid;
    TableName table;
    TableHead head;
    FluidTableText text;
};

std::string CriticalPoint(const ShownTable& shown) {
    return fmt::format("{} {}, {} {}",
                       ShortNumber(shown.Temperature(shown.text.criticalTemp), kLimitDigits),
                       UnitText(HF_TEMPERATURE, shown.units.GetUserUnit(HF_TEMPERATURE)),
                       ShortNumber(shown.Pressure(shown.text.criticalPres), kLimitDigits),
                       AbsoluteUnit(shown.units));
}

void PrintConstants(ShownTable& shown) {
    TableFluid& fluid = shown.fluid;
    Rows rows = {
        {"Levels", LevelsText(shown.head)},
        {"Molecular weight M", ShortNumber(shown.text.molecularWt) + " kg/kmol"},
        {"Critical point", CriticalPoint(shown)},
        {"Equation of state", EquationName(fluid.EqnState())},
        {"Liquid formulas", fluid.HasLiquid() ? fluid.LiquidRange() : "none"},
        {"Vapor formulas", fluid.HasVapor() ? fluid.VaporRange() : "none"},
    };
    Print(fmt::format("{}: {}\n\n", shown.table.name, TitleText(shown.head)));
    PrintRows(rows);
}

void PrintRemarks(const Remarks& remarks, std::size_t indent) {
    for (const std::string& remark : remarks) Print(Wrapped(remark, indent));
}

std::string FormulaText(const ShownTable& shown, FORMULASLOT slot) {
    const CFormula& formula = shown.fluid.Formula(slot);
    if (formula.m_type == 0) {
        if (shown.text.filled[slot]) return "left out: the formulas of its phase are not complete";
        return slot == SLOT_VAPOR_SAT_PRES ? "none: the saturation pressure is the vapor's too"
                                           : "none";
    }
    const std::string text = WrittenOut(formula);
    return text.empty()
               ? fmt::format("type {}, which does not exist: the result is 0", formula.m_type)
               : text;
}

void PrintFormula(const ShownTable& shown, FORMULASLOT slot) {
    const SlotName& name = NameOf(slot);
    // A formula stays in one line, for taking it over.
    Print(fmt::format("\n{}  {}, {}\n{:{}}{}\n", name.record, name.property, name.unit, "", kIndent,
                      FormulaText(shown, slot)));
    PrintRemarks(shown.text.formulas[slot], kIndent);
}

void PrintTable(ShownTable& shown) {
    PrintConstants(shown);
    if (!shown.text.constants.empty()) Print("\n");
    PrintRemarks(shown.text.constants, 0);
    for (const FORMULASLOT slot : kSlots) PrintFormula(shown, slot);
    if (!shown.text.end.empty()) Print("\n");
    PrintRemarks(shown.text.end, 0);
    Print(fmt::format(
        "\nT in K, p in kPa absolute, Tc = {} K, R = 8.3144 kJ/(kmol K), ln natural, log common "
        "logarithm.\nThe ratio of specific heats is Cp / (Cp - R), Cp from P7.\n",
        ShortNumber(shown.text.criticalTemp)));
}

Json FormulaToJson(const ShownTable& shown, FORMULASLOT slot) {
    const CFormula& formula = shown.fluid.Formula(slot);
    const SlotName& name = NameOf(slot);
    auto coefficients = Json::array();
    // Of an equation of state all but the acentric factor is worked out by the library.
    const std::size_t count = formula.m_type == 0 ? 0 : slot == SLOT_VAPOR_DENSITY ? 1 : 5;
    for (std::size_t i = 0; i < count; ++i) coefficients.push_back(formula.m_coefficients[i]);
    return {{"record", name.record},
            {"property", name.property},
            {"unit", name.unit},
            {"type", formula.m_type},
            {"equation", EquationForm(formula)},
            {"coefficients", coefficients},
            {"text", WrittenOut(formula)},
            {"remarks", shown.text.formulas[slot]}};
}

Json RangeToJson(const ShownTable& shown, const TemperatureRange& range) {
    return {{"lowest_temperature", shown.Temperature(range.lowest)},
            {"highest_temperature", shown.Temperature(range.highest)}};
}

Json ToJson(ShownTable& shown) {
    TableFluid& fluid = shown.fluid;
    auto formulas = Json::array();
    for (const FORMULASLOT slot : kSlots) formulas.push_back(FormulaToJson(shown, slot));
    const auto level = [](const std::optional<double>& value) {
        return value ? Json(*value) : Json();
    };
    Json json = {
        {"name", shown.table.name},
        {"file", Utf8FromPath(shown.table.file)},
        {"title", shown.head.title},
        {"version", shown.head.version},
        {"low_level", level(shown.head.lowLevel)},
        {"high_level", level(shown.head.highLevel)},
        {"molecular_weight", shown.text.molecularWt},
        {"critical_temperature", shown.Temperature(shown.text.criticalTemp)},
        {"critical_pressure", shown.Pressure(shown.text.criticalPres)},
        {"equation_of_state", fluid.EqnState()},
        {"liquid", fluid.HasLiquid() ? RangeToJson(shown, fluid.LiquidTemperatures()) : Json()},
        {"vapor", fluid.HasVapor() ? RangeToJson(shown, fluid.VaporTemperatures()) : Json()},
        {"formulas", formulas},
        {"remarks", shown.text.constants},
        {"units",
         {{"molecular_weight", "kg/kmol"},
          {"temperature", UnitText(HF_TEMPERATURE, shown.units.GetUserUnit(HF_TEMPERATURE))},
          {"pressure", UnitText(HF_PRESSURE, shown.units.GetUserUnit(HF_PRESSURE))}}},
    };
    if (fluid.HasVapor()) {
        json["vapor"]["highest_pressure"] = shown.Pressure(fluid.HighestVaporPressure());
    }
    for (const std::string& remark : shown.text.end) json["remarks"].push_back(remark);
    return json;
}

}  // namespace

void AddTableCommand(Command& program, Options& options) {
    struct Arguments {
        std::string name;
        UnitOptions units;
    };
    const auto arguments = std::make_shared<Arguments>();
    Command command =
        program.AddCommand("table", "Show what a fluid table holds: ranges, formulas, sources");
    command.AddWord("NAME", arguments->name, "The fluid, in any case").Require();
    AddUnitOptions(command, arguments->units);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, arguments] {
        ShownTable shown(options, arguments->name, arguments->units);
        if (options.json) {
            PrintJson(ToJson(shown));
        } else {
            PrintTable(shown);
        }
    });
}

}  // namespace hydrofacts::command
