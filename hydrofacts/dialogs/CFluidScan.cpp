#include "hydrofacts/dialogs/CFluidScan.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <memory>
#include <mutex>
#include <string_view>
#include <vector>

#include "hydrofacts/dialogs/FluidNames.h"
#include "hydrofacts/frame/Module.h"
#include "hydrofacts/frame/TableSearch.h"
#include "quillbase/Shares.h"
#include "win32/BackgroundTask.h"

namespace {

// Spares most of the text's regrowth while a directory of usual size is scanned.
constexpr std::size_t kUsualSize = 512;

// Loading so many tables takes longer by far than starting a thread for them.
constexpr std::size_t kTablesOfAThread = 100;

using Names = std::vector<std::string>;

// A name with a tab would be two in the list.
bool CanBeListed(std::string_view name) {
    return !name.empty() && name.size() <= hydrofacts::kLongestListedName &&
           name.find('\t') == std::string_view::npos;
}

Names ListTables(const char* tableDir) {
    Names names;
    for (hydrofacts::TableSearch tables(tableDir, ".FTBL"); tables.Next();) {
        if (win32::StopRequested()) break;
        if (CanBeListed(tables.Name())) names.emplace_back(tables.Name());
    }
    return names;
}

}  // namespace

struct CFluidScan::Wanted {
    const char* tableDir;
    FLUIDSTATE state;
    double highLimit;
    double lowLimit;
};

// The tables are loaded one after the other into the same fluid, and a formula for which a table
// has no record, but one of another kind in its place, stays that of the tables before.
enum class CFluidScan::Finding : unsigned char {
    kRefused,   // whatever was loaded before
    kUsable,    // the same, and it leaves none of the formulas that were there before
    kInherits,  // usable or not, by what was loaded before
};

bool CFluidScan::IsUsable(const Wanted& wanted, const char* name) {
    return LoadFluidTable(wanted.tableDir, name, wanted.highLimit, wanted.lowLimit) != 0 &&
           (wanted.state == FLUID_NONE || FormulasExist(wanted.state));
}

// Loads the table into a fluid that has all formulas: the more of them there are, the more is
// usable. What the table leaves keeps a mark.
CFluidScan::Finding CFluidScan::LookAt(const Wanted& wanted, const char* name) {
    for (CFormula& formula : m_formulas) {
        formula.m_type = 1;
        formula.m_coefficients[0] = std::numeric_limits<double>::quiet_NaN();
    }
    if (!IsUsable(wanted, name)) return Finding::kRefused;
    const bool inherits = std::ranges::any_of(
        m_formulas, [](const CFormula& formula) { return std::isnan(formula.m_coefficients[0]); });
    return inherits ? Finding::kInherits : Finding::kUsable;
}

// The tables of a directory and what was found out about them.
class CFluidScan::Tables {
  public:
    explicit Tables(const Wanted& wanted)
        : wanted_(wanted), names_(ListTables(wanted.tableDir)), findings_(names_.size()) {}

    void LookAtAll() {
        const std::size_t shares = quillbase::ShareCount(names_.size(), kTablesOfAThread);
        quillbase::RunInShares(names_.size(), shares, [this](std::size_t first, std::size_t end) {
            CFluidScan fluid;
            for (std::size_t i = first; i < end && !win32::StopRequested(); ++i) {
                findings_[i] = fluid.LookAt(wanted_, names_[i].c_str());
            }
        });
    }

    // The usable ones in the order of the directory, each followed by a tab. A table that inherits
    // is loaded again behind those that it may inherit from.
    std::string Usable() const {
        std::string found;
        found.reserve(kUsualSize);
        CFluidScan fluid;
        std::size_t next = 0;  // the table with which the fluid has to go on
        for (std::size_t i = 0; i < names_.size(); ++i) {
            bool usable = findings_[i] == Finding::kUsable;
            if (usable) next = i;
            if (findings_[i] == Finding::kInherits) {
                for (; next <= i && !win32::StopRequested(); ++next) {
                    usable = fluid.IsUsable(wanted_, names_[next].c_str());
                }
            }
            if (usable) found += names_[i] + '\t';
        }
        return found;
    }

  private:
    Wanted wanted_;
    Names names_;
    std::vector<Finding> findings_;
};

void CFluidScan::LoadFluidNames(const char* tableDir, FLUIDSTATE state, double highLimit,
                                double lowLimit) {
    const std::shared_ptr<hydrofacts::FluidNames> names = hydrofacts::FluidTableCache();
    const std::lock_guard lock(names->mutex);
    if (!names->text.empty()) return;
    Tables tables({tableDir, state, highLimit, lowLimit});
    tables.LookAtAll();
    // Apart, so that a scan that is stopped or without memory for all names leaves none.
    std::string found = tables.Usable();
    if (!win32::StopRequested()) names->text.swap(found);
}

namespace hydrofacts {

std::string FluidNamesFound() {
    const std::shared_ptr<FluidNames> names = FluidTableCache();
    const std::lock_guard lock(names->mutex);
    return names->text;
}

}  // namespace hydrofacts
