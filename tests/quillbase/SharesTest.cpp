#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <vector>

#include "quillbase/Shares.h"

namespace {

TEST(Shares, ThreadsDoEveryPieceOnce) {
    for (const std::size_t count : {0, 1, 2, 7, 100, 1001}) {
        for (const std::size_t shares : {1, 2, 3, 16}) {
            std::vector<int> done(count);
            quillbase::RunInShares(count, shares, [&](std::size_t first, std::size_t end) {
                for (std::size_t i = first; i < end; ++i) ++done.at(i);
            });
            EXPECT_EQ(done, std::vector<int>(count, 1)) << count << " in " << shares;
        }
    }
}

TEST(Shares, ThreadsEndBeforeTheirFailureReachesTheCaller) {
    std::atomic<int> ended = 0;
    const auto fail = [&](std::size_t first, std::size_t) {
        if (first == 0 || first == 50) ++ended;
        if (first == 25) throw std::runtime_error("second");
        if (first == 75) throw std::invalid_argument("last");
    };
    EXPECT_THROW(quillbase::RunInShares(100, 4, fail), std::runtime_error);
    EXPECT_EQ(ended, 2);
}

}  // namespace
