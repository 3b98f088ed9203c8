#ifndef HYDROFACTS_TESTS_DIALOGS_TABLEFORMS_H
#define HYDROFACTS_TESTS_DIALOGS_TABLEFORMS_H

#include "win32/DialogBuilder.h"

/// Controls of a pipe dialog and a valve dialog, as hosts number them.
enum : int {
    ID_PIPES = 10101,
    ID_ROUGHNESS = 10102,
    ID_SIZES = 10104,
    ID_DIAMETER = 10105,
    ID_PIPE_NOTE = 10107,
    ID_HAZEN_WILLIAMS = 10108,
    ID_MATERIAL = 10109,
    ID_SCHEDULE = 10110,
    ID_VALVE_TABLES = 10111,
    ID_DEVICES = 10201,
    ID_FITTINGS = 10202,
    ID_OTHERS = 10206,
    ID_VALVE_NOTE = 10207,
    ID_CHOSEN = 10208,
};

inline win32::DialogBuilder PipeForm(bool withSizes = true) {
    win32::DialogBuilder form("Pipe", WS_POPUP | WS_CAPTION, {0, 0, 260, 140});
    form.Tree(ID_PIPES, {5, 5, 100, 120});
    short y = 0;
    for (const int text :
         {ID_ROUGHNESS, ID_DIAMETER, ID_PIPE_NOTE, ID_HAZEN_WILLIAMS, ID_MATERIAL, ID_SCHEDULE}) {
        if (text != ID_DIAMETER || withSizes) form.Static(text, "", {110, y += 14, 140, 12});
    }
    if (withSizes) form.ComboBox(ID_SIZES, {110, 110, 60, 80});
    form.Button(IDCANCEL, "Cancel", {180, 110, 40, 14});
    return form;
}

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
