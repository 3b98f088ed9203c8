// A user's story with the whole program, the same on every platform: act by act, what the controls
// show.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "demo/FluidForm.h"
#include "demo/Story.h"
#include "quillbase/Directory.h"
#include "win32/User.h"

namespace {

enum Page : int { kFluidPage, kConditionsPage, kTemperaturePage, kPipePage, kValvePage };

constexpr int kPipeDiameter = 10105;
constexpr int kValveName = 10201;
constexpr int kValvesChosen = 10208;

class DemoStory : public testing::Test {
  protected:
    DemoStory() : dialog_(Site()) {
        EXPECT_TRUE(dialog_.Create());
        ShowWindow(dialog_.Handle(), SW_SHOW);
        acts_ = demo::Story(dialog_);
    }
    ~DemoStory() override {
        DestroyWindow(dialog_.Handle());
        // The end of the program is not the end of the tests.
        for (MSG message{}; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) continue;
        Hydrofacts_SetLanguage(1033);
    }

    static demo::Site Site() {
        Hydrofacts_SetLanguage(1033);
        demo::Site site;
        char tables[260] = "";
        GetDirectory(DIR_TABLES, tables, sizeof tables);
        site.tables = tables;
        return site;
    }

    /// Plays the acts up to one, which comes after those played already.
    void PlayTo(const std::string& name) {
        while (next_ < acts_.size()) {
            const demo::Act& act = acts_[next_++];
            act.play();
            win32::user::HandleMessages(dialog_.Handle());
            if (act.name == name) return;
        }
        FAIL() << "there is no act " << name;
    }

    std::string On(Page page, int control) const {
        return demo::TextOf(dialog_.At(page).Handle(), control);
    }
    std::string Main(int control) const { return demo::TextOf(dialog_.Handle(), control); }

    // Within what a display of four digits leaves.
    void ExpectFigure(Page page, int control, double expected) const {
        double shown = 0.0;
        ASSERT_TRUE(demo::NumberOf(dialog_.At(page).Handle(), control, shown))
            << control << " shows \"" << On(page, control) << '"';
        EXPECT_NEAR(shown, expected, 0.003 * expected) << control;
    }

    demo::MainDialog dialog_;
    std::vector<demo::Act> acts_;
    std::size_t next_ = 0;
};

// Water at 80 °C after the steam tables: 971.8 kg/m³, 0.3544 cP, 0.4741 bar.
TEST_F(DemoStory, ShowsAFluidInBothSystemsOfUnits) {
    PlayTo("fluid");
    ExpectFigure(kFluidPage, demo::kDensity, 971.8);
    ExpectFigure(kFluidPage, demo::kViscosity, 0.3544);
    ExpectFigure(kFluidPage, demo::kVaporPressure, 0.4741);
    EXPECT_NE(Main(demo::kSummary).find("Water"), std::string::npos);

    PlayTo("fluid-us");
    ExpectFigure(kFluidPage, demo::kTemperature, 176.0);
    ExpectFigure(kFluidPage, demo::kPressure, 72.52);
    ExpectFigure(kFluidPage, demo::kDensity, 60.67);
    EXPECT_EQ(On(kFluidPage, demo::kPressureUnit), "psi");
    EXPECT_EQ(Main(demo::kAtmosphereUnit), "psi");

    // Methane at 25 °C and 60 bar: 43.1 kg/m³ after the reference equation of state; the cubic one
    // of the table is 2 % above.
    PlayTo("gas");
    double density = 0.0;
    ASSERT_TRUE(demo::NumberOf(dialog_.At(kFluidPage).Handle(), demo::kDensity, density));
    EXPECT_NEAR(density, 43.1, 1.0);
    EXPECT_TRUE(IsDlgButtonChecked(dialog_.At(kFluidPage).Handle(), demo::kVapor));
}

TEST_F(DemoStory, TakesAFluidOfTheUsersOwn) {
    PlayTo("own-fluid");
    EXPECT_EQ(On(kFluidPage, demo::kFluidNote), "");
    EXPECT_EQ(Main(demo::kSummary).find("Brine, Liquid, 20"), 0U) << Main(demo::kSummary);
    win32::user::PickRow(GetDlgItem(dialog_.Handle(), demo::kUnits), 0);
    ExpectFigure(kFluidPage, demo::kDensity, 1150.0 / 16.0185);
    ExpectFigure(kFluidPage, demo::kTemperature, 68.0);
}

TEST_F(DemoStory, HandsConditionsFromPageToPage) {
    PlayTo("conditions");
    ExpectFigure(kConditionsPage, demo::kDensity, 983.2);  // steam tables, 60 °C
    ExpectFigure(kFluidPage, demo::kTemperature, 60.0);
    ExpectFigure(kFluidPage, demo::kDensity, 983.2);
    PlayTo("temperature");
    ExpectFigure(kTemperaturePage, demo::kVaporPressure, 8.575);  // saturated ammonia, 20 °C
}

TEST_F(DemoStory, ChoosesAPipeAndAValve) {
    PlayTo("pipe");
    EXPECT_EQ(On(kPipePage, kPipeDiameter), "(102.26)");  // 4 in, schedule 40
    PlayTo("valve");
    const HWND page = dialog_.At(kValvePage).Handle();
    EXPECT_NE(SendDlgItemMessageA(page, kValveName, TVM_GETNEXTITEM, TVGN_CARET, 0), 0);
    EXPECT_EQ(SendDlgItemMessageA(page, kValvesChosen, TVM_GETCOUNT, 0, 0), 1);
}

// The elevation dialog runs a loop of its own, in which the next acts come from a timer.
TEST_F(DemoStory, AsksForThePressureAtAnElevation) {
    static const std::vector<demo::Act>* acts = nullptr;
    static const demo::MainDialog* dialog = nullptr;
    static std::size_t next = 0;
    acts = &acts_;
    dialog = &dialog_;
    next = static_cast<std::size_t>(std::ranges::find(acts_, "elevation-typed", &demo::Act::name) -
                                    acts_.begin());
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR id, DWORD) {
        const demo::Act& act = (*acts)[next];
        if (!demo::IsTimeFor(act, *dialog)) return;
        ++next;
        if (act.name == "elevation-taken") KillTimer(nullptr, id);
        act.play();
    });
    ASSERT_NE(timer, 0U);
    const auto elevation = std::ranges::find(acts_, "elevation", &demo::Act::name);
    ASSERT_NE(elevation, acts_.end());
    elevation->play();
    // The standard atmosphere at 1600 m: 0.8353 bar.
    double shown = 0.0;
    ASSERT_TRUE(demo::NumberOf(dialog_.Handle(), demo::kAtmosphere, shown));
    EXPECT_NEAR(shown, 0.8353, 0.0005);
}

TEST_F(DemoStory, SaysWhatIsWrongInFiveLanguages) {
    for (auto act = acts_.begin(); act != acts_.end();) {
        act = act->name.starts_with("elevation") ? acts_.erase(act) : act + 1;
    }
    std::vector<std::string> notes;
    for (const char* name :
         {"message", "message-australia", "message-german", "message-italian", "message-spanish"}) {
        PlayTo(name);
        notes.push_back(On(kFluidPage, demo::kFluidNote));
    }
    EXPECT_EQ(notes[0].find("Fluid properties are not available"), 0U) << notes[0];
    EXPECT_EQ(notes[1], notes[0]);
    EXPECT_EQ(notes[2].find("Die Fl\xFCssigkeitseigenschaften"), 0U) << notes[2];
    EXPECT_EQ(notes[3].find("Le propriet\xE0"), 0U) << notes[3];
    EXPECT_EQ(notes[4].find("Las propiedades"), 0U) << notes[4];
    EXPECT_EQ(Main(IDCANCEL), "Cerrar");
}

}  // namespace
