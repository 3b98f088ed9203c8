// A valve table and its devices as objects: their life.

#include "hydrofacts/valve/CValveTable.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>

#include "hydrofacts/frame/NodeList.h"
#include "hydrofacts/valve/ValveRecord.h"

const char* const device_type_names[5] = {"Fitting", "Bend", "Valve", "Check Valve", "Other"};

CValveType::CValveType()
    : next(nullptr), device_type(0), formula(0), image(0), name{}, data_count(0), data(nullptr) {}

CValveType::CValveType(const CValveType& other) : CValveType() { *this = other; }

CValveType& CValveType::operator=(const CValveType& other) {
    if (this == &other) return *this;
    const int count = std::max<int>(other.data_count, 0);
    auto numbers =
        count > 0 ? std::make_unique<double[]>(static_cast<std::size_t>(count)) : nullptr;
    std::copy_n(other.data, count, numbers.get());
    hydrofacts::SetNumbers(*this, std::move(numbers), count);
    device_type = other.device_type;
    formula = other.formula;
    image = other.image;
    std::copy(std::begin(other.name), std::end(other.name), name);
    return *this;
}

CValveType::~CValveType() { hydrofacts::SetNumbers(*this, nullptr, 0); }

CValveTable::CValveTable() : path{}, lists{} {}

CValveTable::CValveTable(const CValveTable& other) : CValveTable() { *this = other; }

CValveTable& CValveTable::operator=(const CValveTable& other) {
    if (this == &other) return *this;
    ClearValveList();
    std::copy(std::begin(other.path), std::end(other.path), path);
    for (std::size_t type = 0; type < std::size(lists); ++type) {
        hydrofacts::AppendCopies(lists[type], other.lists[type]);
    }
    return *this;
}

CValveTable::~CValveTable() { ClearValveList(); }

void CValveTable::ClearValveList() {
    for (CValveType*& list : lists) hydrofacts::ReleaseNodes(list);
}
