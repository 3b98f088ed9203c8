#ifndef HYDROFACTS_TESTS_DIALOGS_PIPEFORMTEMPLATE_H
#define HYDROFACTS_TESTS_DIALOGS_PIPEFORMTEMPLATE_H

#include "win32/DialogBuilder.h"

/// Controls of a pipe dialog, as hosts number them.
enum : int {
    ID_PIPES = 10101,
    ID_ROUGHNESS = 10102,
    ID_SIZES = 10104,
    ID_DIAMETER = 10105,
    ID_PIPE_NOTE = 10107,
    ID_HAZEN_WILLIAMS = 10108,
    ID_MATERIAL = 10109,
    ID_SCHEDULE = 10110,
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

#endif
