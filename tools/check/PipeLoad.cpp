#include "tools/check/PipeLoad.h"

#include <fmt/core.h>

#include "hydrofacts/hydrofacts.h"
#include "tools/check/TableText.h"

namespace hydrofacts::command {
namespace {

class LoadedPipe : public CPipeTable {
  public:
    using CPipeTable::CPipeTable;

    std::size_t Sizes() const {
        std::size_t count = 0;
        for (const t_pipe_size* size = pipe_list; size != nullptr; size = size->next) ++count;
        return count;
    }
};

}  // namespace

void LoadPipeTable(const LibraryPlace& place, const std::map<std::string, std::size_t>& schedules,
                   Findings& findings) {
    for (const HF_UNITS system : {HF_US, HF_METRIC}) {
        const char* const units = system == HF_US ? "US" : "metric";
        LoadedPipe pipe(system);
        if (!pipe.LoadMaterial(place.directory.c_str(), place.name.c_str()) ||
            !(pipe.GetAbsRoughness() > 0.0)) {
            findings.Error(0, 0, fmt::format("the library refuses the table in {} units", units));
            continue;
        }
        for (const auto& [schedule, rows] : schedules) {
            const bool loaded = pipe.LoadPipeList(schedule.c_str(), nullptr);
            if (loaded && pipe.Sizes() == rows) continue;
            findings.Error(0, 0,
                           fmt::format("the library loads {} of {} sizes of schedule {} in {} "
                                       "units",
                                       pipe.Sizes(), rows, Quoted(schedule), units));
        }
    }
}

}  // namespace hydrofacts::command
