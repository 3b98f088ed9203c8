#ifndef HYDROFACTS_DIALOGS_CFLUIDSCAN_H
#define HYDROFACTS_DIALOGS_CFLUIDSCAN_H

#include <string>

#include "hydrofacts/fluid/CFluid.h"

/// Finds out which fluid tables of a directory are usable, by loading each of them.
class CFluidScan : public CFluid {
  public:
    /// Fills the list of usable fluid tables unless it is filled; a scan that another thread has
    /// begun is waited for. A table counts if it loads, with its levels within the limits (0.0: no
    /// limit), if it has the formulas of `state` (FLUID_NONE: any), and if its name has at most 30
    /// characters. What is no usable table is passed over, and so is a directory that can't be
    /// read. This object itself stays the fluid it is.
    ///
    /// Several hundred tables are shared among threads, as many as the machine has cores; all have
    /// ended when this returns. What is found doesn't depend on their number.
    void LoadFluidNames(const char* tableDir, FLUIDSTATE state, double highLimit, double lowLimit);

  private:
    struct Wanted;
    class Tables;
    enum class Finding : unsigned char;

    bool IsUsable(const Wanted& wanted, const char* name);
    Finding LookAt(const Wanted& wanted, const char* name);
};

namespace hydrofacts {

/// The names that were found, each followed by a tab. Waits for the end of a scan.
std::string FluidNamesFound();

}  // namespace hydrofacts

#endif
