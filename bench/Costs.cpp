// Counts what each operation costs in allocations, and, under callgrind, in instructions: figures
// that hold on any machine with the same compiler. scripts/costs runs it.
//
// Prints one line an operation: its name, a tab, its allocations. Under callgrind each operation's
// instructions, of kRuns runs, go into a profile of its own that bears its name.

#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>
#include <new>

#include "bench/Operations.h"

namespace {

long allocations = 0;

// NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory): these are what
// operator new is made of
void* Count(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

// Apart, since the compiler takes an inlined call of free for a mismatch.
[[gnu::noinline]] void Release(void* memory) { std::free(memory); }
// NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)

constexpr int kRuns = 10;

}  // namespace

void* operator new(std::size_t size) { return Count(size); }
void* operator new[](std::size_t size) { return Count(size); }
void operator delete(void* memory) noexcept { Release(memory); }
void operator delete[](void* memory) noexcept { Release(memory); }
void operator delete(void* memory, std::size_t) noexcept { Release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Release(memory); }

int main() {
    for (const bench::Operation& operation : bench::Operations()) {
        operation.run();  // what is set up at the first use
        const long before = allocations;
        operation.run();
        std::printf("%s\t%ld\n", operation.name, allocations - before);
        CALLGRIND_ZERO_STATS;
        for (int i = 0; i < kRuns; ++i) operation.run();
        CALLGRIND_DUMP_STATS_AT(operation.name);
    }
    return 0;
}
