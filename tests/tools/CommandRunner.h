#ifndef HYDROFACTS_TESTS_TOOLS_COMMANDRUNNER_H
#define HYDROFACTS_TESTS_TOOLS_COMMANDRUNNER_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>

#include "tests/support/TempFolder.h"

/// What a run of the command gave.
struct Outcome {
    int status;
    std::string out;
    std::string err;
};

/// Arguments that are refused, and a part of what is said.
struct Refusal {
    std::string arguments;
    std::string message;
};

/// Runs the command with its arguments, written as the platform has them: for a Unix shell, or as
/// the command line of a Windows program.
class CommandRunner : public ::testing::Test {
  protected:
    Outcome Run(const std::string& arguments);
    nlohmann::json RunForJson(const std::string& arguments, int status = 0);

    /// Expects a refusal: nothing on standard output, and this in the message.
    void ExpectRefused(const std::string& arguments, const std::string& message);
    void ExpectAllRefused(const std::string& start, std::initializer_list<Refusal> refusals);

    TempFolder m_folder;
    std::string m_tables;  ///< the directory to take them from, if not the installed one
};

#endif
