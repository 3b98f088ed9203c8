#include "hydrofacts/dialogs/FluidTableCache.h"

#include <new>

#include "hydrofacts/dialogs/CFluidScan.h"
#include "quillbase/Directory.h"
#include "win32/BackgroundTask.h"

namespace {

DWORD WINAPI FluidTableCacheThread(void* parameter) {
    const auto state = static_cast<FLUIDSTATE>(reinterpret_cast<LONG_PTR>(parameter));
    try {
        CFluidScan scan;
        char directory[MAX_PATH];
        GetDirectory(DIR_TABLES, directory, 0);
        scan.LoadFluidNames(directory, state, 0.0, 0.0);
    } catch (const std::bad_alloc&) {
        // The first dialog scans, and tells its host if there is still no memory.
        return 0;
    }
    return 1;
}

}  // namespace

void InitFluidTableCache(int state) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the parameter carries a number
    win32::RunInBackground(&FluidTableCacheThread, reinterpret_cast<void*>(LONG_PTR{state}));
}
