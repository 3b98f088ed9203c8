#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

#include "tests/tools/CommandRunner.h"

namespace {

constexpr std::string_view kProgram = "$ hydrofacts ";

std::string ReadPage() {
    std::ostringstream text;
    text << std::ifstream(HYDROFACTS_COMMAND_PAGE, std::ios::binary).rdbuf();
    return text.str();
}

// The last digits of a number that is told in full depend on the processor.
std::string Rounded(const std::string& text) {
    static const std::regex kLongNumber(R"((\d+\.\d{9})\d+)");
    return std::regex_replace(text, kLongNumber, "$1");
}

class CommandPage : public CommandRunner {
  protected:
    /// The examples name their files by the page's folder.
    CommandPage() {
        std::filesystem::current_path(std::filesystem::path(HYDROFACTS_COMMAND_PAGE).parent_path());
    }

    /// The page with the output of every example as the program prints it now.
    std::string PageOfToday(const std::string& page) {
        std::istringstream lines(page);
        std::string today;
        std::string line;
        bool inOutput = false;
        while (std::getline(lines, line)) {
            if (line.starts_with(kProgram)) {
                const Outcome outcome = Run(line.substr(kProgram.size()));
                today += line + "\n" + outcome.out + outcome.err;
                inOutput = true;
                ++m_examples;
                continue;
            }
            if (line.starts_with("```") || (inOutput && line == "$")) inOutput = false;
            if (!inOutput) today += line + "\n";
        }
        return today;
    }

    int m_examples = 0;
};

// HYDROFACTS_REWRITE_PAGES=1 puts the present output into the page, to be read before it is kept:
// after a change of the tables, say.
TEST_F(CommandPage, ShowsWhatTheProgramPrints) {
    const std::string page = ReadPage();
    const std::string today = PageOfToday(page);
    EXPECT_GT(m_examples, 5);
    if (std::getenv("HYDROFACTS_REWRITE_PAGES") != nullptr) {
        std::ofstream(HYDROFACTS_COMMAND_PAGE, std::ios::binary) << today;
        return;
    }
    EXPECT_EQ(Rounded(page), Rounded(today));
}

}  // namespace
