#ifndef KVOGUI_EDITCONTROL_H
#define KVOGUI_EDITCONTROL_H

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <memory>

#include "kvogui/Signals.h"
#include "kvogui/Win32Control.h"

namespace kvo::gui {

/// A text that a user types.
class HYDROFACTS_API EditControl : public Win32Control {
  public:
    /// The control with that id in the template of the dialog that it is added to.
    static boost::shared_ptr<EditControl> new_control(int id);
    ~EditControl() override;

    /// From here on `slot` runs at each change of the text, whoever makes it; getText gives the new
    /// one. It lasts as long as the control, or until the connection is ended.
    boost::signals::connection Connect_textChanging(
        const boost::function<void(EditControl&)>& slot);

  protected:
    /// For classes that derive: what new_control makes.
    explicit EditControl(int id);
    void notified(int code) override;

  private:
    struct Signals;
    std::unique_ptr<Signals> signals_;
};

}  // namespace kvo::gui

#endif
