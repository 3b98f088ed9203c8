#include "tools/check/TableCheck.h"

#include <algorithm>
#include <string>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/pipe/CPipeTable.h"
#include "hydrofacts/valve/CValveTable.h"

namespace hydrofacts::fuzz {
namespace {

bool IsSound(const std::string& path, command::TableFileKind kind, std::size_t lines) {
    bool sound = true;
    for (const command::Finding& finding : command::CheckTableFile(path, kind)) {
        Require(finding.line <= lines + 1, "a finding is in the file");
        Require(!finding.reason.empty(), "a finding has a reason");
        sound = sound && finding.warning;
    }
    return sound;
}

}  // namespace

// A table in which nothing is found has to load.
void table_check(Bytes bytes) {
    static constexpr int kAll[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 20, 21, 22, 0};
    const std::string_view text = Input(bytes).Text();
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    std::string folder = Scratch().Path();

    if (IsSound(Scratch().Write("Fuzz.FTBL", text), command::TableFileKind::Fluid, lines)) {
        CFluid fluid;
        Require(fluid.SetFluid(folder.data(), "Fuzz", 20.0) == 0, "a sound fluid table loads");
    }
    if (IsSound(Scratch().Write("Fuzz.PTBL", text), command::TableFileKind::Pipe, lines)) {
        for (const HF_UNITS system : {HF_US, HF_METRIC}) {
            CPipeTable pipe(system);
            Require(pipe.LoadMaterial(folder.c_str(), "Fuzz"), "a sound pipe table loads");
        }
    }
    if (IsSound(Scratch().Write("Fuzz.VTBL", text), command::TableFileKind::Valve, lines)) {
        CValveTable valves;
        Require(valves.LoadValveTable(folder.c_str(), "Fuzz", HF_US, kAll) == 1,
                "a sound valve table loads");
    }
}

}  // namespace hydrofacts::fuzz
