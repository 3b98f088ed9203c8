#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

enum : int { kTemperature = 101, kPressure, kReadOnly, kDigits, kSecret, kLines };

class EditView : public testing::Test {
  protected:
    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Edits", WS_POPUP | WS_CAPTION, {0, 0, 200, 140});
        form.Static(-1, "&Temperature", {5, 5, 60, 8}).Edit(kTemperature, {70, 3, 60, 12});
        form.Static(-1, "P&ressure:", {5, 21, 60, 8}).Edit(kPressure, {70, 19, 60, 12}, ES_RIGHT);
        form.Edit(kReadOnly, {70, 35, 60, 12}, ES_READONLY);
        form.Edit(kDigits, {70, 51, 60, 12}, ES_NUMBER);
        form.Edit(kSecret, {70, 67, 60, 12}, ES_PASSWORD);
        form.Control("Edit", kLines, "", WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_MULTILINE,
                     {5, 83, 125, 40});
        return form;
    }

    QLineEdit& Line(int id) { return dialog_.Widget<QLineEdit>(id); }
    std::string Text(int id) { return dialog_.Model().Text(id); }
    std::pair<int, int> Selection(int id) {
        DWORD first = 0;
        DWORD last = 0;
        dialog_.Model().Send(id, EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                             reinterpret_cast<LPARAM>(&last));
        return {static_cast<int>(first), static_cast<int>(last)};
    }
    void SetText(int id, const char* text) {
        SetDlgItemTextA(dialog_.Handle(), id, text);
        dialog_.Settle();
        dialog_.Model().TakeLog();
    }
    /// A place of which the widget says that it is before a character.
    static QPoint At(QLineEdit& edit, int character) {
        QPoint at(0, edit.height() / 2);
        while (at.x() < edit.width() && edit.cursorPositionAt(at) != character) at.rx() += 1;
        return at;
    }

    ShownDialog dialog_{Form()};
};

TEST_F(EditView, TakesWhatIsTyped) {
    dialog_.Click(Line(kTemperature));
    EXPECT_EQ(GetFocus(), dialog_.Item(kTemperature));
    EXPECT_TRUE(Line(kTemperature).hasFocus());
    dialog_.Model().TakeLog();
    dialog_.Type("12");
    EXPECT_THAT(
        dialog_.Model().TakeLog(),
        ElementsAre(Notification{kTemperature, EN_UPDATE}, Notification{kTemperature, EN_CHANGE},
                    Notification{kTemperature, EN_UPDATE}, Notification{kTemperature, EN_CHANGE}));
    dialog_.Press(Qt::Key_Home);
    dialog_.Press(Qt::Key_Delete);
    dialog_.Type("-");
    dialog_.Press(Qt::Key_End);
    dialog_.Type(",5x");
    dialog_.Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(kTemperature), "-2,5");
    EXPECT_EQ(Line(kTemperature).text(), QStringLiteral("-2,5"));
    EXPECT_EQ(Line(kTemperature).cursorPosition(), 4);
}

TEST_F(EditView, GivesEachKeyToTheControlThatHasTheFocusByThen) {
    dialog_.Click(Line(kTemperature));
    // All of it is typed before the first key is handled.
    QTest::keyClicks(&Line(kTemperature), QStringLiteral("20"));
    QTest::keyClick(&Line(kTemperature), Qt::Key_Tab);
    QTest::keyClicks(&Line(kTemperature), QStringLiteral("1.5"));
    QTest::keyClick(&Line(kTemperature), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClicks(&Line(kTemperature), QStringLiteral("30"));
    dialog_.Settle();
    EXPECT_EQ(Text(kTemperature), "30");  // Tab had selected all of it
    EXPECT_EQ(Text(kPressure), "1.5");
    EXPECT_EQ(&dialog_.Focus(), &Line(kTemperature));
}

TEST_F(EditView, ShowsWindows1252AsUnicodeAndTakesItBack) {
    SetText(kTemperature, "\x80 \x84\xC4\x93 \xB0");
    EXPECT_EQ(Line(kTemperature).text(), QString::fromUtf8("€ „Ä“ °"));
    dialog_.Click(Line(kPressure));
    dialog_.Type("\xC3\xA4");
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("é€я–"));  // there is no Cyrillic in it
    QApplication::sendEvent(&Line(kPressure), &composed);
    dialog_.Settle();
    EXPECT_EQ(Text(kPressure), "\xE4\xE9\x80\x96");
    EXPECT_EQ(Line(kPressure).text(), QString::fromUtf8("äé€–"));
}

TEST_F(EditView, PutsTheCaretWhereTheMouseSays) {
    SetText(kTemperature, "123456");
    dialog_.Click(Line(kTemperature), At(Line(kTemperature), 2));
    EXPECT_EQ(Selection(kTemperature), std::pair(2, 2));
    // A drag back from the fifth to the second character; what is typed takes its place.
    QTest::mousePress(&Line(kTemperature), Qt::LeftButton, {}, At(Line(kTemperature), 5));
    QMouseEvent move(QEvent::MouseMove, At(Line(kTemperature), 1),
                     Line(kTemperature).mapToGlobal(At(Line(kTemperature), 1)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&Line(kTemperature), &move);
    QTest::mouseRelease(&Line(kTemperature), Qt::LeftButton, {}, At(Line(kTemperature), 1));
    dialog_.Settle();
    EXPECT_EQ(Selection(kTemperature), std::pair(1, 5));
    EXPECT_EQ(Line(kTemperature).selectedText(), QStringLiteral("2345"));
    dialog_.Press(Qt::Key_Left, Qt::ShiftModifier);  // the caret was at the left end
    EXPECT_EQ(Selection(kTemperature), std::pair(0, 5));
    EXPECT_EQ(Line(kTemperature).cursorPosition(), 0);
    dialog_.Type("9");
    EXPECT_EQ(Text(kTemperature), "96");
    SetText(kTemperature, "12 345");
    QTest::mouseDClick(&Line(kTemperature), Qt::LeftButton, {}, At(Line(kTemperature), 4));
    dialog_.Settle();
    EXPECT_EQ(Selection(kTemperature), std::pair(3, 6));
}

TEST_F(EditView, CopiesCutsAndPastes) {
    QClipboard& clipboard = *QApplication::clipboard();
    SetText(kTemperature,
            "12.5 \xB0"
            "C");
    dialog_.Click(Line(kTemperature));
    dialog_.Press(Qt::Key_A, Qt::ControlModifier);
    dialog_.Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text(), QString::fromUtf8("12.5 °C"));
    dialog_.Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "");
    clipboard.setText(QString::fromUtf8("3я7\nnext line"));
    dialog_.Model().TakeLog();
    dialog_.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "37");
    EXPECT_THAT(dialog_.Model().TakeLog(), ElementsAre(Notification{kTemperature, EN_UPDATE},
                                                       Notification{kTemperature, EN_CHANGE}));
    dialog_.Press(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(Text(kTemperature), "3737");
    // What must not get in, or out.
    SetText(kReadOnly, "read");
    SetText(kSecret, "secret");
    for (const int id : {kReadOnly, kDigits, kSecret}) {
        const std::string before = Text(id);
        clipboard.setText(QStringLiteral("1.5"));
        dialog_.Click(Line(id));
        dialog_.Press(Qt::Key_A, Qt::ControlModifier);
        if (id != kSecret) dialog_.Press(Qt::Key_V, Qt::ControlModifier);
        if (id != kDigits) dialog_.Press(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(Text(id), before) << id;
        EXPECT_EQ(clipboard.text(), QStringLiteral("1.5")) << id;
    }
}

TEST_F(EditView, HasAMenu) {
    SetText(kTemperature, "12");
    SetText(kReadOnly, "34");
    const auto choose = [&](int id, const char* text) {
        const QPoint at(3, 3);
        QContextMenuEvent open(QContextMenuEvent::Mouse, at, Line(id).mapToGlobal(at));
        QApplication::sendEvent(&Line(id), &open);
        dialog_.Settle();
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return false;
        for (QAction* action : menu->actions()) {
            if (action->text() == QLatin1String(text) && action->isEnabled()) action->trigger();
        }
        menu->close();
        dialog_.Settle();
        return true;
    };
    ASSERT_TRUE(choose(kReadOnly, "Select All"));
    EXPECT_EQ(GetFocus(), dialog_.Item(kReadOnly));
    EXPECT_EQ(Line(kReadOnly).selectedText(), QStringLiteral("34"));
    ASSERT_TRUE(choose(kReadOnly, "&Copy"));
    ASSERT_TRUE(choose(kReadOnly, "Cu&t"));
    EXPECT_EQ(Text(kReadOnly), "34");
    ASSERT_TRUE(choose(kTemperature, "&Paste"));
    EXPECT_EQ(Text(kTemperature), "3412");
    EnableWindow(dialog_.Item(kTemperature), FALSE);
    dialog_.Settle();
    EXPECT_FALSE(choose(kTemperature, "&Paste"));
    EXPECT_EQ(Text(kTemperature), "3412");
}

TEST_F(EditView, MovesByWords) {
    SetText(kTemperature, "one two three");
    dialog_.Click(Line(kTemperature));
    dialog_.Press(Qt::Key_End);
    dialog_.Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(Selection(kTemperature), std::pair(8, 8));
    dialog_.Press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Selection(kTemperature), std::pair(4, 8));
    dialog_.Press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "one three");
    dialog_.Press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "three");
}

TEST_F(EditView, LooksAsItsStyleSays) {
    EXPECT_TRUE(Line(kPressure).alignment().testFlag(Qt::AlignRight));
    EXPECT_EQ(Line(kSecret).echoMode(), QLineEdit::Password);
    dialog_.Click(Line(kDigits));
    dialog_.Type("1a2");
    EXPECT_EQ(Line(kDigits).text(), QStringLiteral("12"));
    dialog_.Click(Line(kReadOnly));
    dialog_.Type("1");
    EXPECT_EQ(Text(kReadOnly), "");
    const QColor ground = Line(kReadOnly).palette().color(QPalette::Base);
    EXPECT_NE(ground, Line(kPressure).palette().color(QPalette::Base));
    dialog_.Model().Send(kReadOnly, EM_SETREADONLY, FALSE);
    dialog_.Settle();
    dialog_.Type("1");
    EXPECT_EQ(Line(kReadOnly).text(), QStringLiteral("1"));
    EXPECT_EQ(Line(kReadOnly).palette().color(QPalette::Base),
              Line(kPressure).palette().color(QPalette::Base));
}

TEST_F(EditView, TakesNothingWhileItIsDisabledOrHidden) {
    for (const bool hidden : {false, true}) {
        dialog_.Click(Line(kPressure));
        if (hidden) {
            ShowWindow(dialog_.Item(kTemperature), SW_HIDE);
        } else {
            EnableWindow(dialog_.Item(kTemperature), FALSE);
        }
        dialog_.Settle();
        EXPECT_EQ(Line(kTemperature).isEnabled(), hidden);
        EXPECT_EQ(Line(kTemperature).isVisible(), !hidden);
        dialog_.Model().TakeLog();
        dialog_.Click(Line(kTemperature));
        QTest::keyClicks(&Line(kTemperature), QStringLiteral("1"));
        dialog_.Settle();
        EXPECT_EQ(GetFocus(), dialog_.Item(kPressure));
        EXPECT_EQ(Text(kTemperature), "");
        EnableWindow(dialog_.Item(kTemperature), TRUE);
    }
    // A key that was on its way to a control that is disabled by the one before.
    dialog_.Model().Forward([&](int id, int code) {
        if (id == kPressure && code == EN_CHANGE) EnableWindow(dialog_.Item(kPressure), FALSE);
    });
    const std::string before = Text(kPressure);
    QTest::keyClicks(&Line(kPressure), QStringLiteral("12"));
    dialog_.Settle();
    EXPECT_EQ(Text(kPressure), before + "1");
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST_F(EditView, IsNamedByTheTextBeforeIt) {
    EXPECT_EQ(Line(kTemperature).accessibleName(), QStringLiteral("Temperature"));
    EXPECT_EQ(Line(kPressure).accessibleName(), QStringLiteral("Pressure:"));
    EXPECT_EQ(Line(kReadOnly).accessibleName(), QString());
    dialog_.Click(Line(kDigits));
    dialog_.Press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(GetFocus(), dialog_.Item(kPressure));
    EXPECT_TRUE(Line(kPressure).hasFocus());
}

TEST_F(EditView, HasSeveralLines) {
    auto& lines = dialog_.Widget<QPlainTextEdit>(kLines);
    SetText(kLines, "first\r\nsecond");
    EXPECT_EQ(lines.toPlainText(), QStringLiteral("first\nsecond"));
    dialog_.Click(*lines.viewport(), lines.cursorRect().center());
    EXPECT_EQ(GetFocus(), dialog_.Item(kLines));
    dialog_.Press(Qt::Key_End);
    EXPECT_EQ(Selection(kLines), std::pair(5, 5));
    dialog_.Press(Qt::Key_Right);
    EXPECT_EQ(Selection(kLines), std::pair(7, 7));  // over both characters of the line's end
    dialog_.Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(kLines), "firstsecond");
    dialog_.Press(Qt::Key_Return);  // there is no default button, and no wish for lines
    EXPECT_EQ(Text(kLines), "firstsecond");
    dialog_.Type("\xC3\xA4");
    EXPECT_EQ(lines.toPlainText(), QString::fromUtf8("firstäsecond"));
    dialog_.Model().TakeLog();
    dialog_.Press(Qt::Key_Escape);
    EXPECT_THAT(dialog_.Model().TakeLog(), Contains(Notification{IDCANCEL, BN_CLICKED}));
    dialog_.Press(Qt::Key_Tab);
    EXPECT_EQ(GetFocus(), dialog_.Item(kTemperature));
}

}  // namespace
