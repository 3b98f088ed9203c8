#include "tools/Measures.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <utility>

#include "tools/Encoding.h"
#include "tools/Failure.h"
#include "tools/Names.h"

namespace hydrofacts::command {
namespace {

constexpr Measure kMeasures[] = {
    {HF_TEMPERATURE, "temperature"},
    {HF_PRESSURE, "pressure"},
    {HF_FLOW, "flow"},
    {HF_DENSITY, "density"},
    {HF_VISCOSITY, "viscosity"},
    {HF_VELOCITY, "velocity"},
    {HF_POWER, "power"},
    {HF_LENGTH, "length"},
    {HF_HEAD, "head"},
    {HF_AREA, "area"},
    {HF_THRUST_PER_LENGTH, "thrust-per-length"},
};

// Other names of units in Plain form, and the Plain form of the catalog's own text.
// clang-format off
constexpr std::pair<std::string_view, std::string_view> kOtherNames[] = {
    {"celsius",    "c"},
    {"fahrenheit", "f"},
    {"rankine",    "r"},
    {"kelvin",     "k"},
    {"gpm",        "usgpm"},
    {"m3/h",       "m3/hr"},
    {"m3/sec",     "m3/s"},
    {"m3/d",       "m3/day"},
    {"l/min",      "lpm"},
    {"l/sec",      "l/s"},
    {"kg/h",       "kg/hr"},
    {"kg/s",       "kg/sec"},
    {"lb/h",       "lb/hr"},
    {"lb/s",       "lb/sec"},
    {"sm3/h",      "sm3/hr"},
    {"m/sec",      "m/s"},
    {"ft/sec",     "ft/s"},
};
// clang-format on

constexpr std::pair<std::string_view, std::string_view> kReplacements[] = {
    {"\u00B2", "2"}, {"\u00B3", "3"}, {"^", ""}, {" ", ""}, {"\u00B0", ""}, {"\u00BA", ""},
};

// A text as it is compared: lower case, no blanks, no degree signs, plain digits.
std::string Plain(std::string_view text) {
    std::string plain = LowerCase(text);
    for (const auto& [from, to] : kReplacements) {
        for (auto at = plain.find(from); at != std::string::npos; at = plain.find(from, at)) {
            plain.replace(at, from.size(), to);
        }
    }
    return plain;
}

std::string PlainUnit(HF_UNIT_TYPES type, std::string_view text) {
    std::string plain = Plain(text);
    if (type == HF_TEMPERATURE && plain.starts_with("deg")) plain.erase(0, 3);
    const auto* const other = std::find_if(std::begin(kOtherNames), std::end(kOtherNames),
                                           [&](const auto& row) { return row.first == plain; });
    return other == std::end(kOtherNames) ? plain : std::string(other->second);
}

}  // namespace

std::span<const Measure> Measures() { return kMeasures; }

const Measure& RequireMeasure(std::string_view name) {
    std::string wanted = LowerCase(name);
    std::replace(wanted.begin(), wanted.end(), '_', '-');
    std::replace(wanted.begin(), wanted.end(), ' ', '-');
    std::vector<std::string> names;
    for (const Measure& measure : kMeasures) {
        if (wanted == measure.name) return measure;
        names.emplace_back(measure.name);
    }
    throw Failure(
        fmt::format("unknown measure \"{}\"; the measures are {}", name, JoinNames(names, "and")));
}

const char* MeasureName(HF_UNIT_TYPES type) {
    const auto* const found = std::find_if(std::begin(kMeasures), std::end(kMeasures),
                                           [&](const Measure& row) { return row.type == type; });
    return found == std::end(kMeasures) ? "" : found->name;
}

std::string UnitText(HF_UNIT_TYPES type, int id) {
    const char* const text = Units::GetString(type, id);
    if (text == nullptr) return {};
    std::string utf8 = Utf8FromWindows1252(text);
    utf8.erase(0, utf8.find_first_not_of(' '));
    return utf8;
}

std::vector<int> UnitIds(HF_UNIT_TYPES type) {
    // A catalog's ids have no gaps, though its rows may stand in another order.
    std::vector<int> ids;
    for (int id = 0; Units::GetString(type, id) != nullptr; ++id) ids.push_back(id);
    return ids;
}

bool IsCustomUnit(HF_UNIT_TYPES type, int id) { return UnitText(type, id) == "OTHER"; }

std::optional<int> FindUnit(HF_UNIT_TYPES type, std::string_view text) {
    const std::string wanted = PlainUnit(type, text);
    for (const int id : UnitIds(type)) {
        if (PlainUnit(type, UnitText(type, id)) == wanted) return id;
    }
    return std::nullopt;
}

std::string UnitHint(HF_UNIT_TYPES type, std::string_view text) {
    if (type == HF_PRESSURE && !text.empty()) {
        // "psig", "bara".
        const auto id = FindUnit(type, text.substr(0, text.size() - 1));
        const std::string last = LowerCase(text.substr(text.size() - 1));
        if (id && (last == "g" || last == "a")) {
            return fmt::format("write {}: gauge or absolute is no part of a unit",
                               UnitText(type, *id));
        }
    }
    return fmt::format("the units of {} are {}", MeasureName(type), ListOfUnits(type));
}

int RequireUnit(HF_UNIT_TYPES type, std::string_view text) {
    const auto id = FindUnit(type, text);
    if (!id) {
        throw Failure(fmt::format("unknown unit of {} \"{}\"; {}", MeasureName(type), text,
                                  UnitHint(type, text)));
    }
    if (IsCustomUnit(type, *id)) {
        throw Failure(
            fmt::format("OTHER is a unit of {} that a program defines for itself, without "
                        "a factor here; {}",
                        MeasureName(type), UnitHint(type, text)));
    }
    return *id;
}

std::string ListOfUnits(HF_UNIT_TYPES type) {
    std::string list;
    for (const int id : UnitIds(type)) {
        if (IsCustomUnit(type, id)) continue;
        if (!list.empty()) list += ", ";
        list += UnitText(type, id);
    }
    return list;
}

}  // namespace hydrofacts::command
