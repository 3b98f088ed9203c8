#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "tools/Program.h"

namespace hydrofacts::fuzz {
namespace {

constexpr const char* kFluid =
    "S\t\"Plain\"\r\nV\t\"1.0\"\tx\t3\t5\r\n"
    "D\t28.9586\t400\t1100\t295\t395\t295\t500\t5000\r\n"
    "P1\t1\t-2900\t10\r\nP2\t0\r\nP3\t1\t1200\t-1\r\nP4\t1\t2.123456\t-0.001\r\n"
    "P5\t1\r\nP6\t1\t0.01\t0.00001\r\nP7\t1\t33.2576\r\n";

constexpr const char* kPipe =
    "S\t\"Plain\"\r\nV\t\"1.0\"\tx\t3\t5\r\nR\t0.0018\t0.045\t140\r\n"
    "Z\t40\t1\t25\t1.049\t0.133\t26.64\t3.378\r\nZ\t40\t2\t50\t2.067\t0.154\t52.5\t3.912\r\n"
    "Z\t80\t1\t25\t0.957\t0.179\t24.31\t4.547\r\n";

constexpr const char* kValve =
    "S\t\"Plain\"\r\nV\t\"1.0\"\tx\t3\t5\r\n"
    "Z\tFitting\t\"Tee\"\t1\t20\t0\t0\t3\r\nZ\tValve\t\"Gate\"\t2\t8\t0\t0\t1\r\n"
    "Z\tBend\t\"Bend\"\t9\t0.5\t2\t50\t4\r\nZ\tBend\t\"Bend\"\t9\t0.4\t6\t150\t4\r\n";

// The tables that the command is to use.
const std::string& Tables() {
    static const std::string folder = [] {
        Scratch().Write("Plain.FTBL", kFluid);
        Scratch().Write("Plain.PTBL", kPipe);
        Scratch().Write("Plain.VTBL", kValve);
        return Scratch().Path();
    }();
    return folder;
}

// A plot would write to any path, and run gnuplot.
bool Plots(const std::vector<std::string>& arguments) {
    const auto output = [](const std::string& argument) {
        return argument.starts_with("--o") ||
               (argument.starts_with('-') && !argument.starts_with("--") &&
                argument.find('o') != std::string::npos);
    };
    return std::find(arguments.begin(), arguments.end(), "plot") != arguments.end() &&
           std::any_of(arguments.begin(), arguments.end(), output);
}

// A path of the machine's own would make a run depend on what is there.
bool LeavesScratch(const std::vector<std::string>& arguments) {
    return std::any_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
        return argument.find('/') != std::string::npos && !argument.starts_with("m3/");
    });
}

}  // namespace

void command_arguments(Bytes bytes) {
    std::vector<std::string> arguments;
    for (Input input(bytes); !input.Rest().empty();) arguments.push_back(input.Line());
    if (arguments.size() > 32 || Plots(arguments) || LeavesScratch(arguments)) return;
    if (std::find(arguments.begin(), arguments.end(), "--tables") == arguments.end()) {
        arguments.insert(arguments.begin(), {"--tables", Tables()});
    }
    const int status = command::Run(std::move(arguments));
    Require(status >= 0 && status <= 3, "the exit status is one that --help tells");
}

}  // namespace hydrofacts::fuzz
