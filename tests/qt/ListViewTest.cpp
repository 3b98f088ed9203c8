#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

enum : int { kList = 101, kUnit, kSize, kLast };
constexpr auto kNone = static_cast<WPARAM>(-1);

class ListView : public testing::Test, protected ShownDialog {
  protected:
    ListView() : ShownDialog(Form()) {
        for (int i = 0; i < 500; ++i) Add(kList, LB_ADDSTRING, "row " + std::to_string(i));
        for (const char* unit : {"\xB0\x43", "\xB0\x46", "K"}) Add(kUnit, CB_ADDSTRING, unit);
        for (const char* size : {"1/2", "3/4", "1"}) Add(kSize, CB_ADDSTRING, size);
        Settle();
    }

    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Lists", WS_POPUP | WS_CAPTION, {0, 0, 200, 140});
        form.ListBox(kList, {5, 5, 80, 80}).ComboBox(kUnit, {90, 5, 80, 80});
        form.ComboBox(kSize, {90, 25, 80, 80}, CBS_DROPDOWN).Button(kLast, "", {90, 60, 50, 14});
        return form;
    }

    void Add(int id, UINT message, const std::string& text) {
        Send(id, message, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    void PressInList(Qt::Key key) {
        QTest::keyClick(unit_.view(), key);
        Settle();
    }
    /// What the widget has selected, on its own account.
    QString Shown() { return list_.selectionModel()->selectedIndexes().value(0).data().toString(); }

    QListView& list_ = Widget<QListView>(kList);
    QComboBox& unit_ = Widget<QComboBox>(kUnit);
    QComboBox& size_ = Widget<QComboBox>(kSize);
};

TEST_F(ListView, PicksTheRowThatIsClicked) {
    // Far down where the list itself has not been scrolled to.
    for (const int row : {3, 300, 499, 0}) {
        list_.scrollTo(list_.model()->index(row, 0));
        const int scrolled = list_.verticalScrollBar()->value();
        ClickRow(list_, row);
        EXPECT_THAT(TakeLog(), Contains(Notification{kList, LBN_SELCHANGE})) << row;
        EXPECT_EQ(Shown(), QStringLiteral("row %1").arg(row));
        EXPECT_EQ(list_.verticalScrollBar()->value(), scrolled) << row;
    }
    QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, {5, 5});
    Settle();
    EXPECT_THAT(TakeLog(), Contains(Notification{kList, LBN_DBLCLK}));
}

TEST_F(ListView, FollowsKeysAndTheProgram) {
    ClickRow(list_, 0);
    TakeLog();
    Press(Qt::Key_Down);
    EXPECT_THAT(TakeLog(), ElementsAre(Notification{kList, LBN_SELCHANGE}));
    EXPECT_EQ(Shown(), QStringLiteral("row 1"));
    Press(Qt::Key_End);
    EXPECT_EQ(Shown(), QStringLiteral("row 499"));
    const QRect last = list_.visualRect(list_.model()->index(499, 0));
    EXPECT_TRUE(list_.viewport()->rect().contains(last.center()));
    int resets = 0;
    QObject::connect(list_.model(), &QAbstractItemModel::modelReset, &list_, [&] { ++resets; });
    Tell(kList, LB_SETCURSEL, 250);
    EXPECT_EQ(Shown(), QStringLiteral("row 250"));
    Tell(kList, LB_SETCURSEL, kNone);
    EXPECT_EQ(Shown(), QString());
    EXPECT_EQ(resets, 0);  // the rows stay when only the selection changes
    Send(kList, LB_RESETCONTENT);
    Add(kList, LB_ADDSTRING, "\xC4thanol");
    Settle();
    EXPECT_EQ(resets, 1);  // once for all that changed
    EXPECT_EQ(list_.model()->index(0, 0).data().toString(), QString::fromUtf8("Äthanol"));
    TakeLog();
    Click(*list_.viewport(), {5, list_.viewport()->height() - 5});  // no row
    EXPECT_THAT(TakeLog(), testing::IsEmpty());
}

TEST_F(ListView, DropsDownAndPicks) {
    Click(unit_);
    EXPECT_THAT(TakeLog(),
                ElementsAre(Notification{kUnit, CBN_SETFOCUS}, Notification{kUnit, CBN_DROPDOWN}));
    ClickRow(*unit_.view(), 1);
    EXPECT_THAT(TakeLog(),
                ElementsAre(Notification{kUnit, CBN_SELENDOK}, Notification{kUnit, CBN_CLOSEUP},
                            Notification{kUnit, CBN_SELCHANGE}));
    EXPECT_FALSE(unit_.view()->isVisible());
    EXPECT_EQ(unit_.currentText(), QString::fromUtf8("°F"));
    Press(Qt::Key_Down);
    EXPECT_EQ(unit_.currentText(), QStringLiteral("K"));
    // The wheel passes over it.
    QWheelEvent wheel({5, 5}, unit_.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&unit_, &wheel);
    Settle();
    EXPECT_EQ(unit_.currentIndex(), 2);
    Tell(kUnit, CB_SETCURSEL, kNone);
    EXPECT_EQ(unit_.currentText(), QString());
}

TEST_F(ListView, IsDroppedAndClosedByKeysToo) {
    Send(kUnit, CB_SETCURSEL, 2);
    SetFocus(Item(kUnit));
    Settle();
    Press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(unit_.view()->isVisible());
    for (const auto key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Return}) PressInList(key);
    EXPECT_FALSE(unit_.view()->isVisible());
    EXPECT_EQ(unit_.currentText(), QString::fromUtf8("°C"));
    // The mouse lies on a row and Enter is pressed: it is the row that looks selected.
    Click(unit_);
    unit_.view()->setCurrentIndex(unit_.model()->index(2, 0));
    PressInList(Qt::Key_Return);
    EXPECT_EQ(unit_.currentIndex(), 2);
    // Without a pick.
    Click(unit_);
    PressInList(Qt::Key_Escape);
    EXPECT_FALSE(unit_.view()->isVisible());
    Click(unit_);
    ASSERT_TRUE(unit_.view()->isVisible());
    unit_.view()->window()->close();  // as Qt does for a click elsewhere
    Settle();
    EXPECT_EQ(Send(kUnit, CB_GETDROPPEDSTATE), FALSE);
    EXPECT_EQ(unit_.currentIndex(), 2);
}

TEST_F(ListView, LetsTypeIntoAComboBox) {
    QLineEdit& edit = *size_.lineEdit();
    Click(edit);
    Type("2.5");
    EXPECT_EQ(edit.text(), QStringLiteral("2.5"));
    Click(size_, {size_.width() - 5, size_.height() / 2});
    ASSERT_TRUE(size_.view()->isVisible());
    ClickRow(*size_.view(), 1);
    EXPECT_EQ(edit.text(), QStringLiteral("3/4"));
    SetFocus(Item(kLast));
    Settle();
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Type("12");
    EXPECT_EQ(edit.text(), QStringLiteral("123/4"));
    // Other rows leave what is typed and selected as it is.
    Send(kSize, CB_SETEDITSEL, 0, MAKELPARAM(0, 2));
    Add(kSize, CB_ADDSTRING, "2");
    Settle();
    EXPECT_EQ(size_.count(), 4);
    EXPECT_EQ(edit.selectedText(), QStringLiteral("12"));
}

}  // namespace
