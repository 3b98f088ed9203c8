#include "win32/Thread.h"

#include <pthread.h>

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

}  // namespace

HANDLE CreateThread(void*, std::size_t, LPTHREAD_START_ROUTINE procedure, void* parameter, DWORD,
                    DWORD*) {
    auto start = std::make_unique<Start>(Start{procedure, parameter});
    auto thread = std::make_unique<Thread>();
    if (::pthread_create(&thread->thread, nullptr, &Run, start.get()) != 0) return nullptr;
    static_cast<void>(start.release());  // the thread's
    return ToHandle(thread.release());
}

DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds) {
    const bool waits = milliseconds == INFINITE;
    if (!win32::IsThread(handle) || (!waits && milliseconds != 0)) return WAIT_FAILED;
    Thread& thread = *ToThread(handle);
    if (!thread.joined) {
        const int failure = waits ? ::pthread_join(thread.thread, nullptr)
                                  : ::pthread_tryjoin_np(thread.thread, nullptr);
        thread.joined = failure == 0;
    }
    return thread.joined ? WAIT_OBJECT_0 : WAIT_TIMEOUT;
}

namespace win32 {

bool IsThread(HANDLE handle) { return reinterpret_cast<LONG_PTR>(handle) < -1; }

void CloseThread(HANDLE handle) {
    const std::unique_ptr<Thread> thread(ToThread(handle));
    if (!thread->joined) ::pthread_detach(thread->thread);
}

}  // namespace win32
