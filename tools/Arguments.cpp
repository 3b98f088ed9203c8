#include "tools/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

#include "tools/Failure.h"

namespace hydrofacts::command {

Argument& Argument::Require(bool required) {
    m_option->required(required);
    return *this;
}

Argument& Argument::Under(const std::string& heading) {
    m_option->group(heading);
    return *this;
}

Command Command::AddCommand(const std::string& name, const std::string& help) {
    return Command(m_app->add_subcommand(name, help));
}

Argument Command::AddWord(const std::string& name, std::string& text, const std::string& help) {
    return AddOption(name, text, "", help);
}

Argument Command::AddWords(const std::string& name, std::vector<std::string>& texts,
                           const std::string& help) {
    return Argument(m_app->add_option(name, texts, help)->type_name(""));
}

Argument Command::AddOption(const std::string& names, std::string& text, const std::string& value,
                            const std::string& help) {
    return Argument(m_app->add_option(names, text, help)->type_name(value));
}

Argument Command::AddOption(const std::string& names, std::optional<std::string>& text,
                            const std::string& value, const std::string& help) {
    return Argument(m_app->add_option(names, text, help)->type_name(value));
}

Argument Command::AddOption(const std::string& names, std::vector<std::string>& texts,
                            const std::string& value, const std::string& help) {
    return Argument(m_app->add_option(names, texts, help)
                        ->type_name(value)
                        ->take_all()
                        ->allow_extra_args(false));
}

Argument Command::AddChoice(const std::string& names, std::string& text,
                            const std::vector<std::string>& choices, const std::string& help) {
    return Argument(m_app->add_option(names, text, help)
                        ->type_name(CLI::detail::join(choices, "|"))
                        // Without a description: the help would list the choices twice.
                        ->check(CLI::IsMember(choices, CLI::ignore_case).description("")));
}

Argument Command::AddFlag(const std::string& names, bool& given, const std::string& help) {
    return Argument(m_app->add_flag(names, given, help));
}

void Command::SetFooter(const std::string& footer) { m_app->footer(footer); }

void Command::SetAction(std::function<void()> action) { m_app->callback(std::move(action)); }

ArgumentParser::ArgumentParser(const std::string& name, const std::string& version,
                               const std::string& help)
    : m_app(std::make_unique<CLI::App>(help, name)) {
    m_app->allow_windows_style_options(false);  // "/tables" is a path on every platform
    m_app->set_version_flag("--version", version);
    m_app->require_subcommand(1);
}

ArgumentParser::~ArgumentParser() = default;

std::vector<std::string> ArgumentParser::CommandNames() const {
    std::vector<std::string> names;
    for (const CLI::App* command : std::as_const(*m_app).get_subcommands({})) {
        names.push_back(command->get_name());
    }
    return names;
}

std::string ArgumentParser::Help() const { return m_app->help(); }

void ArgumentParser::Parse(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());  // the order that the parser wants
    try {
        m_app->parse(arguments);
    } catch (const CLI::ParseError& error) {
        // Help and version come this way too.
        if (error.get_exit_code() != 0) throw Failure(error.what());
        m_app->exit(error);
    }
}

}  // namespace hydrofacts::command
