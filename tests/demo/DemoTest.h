#ifndef HYDROFACTS_TESTS_DEMO_DEMOTEST_H
#define HYDROFACTS_TESTS_DEMO_DEMOTEST_H

#include <gtest/gtest.h>

#include "demo/FluidForm.h"
#include "demo/MainDialog.h"
#include "win32/User.h"

/// The demo's main dialog with the installed tables, in English, metric.
class DemoTest : public testing::Test {
  protected:
    DemoTest() { EXPECT_TRUE(dialog_.Create()); }
    ~DemoTest() override {
        DestroyWindow(dialog_.Handle());
        // The end of the program is not the end of the tests.
        for (MSG message{}; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) continue;
    }

    static demo::Site Site() {
        Hydrofacts_SetLanguage(1033);
        char tables[260] = "";
        GetDirectory(DIR_TABLES, tables, sizeof tables);
        demo::Site site;
        site.tables = tables;
        return site;
    }

    HWND Main(int control) const { return GetDlgItem(dialog_.Handle(), control); }
    HWND On(int page, int control) const { return GetDlgItem(dialog_.At(page).Handle(), control); }

    demo::MainDialog dialog_{Site()};
};

#endif
