#ifndef QUILLBASE_SHARES_H
#define QUILLBASE_SHARES_H

#include <algorithm>
#include <cstddef>
#include <exception>
#include <system_error>
#include <thread>
#include <vector>

namespace quillbase {

/// How many threads are worth their start for `count` pieces of work, of which each should have
/// `least` or more: from 1 to the number of the machine's cores.
inline std::size_t ShareCount(std::size_t count, std::size_t least) {
    const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
    return std::clamp<std::size_t>(count / least, 1, cores);
}

/// Calls `work(first, end)` for contiguous shares of 0 to `count`, each on a thread of its own, one
/// of them the calling one. All have returned when this does. Where the system gives no further
/// thread, the calling one does the rest. Throws what the work threw in the first of the shares
/// that failed, and std::bad_alloc if there is no memory to start a thread.
template <class Work>
void RunInShares(std::size_t count, std::size_t shares, const Work& work) {
    std::vector<std::exception_ptr> failures(shares);
    const auto run = [&](std::size_t share) {
        try {
            work(count * share / shares, count * (share + 1) / shares);
        } catch (...) {
            failures[share] = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> threads;  // joined at the end of the block
        threads.reserve(shares);
        std::size_t share = 1;
        try {
            for (; share < shares; ++share) threads.emplace_back(run, share);
        } catch (const std::system_error&) {
            for (; share < shares; ++share) run(share);
        }
        run(0);
    }
    for (const std::exception_ptr& failure : failures) {
        if (failure) std::rethrow_exception(failure);
    }
}

}  // namespace quillbase

#endif
