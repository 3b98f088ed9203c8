#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Failure.h"
#include "tools/Names.h"
#include "tools/Output.h"
#include "tools/Platform.h"
#include "tools/Program.h"
#include "tools/check/TableCheck.h"

namespace hydrofacts::command {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFooter =
    R"(Says where and why a table can't be used or is read as something else than it says, each as
  FILE:LINE: field N: REASON
without a field where the whole line is meant, and without a line where the file is. A directory
stands for all *.FTBL, *.PTBL and *.VTBL in it. What is suspicious though read as it stands is a
warning, which doesn't count unless --strict is given.

Examples:
  hydrofacts check Water.FTBL
  hydrofacts check --strict /srv/tables
  hydrofacts check "My steel.PTBL" --json

Exit status:
  0  nothing was found, or warnings alone
  1  a table can't be used or is misread
  2  a file or directory can't be read or is no table)";

struct CheckedFile {
    fs::path path;
    TableFileKind kind;
    std::vector<Finding> findings;
};

// clang-format off
constexpr std::array<const char*, 3> kKindNames = {"fluid table", "pipe table", "valve table"};
constexpr std::array<const char*, 3> kKindKeys  = {"fluid",       "pipe",       "valve"};
// clang-format on

std::string Counted(std::size_t count, std::string_view what) {
    return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

std::vector<CheckedFile> TablesIn(const fs::path& directory) {
    std::vector<CheckedFile> files;
    std::error_code error;
    for (fs::directory_iterator entries(directory, error);
         !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const auto kind = KindOf(entries->path());
        if (kind) files.push_back({entries->path(), *kind, {}});
    }
    const std::string name = Utf8FromPath(directory);
    if (error) throw Failure(name + ": the directory can't be read");
    if (files.empty()) {
        throw Failure(name + ": the directory holds no table (*.FTBL, *.PTBL, *.VTBL)");
    }
    std::sort(files.begin(), files.end(), [](const CheckedFile& a, const CheckedFile& b) {
        const std::string first = Utf8FromPath(a.path);
        const std::string second = Utf8FromPath(b.path);
        if (EqualIgnoringCase(first, second)) return first < second;
        return LessIgnoringCase(first, second);
    });
    return files;
}

std::vector<CheckedFile> FilesNamed(const std::vector<std::string>& names) {
    std::vector<CheckedFile> files;
    for (const std::string& name : names) {
        const fs::path path = PathFromUtf8(name);
        std::error_code error;
        if (fs::is_directory(path, error)) {
            auto inside = TablesIn(path);
            std::move(inside.begin(), inside.end(), std::back_inserter(files));
            continue;
        }
        if (!fs::exists(path, error)) throw Failure(name + ": there is no such file or directory");
        const auto kind = KindOf(path);
        if (!kind) {
            throw Failure(name + ": not a table file, which is named *.FTBL, *.PTBL or *.VTBL");
        }
        files.push_back({path, *kind, {}});
    }
    return files;
}

/// What a run has found, in files and in sum.
struct Report {
    std::vector<CheckedFile> files;
    std::array<std::size_t, kKindNames.size()> tables{};
    std::size_t errors = 0;
    std::size_t warnings = 0;
    bool unread = false;
};

Report CheckFiles(const std::vector<std::string>& names) {
    Report report;
    for (CheckedFile& file : FilesNamed(names)) {
        try {
            file.findings = CheckTableFile(file.path, file.kind);
        } catch (const Failure& failure) {
            PrintError(failure.what());
            report.unread = true;
            continue;
        }
        ++report.tables[static_cast<std::size_t>(file.kind)];
        for (const Finding& finding : file.findings) {
            ++(finding.warning ? report.warnings : report.errors);
        }
        report.files.push_back(std::move(file));
    }
    return report;
}

std::string ToText(const std::string& file, const Finding& finding) {
    std::string text = file + ":";
    if (finding.line != 0) text += fmt::format("{}:", finding.line);
    if (finding.field != 0) text += fmt::format(" field {}:", finding.field);
    return text + (finding.warning ? " warning: " : " ") + finding.reason + "\n";
}

std::string Summary(const Report& report) {
    std::string tables;
    for (std::size_t kind = 0; kind < kKindNames.size(); ++kind) {
        if (report.tables[kind] == 0) continue;
        if (!tables.empty()) tables += ", ";
        tables += Counted(report.tables[kind], kKindNames[kind]);
    }
    if (tables.empty()) return {};  // none could be read, which has been said
    if (report.errors + report.warnings == 0) return "checked " + tables + ": no findings\n";
    return fmt::format("checked {}: {}, {}\n", tables, Counted(report.errors, "error"),
                       Counted(report.warnings, "warning"));
}

void PrintText(const Report& report) {
    for (const CheckedFile& file : report.files) {
        const std::string name = Utf8FromPath(file.path);
        for (const Finding& finding : file.findings) Print(ToText(name, finding));
    }
    Print(Summary(report));
}

nlohmann::ordered_json ToJson(const std::string& file, const Finding& finding) {
    const auto number = [](std::size_t value) {
        return value != 0 ? nlohmann::ordered_json(value) : nlohmann::ordered_json();
    };
    return {{"file", file},
            {"line", number(finding.line)},
            {"field", number(finding.field)},
            {"severity", finding.warning ? "warning" : "error"},
            {"reason", finding.reason}};
}

void PrintReportAsJson(const Report& report) {
    nlohmann::ordered_json tables;
    for (std::size_t kind = 0; kind < kKindKeys.size(); ++kind) {
        tables[kKindKeys[kind]] = report.tables[kind];
    }
    auto findings = nlohmann::ordered_json::array();
    for (const CheckedFile& file : report.files) {
        const std::string name = Utf8FromPath(file.path);
        for (const Finding& finding : file.findings) findings.push_back(ToJson(name, finding));
    }
    PrintJson({{"tables", tables},
               {"errors", report.errors},
               {"warnings", report.warnings},
               {"findings", findings}});
}

void Check(const Options& options, const std::vector<std::string>& names, bool strict) {
    const Report report = CheckFiles(names);
    if (options.json) {
        PrintReportAsJson(report);
    } else {
        PrintText(report);
    }
    // What there is to say has been said.
    if (report.unread) throw Failure("", kRefused);
    if (report.errors + (strict ? report.warnings : 0) > 0) throw Failure("", kFindings);
}

}  // namespace

void AddCheckCommand(Command& program, Options& options) {
    struct Arguments {
        std::vector<std::string> names;
        bool strict = false;
    };
    const auto arguments = std::make_shared<Arguments>();
    Command command = program.AddCommand("check", "Find what is wrong with table files");
    command.AddWords("FILE", arguments->names, "Table files, and directories of them").Require();
    command.AddFlag("--strict", arguments->strict, "Warnings count for the exit status");
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction(
        [&options, arguments] { Check(options, arguments->names, arguments->strict); });
}

}  // namespace hydrofacts::command
