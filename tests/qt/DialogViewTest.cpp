#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <thread>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using win32::qt::QtView;

enum : int { kEdit = 101, kOpen, kPage, kOnPage };

win32::DialogBuilder Form(DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU) {
    win32::DialogBuilder form("Title \x80", style, {0, 0, 160, 60});
    form.Edit(kEdit, {5, 5, 60, 12}).Button(kOpen, "Open", {5, 25, 50, 14});
    form.DefaultButton(IDOK, "OK", {60, 25, 40, 14}).Button(IDCANCEL, "Cancel", {105, 25, 40, 14});
    return form;
}

/// A modal dialog as hosts have them. What is to happen once it is up is done from Qt's loop, as by
/// a user; its result is the id of the button that ended it.
class Modal {
  public:
    using Act = std::function<void(HWND dialog)>;

    Modal(QtView& view, Act whenShown) : view_(view), whenShown_(std::move(whenShown)) {}
    /// What the button kOpen does.
    Act whenOpened;

    INT_PTR Run(HWND owner) {
        const win32::DialogBuilder form = Form();
        return DialogBoxIndirectParamA(nullptr, form.Template(), owner, &Procedure,
                                       reinterpret_cast<LPARAM>(this));
    }
    QWidget* WidgetOf(HWND dialog, int id) { return view_.WidgetOf(GetDlgItem(dialog, id)); }
    static void ClickOn(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrA(dialog, DWLP_USER, lParam);
            auto* self = reinterpret_cast<Modal*>(lParam);
            QTimer::singleShot(1, [self, dialog] { self->whenShown_(dialog); });
            return TRUE;
        }
        auto* self = reinterpret_cast<Modal*>(GetWindowLongPtrA(dialog, DWLP_USER));
        if (message != WM_COMMAND || HIWORD(wParam) != BN_CLICKED) return FALSE;
        if (LOWORD(wParam) == kOpen && self->whenOpened) self->whenOpened(dialog);
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
            EndDialog(dialog, LOWORD(wParam));
        }
        return TRUE;
    }

    QtView& view_;
    Act whenShown_;
};

TEST(DialogView, ShowsItselfAsItsTemplateSays) {
    ShownDialog dialog(Form());
    EXPECT_EQ(dialog.Window().windowTitle(), QString::fromUtf8("Title €"));
    EXPECT_TRUE(dialog.Window().isVisible());
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
    EXPECT_THAT(dialog.Model().TakeLog(), ElementsAre(Notification{IDCANCEL, BN_CLICKED}));
    EXPECT_TRUE(dialog.Window().isVisible());
    EnableWindow(dialog.Handle(), FALSE);
    dialog.Window().close();
    dialog.Press(Qt::Key_Escape);
    EXPECT_THAT(dialog.Model().TakeLog(), IsEmpty());
}

TEST(DialogView, IsResizedWithinItsLimits) {
    struct Sizes {
        std::vector<QSize> told;
        POINT least{200, 150};
    };
    static Sizes sizes;
    sizes = {};
    const DLGPROC procedure = [](HWND, UINT message, WPARAM, LPARAM lParam) -> INT_PTR {
        if (message == WM_SIZE) sizes.told.emplace_back(LOWORD(lParam), HIWORD(lParam));
        if (message == WM_GETMINMAXINFO) {
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = sizes.least;
        }
        return FALSE;
    };
    QtView view;
    const win32::DialogBuilder form = Form(WS_POPUP | WS_CAPTION | WS_THICKFRAME | WS_VISIBLE);
    HWND dialog = CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, procedure, 0);
    ShownDialog::SettleView(view, dialog);
    QWidget& window = *view.WidgetOf(dialog);
    EXPECT_EQ(window.minimumSize(), QSize(200, 150));
    sizes.told.clear();
    window.resize(500, 400);  // as the desktop does it for the user
    ShownDialog::SettleView(view, dialog);
    EXPECT_THAT(sizes.told, ElementsAre(QSize(500, 400)));
    RECT place{};
    GetClientRect(dialog, &place);
    EXPECT_EQ(QSize(place.right, place.bottom), QSize(500, 400));
    MoveWindow(dialog, 0, 0, 300, 10, TRUE);
    ShownDialog::SettleView(view, dialog);
    EXPECT_EQ(window.size(), QSize(300, 150));
    sizes.least = {300, 150};
    window.resize(250, 150);  // which the dialog refuses by now
    ShownDialog::SettleView(view, dialog);
    EXPECT_EQ(window.size(), QSize(300, 150));
    DestroyWindow(dialog);
    EXPECT_EQ(view.WidgetOf(dialog), nullptr);
}

TEST(DialogView, RunsNestedModalDialogs) {
    ShownDialog owner(Form());
    std::vector<INT_PTR> results;
    const auto click = [&](QWidget& widget) { Modal::ClickOn(&widget); };
    Modal inner(owner.View(), [&](HWND dialog) {
        // All windows below are out of reach; their controls look as before.
        EXPECT_TRUE(owner.Widget<QPushButton>(kOpen).isEnabled());
        click(owner.Widget<QPushButton>(kOpen));
        EXPECT_EQ(owner.View().WidgetOf(dialog)->windowModality(), Qt::WindowModal);
        // Nor does the desktop get them in front for long.
        owner.Window().activateWindow();
        QTimer::singleShot(30, [&, dialog] {
            EXPECT_TRUE(owner.View().WidgetOf(dialog)->isActiveWindow());
            QTest::keyClicks(inner.WidgetOf(dialog, kEdit), QStringLiteral("inner"));
            QTest::keyClick(inner.WidgetOf(dialog, kEdit), Qt::Key_Return);
        });
    });
    Modal outer(owner.View(), [&](HWND dialog) { Modal::ClickOn(outer.WidgetOf(dialog, kOpen)); });
    outer.whenOpened = [&](HWND dialog) {
        results.push_back(inner.Run(dialog));
        QTimer::singleShot(1, [&outer, dialog] {
            QTest::keyClick(outer.WidgetOf(dialog, kEdit), Qt::Key_Escape);
        });
    };
    int opened = 0;
    owner.Model().Forward([&](int id, int code) {
        if (id != kOpen || code != BN_CLICKED) return;
        ++opened;
        results.push_back(outer.Run(owner.Handle()));
    });
    owner.Click(owner.Widget<QPushButton>(kOpen));
    EXPECT_THAT(results, ElementsAre(IDOK, IDCANCEL));
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(GetActiveWindow(), owner.Handle());
    EXPECT_EQ(GetFocus(), owner.Item(kOpen));
    owner.Settle();
    owner.Type("o");
    EXPECT_EQ(&owner.Focus(), &owner.Widget<QPushButton>(kOpen));
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
}

TEST(DialogView, SurvivesWindowsThatEndWhileTheyAreUsed) {
    // A control, the list of it dropped, and the dialog itself go in the midst of what they tell.
    for (const int victim : {int{kEdit}, int{kOpen}, 0}) {
        ShownDialog dialog(Form());
        dialog.Model().Forward([&](int id, int) {
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

TEST(DialogView, LeadsThroughPages) {
    ShownDialog dialog(Form());
    win32::DialogBuilder page("", WS_CHILD | WS_VISIBLE | DS_CONTROL, {70, 2, 80, 20},
                              WS_EX_CONTROLPARENT);
    page.Edit(kOnPage, {5, 2, 40, 12});
    HWND shown = CreateDialogIndirectParamA(nullptr, page.Template(), dialog.Handle(), nullptr, 0);
    ASSERT_NE(shown, nullptr);
    dialog.Settle();
    QWidget* widget = dialog.View().WidgetOf(shown);
    auto* edit = dynamic_cast<QLineEdit*>(dialog.View().WidgetOf(GetDlgItem(shown, kOnPage)));
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(widget->parentWidget(), &dialog.Window());
    EXPECT_FALSE(widget->isWindow());
    EXPECT_TRUE(edit->isVisible());
    SetFocus(dialog.Item(IDCANCEL));
    dialog.Settle();
    dialog.Press(Qt::Key_Tab);
    EXPECT_TRUE(edit->hasFocus());
    dialog.Type("7");
    EXPECT_EQ(edit->text(), QStringLiteral("7"));
    EnableWindow(shown, FALSE);
    dialog.Settle();
    EXPECT_TRUE(edit->isEnabled());  // it looks as before, but takes nothing
    dialog.Click(*edit);
    QTest::keyClicks(edit, QStringLiteral("8"));
    dialog.Settle();
    EXPECT_EQ(edit->text(), QStringLiteral("7"));
    ShowWindow(shown, SW_HIDE);
    dialog.Settle();
    EXPECT_FALSE(edit->isVisible());
}

TEST(DialogView, ShowsWindowsThatWereThereBeforeIt) {
    TestDialog dialog(Form());
    SetDlgItemTextA(dialog.Handle(), kEdit, "before");
    {
        QtView view;
        EXPECT_EQ(view.WidgetOf(dialog.Handle()), nullptr);
        ShowWindow(dialog.Handle(), SW_SHOW);
        ShownDialog::SettleView(view, dialog.Handle());
        auto* edit = dynamic_cast<QLineEdit*>(view.WidgetOf(dialog.Item(kEdit)));
        ASSERT_NE(edit, nullptr);
        EXPECT_EQ(edit->text(), QStringLiteral("before"));
        EXPECT_TRUE(edit->isVisible());
    }
    QtView again;  // it is the active window by now
    ShownDialog::SettleView(again, dialog.Handle());
    ASSERT_NE(again.WidgetOf(dialog.Item(kEdit)), nullptr);
    EXPECT_TRUE(again.WidgetOf(dialog.Handle())->isVisible());
}

TEST(DialogView, IsServedByTheLoopOfQt) {
    ShownDialog dialog(Form());
    dialog.View().HandleMessagesInQtLoop(true);
    std::vector<std::string> seen;
    dialog.Model().Forward([&](int id, int code) {
        if (id == kEdit && code == EN_CHANGE) seen.push_back(dialog.Model().Text(kEdit));
        if (id == IDOK) PostQuitMessage(7);
        if (id != kOpen || code != BN_CLICKED) return;
        // A modal dialog has the loop of the host's thread, until it ends.
        Modal modal(dialog.View(), [&](HWND shown) {
            QTest::keyClicks(dialog.View().WidgetOf(GetDlgItem(shown, kEdit)), QStringLiteral("3"));
            std::thread([ok = GetDlgItem(shown, IDOK)] {
                PostMessageA(ok, BM_CLICK, 0, 0);
            }).detach();
        });
        seen.push_back(std::to_string(modal.Run(dialog.Handle())));
        // Messages of other threads come in without an event of Qt.
        std::thread([ok = dialog.Item(IDOK)] { PostMessageA(ok, BM_CLICK, 0, 0); }).detach();
    });
    QTimer::singleShot(0, [&] {
        QTest::mouseClick(&dialog.Widget<QLineEdit>(kEdit), Qt::LeftButton);
        QTest::keyClicks(&dialog.Widget<QLineEdit>(kEdit), QStringLiteral("12"));
        QTest::keyClick(&dialog.Widget<QLineEdit>(kEdit), Qt::Key_Tab);
        QTest::keyClick(&dialog.Widget<QLineEdit>(kEdit), Qt::Key_Space);
    });
    QTimer::singleShot(20000, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 7);
    EXPECT_THAT(seen, ElementsAre("1", "12", std::to_string(IDOK)));
    EXPECT_EQ(dialog.Widget<QLineEdit>(kEdit).text(), QStringLiteral("12"));
}

TEST(DialogView, FollowsTheUserToAnotherWindow) {
    ShownDialog first(Form());
    const win32::DialogBuilder form = Form();
    HWND second = CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, nullptr, 0);
    ShowWindow(second, SW_SHOW);
    first.Settle();
    EXPECT_TRUE(first.View().WidgetOf(second)->isActiveWindow());
    first.Window().activateWindow();
    first.Settle();
    EXPECT_EQ(GetActiveWindow(), first.Handle());
    DestroyWindow(second);
}

}  // namespace
