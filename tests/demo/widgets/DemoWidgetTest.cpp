// The demo as a person has it before him: keys and clicks on its widgets, and what these show.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>

#include "tests/demo/DemoTest.h"
#include "tests/qt/ShownDialog.h"

namespace {

enum Page : int { kFluidPage, kPipePage = 3 };
constexpr int kPipeMaterial = 10109;

class DemoWidgets : protected QtUser, public DemoTest {
  protected:
    DemoWidgets() { Show(dialog_.Handle()); }

    QLineEdit& Edit(int control) { return WidgetOf<QLineEdit>(On(kFluidPage, control)); }
    QString Shown(int control) { return Edit(control).text(); }

    void Pick(QAbstractItemView& view, const QString& text) {
        const auto rows = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                              Qt::MatchExactly);
        ASSERT_FALSE(rows.isEmpty()) << text.toStdString();
        ClickRow(view, rows.first().row());
    }
    void PickFromCombo(int control, const QString& text) {
        auto& combo = WidgetOf<QComboBox>(Main(control));
        Click(combo);
        Pick(*combo.view(), text);
    }
};

// Water at 80 °C and 5 bar after the steam tables: 972.0 kg/m³; saturated 971.8.
TEST_F(DemoWidgets, ShowTheFluidThatIsPickedAndTyped) {
    Pick(WidgetOf<QListView>(On(kFluidPage, demo::kFluids)), QStringLiteral("Water"));
    Click(Edit(demo::kTemperature));
    Type("80");
    Press(Qt::Key_Tab);
    EXPECT_EQ(GetFocus(), On(kFluidPage, demo::kPressure));
    EXPECT_EQ(Shown(demo::kDensity), QString()) << "nothing is known without a pressure";
    Type("5");
    Press(Qt::Key_Tab);
    EXPECT_NEAR(Shown(demo::kDensity).toDouble(), 971.8, 0.5);
    EXPECT_TRUE(WidgetOf<QRadioButton>(On(kFluidPage, demo::kLiquid)).isChecked());
    EXPECT_TRUE(WidgetOf<QLabel>(Main(demo::kSummary)).text().startsWith("Water, Liquid"));

    PickFromCombo(demo::kUnits, QStringLiteral("US"));
    EXPECT_NEAR(Shown(demo::kTemperature).toDouble(), 176.0, 0.1);
    EXPECT_EQ(WidgetOf<QLabel>(On(kFluidPage, demo::kTemperatureUnit)).text(),
              QStringLiteral("°F"));

    PickFromCombo(demo::kLanguage, QStringLiteral("Deutsch"));
    EXPECT_EQ(WidgetOf<QPushButton>(Main(IDCANCEL)).text(), QStringLiteral("Schließen"));
    EXPECT_TRUE(Shown(demo::kDensity).contains(QLatin1Char(','))) << "the sign of the language";
}

TEST_F(DemoWidgets, ShowThePageThatIsPicked) {
    auto& fluids = WidgetOf<QListView>(On(kFluidPage, demo::kFluids));
    ASSERT_TRUE(fluids.isVisible());
    Pick(WidgetOf<QListView>(Main(demo::kPages)), QStringLiteral("Pipe"));
    EXPECT_FALSE(fluids.isVisible());
    EXPECT_TRUE(WidgetOf<QLabel>(On(kPipePage, kPipeMaterial)).isVisible());
}

}  // namespace
