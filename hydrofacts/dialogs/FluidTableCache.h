#ifndef HYDROFACTS_DIALOGS_FLUIDTABLECACHE_H
#define HYDROFACTS_DIALOGS_FLUIDTABLECACHE_H

/// @file
/// The list of usable fluid tables, filled in the background.

#include "win32/Export.h"

/// Starts to find out in the background which fluid tables of the directory of table files are
/// usable, so that the first fluid dialog doesn't wait for it, and returns at once. `state` is a
/// FLUIDSTATE: FLUID_LIQUID or FLUID_VAPOR lets only tables with formulas of that state count,
/// FLUID_NONE lets all count, any other none. The levels of tables aren't tested.
///
/// The list is filled once in the life of the process; later calls, and dialogs that ask for
/// another state, directory or levels, take it as it is. A scan that accepts nothing leaves it
/// empty, and the next one scans again. If no thread can be had, the first dialog scans.
///
/// A scan of some hundred tables has threads of its own, which end before it does. A dialog that is
/// opened while the scan runs waits for its end. Leaving the program, or unloading the library,
/// ends the scan at the next table. A scan that runs out of memory leaves the list empty.
///
/// May be called from any thread, and from several at once: one of them starts the scan that
/// counts.
HYDROFACTS_API void InitFluidTableCache(int state);

#endif
