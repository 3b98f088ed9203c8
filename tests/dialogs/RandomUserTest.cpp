// A user who does anything at all, in four dialogs at once, with a host that forwards every
// notification and now and then sets a dialog itself. Nothing here knows what should come out: what
// must hold is that everything goes on, that no handle of a window or item that is gone is
// followed, and that what a controller claims fits what its dialog shows.

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <random>
#include <string>

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/CPipeTableDlg.h"
#include "hydrofacts/dialogs/CValveTableDlg.h"
#include "hydrofacts/frame/Language.h"
#include "tests/dialogs/FluidHost.h"
#include "tests/dialogs/PipeFormTemplate.h"
#include "tests/dialogs/TestDialog.h"
#include "tests/dialogs/ValveFormTemplate.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

constexpr std::array kTyped = {"20",  "300",    "1e3",  "-5",  "0",      ".",   "",
                               "4,5", "Steel",  "Air",  "x",   "999999", "\b",  "1.2.3",
                               "inf", "100000", "Oil ", "300", "\xC4",   "0x9", " 7"};
constexpr std::array kKeys = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_UP,     VK_DOWN,  VK_LEFT, VK_HOME,
                              VK_END, VK_RIGHT,  VK_NEXT,   VK_DELETE, VK_SPACE, VK_ADD,  VK_PRIOR};
constexpr int kWanted[] = {1, 2, 9, 20, 21, 22, 0};

/// Random numbers that are the same with every standard library.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    std::size_t Below(std::size_t count) { return engine_() % count; }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    template <typename List>
    auto Any(const List& list) {
        return list[Below(std::size(list))];
    }

  private:
    std::mt19937 engine_;
};

/// The dialogs of one host. Any of them may be closed and opened again.
class Desk {
  public:
    Desk(std::string tables, Dice& dice) : tables_(std::move(tables)), dice_(dice) {
        OpenFluid();
        OpenPipe();
        OpenValve();
    }

    // A controller goes before its dialog here, as it may; nothing is forwarded to it any more.
    ~Desk() {
        for (TestDialog* dialog : {fluidDialog_.get(), pipeDialog_.get(), valveDialog_.get()}) {
            dialog->Forward({});
        }
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void OpenFluid() {
        fluid_ = std::make_unique<CFluidDlg>(HF_KELVIN, HF_KPA, static_cast<int>(dice_.Below(2)),
                                             100.0, static_cast<int>(dice_.Below(2)));
        switch (dice_.Below(4)) {
            case 0:
                fluidDialog_ = std::make_unique<TestDialog>(FluidForm(Ids{}));
                break;
            case 1:
                fluidDialog_ =
                    std::make_unique<TestDialog>(FluidForm({ID_FIXED_NAME, ID_PRESSURE}));
                break;
            default:
                fluidDialog_ = std::make_unique<TestDialog>(FluidForm({ID_FIXED_NAME}));
        }
        fluidDialog_->Forward([this](int id, int code) { fluid_->DlgCommand(id, code); });
        fluid_->InitFluids(fluidDialog_->Handle(), tables_.c_str());
    }
    void OpenPipe() {
        pipe_ = std::make_unique<CPipeTableDlg>(dice_.OneIn(2) ? HF_US : HF_METRIC);
        pipeDialog_ = std::make_unique<TestDialog>(PipeForm(!dice_.OneIn(4)));
        pipeDialog_->Forward([this](int id, int code) { pipe_->DlgCommand(id, code); });
        pipe_->InitPipeMaterials(pipeDialog_->Handle(), tables_.c_str());
    }
    void OpenValve() {
        valveDialog_ = std::make_unique<TestDialog>(ValveForm());
        valve_ = std::make_unique<CValveTableDlg>(valveDialog_->Handle());
        valveDialog_->Forward([this](int id, int code) {
            // A record that the host is told of can be read.
            const LONG_PTR told = valve_->DlgCommand(id, code, 0);
            const auto* record = reinterpret_cast<const CValveType*>(told);
            if (record != nullptr && id == ID_DEVICES && *record->name != '\0') ++devicesSeen;
        });
        valve_->InitValveTables(valveDialog_->Handle(), tables_.c_str(), 9, 1);
    }

    void Act() {
        TestDialog& dialog =
            *dice_.Any(std::array{fluidDialog_.get(), pipeDialog_.get(), valveDialog_.get()});
        const HWND handle = dialog.Handle();
        if (dice_.OneIn(40)) {
            HostActs();  // which may open the dialog anew
        } else if (dice_.OneIn(8)) {
            PressKey(dialog);
        } else {
            UseControl(dialog);
        }
        if (dice_.OneIn(20)) win32::user::HandleMessages(handle);
    }

    /// What the controllers claim fits what the dialogs show.
    void Check() {
        const FLUIDSTATE state = fluid_->GetFluidState();
        if (state != FLUID_NONE) ++fluidsSeen;
        if (pipe_->IsValid()) ++pipesSeen;
        EXPECT_GE(state, FLUID_NONE);
        EXPECT_LE(state, FLUID_USER_VAPOR);
        EXPECT_TRUE(state != FLUID_NONE || fluid_->GetDensity() == 0.0);
        const LRESULT row = pipeDialog_->Send(ID_SIZES, CB_GETCURSEL);
        EXPECT_LT(row, std::max<LRESULT>(pipeDialog_->Send(ID_SIZES, CB_GETCOUNT), 1));
        EXPECT_TRUE(!pipe_->IsValid() || *pipe_->GetMaterialName() != '\0');
    }

    std::size_t fluidsSeen = 0;
    std::size_t pipesSeen = 0;
    std::size_t devicesSeen = 0;

  private:
    void PressKey(const TestDialog& dialog) {
        const int key = dice_.Any(kKeys);
        if (key == VK_TAB) {
            win32::user::PressTab(dialog.Handle(), dice_.OneIn(2));
        } else {
            win32::user::PressKey(dialog.Handle(), key);
        }
    }

    void UseControl(const TestDialog& dialog) {
        std::vector<HWND> controls;
        for (HWND control = GetWindow(dialog.Handle(), GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT)) {
            controls.push_back(control);
        }
        const HWND control = dice_.Any(controls);
        char name[32] = "";
        GetClassNameA(control, name, sizeof name);
        const std::string kind = name;
        if (kind == "Edit" && dice_.OneIn(2)) {
            win32::user::Type(control, dice_.Any(kTyped));
        } else if (kind == "Edit") {
            win32::user::TypeOver(control, dice_.Any(kTyped));
        } else if (kind == "Button") {
            win32::user::Click(control);
        } else if (kind == "ListBox" || kind == "ComboBox") {
            win32::user::PickRow(control, static_cast<int>(dice_.Below(6)));
        } else if (kind == "SysTreeView32") {
            PickAnyItem(control);
        } else {
            SetFocus(control);
        }
    }

    void PickAnyItem(HWND tree) {
        const auto next = [&](WPARAM relation, HTREEITEM item) {
            return reinterpret_cast<HTREEITEM>(
                SendMessageA(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
        };
        HTREEITEM item = next(TVGN_ROOT, nullptr);
        for (std::size_t steps = dice_.Below(6); steps > 0; --steps) {
            const HTREEITEM to = next(dice_.OneIn(2) ? TVGN_CHILD : TVGN_NEXT, item);
            if (to != nullptr) item = to;
        }
        if (item != nullptr) win32::user::PickItem(tree, item);
    }

    void HostActs() {
        switch (dice_.Below(13)) {
            case 0:
                return OpenFluid();
            case 1:
                return OpenPipe();
            case 2:
                return OpenValve();
            case 3:
                return Hydrofacts_SetLanguage(
                    dice_.Any(std::array{1033UL, 1031UL, 1034UL, 1040UL}));
            case 4:
                return fluid_->SetDlgFluid(dice_.Any(std::array{"Air", "Oil", "Stale", ""}), 300,
                                           150);
            case 5:
                return fluid_->SetDlgFluid("Air", 310);
            case 6: {
                CFluidDlg copy(*fluid_);
                *fluid_ = copy;
                return fluid_->SetDlgFluid(copy);
            }
            case 7:
                fluid_->GetProperties(dice_.OneIn(2) ? FLUID_USER_LIQUID : FLUID_USER_VAPOR);
                return;
            case 8:
                return fluid_->SetDlgProperties("Mine", FLUID_USER_LIQUID, 300, 200, 900, 1, 2, 1.3,
                                                0.9, 100, 300, 20);
            case 9:
                return pipe_->SetUnit(dice_.OneIn(2) ? HF_US : HF_METRIC);
            case 10:
                return pipe_->SetPipeMaterialSize(dice_.Any(std::array{"steel", "", "Bad"}),
                                                  dice_.Any(std::array{"40", "80", "A"}), 2);
            case 11: {
                // The items of the tree lead nowhere any more: the host shows a list afresh.
                valve_->LoadValveTable(tables_.c_str(), dice_.OneIn(3) ? "None" : "Valves", HF_US,
                                       kWanted);
                win32::user::Click(valveDialog_->Item(ID_FITTINGS));
                return;
            }
            default: {
                const CValveTableDlg copy(*valve_);
                *valve_ = copy;
                win32::user::Click(valveDialog_->Item(ID_OTHERS));
            }
        }
    }

    std::string tables_;
    Dice& dice_;
    std::unique_ptr<TestDialog> fluidDialog_;
    std::unique_ptr<TestDialog> pipeDialog_;
    std::unique_ptr<TestDialog> valveDialog_;
    std::unique_ptr<CFluidDlg> fluid_;
    std::unique_ptr<CPipeTableDlg> pipe_;
    std::unique_ptr<CValveTableDlg> valve_;
};

class RandomUser : public ::testing::TestWithParam<unsigned> {
  protected:
    void SetUp() override {
        ForgetFluidTables();
        for (const char* name : {"Air", "Oil", "Stale"})
            folder.Write(std::string(name) + ".FTBL", FluidText().Text());
        folder.Write("Steel.PTBL",
                     TableText("S|\"Steel\"\nV|\"1\"|x|1|9\nR|1|1|1\nZ|40|2|50|2|2|50|50\n"
                               "Z|40|2.5|65|2.3|2.8|59|73\nZ|80|2|50|1.9|2.3|49|60\n"));
        folder.Write("Bad.PTBL", TableText("V|\"1\"|x|1|9\nR|1|1|1\nZ|A|1|1|1|1|1|1\nZ|A|2|0\n"));
        folder.Write("Valves.VTBL", TableText("V|\"1\"|x|1|9\nZ|Fitting|\"Exit\"|1|1|0|0|2\n"
                                              "Z|Valve|\"Gate\"|2|8|0|0|6\n"));
    }
    void TearDown() override {
        Hydrofacts_SetLanguage(1033);
        ForgetFluidTables();
    }

    TempFolder folder;
};

// Sends through the real controls take longer than calls.
#ifdef _WIN32
constexpr int kActions = 3000;
#else
constexpr int kActions = 60000;
#endif

TEST_P(RandomUser, FindsNothingThatBreaks) {
    Dice dice(GetParam());
    Desk desk(folder.Path(), dice);
    folder.Write("Stale.FTBL", "no table any more");
    for (int i = 0; i < kActions; ++i) {
        desk.Act();
        desk.Check();
        if (HasFatalFailure() || HasNonfatalFailure()) FAIL() << "after action " << i;
    }
    // The user has got somewhere.
    EXPECT_GT(desk.fluidsSeen, kActions / 60U);
    EXPECT_GT(desk.pipesSeen, kActions / 60U);
    EXPECT_GT(desk.devicesSeen, kActions / 600U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUser, ::testing::Values(1U, 2U, 3U, 4U, 5U));

}  // namespace
