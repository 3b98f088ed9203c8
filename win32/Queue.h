#ifndef WIN32_QUEUE_H
#define WIN32_QUEUE_H

// What a thread has of its own: the queue of its windows, its focus and its keys.

#include <array>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "win32/MessageQueue.h"

namespace win32 {

class View;

/// The messages for the windows of one thread. Others may put messages in.
class Queue {
  public:
    using Clock = std::chrono::steady_clock;

    /// How a wait for the next message ends.
    enum class Next { kMessage, kQuit, kNothingLeft };

    struct Filter {
        HWND window = nullptr;
        UINT first = 0;
        UINT last = 0;
    };

    // From any thread.

    bool Post(const MSG& message);
    /// Hands a message to the owner of the queue and waits for its answer; 0 if the thread ends.
    LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Nobody will take messages out any more.
    void Close();

    // From the thread that owns the queue.

    void Quit(int exitCode);
    /// Takes or looks at the next message without waiting.
    std::optional<Next> Peek(MSG& message, const Filter& filter, bool remove);
    /// Waits as long as something can still come.
    Next Get(MSG& message, const Filter& filter, View* view);
    /// The message goes before all others.
    void PushFront(const MSG& message);

    UINT_PTR StartTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
    bool StopTimer(HWND window, UINT_PTR id);
    /// Drops the timers and messages of a window that goes.
    void Forget(HWND window);

  private:
    struct Sent {
        HWND window;
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        LRESULT answer = 0;
        bool done = false;
    };
    struct Timer {
        HWND window;
        UINT_PTR id;
        Clock::duration period;
        Clock::time_point due;
        TIMERPROC procedure;
    };

    void AnswerSent();
    bool TakePosted(MSG& message, const Filter& filter, bool remove);
    bool TakeTimer(MSG& message, const Filter& filter, bool remove);
    std::optional<Clock::time_point> NextDue() const;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<MSG> posted_;
    std::deque<std::shared_ptr<Sent>> sent_;
    bool closed_ = false;

    // Only the owner touches these.
    std::vector<Timer> timers_;
    UINT_PTR lastTimer_ = 0;
    std::optional<int> quit_;
};

struct ThreadState {
    ThreadState() = default;
    ~ThreadState();
    ThreadState(const ThreadState&) = delete;
    ThreadState& operator=(const ThreadState&) = delete;

    std::shared_ptr<Queue> queue = std::make_shared<Queue>();
    HWND focus = nullptr;
    HWND active = nullptr;
    std::array<BYTE, 256> keys{};
    View* view = nullptr;
};

ThreadState& ThisThread();

}  // namespace win32

#endif
