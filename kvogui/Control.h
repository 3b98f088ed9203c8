#ifndef KVOGUI_CONTROL_H
#define KVOGUI_CONTROL_H

#include "win32/Win32.h"

namespace kvo::gui {

/// A part of a dialog. What it stands for exists only while the dialog is shown.
class HYDROFACTS_API Control {
  public:
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

  protected:
    Control();

  private:
    friend class Dialog;

    /// The window of the dialog is there, with all its controls.
    virtual void attach(HWND dialog) = 0;
    /// The window of the dialog is about to go; its controls are still there.
    virtual void detach() = 0;
    /// A control of the dialog tells what has happened to it.
    virtual void notify(int id, int code) = 0;
};

}  // namespace kvo::gui

#endif
