#include "win32/Queue.h"

#include <algorithm>
#include <utility>

#include "win32/Error.h"
#include "win32/Model.h"
#include "win32/View.h"

namespace {

using win32::Queue;

bool Fits(const MSG& message, const Queue::Filter& filter) {
    if (filter.window != nullptr && message.hwnd != filter.window &&
        IsChild(filter.window, message.hwnd) == FALSE) {
        return false;
    }
    const bool any = filter.first == 0 && filter.last == 0;
    return any || (message.message >= filter.first && message.message <= filter.last);
}

}  // namespace

namespace win32 {

bool Queue::Post(const MSG& message) {
    const std::lock_guard lock(mutex_);
    if (closed_) return false;
    posted_.push_back(message);
    changed_.notify_all();
    return true;
}

void Queue::PushFront(const MSG& message) {
    const std::lock_guard lock(mutex_);
    posted_.push_front(message);
}

LRESULT Queue::Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto sent = std::make_shared<Sent>(Sent{window, message, wParam, lParam});
    std::unique_lock lock(mutex_);
    if (closed_) return 0;
    sent_.push_back(sent);
    changed_.notify_all();
    changed_.wait(lock, [&] { return sent->done || closed_; });
    return sent->answer;
}

void Queue::Close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    changed_.notify_all();
}

void Queue::Quit(int exitCode) { quit_ = exitCode; }

void Queue::AnswerSent() {
    std::unique_lock lock(mutex_);
    while (!sent_.empty()) {
        const auto sent = sent_.front();
        sent_.pop_front();
        lock.unlock();
        const LRESULT answer =
            SendMessageA(sent->window, sent->message, sent->wParam, sent->lParam);
        lock.lock();
        sent->answer = answer;
        sent->done = true;
        changed_.notify_all();
    }
}

bool Queue::TakePosted(MSG& message, const Filter& filter, bool remove) {
    const std::lock_guard lock(mutex_);
    const auto found =
        std::find_if(posted_.begin(), posted_.end(), [&](const MSG& m) { return Fits(m, filter); });
    if (found == posted_.end()) return false;
    message = *found;
    if (remove) posted_.erase(found);
    return true;
}

bool Queue::TakeTimer(MSG& message, const Filter& filter, bool remove) {
    const auto now = Clock::now();
    for (Timer& timer : timers_) {
        if (timer.due > now) continue;
        const MSG due{timer.window,   WM_TIMER, timer.id, reinterpret_cast<LPARAM>(timer.procedure),
                      GetTickCount(), {}};
        if (!Fits(due, filter)) continue;
        message = due;
        if (remove) timer.due = now + timer.period;
        return true;
    }
    return false;
}

std::optional<Queue::Next> Queue::Peek(MSG& message, const Filter& filter, bool remove) {
    AnswerSent();
    if (TakePosted(message, filter, remove)) return Next::kMessage;
    if (quit_) {
        message = {nullptr, WM_QUIT, static_cast<WPARAM>(*quit_), 0, GetTickCount(), {}};
        if (remove) quit_.reset();
        return Next::kQuit;
    }
    if (TakeTimer(message, filter, remove)) return Next::kMessage;
    return std::nullopt;
}

std::optional<Queue::Clock::time_point> Queue::NextDue() const {
    std::optional<Clock::time_point> next;
    for (const Timer& timer : timers_) {
        if (!next || timer.due < *next) next = timer.due;
    }
    return next;
}

Queue::Next Queue::Get(MSG& message, const Filter& filter, View* view) {
    // A view can't be woken by other threads, so it is asked to come back now and then.
    constexpr std::chrono::milliseconds kLongestWait{50};
    while (true) {
        if (const auto next = Peek(message, filter, true)) return *next;
        const auto due = NextDue();
        if (view == nullptr && !due) return Next::kNothingLeft;
        const auto until =
            std::min(due.value_or(Clock::time_point::max()),
                     view == nullptr ? Clock::time_point::max() : Clock::now() + kLongestWait);
        if (view == nullptr) {
            std::unique_lock lock(mutex_);
            changed_.wait_until(lock, until, [&] { return !posted_.empty() || !sent_.empty(); });
            continue;
        }
        const auto left = std::max(until - Clock::now(), Clock::duration::zero());
        const auto ms = std::chrono::ceil<std::chrono::milliseconds>(left).count();
        if (!view->Wait(static_cast<DWORD>(ms)) && !due) {
            if (const auto last = Peek(message, filter, true)) return *last;
            return Next::kNothingLeft;
        }
    }
}

UINT_PTR Queue::StartTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    // Windows has no shorter timers either.
    constexpr UINT kShortest = 10;
    const std::chrono::milliseconds period{std::max(milliseconds, kShortest)};
    const auto same = std::find_if(timers_.begin(), timers_.end(), [&](const Timer& timer) {
        return timer.window == window && timer.id == id;
    });
    if (same != timers_.end()) {
        *same = {window, id, period, Clock::now() + period, procedure};
        return id;
    }
    if (window == nullptr) id = ++lastTimer_;
    timers_.push_back({window, id, period, Clock::now() + period, procedure});
    return id;
}

bool Queue::StopTimer(HWND window, UINT_PTR id) {
    return std::erase_if(timers_, [&](const Timer& timer) {
               return timer.window == window && timer.id == id;
           }) > 0;
}

void Queue::Forget(HWND window) {
    std::erase_if(timers_, [&](const Timer& timer) { return timer.window == window; });
    const std::lock_guard lock(mutex_);
    std::erase_if(posted_, [&](const MSG& message) { return message.hwnd == window; });
}

ThreadState::~ThreadState() {
    queue->Close();
    ForgetWindowsOf(queue.get());
}

ThreadState& ThisThread() {
    thread_local ThreadState state;
    return state;
}

View::~View() = default;

SIZE View::BaseUnits() const { return kBaseUnits; }

View* SetView(View* view) { return std::exchange(ThisThread().view, view); }

}  // namespace win32

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const MSG posted{window, message, wParam, lParam, GetTickCount(), {}};
    if (window == nullptr) return win32::ThisThread().queue->Post(posted) ? TRUE : FALSE;
    const auto found = win32::Find(window);
    return found && found->queue->Post(posted) ? TRUE : FALSE;
}

void PostQuitMessage(int exitCode) { win32::ThisThread().queue->Quit(exitCode); }

BOOL GetMessageA(LPMSG message, HWND window, UINT first, UINT last) {
    win32::ThreadState& thread = win32::ThisThread();
    const Queue::Next next = thread.queue->Get(*message, {window, first, last}, thread.view);
    if (next == Queue::Next::kNothingLeft) {
        *message = {nullptr, WM_QUIT, static_cast<WPARAM>(-1), 0, GetTickCount(), {}};
    }
    return next == Queue::Next::kMessage ? TRUE : FALSE;
}

BOOL PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove) {
    const bool take = (remove & PM_REMOVE) != 0;
    return win32::ThisThread().queue->Peek(*message, {window, first, last}, take) ? TRUE : FALSE;
}

LRESULT DispatchMessageA(const MSG* message) {
    if (message->message == WM_TIMER && message->lParam != 0) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the timer's message carries it so
        const auto procedure = reinterpret_cast<TIMERPROC>(message->lParam);
        procedure(message->hwnd, WM_TIMER, message->wParam, GetTickCount());
        return 0;
    }
    if (message->hwnd == nullptr) return 0;
    return SendMessageA(message->hwnd, message->message, message->wParam, message->lParam);
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    if (window != nullptr && !win32::Find(window)) return 0;
    const UINT_PTR timer =
        win32::ThisThread().queue->StartTimer(window, id, milliseconds, procedure);
    return window == nullptr ? timer : TRUE;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    return win32::ThisThread().queue->StopTimer(window, id) ? TRUE : FALSE;
}

DWORD GetTickCount() {
    const auto now = Queue::Clock::now().time_since_epoch();
    return static_cast<DWORD>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}
