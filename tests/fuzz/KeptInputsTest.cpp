// Every fuzz target on every input that is kept for it. A target that is let down ends the process.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include "fuzz/Targets.h"

namespace hydrofacts::fuzz {
void PrintTo(const Target& target, std::ostream* out) { *out << target.name; }
}  // namespace hydrofacts::fuzz

namespace {

namespace fs = std::filesystem;
using hydrofacts::fuzz::Target;

std::vector<fs::path> KeptFor(const Target& target) {
    std::vector<fs::path> files;
    for (const char* kept : {"corpus", "regressions"}) {
        const fs::path folder = fs::path(HYDROFACTS_FUZZ_INPUTS) / kept / target.name;
        if (!fs::is_directory(folder)) continue;
        std::copy(fs::directory_iterator(folder), {}, std::back_inserter(files));
    }
    std::sort(files.begin(), files.end());
    return files;
}

class KeptInputs : public ::testing::TestWithParam<Target> {};

TEST_P(KeptInputs, BreakNothing) {
    const auto files = KeptFor(GetParam());
    ASSERT_FALSE(files.empty());
    // What the command prints is not this program's output.
    const int kept = ::dup(STDOUT_FILENO);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nowhere, STDOUT_FILENO);
    for (const fs::path& file : files) {
        // Named before the run, which may end the process.
        std::fprintf(stderr, "%s\n", file.c_str());
        std::ifstream stream(file, std::ios::binary);
        const std::vector<std::uint8_t> content{std::istreambuf_iterator<char>(stream), {}};
        GetParam().run(content);
    }
    std::fflush(stdout);
    ::dup2(kept, STDOUT_FILENO);
    ::close(nowhere);
    ::close(kept);
}

INSTANTIATE_TEST_SUITE_P(, KeptInputs,
                         ::testing::ValuesIn(hydrofacts::fuzz::HYDROFACTS_FUZZ_TARGETS().begin(),
                                             hydrofacts::fuzz::HYDROFACTS_FUZZ_TARGETS().end()),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace
