#ifndef HYDROFACTS_TESTS_DIALOGS_FLUIDFORMTEMPLATE_H
#define HYDROFACTS_TESTS_DIALOGS_FLUIDFORMTEMPLATE_H

#include <algorithm>
#include <initializer_list>

#include "win32/DialogBuilder.h"

/// Controls of a fluid dialog, as hosts number them.
enum : int {
    ID_LIST = 10001,
    ID_TEMPERATURE = 10002,
    ID_PRESSURE = 10004,
    ID_VISCOSITY = 10006,
    ID_DENSITY = 10008,
    ID_LIQUID = 10010,
    ID_VAPOR = 10011,
    ID_SPHEAT = 10014,
    ID_VAPOR_PRESSURE = 10017,
    ID_NAME = 10024,
    ID_NOTE = 10025,
    ID_CRITICAL_PRESSURE = 10027,
    ID_CRITICAL_TEMPERATURE = 10030,
    ID_MOLECULAR_WEIGHT = 10032,
    ID_FIXED_NAME = 10034,
    ID_CAPTION = 10035,
};

/// A host's fluid dialog with every control that a controller knows, except those of `without`: as
/// it stands, the name of the conditions form.
inline win32::DialogBuilder FluidForm(std::initializer_list<int> without = {ID_FIXED_NAME}) {
    win32::DialogBuilder form("Fluid", WS_POPUP | WS_CAPTION, {0, 0, 300, 300});
    const auto has = [&](int id) {
        return std::find(without.begin(), without.end(), id) == without.end();
    };
    short y = 0;
    const auto place = [&y] { return win32::DialogPlace{0, y += 12, 100, 12}; };
    form.Static(ID_CAPTION, "Fluids", place());
    form.ListBox(ID_LIST, {0, 20, 100, 60}, LBS_SORT);
    for (const int edit : {ID_NAME, ID_TEMPERATURE, ID_PRESSURE, ID_DENSITY, ID_VISCOSITY,
                           ID_MOLECULAR_WEIGHT, ID_CRITICAL_TEMPERATURE}) {
        if (has(edit)) form.Edit(edit, place());
    }
    if (has(ID_VAPOR)) {
        form.RadioButton(ID_LIQUID, "Liquid", place(), WS_GROUP | WS_TABSTOP);
        form.RadioButton(ID_VAPOR, "Vapor", place());
    }
    // Each of these edits stands between a text and the text of its unit.
    for (const int edit : {ID_SPHEAT, ID_VAPOR_PRESSURE, ID_CRITICAL_PRESSURE}) {
        if (!has(edit)) continue;
        form.Static(edit - 1, "", place(), WS_GROUP);
        form.Edit(edit, place());
        form.Static(edit + 1, "", place());
    }
    form.Static(ID_NOTE, "", place());
    if (has(ID_FIXED_NAME)) form.Static(ID_FIXED_NAME, "", place());
    if (has(IDOK)) form.DefaultButton(IDOK, "OK", place());
    form.Button(IDCANCEL, "Cancel", place());
    return form;
}

#endif
