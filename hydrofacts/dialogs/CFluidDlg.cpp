// The controller as an object, and how it comes to its dialog.

#include "hydrofacts/dialogs/CFluidDlg.h"

#include <algorithm>
#include <iterator>

#include "hydrofacts/dialogs/CFluidScan.h"
#include "hydrofacts/dialogs/FluidForm.h"
#include "quillbase/CTableReader.h"
#include "quillbase/DialogItems.h"
#include "quillbase/Text.h"

namespace {

constexpr int kSpecificGravity = 2;  // the unit of density

constexpr int kDelayedEdits[] = {hydrofacts::kTemperature, hydrofacts::kPressure,
                                 hydrofacts::kTypedName};

struct TextLimit {
    int control;
    int length;
};

constexpr TextLimit kTextLimits[] = {
    {hydrofacts::kTypedName, 62},
    {hydrofacts::kTemperature, 7},
    {hydrofacts::kPressure, 7},
    {hydrofacts::kViscosity, 7},
    {hydrofacts::kDensity, 7},
    {hydrofacts::kSpHeat, 7},
    {hydrofacts::kVaporPressure, 7},
    {hydrofacts::kCriticalPressure, 7},
    {hydrofacts::kCriticalTemperature, 7},
    {hydrofacts::kMolecularWeight, 7},
};

}  // namespace

CFluidDlg::CFluidDlg(HF_TUNITS tunit, HF_PUNITS punit, int bAbsolute, double atmPressure, int useSG)
    : CFluid(tunit, punit, bAbsolute, atmPressure),
      m_changed(0),
      m_useSG(useSG),
      m_hDlg(nullptr),
      m_tableDir{} {}

CFluidDlg::CFluidDlg(Units* units)
    : CFluid(units),
      m_changed(0),
      m_useSG(units->GetUserUnit(HF_DENSITY) == kSpecificGravity ? 1 : 0),
      m_hDlg(nullptr),
      m_tableDir{} {}

CFluidDlg::CFluidDlg(const CFluidDlg& other)
    : CFluid(other), m_changed(other.m_changed), m_useSG(other.m_useSG), m_hDlg(other.m_hDlg) {
    std::copy(std::begin(other.m_tableDir), std::end(other.m_tableDir), m_tableDir);
}

CFluidDlg& CFluidDlg::operator=(const CFluidDlg& other) {
    if (this == &other) return *this;
    CFluid::operator=(other);
    m_changed = other.m_changed;
    m_useSG = other.m_useSG;
    m_hDlg = other.m_hDlg;
    std::copy(std::begin(other.m_tableDir), std::end(other.m_tableDir), m_tableDir);
    return *this;
}

CFluidDlg::~CFluidDlg() {
    for (const int edit : kDelayedEdits) ClearKeyPress(m_hDlg, static_cast<unsigned>(edit));
}

int CFluidDlg::Changed() { return m_changed; }

void CFluidDlg::SetChanged(bool changed) { m_changed = changed ? 1 : 0; }

int CFluidDlg::InitFluids(HWND dialog, const char* tableDir) {
    return InitFluids(dialog, tableDir, FLUID_NONE);
}

int CFluidDlg::InitFluids(HWND dialog, const char* tableDir, FLUIDSTATE state) {
    constexpr double kHighLimit = 7.0;
    constexpr double kLowLimit = 1.0;
    return InitFluids(dialog, tableDir, state, kHighLimit, kLowLimit);
}

int CFluidDlg::InitFluids(HWND dialog, const char* tableDir, FLUIDSTATE state, double highLimit,
                          double lowLimit) {
    m_hDlg = dialog;
    // A directory that is cut here is too long for any path of a table.
    rstrncpy(m_tableDir, tableDir, sizeof m_tableDir);

    const hydrofacts::FluidForm form = Form();
    form.ShowMessage(hydrofacts::kListCaption, hydrofacts::kLoadingTables,
                     hydrofacts::kCaptionSize);
    CFluidScan().LoadFluidNames(tableDir, state, highLimit, lowLimit);
    CTableReader::Fill(false, form.Item(hydrofacts::kFluidList),
                       hydrofacts::FluidNamesFound().c_str(), '\t', true);
    form.ShowMessage(hydrofacts::kListCaption, hydrofacts::kInstalledTables,
                     hydrofacts::kCaptionSize);

    if (state != FLUID_NONE) ClearFluid();
    constexpr long kDelay = 1000;
    for (const int edit : kDelayedEdits) {
        MakeKeyPressDelay(m_hDlg, static_cast<unsigned>(edit), kDelay);
    }
    for (const TextLimit& limit : kTextLimits) {
        SetDlgItemLimit(m_hDlg, limit.control, limit.length);
    }
    return 1;
}

hydrofacts::FluidForm CFluidDlg::Form() const { return hydrofacts::FluidForm(m_hDlg); }
