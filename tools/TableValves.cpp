#include "tools/TableValves.h"

#include <fmt/core.h>

#include <limits>
#include <numeric>

#include "tools/Encoding.h"
#include "tools/Failure.h"
#include "tools/Names.h"

namespace hydrofacts::command {
namespace {

static_assert(std::extent_v<decltype(device_type_names)> == kDeviceTypes);

// Every number that a record can have, so that none is left out; those above zero first, since the
// library looks from the start. The 0 at the end is the list's end.
std::vector<int> AllFormulas() {
    constexpr int kLast = std::numeric_limits<std::int16_t>::max();
    std::vector<int> formulas(2U * kLast + 2U);
    const auto below = formulas.begin() + kLast;
    std::iota(formulas.begin(), below, 1);
    std::iota(below, formulas.end(), -kLast - 1);
    return formulas;
}

std::vector<ValveRow> RowsOf(const CValveType& record) {
    std::vector<ValveRow> rows;
    if (record.formula != 9 && record.formula != 13) return rows;
    for (int i = 0; i + 1 < record.data_count; i += 2) {
        rows.push_back({record.data[i], record.data[i + 1]});
    }
    if (!rows.empty()) rows.back().limit.reset();
    return rows;
}

}  // namespace

bool TableValves::Load(const TableDirectory& directory, const TableName& table, HF_UNITS system) {
    const auto formulas = AllFormulas();
    return LoadValveTable(directory.Narrow().c_str(), table.narrow.c_str(), system,
                          formulas.data()) != 0;
}

std::vector<Device> TableValves::Devices(std::size_t type) const {
    std::vector<Device> devices;
    for (const CValveType* record = lists[type]; record != nullptr; record = record->next) {
        devices.push_back({type, Utf8FromWindows1252(record->name), record->formula, record->image,
                           std::vector<double>(record->data, record->data + record->data_count),
                           RowsOf(*record)});
    }
    return devices;
}

std::size_t RequireDeviceType(const std::string& name) {
    const std::vector<std::string> names(std::begin(device_type_names),
                                         std::end(device_type_names));
    for (std::size_t type = 0; type < names.size(); ++type) {
        if (EqualIgnoringCase(names[type], name)) return type;
    }
    const auto nearest = NearestNames(name, names);
    throw Failure(fmt::format("no device type \"{}\"; {}", name,
                              nearest.empty() ? "the types are " + JoinNames(names, "and")
                                              : "did you mean " + JoinNames(nearest, "or") + "?"));
}

}  // namespace hydrofacts::command
