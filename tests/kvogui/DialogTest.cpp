// Dialogs as objects, on the library's own template, driven from within their modal loop.

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <functional>
#include <stdexcept>
#include <string>

#include "hydrofacts/frame/Module.h"
#include "kvogui/Dialog.h"
#include "kvogui/EditControl.h"
#include "kvogui/StaticControl.h"
#include "win32/User.h"

namespace {

using kvo::gui::EditControl;
using kvo::gui::StaticControl;

constexpr int kTemplate = 109;
constexpr int kEdit = 1318;
constexpr int kStatic = 505;

/// Runs `act` in its modal loop, as often as `times` says, and is closed then if it still stands.
class ActingDialog : public kvo::gui::Dialog {
  public:
    explicit ActingDialog(int templateId = kTemplate) : Dialog(templateId) {}

    bool Show() { return showModal(hydrofacts::ModuleHandle(), nullptr); }

    std::function<void()> act = [] {};
    std::function<void()> prepare = [] {};
    int times = 1;

  protected:
    void init() override {
        Dialog::init();
        PostMessageA(handle(), WM_APP, 0, 0);
        prepare();
    }
    int processMessage(unsigned message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_APP) return Dialog::processMessage(message, wParam, lParam);
        act();
        if (--times > 0) {
            PostMessageA(handle(), WM_APP, 0, 0);
        } else {
            close();
        }
        return 1;
    }
};

void Click(const kvo::gui::Dialog& dialog, int id) {
    win32::user::Click(GetDlgItem(dialog.handle(), id));
}

TEST(KvoDialog, TellsWhetherItWasApplied) {
    ActingDialog dialog;
    EXPECT_FALSE(dialog.Show());
    dialog.times = 2;
    dialog.act = [&] { Click(dialog, IDOK); };
    EXPECT_FALSE(dialog.Show());
    EXPECT_EQ(dialog.times, 0) << "nobody is connected to OK, so it stays open";

    int runs = 0;
    const boost::signals::connection counting = dialog.Connect_ok([&](kvo::gui::Dialog& self) {
        EXPECT_EQ(&self, &dialog);
        ++runs;
    });
    dialog.Connect_ok([](kvo::gui::Dialog& self) {
        self.apply();
        self.close();
    });
    EXPECT_TRUE(dialog.Show());
    counting.disconnect();
    EXPECT_TRUE(dialog.Show());
    EXPECT_EQ(runs, 1);

    dialog.act = [&] { win32::user::Close(dialog.handle()); };
    EXPECT_FALSE(dialog.Show()) << "what counted last time doesn't any more";
    EXPECT_EQ(dialog.handle(), nullptr);
    dialog.close();
}

TEST(KvoDialog, IsNotShownTwiceAtOnceNorWithoutATemplate) {
    ActingDialog dialog;
    bool second = true;
    dialog.Connect_ok([](kvo::gui::Dialog& self) { self.apply(); });
    dialog.act = [&] {
        Click(dialog, IDOK);
        second = dialog.Show();
    };
    EXPECT_TRUE(dialog.Show());
    EXPECT_FALSE(second);
    EXPECT_FALSE(ActingDialog(110).Show());
}

TEST(KvoDialog, ControlsKeepTheirTextsWhileNoDialogIsShown) {
    ActingDialog dialog;
    const auto edit = EditControl::new_control(kEdit);
    const auto label = StaticControl::new_control(kStatic);
    const auto missing = EditControl::new_control(4711);
    for (const boost::shared_ptr<kvo::gui::Control>& control :
         std::initializer_list<boost::shared_ptr<kvo::gui::Control>>{edit, label, missing}) {
        dialog.add(control);
    }
    EXPECT_EQ(edit->id(), kEdit);
    edit->setText("first");
    missing->setText("kept");
    std::string seen;
    edit->Connect_textChanging([&](EditControl& self) { seen += self.getText() + ","; });
    dialog.act = [&] {
        EXPECT_EQ(edit->getText(), "first");
        EXPECT_EQ(label->getText(), "unit") << "that of the template";
        label->setText("feet");
        win32::user::Type(edit->handle(), "ab");
    };
    dialog.Show();
    EXPECT_EQ(seen, "first,a,ab,") << "all of it was selected";
    EXPECT_EQ(edit->getText(), "ab");
    EXPECT_EQ(label->getText(), "feet");
    EXPECT_EQ(missing->getText(), "kept");
    EXPECT_EQ(edit->handle(), nullptr);

    dialog.act = [&] { EXPECT_EQ(edit->getText(), "") << "a new window from the template"; };
    dialog.Show();
}

TEST(KvoDialog, TakesControlsWhileItIsShown) {
    ActingDialog dialog;
    const auto edit = EditControl::new_control(kEdit);
    boost::shared_ptr<StaticControl> label;
    dialog.add(edit);
    edit->Connect_textChanging([&](EditControl&) {
        label = StaticControl::new_control(kStatic);
        dialog.add(label);
    });
    dialog.act = [&] {
        win32::user::Type(edit->handle(), "1");
        ASSERT_TRUE(label);
        EXPECT_EQ(label->getText(), "unit");
    };
    dialog.Show();
}

TEST(KvoDialog, WhatIsThrownInsideEndsItAndComesOut) {
    ActingDialog dialog;
    const auto edit = EditControl::new_control(kEdit);
    dialog.add(edit);
    const auto failure = [&dialog]() -> std::string {
        try {
            dialog.Show();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "";
    };
    const auto slot = edit->Connect_textChanging(
        [](EditControl& self) { throw std::runtime_error(self.getText()); });
    dialog.act = [&] { win32::user::Type(edit->handle(), "12"); };
    EXPECT_EQ(failure(), "1") << "the first one";
    slot.disconnect();
    EXPECT_EQ(failure(), "");
    dialog.prepare = [] { throw std::runtime_error("init"); };
    EXPECT_EQ(failure(), "init");
    EXPECT_EQ(dialog.handle(), nullptr);
}

TEST(KvoDialog, LivesAsLongAsItIsShown) {
    auto dialog = boost::make_shared<ActingDialog>();
    const boost::weak_ptr<ActingDialog> watch = dialog;
    dialog->act = [&] {
        dialog.reset();
        EXPECT_FALSE(watch.expired());
    };
    ActingDialog* shown = dialog.get();
    EXPECT_FALSE(shown->Show());
    EXPECT_TRUE(watch.expired());
}

}  // namespace
