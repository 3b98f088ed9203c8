// Dialogs as objects, on the library's own template, driven from within their modal loop.

#include <gmock/gmock.h>
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
using ::testing::ThrowsMessage;

constexpr int kEdit = 1318;

/// Runs `act` in its modal loop, and is closed then if it still stands.
class ActingDialog : public kvo::gui::Dialog {
  public:
    explicit ActingDialog(int templateId = 109) : Dialog(templateId) {}

    bool Show() { return showModal(hydrofacts::ModuleHandle(), nullptr); }
    void ClickOk() { win32::user::Click(GetDlgItem(handle(), IDOK)); }

    std::function<void()> act = [] {};

  protected:
    void init() override {
        Dialog::init();
        PostMessageA(handle(), WM_APP, 0, 0);
    }
    int processMessage(unsigned message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_APP) return Dialog::processMessage(message, wParam, lParam);
        act();
        close();
        return 1;
    }
};

TEST(KvoDialog, TellsWhetherItWasApplied) {
    EXPECT_FALSE(ActingDialog(110).Show()) << "there is no such template";
    ActingDialog dialog;
    dialog.act = [&] { dialog.ClickOk(); };
    EXPECT_FALSE(dialog.Show()) << "nobody is connected to OK";

    int runs = 0;
    const boost::signals::connection counting =
        dialog.Connect_ok([&](kvo::gui::Dialog&) { ++runs; });
    dialog.Connect_ok([&](kvo::gui::Dialog& self) {
        EXPECT_FALSE(dialog.Show()) << "not twice at once";
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

TEST(KvoDialog, ControlsKeepTheirTextsWhileNoDialogIsShownAndMayComeLater) {
    ActingDialog dialog;
    const auto edit = EditControl::new_control(kEdit);
    const auto label = StaticControl::new_control(505);
    dialog.add(edit);
    edit->setText("first");
    std::string seen;
    edit->Connect_textChanging([&](EditControl& self) {
        seen += self.getText() + ",";
        if (seen == "first,a,") dialog.add(label);
    });
    dialog.act = [&] {
        EXPECT_EQ(edit->getText(), "first");
        win32::user::Type(edit->handle(), "ab");
        EXPECT_EQ(label->getText(), "unit") << "that of the template";
        label->setText("feet");
    };
    dialog.Show();
    EXPECT_EQ(seen, "first,a,ab,") << "all of it was selected";
    EXPECT_EQ(edit->getText(), "ab");
    EXPECT_EQ(label->getText(), "feet");
    EXPECT_EQ(edit->handle(), nullptr);

    dialog.act = [&] { EXPECT_EQ(edit->getText(), "") << "a new window from the template"; };
    dialog.Show();
}

TEST(KvoDialog, WhatIsThrownInsideEndsItAndComesOut) {
    ActingDialog dialog;
    const auto edit = EditControl::new_control(kEdit);
    dialog.add(edit);
    const auto slot = edit->Connect_textChanging(
        [](EditControl& self) { throw std::runtime_error(self.getText()); });
    dialog.act = [&] { win32::user::Type(edit->handle(), "12"); };
    EXPECT_THAT([&] { dialog.Show(); }, ThrowsMessage<std::runtime_error>("1")) << "the first one";
    EXPECT_EQ(dialog.handle(), nullptr);
    slot.disconnect();
    EXPECT_FALSE(dialog.Show());
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
