#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <thread>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::ElementsAre;

enum : int { kEdit = 101, kOpen };

win32::DialogBuilder Form(DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU) {
    win32::DialogBuilder form("Title \x80", style, {0, 0, 160, 60});
    form.Edit(kEdit, {5, 5, 60, 12}).Button(kOpen, "Open", {5, 25, 50, 14});
    form.DefaultButton(IDOK, "OK", {60, 25, 40, 14}).Button(IDCANCEL, "Cancel", {105, 25, 40, 14});
    return form;
}

/// What happens in a modal dialog: at first what a user does, from Qt's loop once the dialog is up;
/// then what the host does at a click on the button kOpen.
using Act = std::function<void(HWND dialog, bool opened)>;

/// Runs a modal dialog as hosts do; gives the id of the button that ended it.
INT_PTR RunModal(HWND owner, const Act& acts) {
    const auto procedure = [](HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        if (message == WM_INITDIALOG) SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        const auto& act = *reinterpret_cast<const Act*>(GetWindowLongPtrA(dialog, DWLP_USER));
        if (message == WM_INITDIALOG) QTimer::singleShot(1, [&act, dialog] { act(dialog, false); });
        const bool clicked = message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED;
        if (clicked && LOWORD(wParam) == kOpen) act(dialog, true);
        if (clicked && LOWORD(wParam) != kOpen) EndDialog(dialog, LOWORD(wParam));
        return message == WM_INITDIALOG;
    };
    const win32::DialogBuilder form = Form();
    return DialogBoxIndirectParamA(nullptr, form.Template(), owner, procedure,
                                   reinterpret_cast<LPARAM>(&acts));
}

TEST(DialogView, ShowsItselfAsItsTemplateSays) {
    ShownDialog dialog(Form());
    EXPECT_EQ(dialog.Window().windowTitle(), QString::fromUtf8("Title €"));
    EXPECT_TRUE(dialog.Window().windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_EQ(dialog.Window().minimumSize(), dialog.Window().maximumSize());
    // Dialog units are those of the application's font.
    const SIZE base = dialog.View().BaseUnits();
    EXPECT_EQ(base.cy, QFontMetrics(QApplication::font()).height());
    EXPECT_EQ(dialog.Window().size(), QSize(160 * base.cx / 4, 60 * base.cy / 8));
    EXPECT_EQ(dialog.Widget<QLineEdit>(kEdit).geometry(),
              QRect(5 * base.cx / 4, 5 * base.cy / 8, 60 * base.cx / 4, 12 * base.cy / 8));
    SetWindowTextA(dialog.Handle(), "Other");
    ShowWindow(dialog.Item(kOpen), SW_HIDE);
    dialog.Settle();
    EXPECT_EQ(dialog.Window().windowTitle(), QStringLiteral("Other"));
    EXPECT_FALSE(dialog.Widget<QPushButton>(kOpen).isVisible());
    ShowWindow(dialog.Handle(), SW_HIDE);
    dialog.Settle();
    EXPECT_FALSE(dialog.Window().isVisible());
    EXPECT_FALSE(dialog.View().Wait(0));  // nobody is left who could do anything
}

TEST(DialogView, IsClosedByItsTitleBar) {
    ShownDialog dialog(Form());
    EXPECT_FALSE(dialog.Window().close());  // that is for the dialog to decide
    dialog.Settle();
    EXPECT_THAT(dialog.TakeLog(), ElementsAre(Notification{IDCANCEL, BN_CLICKED}));
    EXPECT_TRUE(dialog.Window().isVisible());
    EnableWindow(dialog.Handle(), FALSE);
    dialog.Window().close();
    dialog.Press(Qt::Key_Escape);
    EXPECT_THAT(dialog.TakeLog(), testing::IsEmpty());
}

TEST(DialogView, IsResizedWithinItsLimits) {
    static std::vector<QSize> told;
    static POINT least;
    least = {200, 150};
    const auto procedure = [](HWND, UINT message, WPARAM, LPARAM lParam) -> INT_PTR {
        if (message == WM_SIZE) told.emplace_back(LOWORD(lParam), HIWORD(lParam));
        if (message == WM_GETMINMAXINFO) {
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = least;
        }
        return FALSE;
    };
    QtUser user;
    const win32::DialogBuilder form = Form(WS_POPUP | WS_CAPTION | WS_THICKFRAME);
    HWND dialog = CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, procedure, 0);
    user.Show(dialog);
    EXPECT_EQ(user.Window().minimumSize(), QSize(200, 150));
    told.clear();
    user.Window().resize(500, 400);  // as the desktop does it for the user
    user.Settle();
    EXPECT_THAT(told, ElementsAre(QSize(500, 400)));
    least = {300, 150};
    user.Window().resize(250, 150);  // which the dialog refuses by now
    user.Settle();
    EXPECT_EQ(user.Window().size(), QSize(300, 150));
    DestroyWindow(dialog);
}

TEST(DialogView, RunsNestedModalDialogs) {
    ShownDialog owner(Form());
    auto& open = owner.Widget<QPushButton>(kOpen);
    const auto press = [&](HWND dialog, Qt::Key key) {
        QTest::keyClick(owner.View().WidgetOf(GetDlgItem(dialog, kEdit)), key);
    };
    std::vector<INT_PTR> results;
    const auto inner = [&](HWND dialog, bool) {
        // All windows below are out of reach; their controls look as before.
        EXPECT_TRUE(open.isEnabled());
        QTest::mouseClick(&open, Qt::LeftButton);
        EXPECT_EQ(owner.View().WidgetOf(dialog)->windowModality(), Qt::WindowModal);
        // Nor does the desktop get them in front for long.
        owner.Window().activateWindow();
        QTimer::singleShot(30, [&, dialog] {
            EXPECT_TRUE(owner.View().WidgetOf(dialog)->isActiveWindow());
            press(dialog, Qt::Key_Return);
        });
    };
    const auto outer = [&](HWND dialog, bool opened) {
        auto* button = owner.View().WidgetOf(GetDlgItem(dialog, kOpen));
        if (!opened) return QTest::mouseClick(button, Qt::LeftButton);
        results.push_back(RunModal(dialog, inner));
        QTimer::singleShot(1, [&, dialog] { press(dialog, Qt::Key_Escape); });
    };
    owner.Forward([&](int id, int code) {
        if (id == kOpen && code == BN_CLICKED) results.push_back(RunModal(owner.Handle(), outer));
    });
    owner.Click(open);
    EXPECT_THAT(results, ElementsAre(IDOK, IDCANCEL));
    EXPECT_EQ(GetActiveWindow(), owner.Handle());
    EXPECT_EQ(&owner.Focus(), &open);
}

TEST(DialogView, SurvivesWindowsThatEndWhileTheyAreUsed) {
    // A control, the list of it dropped, and the dialog itself go in the midst of what they tell.
    for (const int victim : {int{kEdit}, int{kOpen}, 0}) {
        ShownDialog dialog(Form());
        dialog.Forward([&](int id, int) {
            if (id == kOpen || (id == kEdit && victim == kEdit)) {
                DestroyWindow(victim == 0 ? dialog.Handle() : dialog.Item(victim));
            }
        });
        QWidget& edit = dialog.Widget<QLineEdit>(kEdit);
        QTest::mouseClick(&dialog.Widget<QPushButton>(kOpen), Qt::LeftButton);
        QTest::mouseClick(&edit, Qt::LeftButton);
        QTest::keyClicks(&edit, QStringLiteral("12"));
        dialog.Settle();
        EXPECT_EQ(IsWindow(dialog.Handle()), victim == 0 ? FALSE : TRUE);
        EXPECT_EQ(dialog.View().WidgetOf(dialog.Item(victim)), nullptr);
    }
}

TEST(DialogView, ShowsWindowsThatWereThereBeforeIt) {
    TestDialog dialog(Form());
    SetDlgItemTextA(dialog.Handle(), kEdit, "before");
    {
        QtUser user;
        EXPECT_EQ(user.View().WidgetOf(dialog.Handle()), nullptr);
        user.Show(dialog.Handle());
        auto& edit = user.WidgetOf<QLineEdit>(dialog.Item(kEdit));
        EXPECT_EQ(edit.text(), QStringLiteral("before"));
        EXPECT_TRUE(edit.isVisible());
    }
    QtUser again;  // it is the active window by now
    EXPECT_NE(again.View().WidgetOf(dialog.Item(kEdit)), nullptr);
}

TEST(DialogView, IsServedByTheLoopOfQt) {
    ShownDialog dialog(Form());
    dialog.View().HandleMessagesInQtLoop(true);
    auto& edit = dialog.Widget<QLineEdit>(kEdit);
    // Messages of other threads come in without an event of Qt.
    const auto clickFromAnotherThread = [](HWND button) {
        std::thread(PostMessageA, button, BM_CLICK, 0, 0).detach();
    };
    std::vector<std::string> seen;
    dialog.Forward([&](int id, int code) {
        if (id == kEdit && code == EN_CHANGE) seen.push_back(dialog.Text(kEdit));
        if (id == IDOK) PostQuitMessage(7);
        if (id != kOpen || code != BN_CLICKED) return;
        // A modal dialog has the loop of the host's thread, until it ends.
        const INT_PTR result = RunModal(dialog.Handle(), [&](HWND shown, bool) {
            clickFromAnotherThread(GetDlgItem(shown, IDOK));
        });
        seen.push_back(std::to_string(result));
        clickFromAnotherThread(dialog.Item(IDOK));
    });
    QTimer::singleShot(0, [&] {
        QTest::mouseClick(&edit, Qt::LeftButton);
        QTest::keyClicks(&edit, QStringLiteral("12"));
        QTest::keyClick(&edit, Qt::Key_Tab);
        QTest::keyClick(&edit, Qt::Key_Space);
    });
    QTimer::singleShot(20000, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 7);
    EXPECT_THAT(seen, ElementsAre("1", "12", std::to_string(IDOK)));
}

TEST(DialogView, FollowsTheUserToAnotherWindow) {
    ShownDialog first(Form());
    TestDialog second(Form());
    ShowWindow(second.Handle(), SW_SHOW);
    first.Settle();
    EXPECT_TRUE(first.View().WidgetOf(second.Handle())->isActiveWindow());
    first.Window().activateWindow();
    first.Settle();
    EXPECT_EQ(GetActiveWindow(), first.Handle());
}

}  // namespace
