#ifndef TOOLS_ARGUMENTS_H
#define TOOLS_ARGUMENTS_H

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace hydrofacts::command {

// The parser of arguments is a package of templates that take long to compile; this is as much of
// it as the commands need. What an argument is stored in must outlive the parsing.

/// A word, an option or a flag that has been added.
class Argument {
  public:
    explicit Argument(CLI::Option* option) : m_option(option) {}

    /// Without it the arguments are refused.
    Argument& Require(bool required = true);
    /// The heading under which the help lists it, if not that of all options.
    Argument& Under(const std::string& heading);

  private:
    CLI::Option* m_option;
};

/// What the program or one of its commands takes. The help lists it in the order in which it is
/// added.
class Command {
  public:
    explicit Command(CLI::App* app) : m_app(app) {}

    Command AddCommand(const std::string& name, const std::string& help);

    /// A word without a dash; words are told apart by their order. `name` is for the help.
    Argument AddWord(const std::string& name, std::string& text, const std::string& help);
    /// All words that are left.
    Argument AddWords(const std::string& name, std::vector<std::string>& texts,
                      const std::string& help);

    /// An option with a value, such as "-t,--temperature"; the help calls the value `value`.
    Argument AddOption(const std::string& names, std::string& text, const std::string& value,
                       const std::string& help);
    Argument AddOption(const std::string& names, std::optional<std::string>& text,
                       const std::string& value, const std::string& help);
    /// One that may be repeated, with one value each time.
    Argument AddOption(const std::string& names, std::vector<std::string>& texts,
                       const std::string& value, const std::string& help);
    /// One whose value is one of these texts, in any case; it is stored as it was given.
    Argument AddChoice(const std::string& names, std::string& text,
                       const std::vector<std::string>& choices, const std::string& help);
    Argument AddFlag(const std::string& names, bool& given, const std::string& help);

    /// What the help ends with.
    void SetFooter(const std::string& footer);
    /// What is run behind the parsing, if the command was named.
    void SetAction(std::function<void()> action);

  private:
    CLI::App* m_app;
};

/// The arguments of a program that is called by the name of one of its commands.
class ArgumentParser {
  public:
    /// `version` is what --version prints.
    ArgumentParser(const std::string& name, const std::string& version, const std::string& help);
    ~ArgumentParser();
    ArgumentParser(const ArgumentParser&) = delete;
    ArgumentParser& operator=(const ArgumentParser&) = delete;

    /// What the program itself takes.
    Command Program() { return Command(m_app.get()); }
    std::vector<std::string> CommandNames() const;
    std::string Help() const;

    /// Stores the arguments and runs the action of the command that they name; prints what --help
    /// and --version ask for. Failure if the arguments can't be used.
    void Parse(std::vector<std::string> arguments);

  private:
    std::unique_ptr<CLI::App> m_app;
};

}  // namespace hydrofacts::command

#endif
