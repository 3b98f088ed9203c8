#ifndef HYDROFACTS_TESTS_DIALOGS_VALVEFORMTEMPLATE_H
#define HYDROFACTS_TESTS_DIALOGS_VALVEFORMTEMPLATE_H

#include "win32/DialogBuilder.h"

/// Controls of a valve dialog, as hosts number them.
enum : int {
    ID_VALVE_TABLES = 10111,
    ID_DEVICES = 10201,
    ID_FITTINGS = 10202,
    ID_OTHERS = 10206,
    ID_VALVE_NOTE = 10207,
    ID_CHOSEN = 10208,
};

inline win32::DialogBuilder ValveForm() {
    win32::DialogBuilder form("Valve", WS_POPUP | WS_CAPTION, {0, 0, 260, 140});
    form.ComboBox(ID_VALVE_TABLES, {5, 5, 100, 80}, CBS_SORT);
    form.Tree(ID_DEVICES, {5, 25, 100, 90}).Tree(ID_CHOSEN, {150, 25, 100, 90});
    short y = 20;
    for (int type = ID_FITTINGS; type <= ID_OTHERS; ++type) {
        form.Button(type, "type", {108, y += 16, 38, 14});
    }
    form.Static(ID_VALVE_NOTE, "", {5, 120, 200, 10});
    return form;
}

#endif
