#include <fmt/core.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <set>

#include "tools/Failure.h"
#include "tools/Lengths.h"
#include "tools/Names.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Program.h"
#include "tools/TableValves.h"
#include "tools/ValveMethods.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(The types are Fitting, Bend, Valve, Check Valve and Other; without one all are shown. The limits of
what goes by nominal size are in inches or, with --units metric, in mm (DN); above the last size of
the source nothing is known. Fixed K, Fixed Cv and Fixed Kv stand in every table, for figures of the
user's.

Head loss is K v²/2g. Re is the Reynolds number, fT the friction factor of fully turbulent flow in
clean steel pipe, β the ratio of the diameters of a cone, θ its full angle.

Examples:
  hydrofacts valve Standard
  hydrofacts valve Standard "Check Valve" --units metric
  hydrofacts valve Three-K Bend --json)";

constexpr std::size_t kLineWidth = 64;
constexpr int kFirstOfTheUsers = 20;
constexpr int kLastOfTheUsers = 22;

using Json = nlohmann::ordered_json;

struct ValveOptions {
    std::string table;
    std::string type;
    std::string units;
};

Json RowsToJson(const Device& device) {
    auto rows = Json::array();
    for (const ValveRow& row : device.rows) {
        rows.push_back({{"limit", row.limit ? Json(*row.limit) : Json()}, {"value", row.value}});
    }
    return rows;
}

Json ToJson(const Device& device) {
    const ValveMethod* const method = FindValveMethod(device.formula);
    Json json = {
        {"name", device.name},
        {"device_type", device_type_names[device.type]},
        {"formula", device.formula},
        {"method", method != nullptr ? Json(method->name) : Json()},
        {"meaning", method != nullptr ? Json(method->meaning) : Json()},
        {"image", device.image},
        {"data", device.data},
    };
    if (!device.rows.empty()) {
        json["rows"] = RowsToJson(device);
    } else if (method != nullptr) {
        json["numbers"] = Json::object();
        for (std::size_t i = 0; i < device.data.size() && method->numbers[i] != nullptr; ++i) {
            json["numbers"][method->numbers[i]] = device.data[i];
        }
    }
    return json;
}

// Texts in lines that fit a screen beside the device's name.
std::vector<std::string> Wrapped(const std::vector<std::string>& texts) {
    std::vector<std::string> lines(1);
    for (const std::string& text : texts) {
        if (!lines.back().empty() && lines.back().size() + text.size() > kLineWidth) {
            lines.back() += ',';
            lines.emplace_back();
        }
        if (!lines.back().empty()) lines.back() += ", ";
        lines.back() += text;
    }
    return lines;
}

std::vector<std::string> RowTexts(const Device& device, const std::string& unit) {
    std::vector<std::string> texts;
    for (const ValveRow& row : device.rows) {
        const std::string limit =
            row.limit ? fmt::format("{} {}", ShortNumber(*row.limit), unit) : "and above";
        texts.push_back(fmt::format("{}: {}", limit, ShortNumber(row.value)));
    }
    if (texts.size() == 1) return {"every size: " + ShortNumber(device.rows.front().value)};
    texts.front().insert(0, "up to ");
    return texts;
}

std::vector<std::string> NumberTexts(const Device& device) {
    std::vector<std::string> texts;
    const ValveMethod* const method = FindValveMethod(device.formula);
    // The library's own records for the user's figures have none yet.
    const bool fromUser = device.formula >= kFirstOfTheUsers && device.formula <= kLastOfTheUsers;
    if (fromUser && device.data[0] == 0.0) return {""};
    for (std::size_t i = 0; i < device.data.size(); ++i) {
        if (method == nullptr) {
            texts.push_back(ShortNumber(device.data[i]));
        } else if (method->numbers[i] != nullptr) {
            texts.push_back(fmt::format("{} {}", method->numbers[i], ShortNumber(device.data[i])));
        }
    }
    return texts;
}

void AddDevice(Rows& rows, const Device& device, const std::string& unit) {
    const ValveMethod* const method = FindValveMethod(device.formula);
    const std::string formula = fmt::format("{:2}  {}", device.formula,
                                            method != nullptr ? method->name : "not known here");
    const auto texts = device.rows.empty() ? NumberTexts(device) : RowTexts(device, unit);
    std::vector<std::string> first = {device.name, formula};
    for (const std::string& line : Wrapped(texts)) {
        rows.push_back(first);
        rows.back().push_back(line);
        first = {"", ""};
    }
}

void PrintMeanings(const std::set<int>& formulas) {
    Rows rows;
    for (const int formula : formulas) {
        const ValveMethod* const method = FindValveMethod(formula);
        if (method != nullptr) rows.push_back({fmt::format("{:2}", formula), method->meaning});
    }
    if (!rows.empty()) Print("\n");
    PrintRows(rows);
}

void PrintDevices(const std::vector<Device>& devices, const std::string& unit) {
    Rows rows;
    std::set<int> formulas;
    const Device* last = nullptr;
    for (const Device& device : devices) {
        if (last == nullptr || last->type != device.type) {
            if (last != nullptr) rows.push_back({""});
            rows.push_back({UpperCase(device_type_names[device.type]), "FORMULA", "NUMBERS"});
        }
        AddDevice(rows, device, unit);
        formulas.insert(device.formula);
        last = &device;
    }
    PrintRows(rows);
    PrintMeanings(formulas);
}

std::vector<Device> DevicesOf(const TableValves& valves, const std::string& type) {
    if (!type.empty()) return valves.Devices(RequireDeviceType(type));
    std::vector<Device> all;
    for (std::size_t each = 0; each < kDeviceTypes; ++each) {
        const auto devices = valves.Devices(each);
        all.insert(all.end(), devices.begin(), devices.end());
    }
    return all;
}

void ShowValves(const Options& options, const ValveOptions& own) {
    const HF_UNITS system = SystemNamed(own.units);
    const TableDirectory directory(options.tables, kValveTables);
    const TableName table = directory.Require(own.table);
    TableValves valves;
    if (!valves.Load(directory, table, system)) throw directory.NotUsable(table);
    const auto devices = DevicesOf(valves, own.type);
    const TableHead head = ReadTableHead(table);
    if (options.json) {
        auto list = Json::array();
        for (const Device& device : devices) list.push_back(ToJson(device));
        PrintJson({{"table", table.name},
                   {"title", head.title},
                   {"version", head.version},
                   {"devices", list},
                   {"units", {{"limit", LengthUnit(system)}}}});
        return;
    }
    Print(fmt::format("{}: {}\n\n", table.name, TitleText(head)));
    if (devices.empty()) {
        Print(fmt::format("No devices of the type {}\n",
                          device_type_names[RequireDeviceType(own.type)]));
    } else {
        PrintDevices(devices, LengthUnit(system));
    }
}

}  // namespace

void AddValveCommand(Command& program, Options& options) {
    const auto own = std::make_shared<ValveOptions>();
    Command command = program.AddCommand(
        "valve", "Show the fittings and valves of a table, or those of one type");
    command.AddWord("TABLE", own->table, "The table, in any case").Require();
    command.AddWord("TYPE", own->type, "A device type, in any case");
    AddLengthUnitsOption(command, own->units);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, own] { ShowValves(options, *own); });
}

}  // namespace hydrofacts::command
