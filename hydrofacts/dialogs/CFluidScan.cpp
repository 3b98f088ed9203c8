#include "hydrofacts/dialogs/CFluidScan.h"

#include <memory>
#include <mutex>
#include <string_view>

#include "hydrofacts/dialogs/FluidNames.h"
#include "hydrofacts/frame/Module.h"
#include "hydrofacts/frame/TableSearch.h"
#include "win32/BackgroundTask.h"

namespace {

// Spares most of the text's regrowth while a directory of usual size is scanned.
constexpr std::size_t kUsualSize = 512;

// A name with a tab would be two in the list.
bool CanBeListed(std::string_view name) {
    return !name.empty() && name.size() <= hydrofacts::kLongestListedName &&
           name.find('\t') == std::string_view::npos;
}

}  // namespace

void CFluidScan::LoadFluidNames(const char* tableDir, FLUIDSTATE state, double highLimit,
                                double lowLimit) {
    const std::shared_ptr<hydrofacts::FluidNames> names = hydrofacts::FluidTableCache();
    const std::lock_guard lock(names->mutex);
    if (!names->text.empty()) return;
    std::string found;  // apart, so that a scan without memory for all names leaves none
    found.reserve(kUsualSize);
    for (hydrofacts::TableSearch tables(tableDir, ".FTBL"); tables.Next();) {
        if (win32::StopRequested()) return;
        if (!IsUsable(tableDir, tables.Name(), state, highLimit, lowLimit)) continue;
        found += tables.Name();
        found += '\t';
    }
    names->text.swap(found);
}

bool CFluidScan::IsUsable(const char* tableDir, const char* name, FLUIDSTATE state,
                          double highLimit, double lowLimit) {
    return CanBeListed(name) && LoadFluidTable(tableDir, name, highLimit, lowLimit) != 0 &&
           (state == FLUID_NONE || FormulasExist(state));
}

namespace hydrofacts {

std::string FluidNamesFound() {
    const std::shared_ptr<FluidNames> names = FluidTableCache();
    const std::lock_guard lock(names->mutex);
    return names->text;
}

}  // namespace hydrofacts
