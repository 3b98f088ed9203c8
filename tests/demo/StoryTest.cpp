// A user's story with the whole program, the same on every platform: act by act, what the controls
// show.

#include <algorithm>
#include <string>
#include <vector>

#include "demo/Story.h"
#include "tests/demo/DemoTest.h"

namespace {

enum Page : int { kFluidPage, kConditionsPage, kTemperaturePage, kPipePage, kValvePage };

constexpr int kPipeDiameter = 10105;
constexpr int kValveName = 10201;
constexpr int kValvesChosen = 10208;

class DemoStory : public DemoTest {
  protected:
    DemoStory() : acts_(demo::Story(dialog_)) { ShowWindow(dialog_.Handle(), SW_SHOW); }

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

    std::string Shown(Page page, int control) const { return demo::TextOf(On(page, control)); }
    std::string Shown(int control) const { return demo::TextOf(Main(control)); }

    // Within what a display of four digits leaves, unless more is known.
    static void ExpectFigure(HWND control, double expected, double within = 0.003) {
        double shown = 0.0;
        ASSERT_TRUE(demo::NumberOf(GetParent(control), GetDlgCtrlID(control), shown))
            << GetDlgCtrlID(control) << " shows \"" << demo::TextOf(control) << '"';
        EXPECT_NEAR(shown, expected, within * expected) << GetDlgCtrlID(control);
    }

    std::vector<demo::Act> acts_;
    std::size_t next_ = 0;
};

// Water at 80 °C after the steam tables: 971.8 kg/m³, 0.3544 cP, 0.4741 bar.
TEST_F(DemoStory, ShowsAFluidInBothSystemsOfUnits) {
    PlayTo("fluid");
    ExpectFigure(On(kFluidPage, demo::kDensity), 971.8);
    ExpectFigure(On(kFluidPage, demo::kViscosity), 0.3544);
    ExpectFigure(On(kFluidPage, demo::kVaporPressure), 0.4741);
    EXPECT_NE(Shown(demo::kSummary).find("Water"), std::string::npos);

    PlayTo("fluid-us");
    ExpectFigure(On(kFluidPage, demo::kTemperature), 176.0);
    ExpectFigure(On(kFluidPage, demo::kPressure), 72.52);
    ExpectFigure(On(kFluidPage, demo::kDensity), 60.67);
    EXPECT_EQ(Shown(kFluidPage, demo::kPressureUnit), "psi");
    EXPECT_EQ(Shown(demo::kAtmosphereUnit), "psi");

    // Methane at 25 °C and 60 bar: 43.1 kg/m³ after the reference equation of state; the cubic one
    // of the table is 2 % above.
    PlayTo("gas");
    ExpectFigure(On(kFluidPage, demo::kDensity), 43.1, 0.023);
    EXPECT_TRUE(IsDlgButtonChecked(dialog_.At(kFluidPage).Handle(), demo::kVapor));
}

TEST_F(DemoStory, TakesAFluidOfTheUsersOwn) {
    PlayTo("own-fluid");
    EXPECT_EQ(Shown(kFluidPage, demo::kFluidNote), "");
    EXPECT_EQ(Shown(demo::kSummary).find("Brine, Liquid, 20"), 0U) << Shown(demo::kSummary);
    win32::user::PickRow(Main(demo::kUnits), 0);
    ExpectFigure(On(kFluidPage, demo::kDensity), 1150.0 / 16.0185);
    ExpectFigure(On(kFluidPage, demo::kTemperature), 68.0);
}

TEST_F(DemoStory, HandsConditionsFromPageToPage) {
    PlayTo("conditions");
    ExpectFigure(On(kConditionsPage, demo::kDensity), 983.2);  // steam tables, 60 °C
    ExpectFigure(On(kFluidPage, demo::kTemperature), 60.0);
    ExpectFigure(On(kFluidPage, demo::kDensity), 983.2);
    PlayTo("temperature");
    ExpectFigure(On(kTemperaturePage, demo::kVaporPressure), 8.575);  // saturated ammonia, 20 °C
}

TEST_F(DemoStory, ChoosesAPipeAndAValve) {
    PlayTo("pipe");
    EXPECT_EQ(Shown(kPipePage, kPipeDiameter), "(102.26)");  // 4 in, schedule 40
    PlayTo("valve");
    EXPECT_NE(SendMessageA(On(kValvePage, kValveName), TVM_GETNEXTITEM, TVGN_CARET, 0), 0);
    EXPECT_EQ(SendMessageA(On(kValvePage, kValvesChosen), TVM_GETCOUNT, 0, 0), 1);
}

// The elevation dialog runs a loop of its own, in which the next acts come from a timer.
TEST_F(DemoStory, AsksForThePressureAtAnElevation) {
    static decltype(this) story;
    story = this;
    next_ = static_cast<std::size_t>(std::ranges::find(acts_, "elevation", &demo::Act::name) -
                                     acts_.begin());
    SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
        const demo::Act& act = story->acts_.at(story->next_);
        if (!demo::IsTimeFor(act, story->dialog_)) return;
        ++story->next_;
        if (act.name == "elevation-taken") KillTimer(nullptr, timer);
        act.play();
    });
    PlayTo("elevation");
    // The standard atmosphere at 1600 m: 0.8353 bar.
    ExpectFigure(Main(demo::kAtmosphere), 0.8353, 0.0005);
}

TEST_F(DemoStory, SaysWhatIsWrongInFiveLanguages) {
    std::erase_if(acts_, [](const demo::Act& act) { return act.name.starts_with("elevation"); });
    const struct {
        const char *act, *note;
    } kNotes[] = {{"message", "Fluid properties are not available"},
                  {"message-australia", "Fluid properties are not available"},
                  {"message-german", "Die Fl\xFCssigkeitseigenschaften"},
                  {"message-italian", "Le propriet\xE0"},
                  {"message-spanish", "Las propiedades"}};
    for (const auto& [act, note] : kNotes) {
        PlayTo(act);
        const std::string shown = Shown(kFluidPage, demo::kFluidNote);
        EXPECT_TRUE(shown.starts_with(note)) << shown;
    }
    EXPECT_EQ(Shown(IDCANCEL), "Cerrar");
}

}  // namespace
