#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "hydrofacts/pipe/CPipeTableList.h"
#include "quillbase/Directory.h"

namespace hydrofacts::fuzz {
namespace {

constexpr int kRoom = 8192;

std::vector<std::string> Names(const char* list) {
    std::vector<std::string> names;
    for (std::string_view rest = list; !rest.empty();) {
        const std::size_t end = rest.find('\t');
        names.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return names;
}

// Every size of buffer up to the one that holds all, each in memory of just that size.
template <class Listing>
std::vector<std::string> RequireSoundList(Listing list) {
    const auto whole = std::make_unique<char[]>(kRoom);
    const int count = list(whole.get(), kRoom);
    if (count <= 0) return {};
    const std::vector<std::string> names = Names(whole.get());
    Require(names.size() == static_cast<std::size_t>(count), "a list has as many names as it says");
    // With the tab and the zero behind the last name it takes two more than the text.
    const auto length = static_cast<int>(std::strlen(whole.get()));
    for (const int size : {length + 1, std::min(length, 3)}) {
        const auto small = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(size));
        if (size > 0) small[0] = '\0';
        Require(list(small.get(), size) == -1, "a name that doesn't fit is told");
        if (size > 0) {
            const std::size_t used = ::strnlen(small.get(), static_cast<std::size_t>(size));
            Require(used < static_cast<std::size_t>(size), "a list that is cut ends");
            Require(std::strncmp(small.get(), whole.get(), used) == 0 || small[used - 1] == '\t',
                    "a list that is cut begins as the whole one");
        }
    }
    return names;
}

class OpenPipe : public CPipeTable {
  public:
    using CPipeTable::CPipeTable;
    using CPipeTable::pipe_list;

    int Count() const {
        int count = 0;
        for (const t_pipe_size* size = pipe_list; size != nullptr; size = size->next) {
            Require(size->nominal != 0.0 && size->inside_dia != 0.0 && size->second_dim != 0.0,
                    "a size has no zero");
            ++count;
        }
        return count;
    }
};

}  // namespace

void pipe_table(Bytes bytes) {
    Scratch().Write("Fuzz.PTBL", Input(bytes).Text());
    SetDirectory(DIR_TABLES, Scratch().Path().c_str());
    for (const HF_UNITS system : {HF_US, HF_METRIC}) {
        const CPipeTableList list(system);
        const auto tables = [&](char* buffer, int size) {
            return list.ListPipeTables(buffer, size, 0.0, 0.0);
        };
        RequireSoundList(tables);
        OpenPipe pipe(system);
        pipe.LoadMaterial(nullptr, "Fuzz");

        const auto schedules = [&](char* buffer, int size) {
            return list.ListPipeSchedules(buffer, size, "Fuzz");
        };
        int loads = 0;
        for (const std::string& schedule : RequireSoundList(schedules)) {
            const bool sound = pipe.LoadPipeList(schedule.c_str(), nullptr);
            Require(pipe.IsValid() == (pipe.Count() > 0), "a table with sizes is valid");
            Require(!sound || pipe.IsValid(), "a schedule that loads has sizes");
            const int count = pipe.Count();
            const auto sizes = [&](char* buffer, int size) {
                return list.ListPipeSizes(buffer, size, "Fuzz", schedule.c_str());
            };
            const std::size_t names = RequireSoundList(sizes).size();
            Require(names == 0 || static_cast<std::size_t>(count) <= names, "what loads is listed");
            const OpenPipe copy(pipe);
            Require(copy.Count() == count, "a copy has all sizes");
            pipe.SetPipeUnit(system == HF_US ? HF_METRIC : HF_US, nullptr);
            pipe.SetPipeUnit(system, nullptr);
            Require(pipe.Count() == count, "the sizes come back with the system");
            if (++loads == 2) break;
        }
    }
}

}  // namespace hydrofacts::fuzz
