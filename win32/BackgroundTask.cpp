#include "win32/BackgroundTask.h"

#include <memory>

#ifdef _WIN32

namespace {

struct Task {
    LPTHREAD_START_ROUTINE procedure;
    void* parameter;
    HMODULE module;
};

Task Take(void* given) { return *std::unique_ptr<Task>(static_cast<Task*>(given)); }

DWORD WINAPI Run(void* given) {
    const Task task = Take(given);
    FreeLibraryAndExitThread(task.module, task.procedure(task.parameter));
}

}  // namespace

namespace win32 {

bool RunInBackground(LPTHREAD_START_ROUTINE procedure, void* parameter) {
    auto task = std::make_unique<Task>(Task{procedure, parameter, nullptr});
    if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCSTR>(&Run),
                           &task->module) == FALSE) {
        return false;
    }
    const HANDLE thread = CreateThread(nullptr, 0, &Run, task.get(), 0, nullptr);
    if (thread == nullptr) {
        FreeLibrary(task->module);
        return false;
    }
    static_cast<void>(task.release());  // the thread's
    CloseHandle(thread);
    return true;
}

bool StopRequested() { return false; }

}  // namespace win32

#else

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <vector>

namespace {

std::atomic<bool> stop = false;

// Made with the first task, and so after the objects of the module: it goes before they do.
class Tasks {
  public:
    Tasks() = default;
    ~Tasks() {
        // A process that was forked off has the list, but not the threads.
        if (::getpid() != process_) return;
        stop = true;
        for (const HANDLE thread : threads_) {
            WaitForSingleObject(thread, INFINITE);
            CloseHandle(thread);
        }
    }
    Tasks(const Tasks&) = delete;
    Tasks& operator=(const Tasks&) = delete;

    bool Start(LPTHREAD_START_ROUTINE procedure, void* parameter) {
        const std::lock_guard lock(mutex_);
        CloseEnded();
        threads_.reserve(threads_.size() + 1);  // a thread that runs has to be known
        const HANDLE thread = CreateThread(nullptr, 0, procedure, parameter, 0, nullptr);
        if (thread == nullptr) return false;
        threads_.push_back(thread);
        return true;
    }

  private:
    void CloseEnded() {
        const auto ended = [](HANDLE thread) {
            if (WaitForSingleObject(thread, 0) != WAIT_OBJECT_0) return false;
            CloseHandle(thread);
            return true;
        };
        threads_.erase(std::remove_if(threads_.begin(), threads_.end(), ended), threads_.end());
    }

    const pid_t process_ = ::getpid();
    std::mutex mutex_;
    std::vector<HANDLE> threads_;
};

}  // namespace

namespace win32 {

bool RunInBackground(LPTHREAD_START_ROUTINE procedure, void* parameter) {
    static Tasks tasks;
    return tasks.Start(procedure, parameter);
}

bool StopRequested() { return stop; }

}  // namespace win32

#endif
