#include <memory>
#include <set>
#include <string>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "hydrofacts/pipe/CPipeTable.h"

namespace hydrofacts::fuzz {
namespace {

class OpenPipe : public CPipeTable {
  public:
    using CPipeTable::CPipeTable;
    using CPipeTable::pipe_list;

    // Whether a lookup's result is 0.0 or a size of the table; not-a-number is one too.
    bool Knows(double nominal) const {
        const t_pipe_size* size = pipe_list;
        while (size != nullptr && !(size->nominal == nominal || size->nominal != size->nominal)) {
            size = size->next;
        }
        return nominal == 0.0 || size != nullptr;
    }
};

void LookUp(const OpenPipe& pipe, double value) {
    Require(pipe.Knows(pipe.PipeSize(value)), "the nearest size is one of the table's");
    const double next = pipe.NextSize(value);
    Require(next == 0.0 || (pipe.Knows(next) && next > value), "the next size is larger");
    const double previous = pipe.PrevSize(value);
    Require(pipe.Knows(previous), "the previous size is one of the table's");
    pipe.PipeDia(value);
    for (int unit = HF_USER_UNIT; unit <= HF_LEN_OTHER; ++unit) {
        pipe.PipeDia(UnitValue<HF_LENGTH, 0>(unit, value));
    }
}

}  // namespace

// The head chooses the system and what is looked up; then a line each with the schedule and a
// nominal size as text; the rest is the table.
void pipe_lookups(Bytes bytes) {
    Input input(bytes);
    const HF_UNITS system = input.Below(2) == 0 ? HF_US : HF_METRIC;
    const double value = input.Number();
    const std::string schedule = input.Line();
    const auto nominal = ExactCopy(input.Line().c_str());
    Scratch().Write("Fuzz.PTBL", input.Text());

    OpenPipe pipe(system);
    if (!pipe.LoadMaterial(Scratch().Path().c_str(), "Fuzz")) return;
    pipe.LoadPipeList(schedule.c_str(), nullptr);
    pipe.GetHWC();
    pipe.GetAbsRoughnessValue().value_in(HF_LEN_FT);
    pipe.PipeDia(nominal.get());
    LookUp(pipe, value);
    for (const t_pipe_size* size = pipe.pipe_list; size != nullptr; size = size->next) {
        LookUp(pipe, size->nominal);
        pipe.PipeSize(size->inside_dia);
    }
    OpenPipe copy(HF_US);
    copy = pipe;
    LookUp(copy, value);
    copy.ClearPipeList();
    Require(copy.PipeSize(value) == 0.0 && !copy.IsValid(), "a table without sizes finds none");
    // The name handed in may be the table's own.
    pipe.LoadMaterial(Scratch().Path().c_str(), pipe.GetMaterialName());
    pipe.LoadPipeList(pipe.GetScheduleName(), nullptr);
}

}  // namespace hydrofacts::fuzz
