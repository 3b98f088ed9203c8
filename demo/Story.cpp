#include "demo/Story.h"

#include <cstddef>
#include <utility>

#include "demo/FluidForm.h"
#include "win32/User.h"

namespace demo {
namespace {

namespace user = win32::user;

enum : int {
    kElevationEdit = 1318,
    kPipes = 10101,
    kSizes = 10104,
    kDevices = 10201,
    kValves = 10204,
    kAdd = 2204,
};

enum PageNumber : int { kFluidPage, kConditionsPage, kTemperaturePage, kPipePage, kValvePage };

// Someone at the main dialog.
class Person {
  public:
    explicit Person(MainDialog& dialog) : dialog_(dialog) {}

    HWND Main(int control) const { return GetDlgItem(dialog_.Handle(), control); }
    HWND On(PageNumber page, int control) const {
        return GetDlgItem(dialog_.At(page).Handle(), control);
    }

    void Open(PageNumber page) const { user::PickRow(Main(kPages), page); }

    void PickFluid(PageNumber page, const char* name) const {
        const HWND list = On(page, kFluids);
        const LRESULT row = SendMessageA(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(name));
        user::PickRow(list, static_cast<int>(row));
    }

    void Type(PageNumber page, int control, const char* text) const {
        user::TypeOver(On(page, control), text);
    }

    // Goes on to the next control, which has what was typed calculated.
    void Leave() const { user::PressTab(dialog_.Handle()); }

    void TypeConditions(PageNumber page, const char* temperature, const char* pressure) const {
        Type(page, kTemperature, temperature);
        Type(page, kPressure, pressure);
        Leave();
    }

    // A schedule by the names of its material and itself.
    void PickPipe(const char* material, const char* schedule) const {
        const HWND tree = On(kPipePage, kPipes);
        const HTREEITEM above = Find(tree, nullptr, material);
        SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(above));
        user::PickItem(tree, Find(tree, above, schedule));
    }

    void PickDevice(int place) const {
        const HWND tree = On(kValvePage, kDevices);
        auto item = Next(tree, TVGN_ROOT, nullptr);
        for (int i = 0; i < place && item != nullptr; ++i) item = Next(tree, TVGN_NEXT, item);
        user::PickItem(tree, item);
    }

  private:
    static HTREEITEM Next(HWND tree, WPARAM which, HTREEITEM item) {
        return reinterpret_cast<HTREEITEM>(
            SendMessageA(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
    }

    static HTREEITEM Find(HWND tree, HTREEITEM above, const std::string& name) {
        auto item =
            above == nullptr ? Next(tree, TVGN_ROOT, nullptr) : Next(tree, TVGN_CHILD, above);
        for (; item != nullptr; item = Next(tree, TVGN_NEXT, item)) {
            char text[64] = "";
            TVITEMA asked{};
            asked.mask = TVIF_TEXT;
            asked.hItem = item;
            asked.pszText = text;
            asked.cchTextMax = sizeof text;
            SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&asked));
            if (name == text) break;
        }
        return item;
    }

    MainDialog& dialog_;
};

struct Playing {
    MainDialog* dialog = nullptr;
    std::vector<Act> acts;
    std::size_t next = 0;
    std::function<void(const std::string&)> seen;
};

Playing& Now() {
    static Playing playing;
    return playing;
}

constexpr UINT kPause = 400;  // ms, for the screen to follow

// An act may run a modal loop in which the next ticks come, so the place is noted before.
void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD) {
    Playing& now = Now();
    if (now.next < now.acts.size() && !IsTimeFor(now.acts[now.next], *now.dialog)) return;
    if (now.next > 0) now.seen(now.acts[now.next - 1].name);
    if (now.next == now.acts.size()) {
        KillTimer(nullptr, timer);
        DestroyWindow(now.dialog->Handle());
        return;
    }
    now.acts[now.next++].play();
}

}  // namespace

std::vector<Act> Story(MainDialog& dialog) {
    const Person person(dialog);
    return {
        {"fluid",
         [=] {
             person.PickFluid(kFluidPage, "Water");
             person.TypeConditions(kFluidPage, "80", "5");
         }},
        {"fluid-us", [=] { user::PickRow(person.Main(kUnits), 0); }},
        {"gas",
         [=] {
             user::PickRow(person.Main(kUnits), 1);
             person.PickFluid(kFluidPage, "Methane");
             person.TypeConditions(kFluidPage, "25", "60");
         }},
        {"own-fluid",
         [=] {
             person.Type(kFluidPage, kOwnName, "Brine");
             user::Click(person.On(kFluidPage, kLiquid));
             person.TypeConditions(kFluidPage, "20", "3");
             person.Type(kFluidPage, kDensity, "1150");
             person.Type(kFluidPage, kViscosity, "1.9");
             person.Type(kFluidPage, kVaporPressure, "0.02");
             person.Type(kFluidPage, kCriticalPressure, "221");
             user::Click(person.On(kFluidPage, IDOK));
         }},
        {"conditions",
         [=] {
             person.PickFluid(kFluidPage, "Water");
             person.TypeConditions(kFluidPage, "80", "5");
             person.Open(kConditionsPage);
             person.TypeConditions(kConditionsPage, "60", "4");
             user::Click(person.On(kConditionsPage, IDOK));
         }},
        {"temperature",
         [=] {
             person.Open(kTemperaturePage);
             person.PickFluid(kTemperaturePage, "Ammonia");
             person.Type(kTemperaturePage, kTemperature, "20");
             person.Leave();
         }},
        {"pipe",
         [=] {
             person.Open(kPipePage);
             person.PickPipe("Steel B36.10M", "40");
             user::PickRow(person.On(kPipePage, kSizes), 12);
         }},
        {"valve",
         [=] {
             person.Open(kValvePage);
             user::Click(person.On(kValvePage, kValves));
             person.PickDevice(3);
             user::Click(person.On(kValvePage, kAdd));
         }},
        // The next act is played while this one's dialog is open.
        {"elevation", [=] { user::Click(person.Main(kElevation)); }},
        {"elevation-typed",
         [] { user::TypeOver(GetDlgItem(GetActiveWindow(), kElevationEdit), "1600"); }, true},
        {"elevation-taken", [] { user::Click(GetDlgItem(GetActiveWindow(), IDOK)); }, true},
        {"message",
         [=] {
             person.Open(kFluidPage);
             person.TypeConditions(kFluidPage, "2000", "5");
         }},
        {"message-australia", [=] { user::PickRow(person.Main(kLanguage), 1); }},
        {"message-german", [=] { user::PickRow(person.Main(kLanguage), 2); }},
        {"message-italian", [=] { user::PickRow(person.Main(kLanguage), 3); }},
        {"message-spanish", [=] { user::PickRow(person.Main(kLanguage), 4); }},
    };
}

bool IsTimeFor(const Act& act, const MainDialog& dialog) {
    const HWND active = GetActiveWindow();
    return !act.inDialog || (active != nullptr && active != dialog.Handle());
}

void Play(MainDialog& dialog, std::function<void(const std::string& name)> seen) {
    Now() = {&dialog, Story(dialog), 0, std::move(seen)};
    SetTimer(nullptr, 0, kPause, &Tick);
}

}  // namespace demo
