#ifndef KVOGUI_STATICCONTROL_H
#define KVOGUI_STATICCONTROL_H

#include <boost/shared_ptr.hpp>

#include "kvogui/Win32Control.h"

namespace kvo::gui {

/// A text that a user reads.
class HYDROFACTS_API StaticControl : public Win32Control {
  public:
    /// The control with that id in the template of the dialog that it is added to.
    static boost::shared_ptr<StaticControl> new_control(int id);
    ~StaticControl() override;

  protected:
    /// For classes that derive: what new_control makes.
    explicit StaticControl(int id);
};

}  // namespace kvo::gui

#endif
