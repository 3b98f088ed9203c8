#include <gmock/gmock.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum : int { kLiquid = 101, kVapor, kSolid, kCheck, kThree, kApply, kGroup, kLabel, kPlot, kLine };

class ButtonView : public testing::Test, protected ShownDialog {
  protected:
    ButtonView() : ShownDialog(Form()) {}

    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Buttons", WS_POPUP | WS_CAPTION, {0, 0, 200, 140});
        form.GroupBox(kGroup, "&Phase", {2, 2, 100, 60});
        form.RadioButton(kLiquid, "&Liquid", {5, 15, 60, 10}, WS_GROUP | WS_TABSTOP);
        form.RadioButton(kVapor, "&Vapor", {5, 30, 60, 10});
        form.RadioButton(kSolid, "S && T", {5, 45, 60, 10});
        const DWORD box = WS_VISIBLE | WS_TABSTOP | WS_GROUP;
        form.Control("Button", kCheck, "&Check", box | BS_AUTOCHECKBOX, {5, 65, 60, 10});
        form.Control("Button", kThree, "Three", box | BS_AUTO3STATE, {5, 80, 60, 10});
        form.Button(kApply, "&Apply", {5, 95, 50, 14}).DefaultButton(IDOK, "OK", {60, 95, 50, 14});
        form.Static(kLabel, "R&D \x96 && more", {110, 5, 80, 8}, SS_RIGHT);
        form.Static(kPlot, "", {110, 15, 40, 40}, SS_OWNERDRAW);
        form.Static(kLine, "", {5, 115, 180, 1}, SS_ETCHEDHORZ);
        return form;
    }

    QRadioButton& Radio(int id) { return Widget<QRadioButton>(id); }
    /// What the widgets of the radio buttons show.
    std::string Checked() {
        std::string checked;
        for (const int id : {kLiquid, kVapor, kSolid}) checked += Radio(id).isChecked() ? 'x' : '.';
        return checked;
    }
};

TEST_F(ButtonView, IsPressedAndLetGo) {
    const auto clicked = ElementsAre(Notification{kApply, BN_CLICKED});
    auto& apply = Widget<QPushButton>(kApply);
    QTest::mousePress(&apply, Qt::LeftButton);
    Settle();
    EXPECT_TRUE(apply.isDown());
    EXPECT_THAT(TakeLog(), IsEmpty());
    QTest::mouseRelease(&apply, Qt::LeftButton);
    Settle();
    EXPECT_FALSE(apply.isDown());
    EXPECT_THAT(TakeLog(), clicked);
    // Let go elsewhere, it wasn't meant.
    QTest::mousePress(&apply, Qt::LeftButton);
    QTest::mouseRelease(&apply, Qt::LeftButton, {}, {-5, 5});
    Settle();
    EXPECT_THAT(TakeLog(), IsEmpty());
    apply.click();  // as a screen reader does
    Settle();
    EXPECT_THAT(TakeLog(), clicked);
    EnableWindow(Item(kApply), FALSE);
    Settle();
    EXPECT_FALSE(apply.isEnabled());
}

TEST_F(ButtonView, IsCheckedByMouseKeysLettersAndTheProgram) {
    Click(Radio(kVapor));
    EXPECT_THAT(TakeLog(), ElementsAre(Notification{kVapor, BN_CLICKED}));
    EXPECT_EQ(Checked(), ".x.");
    Press(Qt::Key_Down);
    EXPECT_EQ(Checked(), "..x");
    Press(Qt::Key_V, Qt::AltModifier);
    EXPECT_EQ(Checked(), ".x.");
    CheckRadioButton(Handle(), kLiquid, kSolid, kLiquid);
    Settle();
    EXPECT_EQ(Checked(), "x..");

    auto& check = Widget<QCheckBox>(kCheck);
    Type("c");  // without Alt too, where nothing is typed
    EXPECT_TRUE(check.isChecked());
    Press(Qt::Key_Space);
    EXPECT_FALSE(check.isChecked());
    auto& three = Widget<QCheckBox>(kThree);
    for (const auto state : {Qt::Checked, Qt::PartiallyChecked, Qt::Unchecked}) {
        Click(three);
        EXPECT_EQ(three.checkState(), state);
    }
}

TEST_F(ButtonView, DrawsTheButtonThatEnterPresses) {
    for (const int focus : {kLiquid, kApply, kLiquid}) {
        SetFocus(Item(focus));
        Settle();
        TakeLog();
        EXPECT_EQ(Widget<QPushButton>(kApply).isDefault(), focus == kApply);
        EXPECT_EQ(Widget<QPushButton>(IDOK).isDefault(), focus != kApply);
        Press(Qt::Key_Enter, Qt::KeypadModifier);
        const int pressed = focus == kApply ? kApply : IDOK;
        EXPECT_THAT(TakeLog(), ElementsAre(Notification{pressed, BN_CLICKED}));
    }
}

TEST_F(ButtonView, ShowsTextsLinesAndWhatTheProgramDraws) {
    EXPECT_EQ(Radio(kSolid).text(), QStringLiteral("S && T"));
    EXPECT_EQ(Widget<QGroupBox>(kGroup).title(), QStringLiteral("&Phase"));
    auto& label = Widget<QLabel>(kLabel);
    EXPECT_EQ(label.text(), QString::fromUtf8("RD – & more"));
    EXPECT_TRUE(label.alignment().testFlag(Qt::AlignRight));
    SetText(kLabel, "new");
    EXPECT_EQ(label.text(), QStringLiteral("new"));
    EXPECT_EQ(Widget<QFrame>(kLine).frameShape(), QFrame::HLine);

    auto& plot = Widget<QWidget>(kPlot);
    std::vector<QSize> drawn;
    View().SetPainter(Item(kPlot), [&](QPainter& painter, QSize size) {
        drawn.push_back(size);
        painter.fillRect(QRect({0, 0}, size), Qt::red);
    });
    Settle();
    InvalidateRect(Item(kPlot), nullptr, TRUE);
    Settle();
    EXPECT_THAT(drawn, ElementsAre(plot.size(), plot.size()));
    EXPECT_EQ(plot.grab().toImage().pixelColor(3, 3), QColor(Qt::red));
}

}  // namespace
