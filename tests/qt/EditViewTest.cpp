#include <gmock/gmock.h>

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

using testing::ElementsAre;

enum : int { kTemperature = 101, kPressure, kReadOnly, kDigits, kSecret, kLines };

class EditView : public testing::Test, protected ShownDialog {
  protected:
    EditView() : ShownDialog(Form()) {}

    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Edits", WS_POPUP | WS_CAPTION, {0, 0, 200, 140});
        form.Static(-1, "&Temperature", {5, 5, 60, 8}).Edit(kTemperature, {70, 3, 60, 12});
        form.Static(-1, "P&ressure:", {5, 21, 60, 8}).Edit(kPressure, {70, 19, 60, 12}, ES_RIGHT);
        form.Edit(kReadOnly, {70, 35, 60, 12}, ES_READONLY)
            .Edit(kSecret, {70, 67, 60, 12}, ES_PASSWORD);
        form.Edit(kDigits, {70, 51, 60, 12}, ES_NUMBER)
            .Edit(kLines, {5, 83, 125, 40}, ES_MULTILINE);
        return form;
    }

    QLineEdit& Line(int id) { return Widget<QLineEdit>(id); }
    /// A place of which the widget says that it is before a character.
    static QPoint At(QLineEdit& edit, int character) {
        QPoint at(0, edit.height() / 2);
        while (at.x() < edit.width() && edit.cursorPositionAt(at) != character) at.rx() += 1;
        return at;
    }

    QLineEdit& temperature_ = Line(kTemperature);
    QLineEdit& pressure_ = Line(kPressure);
    QClipboard& clipboard_ = *QApplication::clipboard();
};

TEST_F(EditView, TakesWhatIsTyped) {
    Click(temperature_);
    TakeLog();
    Type("1");
    EXPECT_THAT(TakeLog(), ElementsAre(Notification{kTemperature, EN_UPDATE},
                                       Notification{kTemperature, EN_CHANGE}));
    Type("2");
    Press(Qt::Key_Home);
    Press(Qt::Key_Delete);
    Type("-");
    Press(Qt::Key_End);
    Type(",5x");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(temperature_.text(), QStringLiteral("-2,5"));
    EXPECT_EQ(temperature_.cursorPosition(), 4);
}

TEST_F(EditView, GivesEachKeyToTheControlThatHasTheFocusByThen) {
    Click(temperature_);
    // All of it is typed before the first key is handled.
    QTest::keyClicks(&temperature_, QStringLiteral("20"));
    QTest::keyClick(&temperature_, Qt::Key_Tab);
    QTest::keyClicks(&temperature_, QStringLiteral("1.5"));
    QTest::keyClick(&temperature_, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClicks(&temperature_, QStringLiteral("30"));
    Settle();
    EXPECT_EQ(Text(kTemperature), "30");  // Tab had selected all of it
    EXPECT_EQ(Text(kPressure), "1.5");
    EXPECT_EQ(&Focus(), &temperature_);
}

TEST_F(EditView, ShowsWindows1252AsUnicodeAndTakesItBack) {
    SetText(kTemperature, "\x80 \x84\xC4\x93 \xB0");
    EXPECT_EQ(temperature_.text(), QString::fromUtf8("€ „Ä“ °"));
    Click(pressure_);
    Type("\xC3\xA4");
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("é€я–"));  // there is no Cyrillic in it
    QApplication::sendEvent(&pressure_, &composed);
    Settle();
    EXPECT_EQ(Text(kPressure), "\xE4\xE9\x80\x96");
    EXPECT_EQ(pressure_.text(), QString::fromUtf8("äé€–"));
}

TEST_F(EditView, PutsTheCaretWhereTheMouseSays) {
    SetText(kTemperature, "13456");
    Click(temperature_, At(temperature_, 1));
    Type("2");
    EXPECT_EQ(Text(kTemperature), "123456");
    // A drag back from the fifth to the second character; what is typed takes its place.
    const QPoint end = At(temperature_, 1);
    QTest::mousePress(&temperature_, Qt::LeftButton, {}, At(temperature_, 5));
    QMouseEvent move(QEvent::MouseMove, end, temperature_.mapToGlobal(end), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&temperature_, &move);
    QTest::mouseRelease(&temperature_, Qt::LeftButton, {}, end);
    Settle();
    EXPECT_EQ(temperature_.selectedText(), QStringLiteral("2345"));
    Press(Qt::Key_Left, Qt::ShiftModifier);  // the caret was at the left end
    EXPECT_EQ(temperature_.selectedText(), QStringLiteral("12345"));
    EXPECT_EQ(temperature_.cursorPosition(), 0);
    Type("9");
    EXPECT_EQ(Text(kTemperature), "96");
}

TEST_F(EditView, CopiesCutsAndPastes) {
    SetText(kTemperature, "12 \xB0");
    Click(temperature_);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard_.text(), QString::fromUtf8("12 °"));
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "");
    clipboard_.setText(QString::fromUtf8("3я7\nnext line"));
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "37");
    Press(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(Text(kTemperature), "3737");
    // What must not get in, or out.
    SetText(kReadOnly, "read");
    SetText(kSecret, "secret");
    clipboard_.setText(QStringLiteral("1.5"));
    for (const int id : {kReadOnly, kDigits, kSecret}) {
        const std::string before = Text(id);
        Click(Line(id));
        Press(Qt::Key_A, Qt::ControlModifier);
        if (id != kSecret) Press(Qt::Key_V, Qt::ControlModifier);
        if (id == kSecret) Press(Qt::Key_C, Qt::ControlModifier);
        if (id != kDigits) Press(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(Text(id), before) << id;
        EXPECT_EQ(clipboard_.text(), QStringLiteral("1.5")) << id;
    }
}

TEST_F(EditView, HasAMenu) {
    SetText(kTemperature, "12");
    SetText(kReadOnly, "34");
    const auto choose = [&](int id, const char* text) {
        QContextMenuEvent open(QContextMenuEvent::Mouse, {3, 3}, {3, 3});
        QApplication::sendEvent(&Line(id), &open);
        Settle();
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return false;
        for (QAction* action : menu->actions()) {
            if (action->text() == QLatin1String(text) && action->isEnabled()) action->trigger();
        }
        menu->close();
        Settle();
        return true;
    };
    ASSERT_TRUE(choose(kReadOnly, "Select All"));
    EXPECT_EQ(GetFocus(), Item(kReadOnly));
    EXPECT_EQ(Line(kReadOnly).selectedText(), QStringLiteral("34"));
    for (const char* text : {"&Copy", "Cu&t"}) ASSERT_TRUE(choose(kReadOnly, text));
    EXPECT_EQ(Text(kReadOnly), "34");
    ASSERT_TRUE(choose(kTemperature, "&Paste"));
    EXPECT_EQ(Text(kTemperature), "3412");
}

TEST_F(EditView, MovesByWords) {
    SetText(kTemperature, "one two three");
    Click(temperature_);
    Press(Qt::Key_End);
    Press(Qt::Key_Left, Qt::ControlModifier);
    Press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(temperature_.selectedText(), QStringLiteral("two "));
    Press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "one three");
    Press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(Text(kTemperature), "three");
}

TEST_F(EditView, LooksAsItsStyleSaysAndIsNamedByTheTextBeforeIt) {
    EXPECT_TRUE(pressure_.alignment().testFlag(Qt::AlignRight));
    EXPECT_EQ(Line(kSecret).echoMode(), QLineEdit::Password);
    const auto ground = [](const QLineEdit& edit) { return edit.palette().color(QPalette::Base); };
    EXPECT_NE(ground(Line(kReadOnly)), ground(pressure_));
    Tell(kReadOnly, EM_SETREADONLY, FALSE);
    EXPECT_FALSE(Line(kReadOnly).isReadOnly());
    EXPECT_EQ(ground(Line(kReadOnly)), ground(pressure_));
    EXPECT_EQ(temperature_.accessibleName(), QStringLiteral("Temperature"));
    Click(Line(kDigits));
    Press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(GetFocus(), Item(kPressure));
}

TEST_F(EditView, TakesNothingWhileItIsDisabled) {
    // A key is on its way when the one before has the control disabled.
    Forward([&](int, int code) {
        if (code == EN_CHANGE) EnableWindow(Item(kPressure), FALSE);
    });
    Click(pressure_);
    QTest::keyClicks(&pressure_, QStringLiteral("12"));
    Settle();
    EXPECT_EQ(pressure_.text(), QStringLiteral("1"));
    EXPECT_FALSE(pressure_.isEnabled());
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST_F(EditView, HasSeveralLines) {
    auto& lines = Widget<QPlainTextEdit>(kLines);
    SetText(kLines, "first\r\nsecond");
    EXPECT_EQ(lines.toPlainText(), QStringLiteral("first\nsecond"));
    Click(*lines.viewport(), lines.cursorRect().center());
    Press(Qt::Key_End);
    Press(Qt::Key_Right);  // over both characters of the line's end
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(kLines), "firstsecond");
    Press(Qt::Key_Return);  // there is no default button, and no wish for lines
    Type("\xC3\xA4");
    EXPECT_EQ(lines.toPlainText(), QString::fromUtf8("firstäsecond"));
    TakeLog();
    Press(Qt::Key_Escape);
    EXPECT_THAT(TakeLog(), testing::Contains(Notification{IDCANCEL, BN_CLICKED}));
    Press(Qt::Key_Tab);
    EXPECT_EQ(GetFocus(), Item(kTemperature));
}

}  // namespace
