// The demo as a person has it before him: keys and clicks on its widgets, and what these show.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <stdexcept>

#include "demo/FluidForm.h"
#include "demo/MainDialog.h"
#include "tests/qt/ShownDialog.h"

namespace {

enum Page : int { kFluidPage, kPipePage = 3 };
constexpr int kPipeMaterial = 10109;

class DemoWidgets : public testing::Test {
  protected:
    DemoWidgets() : dialog_(Site()) {
        EXPECT_TRUE(dialog_.Create());
        ShowWindow(dialog_.Handle(), SW_SHOW);
        Settle();
    }
    ~DemoWidgets() override {
        DestroyWindow(dialog_.Handle());
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

    void Settle() { ShownDialog::SettleView(view_, dialog_.Handle()); }

    template <typename T>
    T& Widget(HWND control) {
        auto* widget = dynamic_cast<T*>(view_.WidgetOf(control));
        if (widget == nullptr) throw std::runtime_error("no such widget");
        return *widget;
    }
    template <typename T>
    T& Main(int control) {
        return Widget<T>(GetDlgItem(dialog_.Handle(), control));
    }
    template <typename T>
    T& On(Page page, int control) {
        return Widget<T>(GetDlgItem(dialog_.At(page).Handle(), control));
    }
    QString Shown(int control) { return On<QLineEdit>(kFluidPage, control).text(); }

    void Click(QWidget& widget, QPoint at = {}) {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
        Settle();
    }
    void ClickRow(QAbstractItemView& view, const QString& text) {
        const auto rows = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                              Qt::MatchExactly);
        ASSERT_FALSE(rows.isEmpty()) << text.toStdString();
        view.scrollTo(rows.first());
        Click(*view.viewport(), view.visualRect(rows.first()).center());
    }
    void PickFromCombo(QComboBox& combo, const QString& text) {
        Click(combo, combo.rect().center());
        ClickRow(*combo.view(), text);
    }
    /// Clicks into an edit and types; keys go where Qt has the focus.
    void TypeInto(int control, const char* text) {
        Click(On<QLineEdit>(kFluidPage, control));
        for (const QChar key : QString::fromLatin1(text)) {
            QTest::sendKeyEvent(QTest::Click, &Focus(), static_cast<Qt::Key>(key.unicode()), key,
                                {});
            Settle();
        }
    }
    void Press(Qt::Key key) {
        QTest::keyClick(&Focus(), key);
        Settle();
    }
    QWidget& Focus() {
        QWidget& window = *view_.WidgetOf(dialog_.Handle());
        return window.focusWidget() == nullptr ? window : *window.focusWidget();
    }

    win32::qt::QtView view_;
    demo::MainDialog dialog_;
};

// Water at 80 °C and 5 bar after the steam tables: 972.0 kg/m³; saturated 971.8.
TEST_F(DemoWidgets, ShowTheFluidThatIsPickedAndTyped) {
    ClickRow(On<QListView>(kFluidPage, demo::kFluids), QStringLiteral("Water"));
    TypeInto(demo::kTemperature, "80");
    Press(Qt::Key_Tab);
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog_.At(kFluidPage).Handle(), demo::kPressure));
    EXPECT_EQ(Shown(demo::kDensity), QString()) << "nothing is known without a pressure";
    TypeInto(demo::kPressure, "5");
    Press(Qt::Key_Tab);
    EXPECT_NEAR(Shown(demo::kDensity).toDouble(), 971.8, 0.5);
    EXPECT_EQ(Shown(demo::kDensity).toStdString(),
              demo::TextOf(dialog_.At(kFluidPage).Handle(), demo::kDensity));
    EXPECT_TRUE(On<QRadioButton>(kFluidPage, demo::kLiquid).isChecked());
    EXPECT_TRUE(Main<QLabel>(demo::kSummary).text().startsWith(QStringLiteral("Water, Liquid")));

    PickFromCombo(Main<QComboBox>(demo::kUnits), QStringLiteral("US"));
    EXPECT_NEAR(Shown(demo::kTemperature).toDouble(), 176.0, 0.1);
    EXPECT_EQ(On<QLabel>(kFluidPage, demo::kTemperatureUnit).text(), QStringLiteral("°F"));

    PickFromCombo(Main<QComboBox>(demo::kLanguage), QStringLiteral("Deutsch"));
    EXPECT_EQ(Main<QPushButton>(IDCANCEL).text(), QStringLiteral("Schließen"));
    EXPECT_TRUE(Shown(demo::kDensity).contains(QLatin1Char(','))) << "the sign of the language";
}

TEST_F(DemoWidgets, ShowThePageThatIsPicked) {
    ASSERT_TRUE(On<QListView>(kFluidPage, demo::kFluids).isVisible());
    ClickRow(Main<QListView>(demo::kPages), QStringLiteral("Pipe"));
    EXPECT_FALSE(On<QListView>(kFluidPage, demo::kFluids).isVisible());
    EXPECT_TRUE(On<QLabel>(kPipePage, kPipeMaterial).isVisible());
}

}  // namespace
