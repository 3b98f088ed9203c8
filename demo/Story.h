#ifndef HYDROFACTS_DEMO_STORY_H
#define HYDROFACTS_DEMO_STORY_H

#include <functional>
#include <string>
#include <vector>

#include "demo/MainDialog.h"

namespace demo {

/// What a user does with the program, act by act, through the keyboard and mouse of win32::user.
/// Tests look at the controls after each act, scripts/screenshots at the screen.
struct Act {
    std::string name;            ///< also that of its picture
    std::function<void()> play;  ///< the act that opens the elevation dialog returns when that ends
    bool inDialog = false;       ///< in a dialog that the main one has opened
};

std::vector<Act> Story(MainDialog& dialog);

/// Whether an act can be played: a dialog gets no keys before it is shown, which Windows does when
/// nothing else is left to do.
bool IsTimeFor(const Act& act, const MainDialog& dialog);

/// Plays the acts one after the other from the message loop, also from that of a modal dialog, and
/// calls `seen` after each one, when its outcome has been drawn. Ends the program's loop behind the
/// last one.
void Play(MainDialog& dialog, std::function<void(const std::string& name)> seen);

}  // namespace demo

#endif
