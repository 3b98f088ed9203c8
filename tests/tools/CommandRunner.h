#ifndef HYDROFACTS_TESTS_TOOLS_COMMANDRUNNER_H
#define HYDROFACTS_TESTS_TOOLS_COMMANDRUNNER_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "tests/support/TempFolder.h"

#ifndef _WIN32
#include <sys/wait.h>
#endif

/// What a run of the command gave.
struct Outcome {
    int status;
    std::string out;
    std::string err;
};

/// Runs the command with its arguments, as a line for the platform's shell.
class CommandRunner : public ::testing::Test {
  protected:
    Outcome Run(const std::string& arguments) {
        SCOPED_TRACE(arguments);
        std::string line =
            "\"" + std::filesystem::path(HYDROFACTS_COMMAND).make_preferred().string() + "\" " +
            arguments + " > \"" + m_folder.Path("out") + "\" 2> \"" + m_folder.Path("err") + "\"";
        // The shells differ: cmd takes the outermost quotes off, and a Unix system packs the
        // status.
#ifdef _WIN32
        const int status = std::system(("\"" + line + "\"").c_str());
#else
        const int waited = std::system(line.c_str());
        const int status = WIFEXITED(waited) ? WEXITSTATUS(waited) : -1;
#endif
        return {status, WithoutReturns(m_folder.Read("out")), WithoutReturns(m_folder.Read("err"))};
    }

    nlohmann::json RunForJson(const std::string& arguments, int status = 0) {
        const Outcome outcome = Run(arguments + " --json");
        EXPECT_EQ(outcome.status, status) << outcome.err;
        return nlohmann::json::parse(outcome.out);
    }

    /// Expects a refusal: nothing on standard output, and this in the message.
    void ExpectRefused(const std::string& arguments, const std::string& message) {
        SCOPED_TRACE(arguments);
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, ::testing::StartsWith("hydrofacts: "));
        EXPECT_THAT(outcome.err, ::testing::HasSubstr(message));
    }

    TempFolder m_folder;

  private:
    // Text files of Windows end their lines with two characters.
    static std::string WithoutReturns(std::string text) {
        std::erase(text, '\r');
        return text;
    }
};

#endif
