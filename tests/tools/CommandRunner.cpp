#include "tests/tools/CommandRunner.h"

#include <cstdlib>
#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/wait.h>
#endif

namespace {

// The status of the line's program, which writes to these files; -1 if it was not run.
#ifdef _WIN32

// A file that a program inherits.
HANDLE Inheritable(const std::string& path) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return ::CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                         &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// No shell between: of some thousand times that Wine's cmd is asked for a program while the machine
// is busy, it says once that there is none.
int RunLine(std::string line, const std::string& out, const std::string& err) {
    STARTUPINFOA streams{};
    streams.cb = sizeof streams;
    streams.dwFlags = STARTF_USESTDHANDLES;
    streams.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    streams.hStdOutput = Inheritable(out);
    streams.hStdError = Inheritable(err);
    PROCESS_INFORMATION program{};
    const bool started = ::CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                          nullptr, &streams, &program) != 0;
    EXPECT_TRUE(started) << "error " << ::GetLastError();
    ::CloseHandle(streams.hStdOutput);
    ::CloseHandle(streams.hStdError);
    if (!started) return -1;
    DWORD status = 0;
    ::WaitForSingleObject(program.hProcess, INFINITE);
    ::GetExitCodeProcess(program.hProcess, &status);
    ::CloseHandle(program.hThread);
    ::CloseHandle(program.hProcess);
    return static_cast<int>(status);
}

#else

int RunLine(const std::string& line, const std::string& out, const std::string& err) {
    const int status = std::system((line + " > \"" + out + "\" 2> \"" + err + "\"").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif

// Text files of Windows end their lines with two characters.
std::string WithoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

}  // namespace

Outcome CommandRunner::Run(const std::string& arguments) {
    SCOPED_TRACE(arguments);
    const std::string program = std::filesystem::path(HYDROFACTS_COMMAND).make_preferred().string();
    const std::string tables = m_tables.empty() ? "" : " --tables \"" + m_tables + "\"";
    const int status = RunLine("\"" + program + "\"" + tables + " " + arguments,
                               m_folder.Path("out"), m_folder.Path("err"));
    return {status, WithoutReturns(m_folder.Read("out")), WithoutReturns(m_folder.Read("err"))};
}

nlohmann::json CommandRunner::RunForJson(const std::string& arguments, int status) {
    const Outcome outcome = Run(arguments + " --json");
    EXPECT_EQ(outcome.status, status) << outcome.err;
    return nlohmann::json::parse(outcome.out);
}

void CommandRunner::ExpectRefused(const std::string& arguments, const std::string& message) {
    SCOPED_TRACE(arguments);
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, ::testing::StartsWith("hydrofacts: "));
    EXPECT_THAT(outcome.err, ::testing::HasSubstr(message));
}

void CommandRunner::ExpectAllRefused(const std::string& start,
                                     std::initializer_list<Refusal> refusals) {
    for (const Refusal& each : refusals) ExpectRefused(start + each.arguments, each.message);
}
