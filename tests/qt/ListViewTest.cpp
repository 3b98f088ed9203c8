#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum : int { kList = 101, kUnit, kSize, kLast };
constexpr int kRows = 500;

class ListView : public testing::Test {
  protected:
    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Lists", WS_POPUP | WS_CAPTION, {0, 0, 200, 140});
        form.ListBox(kList, {5, 5, 80, 80}).ComboBox(kUnit, {90, 5, 80, 80});
        form.ComboBox(kSize, {90, 25, 80, 80}, CBS_DROPDOWN)
            .Button(kLast, "Last", {90, 60, 50, 14});
        return form;
    }

    ListView() {
        for (int i = 0; i < kRows; ++i) Add(kList, LB_ADDSTRING, "row " + std::to_string(i));
        for (const char* unit : {"\xB0"
                                 "C",
                                 "\xB0"
                                 "F",
                                 "K"})
            Add(kUnit, CB_ADDSTRING, unit);
        for (const char* size : {"1/2", "3/4", "1"}) Add(kSize, CB_ADDSTRING, size);
        dialog_.Settle();
    }
    void Add(int id, UINT message, const std::string& text) {
        dialog_.Model().Send(id, message, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }

    QListView& List() { return dialog_.Widget<QListView>(kList); }
    QComboBox& Combo(int id) { return dialog_.Widget<QComboBox>(id); }
    LRESULT Selected(int id) {
        return dialog_.Model().Send(id, id == kList ? LB_GETCURSEL : CB_GETCURSEL);
    }
    /// What the widget has selected, on its own account.
    QString Shown() {
        const QModelIndexList rows = List().selectionModel()->selectedIndexes();
        return rows.isEmpty() ? QString() : rows.first().data().toString();
    }
    void ClickRow(QAbstractItemView& view, int row) {
        view.scrollTo(view.model()->index(row, 0));
        dialog_.Click(*view.viewport(), view.visualRect(view.model()->index(row, 0)).center());
    }
    std::vector<Notification> Log() { return dialog_.Model().TakeLog(); }

    ShownDialog dialog_{Form()};
};

TEST_F(ListView, PicksTheRowThatIsClicked) {
    EXPECT_EQ(List().model()->rowCount(), kRows);
    // Far down where the list itself has not been scrolled to.
    for (const int row : {3, 300, 499, 0}) {
        List().scrollTo(List().model()->index(row, 0));
        const int scrolled = List().verticalScrollBar()->value();
        ClickRow(List(), row);
        EXPECT_THAT(Log(), testing::Contains(Notification{kList, LBN_SELCHANGE})) << row;
        EXPECT_EQ(Selected(kList), row);
        EXPECT_EQ(Shown(), QStringLiteral("row %1").arg(row));
        EXPECT_EQ(List().verticalScrollBar()->value(), scrolled) << row;
    }
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, {5, 5});
    dialog_.Settle();
    EXPECT_THAT(Log(), testing::Contains(Notification{kList, LBN_DBLCLK}));
}

TEST_F(ListView, FollowsKeysAndTheProgram) {
    ClickRow(List(), 0);
    Log();
    dialog_.Press(Qt::Key_Down);
    EXPECT_THAT(Log(), ElementsAre(Notification{kList, LBN_SELCHANGE}));
    EXPECT_EQ(Shown(), QStringLiteral("row 1"));
    dialog_.Press(Qt::Key_End);
    EXPECT_EQ(Shown(), QStringLiteral("row 499"));
    const QRect last = List().visualRect(List().model()->index(499, 0));
    EXPECT_TRUE(List().viewport()->rect().contains(last.center()));
    dialog_.Model().Send(kList, LB_SETCURSEL, 250);
    dialog_.Settle();
    EXPECT_EQ(Shown(), QStringLiteral("row 250"));
    dialog_.Model().Send(kList, LB_SETCURSEL, static_cast<WPARAM>(-1));
    dialog_.Settle();
    EXPECT_EQ(Shown(), QString());
    dialog_.Model().Send(kList, LB_RESETCONTENT);
    Add(kList, LB_ADDSTRING, "\xC4thanol");
    dialog_.Settle();
    EXPECT_EQ(List().model()->rowCount(), 1);
    EXPECT_EQ(List().model()->index(0, 0).data().toString(), QString::fromUtf8("Äthanol"));
    Log();
    dialog_.Click(*List().viewport(), {5, List().viewport()->height() - 5});  // no row
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_EQ(GetFocus(), dialog_.Item(kList));
}

TEST_F(ListView, KeepsItsRowsWhenOnlyTheSelectionChanges) {
    int resets = 0;
    QObject::connect(List().model(), &QAbstractItemModel::modelReset, &List(), [&] { ++resets; });
    for (int row = 0; row < 20; ++row) {
        dialog_.Model().Send(kList, LB_SETCURSEL, static_cast<WPARAM>(row));
        dialog_.Settle();
    }
    EXPECT_EQ(resets, 0);
    Add(kList, LB_ADDSTRING, "one more");
    Add(kList, LB_ADDSTRING, "and one");
    dialog_.Settle();
    EXPECT_EQ(resets, 1);  // once for all that changed
}

TEST_F(ListView, DropsDownAndPicks) {
    QComboBox& combo = Combo(kUnit);
    dialog_.Click(combo);
    EXPECT_THAT(Log(),
                ElementsAre(Notification{kUnit, CBN_SETFOCUS}, Notification{kUnit, CBN_DROPDOWN}));
    EXPECT_TRUE(combo.view()->isVisible());
    ClickRow(*combo.view(), 1);
    EXPECT_THAT(Log(),
                ElementsAre(Notification{kUnit, CBN_SELENDOK}, Notification{kUnit, CBN_CLOSEUP},
                            Notification{kUnit, CBN_SELCHANGE}));
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_EQ(combo.currentText(), QString::fromUtf8("°F"));
    EXPECT_EQ(Selected(kUnit), 1);
    dialog_.Press(Qt::Key_Down);
    EXPECT_EQ(combo.currentText(), QStringLiteral("K"));
    dialog_.Model().Send(kUnit, CB_SETCURSEL, static_cast<WPARAM>(-1));
    dialog_.Settle();
    EXPECT_EQ(combo.currentText(), QString());
    // The wheel passes over it.
    QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
    dialog_.Settle();
    EXPECT_EQ(Selected(kUnit), -1);
    EXPECT_EQ(combo.currentIndex(), -1);
}

TEST_F(ListView, ClosesWithoutAPick) {
    QComboBox& combo = Combo(kUnit);
    dialog_.Model().Send(kUnit, CB_SETCURSEL, 2);
    for (const bool byKey : {true, false}) {
        dialog_.Click(combo);
        ASSERT_TRUE(combo.view()->isVisible());
        if (byKey) {
            QTest::keyClick(combo.view(), Qt::Key_Escape);
        } else {
            combo.view()->window()->close();  // as Qt does for a click elsewhere
        }
        dialog_.Settle();
        EXPECT_FALSE(combo.view()->isVisible()) << byKey;
        EXPECT_EQ(dialog_.Model().Send(kUnit, CB_GETDROPPEDSTATE), FALSE) << byKey;
        EXPECT_EQ(Selected(kUnit), 2);
    }
    // By the keyboard alone: open, two rows up, take it.
    Log();
    dialog_.Press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(combo.view()->isVisible());
    for (const auto key : {Qt::Key_Up, Qt::Key_Up}) {
        QTest::keyClick(combo.view(), key);
        dialog_.Settle();
    }
    EXPECT_EQ(combo.view()->currentIndex().row(), 0);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    dialog_.Settle();
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_EQ(combo.currentText(), QString::fromUtf8("°C"));
    // The mouse lies on a row and Enter is pressed: it is the row that looks selected.
    dialog_.Click(combo);
    combo.view()->setCurrentIndex(combo.model()->index(2, 0));
    QTest::keyClick(combo.view(), Qt::Key_Return);
    dialog_.Settle();
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_EQ(Selected(kUnit), 2);
}

TEST_F(ListView, LetsTypeIntoAComboBox) {
    QComboBox& combo = Combo(kSize);
    ASSERT_TRUE(combo.isEditable());
    dialog_.Click(*combo.lineEdit());
    dialog_.Type("2.5");
    EXPECT_EQ(dialog_.Model().Text(kSize), "2.5");
    EXPECT_EQ(combo.lineEdit()->text(), QStringLiteral("2.5"));
    dialog_.Click(combo, {combo.width() - 5, combo.height() / 2});
    ASSERT_TRUE(combo.view()->isVisible());
    ClickRow(*combo.view(), 1);
    EXPECT_EQ(combo.lineEdit()->text(), QStringLiteral("3/4"));
    EXPECT_EQ(dialog_.Model().Text(kSize), "3/4");
    SetFocus(dialog_.Item(kLast));
    dialog_.Settle();
    dialog_.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    dialog_.Press(Qt::Key_Backspace);
    dialog_.Type("1");
    EXPECT_EQ(dialog_.Model().Text(kSize).substr(0, 1), "1");
    SetDlgItemTextA(dialog_.Handle(), kSize, "6");
    dialog_.Settle();
    EXPECT_EQ(combo.lineEdit()->text(), QStringLiteral("6"));
    // Other rows leave what is typed and selected as it is.
    dialog_.Type("12");
    dialog_.Model().Send(kSize, CB_SETEDITSEL, 0, MAKELPARAM(0, 2));
    Add(kSize, CB_ADDSTRING, "2");
    dialog_.Settle();
    EXPECT_EQ(combo.count(), 4);
    EXPECT_EQ(combo.lineEdit()->selectedText(), QStringLiteral("12"));
    EXPECT_EQ(dialog_.Model().Send(kSize, CB_GETEDITSEL), MAKELPARAM(0, 2));
}

}  // namespace
