#include "win32/qt/Input.h"

#include <utility>

namespace win32::qt {

bool Input::PutNext() {
    if (acts_.empty()) return false;
    const Act act = std::move(acts_.front());
    acts_.pop_front();
    act();
    return true;
}

}  // namespace win32::qt
