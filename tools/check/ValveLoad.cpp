#include "tools/check/ValveLoad.h"

#include <fmt/core.h>

#include <vector>

#include "hydrofacts/hydrofacts.h"

namespace hydrofacts::command {
namespace {

class LoadedValves : public CValveTable {
  public:
    std::size_t Records() const {
        std::size_t count = 0;
        for (const CValveType* list : lists) {
            for (; list != nullptr; list = list->next) ++count;
        }
        return count;
    }
};

// The library adds the fixed resistances that the table doesn't bring.
std::size_t AddedRecords(const ValveRecords& found) {
    constexpr int kFixed[] = {20, 21, 22};
    std::size_t added = 0;
    for (const int formula : kFixed) added += found.formulasOfOther.contains(formula) ? 0U : 1U;
    return added;
}

}  // namespace

void LoadValveTable(const LibraryPlace& place, const ValveRecords& found, Findings& findings) {
    std::vector<int> wanted(found.formulas.begin(), found.formulas.end());
    wanted.push_back(0);
    const std::size_t added = AddedRecords(found);
    for (const HF_UNITS system : {HF_US, HF_METRIC}) {
        LoadedValves valves;
        if (valves.LoadValveTable(place.directory.c_str(), place.name.c_str(), system,
                                  wanted.data()) == 0) {
            findings.Error(0, 0, "the library refuses the table");
        } else if (valves.Records() != found.records + added) {
            findings.Error(0, 0,
                           fmt::format("the library loads {} of {} records",
                                       valves.Records() - added, found.records));
        }
    }
}

}  // namespace hydrofacts::command
