// A user who does anything at all, in four dialogs at once, with a host that forwards every
// notification and now and then sets a dialog itself. Nothing here knows what should come out: what
// must hold is that everything goes on, that no handle of a window or item that is gone is
// followed, and that what a controller claims fits what its dialog shows.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <random>
#include <string>

#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/CPipeTableDlg.h"
#include "hydrofacts/dialogs/CValveTableDlg.h"
#include "hydrofacts/dialogs/TreeControl.h"
#include "tests/dialogs/FluidHost.h"
#include "tests/dialogs/TableForms.h"
#include "tests/support/TableText.h"

namespace {

constexpr const char* kTyped[] = {"20",  "300",    "1e3",  "-5",  "0",      ".",   "",
                                  "4,5", "Steel",  "Air",  "x",   "999999", "\b",  "1.2.3",
                                  "inf", "100000", "Oil ", "300", "\xC4",   "0x9", " 7"};
constexpr int kKeys[] = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_UP,     VK_DOWN,  VK_LEFT, VK_HOME,
                         VK_END, VK_RIGHT,  VK_NEXT,   VK_DELETE, VK_SPACE, VK_ADD,  VK_PRIOR};
constexpr int kWanted[] = {1, 2, 9, 20, 21, 22, 0};
constexpr unsigned long kLanguages[] = {1033, 1031, 1034, 1040};
constexpr const char* kFluids[] = {"Air", "Oil", "Stale", ""};
constexpr const char* kPipes[] = {"steel", "", "Bad"};
constexpr const char* kSchedules[] = {"40", "80", "A"};

/// The dialogs of one host. Any of them may be closed and opened again.
class Desk {
  public:
    Desk(std::string tables, unsigned seed) : tables_(std::move(tables)), random_(seed) {
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
        fluid_ = std::make_unique<CFluidDlg>(HF_KELVIN, HF_KPA, static_cast<int>(Below(2)), 100.0,
                                             static_cast<int>(Below(2)));
        const Ids kLacking[] = {{}, {ID_FIXED_NAME, ID_PRESSURE}, {ID_FIXED_NAME}, {ID_FIXED_NAME}};
        fluidDialog_ = std::make_unique<TestDialog>(FluidForm(Any(kLacking)));
        fluidDialog_->Forward([this](int id, int code) { fluid_->DlgCommand(id, code); });
        fluid_->InitFluids(fluidDialog_->Handle(), tables_.c_str());
    }
    void OpenPipe() {
        pipe_ = std::make_unique<CPipeTableDlg>(OneIn(2) ? HF_US : HF_METRIC);
        pipeDialog_ = std::make_unique<TestDialog>(PipeForm(!OneIn(4)));
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
        const TestDialog* dialogs[] = {fluidDialog_.get(), pipeDialog_.get(), valveDialog_.get()};
        const HWND handle = Any(dialogs)->Handle();
        if (OneIn(40)) {
            HostActs();  // which may open the dialog anew
        } else if (OneIn(8)) {
            const int key = Any(kKeys);
            if (key == VK_TAB) {
                win32::user::PressTab(handle, OneIn(2));
            } else {
                win32::user::PressKey(handle, key);
            }
        } else {
            UseControl(handle);
        }
        if (OneIn(20)) win32::user::HandleMessages(handle);
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

    std::size_t fluidsSeen = 0, pipesSeen = 0, devicesSeen = 0;

  private:
    // Random numbers that are the same with every standard library.
    std::size_t Below(std::size_t count) { return random_() % count; }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    template <typename T, std::size_t size>
    T Any(const T (&list)[size]) {
        return list[Below(size)];
    }

    void UseControl(HWND dialog) {
        std::vector<HWND> controls;
        for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT)) {
            controls.push_back(control);
        }
        const HWND control = controls[Below(controls.size())];
        char name[32] = "";
        GetClassNameA(control, name, sizeof name);
        const std::string kind = name;
        if (kind == "Edit") {
            const bool over = !OneIn(2);
            (over ? &win32::user::TypeOver : &win32::user::Type)(control, Any(kTyped));
        } else if (kind == "Button") {
            win32::user::Click(control);
        } else if (kind == "ListBox" || kind == "ComboBox") {
            win32::user::PickRow(control, static_cast<int>(Below(6)));
        } else if (kind == "SysTreeView32") {
            PickAnyItem(control);
        } else {
            SetFocus(control);
        }
    }

    void PickAnyItem(HWND control) {
        const hydrofacts::TreeControl tree(control);
        HTREEITEM item = tree.Next(TVGN_ROOT, nullptr);
        for (std::size_t steps = Below(6); steps > 0; --steps) {
            const HTREEITEM to = tree.Next(OneIn(2) ? TVGN_CHILD : TVGN_NEXT, item);
            if (to != nullptr) item = to;
        }
        if (item != nullptr) win32::user::PickItem(control, item);
    }

    void HostActs() {
        const std::function<void()> acts[] = {
            [this] { OpenFluid(); },
            [this] { OpenPipe(); },
            [this] { OpenValve(); },
            [this] { Hydrofacts_SetLanguage(Any(kLanguages)); },
            [this] { fluid_->SetDlgFluid(Any(kFluids), 300, 150); },
            [this] { fluid_->SetDlgFluid("Air", 310); },
            [this] {
                CFluidDlg copy(*fluid_);
                *fluid_ = copy;
                fluid_->SetDlgFluid(copy);
            },
            [this] { fluid_->GetProperties(OneIn(2) ? FLUID_USER_LIQUID : FLUID_USER_VAPOR); },
            [this] {
                fluid_->SetDlgProperties("Mine", FLUID_USER_LIQUID, 300, 200, 900, 1, 2, 1.3, 0.9,
                                         100, 300, 20);
            },
            [this] { pipe_->SetUnit(OneIn(2) ? HF_US : HF_METRIC); },
            [this] { pipe_->SetPipeMaterialSize(Any(kPipes), Any(kSchedules), 2); },
            [this] {
                // The items of the tree lead nowhere any more: the host shows a list afresh.
                const char* table = OneIn(3) ? "None" : "Valves";
                valve_->LoadValveTable(tables_.c_str(), table, HF_US, kWanted);
                win32::user::Click(valveDialog_->Item(ID_FITTINGS));
            },
            [this] {
                const CValveTableDlg copy(*valve_);
                *valve_ = copy;
                win32::user::Click(valveDialog_->Item(ID_OTHERS));
            },
        };
        Any(acts)();
    }

    std::string tables_;
    std::mt19937 random_;
    std::unique_ptr<TestDialog> fluidDialog_, pipeDialog_, valveDialog_;
    std::unique_ptr<CFluidDlg> fluid_;
    std::unique_ptr<CPipeTableDlg> pipe_;
    std::unique_ptr<CValveTableDlg> valve_;
};

class RandomUser : public ::testing::TestWithParam<unsigned> {
  protected:
    RandomUser() {
        ForgetFluidTables();
        for (const char* name : {"Air", "Oil", "Stale"}) folder.Add(name, {});
        folder.Write("Steel.PTBL",
                     TableText("S|\"Steel\"\nV|\"1\"|x|1|9\nR|1|1|1\nZ|40|2|50|2|2|50|50\n"
                               "Z|40|2.5|65|2.3|2.8|59|73\nZ|80|2|50|1.9|2.3|49|60\n"));
        folder.Write("Bad.PTBL", TableText("V|\"1\"|x|1|9\nR|1|1|1\nZ|A|1|1|1|1|1|1\nZ|A|2|0\n"));
        folder.Write("Valves.VTBL", TableText("V|\"1\"|x|1|9\nZ|Fitting|\"Exit\"|1|1|0|0|2\n"
                                              "Z|Valve|\"Gate\"|2|8|0|0|6\n"));
    }
    ~RandomUser() override { Hydrofacts_SetLanguage(1033); }

    TableFolder folder;
};

// Sends through the real controls take longer than calls.
#ifdef _WIN32
constexpr int kActions = 3000;
#else
constexpr int kActions = 60000;
#endif

TEST_P(RandomUser, FindsNothingThatBreaks) {
    Desk desk(folder.path, GetParam());
    folder.Write("Stale.FTBL", "no table any more");
    for (int i = 0; i < kActions; ++i) {
        desk.Act();
        desk.Check();
        if (HasFailure()) FAIL() << "after action " << i;
    }
    // The user has got somewhere.
    EXPECT_GT(desk.fluidsSeen, kActions / 60U);
    EXPECT_GT(desk.pipesSeen, kActions / 60U);
    EXPECT_GT(desk.devicesSeen, kActions / 600U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUser, ::testing::Values(1U, 2U, 3U, 4U, 5U));

}  // namespace
