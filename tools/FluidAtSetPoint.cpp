#include "tools/FluidAtSetPoint.h"

#include <fmt/core.h>

#include "tools/Encoding.h"
#include "tools/Failure.h"

namespace hydrofacts::command {
namespace {

constexpr unsigned kNoStateMessage = 1;

std::string LibraryMessage(unsigned id) {
    char text[256] = "";
    Hydrofacts_GetMessage(id, text, sizeof text);
    std::string utf8 = Utf8FromWindows1252(text);
    utf8.erase(utf8.find_last_not_of(' ') + 1);
    return utf8;
}

}  // namespace

void LoadAtSetPoint(TableFluid& fluid, const TableDirectory& directory, const TableName& table,
                    const SetPoint& point) {
    if (!fluid.Load(directory, table)) {
        throw directory.NotUsable(table);
    }
    fluid.MoveTo(point.Temperature(), point.Pressure());
}

void RequireState(TableFluid& fluid, const TableName& table) {
    if (fluid.GetFluidState() != FLUID_NONE) return;
    throw Failure(
        fmt::format("{}\n{}: {}", LibraryMessage(kNoStateMessage), table.name, fluid.WhyNoState()),
        kOutside);
}

}  // namespace hydrofacts::command
