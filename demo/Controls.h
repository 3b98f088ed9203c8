#ifndef HYDROFACTS_DEMO_CONTROLS_H
#define HYDROFACTS_DEMO_CONTROLS_H

// Small services on the controls of a dialog.

#include <span>
#include <string>
#include <vector>

#include "win32/Win32.h"

namespace demo {

std::string TextOf(HWND window);
std::string TextOf(HWND dialog, int control);
void SetText(HWND dialog, int control, const std::string& text);

/// The number in a control, with a comma or a point; false if it holds none.
bool NumberOf(HWND dialog, int control, double& value);
/// Six digits, with the decimal sign; empty for not-a-number.
std::string NumberText(double value, char decimalSign);
/// The number that NumberText shows.
double Rounded(double value);

void Enable(HWND dialog, int first, int last, bool enable);

void AddRow(HWND dialog, int combo, const std::string& text);
/// The selected row of a combo box, -1 if none.
int PickedRow(HWND dialog, int combo);
void PickRow(HWND dialog, int combo, int row);
std::string PickedText(HWND dialog, int combo);

/// How a control follows the size of its dialog.
enum Follow : unsigned { kWider = 1, kTaller = 2, kRight = 4, kDown = 8 };

struct Following {
    int control;
    unsigned how;
};

/// Moves and stretches controls as their dialog is resized, from the places in its template.
class Layout {
  public:
    /// Notes the places as they are now.
    void Note(HWND dialog, std::span<const Following> controls);
    void Apply() const;

  private:
    struct Place {
        HWND control;
        unsigned how;
        RECT place;
    };

    HWND dialog_ = nullptr;
    SIZE size_{};
    std::vector<Place> places_;
};

/// The client area of a window.
SIZE SizeOf(HWND window);

}  // namespace demo

#endif
