#include <algorithm>
#include <cstring>
#include <iterator>
#include <string>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/frame/TableNote.h"
#include "win32/DialogBuilder.h"

namespace hydrofacts::fuzz {
namespace {

class OpenFluid : public CFluid {
  public:
    using CFluid::CFluid;
    using CFluid::LoadFluidTable;
    using CFluid::m_formulas;

    bool Has(int slot) const { return m_formulas[slot].m_type != 0; }

    void RequireSound(bool usable) const {
        for (int slot = 0; slot < 7; ++slot) {
            Require(m_formulas[slot].m_slot == slot, "a formula keeps its slot");
        }
        const bool liquid = Has(SLOT_LIQUID_DENSITY);
        const bool vapor = Has(SLOT_VAPOR_DENSITY);
        Require(liquid == Has(SLOT_LIQUID_VISCOSITY), "a liquid has its formulas or none");
        Require(vapor == Has(SLOT_VAPOR_VISCOSITY) && vapor == Has(SLOT_VAPOR_SPHEAT),
                "a vapor has its formulas or none");
        if (usable) Require(Has(SLOT_LIQUID_SAT_PRES) && (liquid || vapor), "usable has a phase");
    }

    // To the last bit: what depends on memory that nobody has written would differ.
    bool IsSameAs(const OpenFluid& other) const {
        const double mine[] = {m_molecularWt,   m_criticalTemp, m_criticalPres, m_liquidMinTemp,
                               m_liquidMaxTemp, m_vaporMinTemp, m_vaporMaxTemp, m_vaporMaxPres};
        const double theirs[] = {other.m_molecularWt,   other.m_criticalTemp,  other.m_criticalPres,
                                 other.m_liquidMinTemp, other.m_liquidMaxTemp, other.m_vaporMinTemp,
                                 other.m_vaporMaxTemp,  other.m_vaporMaxPres};
        // To the last bit, not-a-number too.
        // NOLINTBEGIN(bugprone-suspicious-memory-comparison)
        return std::memcmp(mine, theirs, sizeof mine) == 0 &&
               std::equal(std::begin(m_formulas), std::end(m_formulas),
                          std::begin(other.m_formulas), [](const CFormula& a, const CFormula& b) {
                              return a.m_type == b.m_type &&
                                     std::memcmp(a.m_coefficients, b.m_coefficients,
                                                 sizeof a.m_coefficients) == 0;
                          });
        // NOLINTEND(bugprone-suspicious-memory-comparison)
    }
};

// A dialog with a text for the note, as long as the process.
HWND NoteDialog() {
    constexpr int kNote = 10025;
    static const HWND dialog = [] {
        win32::DialogBuilder form("Note", WS_POPUP, {0, 0, 100, 20});
        form.Static(kNote, "", {0, 0, 100, 10});
        return CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, nullptr, 0);
    }();
    return dialog;
}

}  // namespace

void fluid_table(Bytes bytes) {
    constexpr int kNote = 10025;
    const std::string path = Scratch().Write("Fuzz.FTBL", Input(bytes).Text());
    std::string folder = Scratch().Path();

    OpenFluid first;
    const int usable = first.LoadFluidTable(folder.c_str(), "Fuzz");
    first.RequireSound(usable != 0);
    OpenFluid second;
    Require(second.LoadFluidTable(folder.c_str(), "Fuzz") == usable && first.IsSameAs(second),
            "a table is read the same twice");

    OpenFluid within(HF_DEG_C, HF_BAR, 0, 1.0);
    const int limited = within.LoadFluidTable(folder.c_str(), "Fuzz", 7.0, 1.0);
    within.RequireSound(limited != 0);
    Require(limited == 0 || usable != 0, "limits make no table usable");
    // What stands from another load must not matter for what a good one says.
    Require(within.SetFluid(folder.data(), "Fuzz", 20.0) == (usable != 0 ? 0 : 1),
            "SetFluid tells whether the table is usable");
    within.RequireSound(usable != 0);

    ShowTableNote(path.c_str(), NoteDialog(), kNote);
    char note[256];
    GetDlgItemTextA(NoteDialog(), kNote, note, sizeof note);
    Require(std::strlen(note) < 220, "a note has two fields of lines of 100 characters");
}

}  // namespace hydrofacts::fuzz
