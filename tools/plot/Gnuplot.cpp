#include "tools/plot/Gnuplot.h"

#include <fmt/core.h>

#include "tools/Failure.h"

// Starting a program is a matter of the platform.
#ifndef _WIN32
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#endif

namespace hydrofacts::command {

#ifdef _WIN32

std::string RunGnuplot(const std::string&) {
    throw Failure(
        "plotting needs gnuplot, which this program does not start on Windows; -o FILE.gp writes a "
        "script for it: gnuplot FILE.gp > FILE.svg");
}

#else

namespace {

/// A file without a name, which is gone when it is closed.
class ScratchFile {
  public:
    ScratchFile() : m_file(std::tmpfile()) {
        if (!m_file) {
            throw Failure(fmt::format("a temporary file can't be made: {}", std::strerror(errno)));
        }
    }

    int Descriptor() const { return ::fileno(m_file.get()); }

    void Write(const std::string& text) {
        const std::size_t written = std::fwrite(text.data(), 1, text.size(), m_file.get());
        if (written != text.size() || std::fflush(m_file.get()) != 0) {
            throw Failure(
                fmt::format("a temporary file can't be written: {}", std::strerror(errno)));
        }
        std::rewind(m_file.get());
    }

    std::string Read() {
        std::rewind(m_file.get());
        std::string text;
        char buffer[4096];
        while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, m_file.get())) {
            text.append(buffer, count);
        }
        return text;
    }

  private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> m_file;
};

/// The standard streams of a program to be started.
class Streams {
  public:
    Streams(const ScratchFile& in, const ScratchFile& out, const ScratchFile& err) {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_adddup2(&m_actions, in.Descriptor(), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&m_actions, out.Descriptor(), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&m_actions, err.Descriptor(), STDERR_FILENO);
    }
    ~Streams() { posix_spawn_file_actions_destroy(&m_actions); }
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    const posix_spawn_file_actions_t* Actions() const { return &m_actions; }

  private:
    posix_spawn_file_actions_t m_actions;
};

// The status of the program as wait() tells it.
int RunToItsEnd(const Streams& streams) {
    char name[] = "gnuplot";
    char defaults[] = "-d";  // not the user's own settings
    char* const arguments[] = {name, defaults, nullptr};
    pid_t child = 0;
    const int error = posix_spawnp(&child, name, streams.Actions(), nullptr, arguments, environ);
    if (error != 0) {
        throw Failure(
            fmt::format("plotting needs gnuplot, which can't be started: {}. On Debian it is the "
                        "package gnuplot-nox; -o FILE.gp writes a script for it instead",
                        std::strerror(error)));
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) throw Failure("gnuplot got lost");
    }
    return status;
}

}  // namespace

std::string RunGnuplot(const std::string& script) {
    ScratchFile in;
    ScratchFile out;
    ScratchFile err;
    in.Write(script);
    const int status = RunToItsEnd(Streams(in, out, err));
    std::string plot = out.Read();
    if (status != 0 || plot.empty()) throw Failure("gnuplot failed\n" + err.Read());
    return plot;
}

#endif

}  // namespace hydrofacts::command
