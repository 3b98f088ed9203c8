#include "win32/Thread.h"

#include <pthread.h>

#include <ctime>
#include <memory>

namespace {

struct Thread {
    pthread_t thread{};
    bool joined = false;
};

struct Start {
    LPTHREAD_START_ROUTINE procedure;
    void* parameter;
};

// The handles of files are descriptors, 0 and up, and -1 stands for none: those of threads are the
// complements of addresses, which are all below -1.
HANDLE ToHandle(Thread* thread) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<HANDLE>(~reinterpret_cast<LONG_PTR>(thread));
}

Thread* ToThread(HANDLE handle) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<Thread*>(~reinterpret_cast<LONG_PTR>(handle));
}

void* Run(void* given) {
    const Start start = *std::unique_ptr<Start>(static_cast<Start*>(given));
    start.procedure(start.parameter);
    return nullptr;
}

timespec Within(DWORD milliseconds) {
    constexpr DWORD kPerSecond = 1000;
    constexpr long kNanoseconds = 1000000;
    constexpr long kNanosecondsPerSecond = 1000000000;
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    time.tv_sec += milliseconds / kPerSecond;
    time.tv_nsec += static_cast<long>(milliseconds % kPerSecond) * kNanoseconds;
    if (time.tv_nsec >= kNanosecondsPerSecond) {
        ++time.tv_sec;
        time.tv_nsec -= kNanosecondsPerSecond;
    }
    return time;
}

bool Join(pthread_t thread, DWORD milliseconds) {
    if (milliseconds == 0) return ::pthread_tryjoin_np(thread, nullptr) == 0;
    if (milliseconds == INFINITE) return ::pthread_join(thread, nullptr) == 0;
    const timespec end = Within(milliseconds);
    return ::pthread_clockjoin_np(thread, nullptr, CLOCK_MONOTONIC, &end) == 0;
}

}  // namespace

HANDLE CreateThread(void*, std::size_t, LPTHREAD_START_ROUTINE procedure, void* parameter, DWORD,
                    DWORD*) {
    auto start = std::make_unique<Start>(Start{procedure, parameter});
    auto thread = std::make_unique<Thread>();
    if (::pthread_create(&thread->thread, nullptr, &Run, start.get()) != 0) return nullptr;
    start.release();  // the thread's
    return ToHandle(thread.release());
}

DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds) {
    if (!win32::IsThread(handle)) return WAIT_FAILED;
    Thread& thread = *ToThread(handle);
    thread.joined = thread.joined || Join(thread.thread, milliseconds);
    return thread.joined ? WAIT_OBJECT_0 : WAIT_TIMEOUT;
}

namespace win32 {

bool IsThread(HANDLE handle) { return reinterpret_cast<LONG_PTR>(handle) < -1; }

void CloseThread(HANDLE handle) {
    const std::unique_ptr<Thread> thread(ToThread(handle));
    if (!thread->joined) ::pthread_detach(thread->thread);
}

}  // namespace win32
