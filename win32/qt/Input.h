#ifndef WIN32_QT_INPUT_H
#define WIN32_QT_INPUT_H

#include <deque>
#include <functional>

namespace win32::qt {

/// What the user has done and no window has heard of yet. An act is carried out, as messages put
/// into the queue, when all before it has been handled: only then is it known where the focus is,
/// and whether a control is still there.
class Input {
  public:
    using Act = std::function<void()>;

    void Add(Act act) { acts_.push_back(std::move(act)); }
    bool Waits() const { return !acts_.empty(); }
    /// Carries out the next act; false if there is none.
    bool PutNext();

  private:
    std::deque<Act> acts_;
};

}  // namespace win32::qt

#endif
