#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

enum : int { kLiquid = 101, kVapor, kSolid, kCheck, kThree, kApply, kGroup, kLabel, kPlot, kLine };

class ButtonView : public testing::Test {
  protected:
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
        form.Button(IDCANCEL, "Cancel", {115, 95, 50, 14});
        form.Static(kLabel, "R&D \x96 && more", {110, 5, 80, 8}, SS_RIGHT);
        form.Static(kPlot, "", {110, 15, 40, 40}, SS_OWNERDRAW);
        form.Static(kLine, "", {5, 115, 180, 1}, SS_ETCHEDHORZ);
        return form;
    }

    QRadioButton& Radio(int id) { return dialog_.Widget<QRadioButton>(id); }
    QPushButton& Push(int id) { return dialog_.Widget<QPushButton>(id); }
    /// What the widgets of the radio buttons show.
    std::string Checked() {
        std::string checked;
        for (const int id : {kLiquid, kVapor, kSolid}) checked += Radio(id).isChecked() ? 'x' : '.';
        return checked;
    }
    std::vector<Notification> Log() { return dialog_.Model().TakeLog(); }

    ShownDialog dialog_{Form()};
};

TEST_F(ButtonView, IsPressedAndLetGo) {
    QTest::mousePress(&Push(kApply), Qt::LeftButton);
    dialog_.Settle();
    EXPECT_TRUE(Push(kApply).isDown());
    EXPECT_THAT(Log(), IsEmpty());
    QTest::mouseRelease(&Push(kApply), Qt::LeftButton);
    dialog_.Settle();
    EXPECT_FALSE(Push(kApply).isDown());
    EXPECT_TRUE(Push(kApply).hasFocus());
    EXPECT_THAT(Log(), ElementsAre(Notification{kApply, BN_CLICKED}));
    // Let go elsewhere, it wasn't meant.
    QTest::mousePress(&Push(kApply), Qt::LeftButton);
    QTest::mouseRelease(&Push(kApply), Qt::LeftButton, {}, {-5, 5});
    dialog_.Settle();
    EXPECT_THAT(Log(), IsEmpty());
    dialog_.Press(Qt::Key_Space);
    EXPECT_THAT(Log(), ElementsAre(Notification{kApply, BN_CLICKED}));
    Push(kApply).click();  // as a screen reader does
    dialog_.Settle();
    EXPECT_THAT(Log(), ElementsAre(Notification{kApply, BN_CLICKED}));
    EnableWindow(dialog_.Item(kApply), FALSE);
    dialog_.Settle();
    EXPECT_FALSE(Push(kApply).isEnabled());
    dialog_.Click(Push(kApply));
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(ButtonView, ChecksOneRadioButtonOfAGroup) {
    dialog_.Click(Radio(kVapor));
    EXPECT_THAT(Log(), ElementsAre(Notification{kVapor, BN_CLICKED}));
    EXPECT_EQ(Checked(), ".x.");
    dialog_.Press(Qt::Key_Down);
    EXPECT_EQ(Checked(), "..x");
    EXPECT_TRUE(Radio(kSolid).hasFocus());
    dialog_.Press(Qt::Key_Right);
    EXPECT_EQ(Checked(), "x..");
    dialog_.Press(Qt::Key_Up);
    EXPECT_EQ(Checked(), "..x");
    dialog_.Press(Qt::Key_Tab);
    EXPECT_TRUE(dialog_.Widget<QCheckBox>(kCheck).hasFocus());
    dialog_.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(Radio(kSolid).hasFocus());
    CheckRadioButton(dialog_.Handle(), kLiquid, kSolid, kLiquid);
    dialog_.Settle();
    EXPECT_EQ(Checked(), "x..");
    EXPECT_EQ(IsDlgButtonChecked(dialog_.Handle(), kLiquid), BST_CHECKED);
}

TEST_F(ButtonView, ShowsTwoAndThreeStates) {
    auto& check = dialog_.Widget<QCheckBox>(kCheck);
    dialog_.Click(check);
    EXPECT_TRUE(check.isChecked());
    dialog_.Press(Qt::Key_Space);
    EXPECT_FALSE(check.isChecked());
    auto& three = dialog_.Widget<QCheckBox>(kThree);
    for (const auto state : {Qt::Checked, Qt::PartiallyChecked, Qt::Unchecked}) {
        dialog_.Click(three);
        EXPECT_EQ(three.checkState(), state);
    }
}

TEST_F(ButtonView, IsReachedByItsLetter) {
    dialog_.Press(Qt::Key_V, Qt::AltModifier);
    EXPECT_EQ(Checked(), ".x.");
    dialog_.Type("c");  // without Alt too, where nothing is typed
    EXPECT_TRUE(dialog_.Widget<QCheckBox>(kCheck).isChecked());
    EXPECT_TRUE(dialog_.Widget<QCheckBox>(kCheck).hasFocus());
}

TEST_F(ButtonView, DrawsTheButtonThatEnterPresses) {
    const auto defaults = [this] {
        return std::array{Push(kApply).isDefault(), Push(IDOK).isDefault()};
    };
    dialog_.Click(Radio(kLiquid));
    Log();
    EXPECT_THAT(defaults(), ElementsAre(false, true));
    dialog_.Press(Qt::Key_Return);
    EXPECT_THAT(Log(), ElementsAre(Notification{IDOK, BN_CLICKED}));
    SetFocus(dialog_.Item(kApply));
    dialog_.Settle();
    EXPECT_THAT(defaults(), ElementsAre(true, false));
    dialog_.Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_THAT(Log(), ElementsAre(Notification{kApply, BN_CLICKED}));
    SetFocus(dialog_.Item(kLiquid));
    dialog_.Settle();
    EXPECT_THAT(defaults(), ElementsAre(false, true));
    dialog_.Press(Qt::Key_Escape);
    EXPECT_THAT(Log(), ElementsAre(Notification{IDCANCEL, BN_CLICKED}));
}

TEST_F(ButtonView, ShowsTextsAndLines) {
    EXPECT_EQ(Radio(kSolid).text(), QStringLiteral("S && T"));
    EXPECT_EQ(dialog_.Widget<QGroupBox>(kGroup).title(), QStringLiteral("&Phase"));
    auto& label = dialog_.Widget<QLabel>(kLabel);
    EXPECT_EQ(label.text(), QString::fromUtf8("RD – & more"));
    EXPECT_TRUE(label.alignment().testFlag(Qt::AlignRight));
    SetDlgItemTextA(dialog_.Handle(), kLabel,
                    "50 \xB0"
                    "C");
    dialog_.Settle();
    EXPECT_EQ(label.text(), QString::fromUtf8("50 °C"));
    EXPECT_EQ(dialog_.Widget<QFrame>(kLine).frameShape(), QFrame::HLine);
}

TEST_F(ButtonView, LetsTheProgramDraw) {
    QColor color = Qt::red;
    QSize drawn;
    dialog_.View().SetPainter(dialog_.Item(kPlot), [&](QPainter& painter, QSize size) {
        drawn = size;
        painter.fillRect(QRect({0, 0}, size), color);
    });
    dialog_.Settle();
    QWidget& plot = dialog_.Widget<QWidget>(kPlot);
    EXPECT_EQ(plot.grab().toImage().pixelColor(3, 3), color);
    EXPECT_EQ(drawn, plot.size());
    color = Qt::blue;
    drawn = {};
    InvalidateRect(dialog_.Item(kPlot), nullptr, TRUE);
    dialog_.Settle();
    EXPECT_EQ(drawn, plot.size());
    EXPECT_EQ(plot.grab().toImage().pixelColor(3, 3), color);
}

}  // namespace
