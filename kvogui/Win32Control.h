#ifndef KVOGUI_WIN32CONTROL_H
#define KVOGUI_WIN32CONTROL_H

#include <string>

#include "kvogui/Control.h"

namespace kvo::gui {

/// A control of a dialog's template, known by its id.
class HYDROFACTS_API Win32Control : public Control {
  public:
    ~Win32Control() override;

    /// The id in the template.
    int id() const;

    /// The control's window; null while the dialog isn't shown, or if it has no such control.
    HWND handle() const;

    /// The control's text: before the dialog is shown the one set so far, afterwards the last one.
    virtual std::string getText() const;

    /// Replaces the control's text, at once or when the dialog is shown. Without a text from here
    /// the one of the template stays.
    virtual void setText(std::string text);

  protected:
    /// The control with that id in the template of the dialog that it is added to.
    explicit Win32Control(int id);

    /// Acts on what the control tells (EN_CHANGE, BN_CLICKED …). Does nothing by itself.
    virtual void notified(int code);

  private:
    void attach(HWND dialog) override;
    void detach() override;
    void notify(int id, int code) override;

    int id_;
    HWND handle_ = nullptr;
    bool textIsSet_ = false;
    std::string text_;
};

}  // namespace kvo::gui

#endif
