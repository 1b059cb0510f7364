// SPDX-License-Identifier: MIT
#include "commands/Manual.h"

#include <algorithm>
#include <cctype>

namespace scopix
{

namespace
{

// As man wants it: its own signs are escaped, and no line begins with one.
std::string roff(const std::string& text)
{
    std::string out;
    for (const char sign : text) {
        if (sign == '\\')
            out += "\\e";
        else if (sign == '-')
            out += "\\-";
        else
            out += sign;
    }
    return out.empty() || (out.front() != '.' && out.front() != '\'') ? out : "\\&" + out;
}

std::string lowerFirst(std::string text)
{
    text[0] = char(std::tolower(static_cast<unsigned char>(text[0])));
    return text;
}

std::string withoutStop(std::string text)
{
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

std::string upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char sign) { return char(std::toupper(sign)); });
    return text;
}

std::string section(const char* title, const std::string& text)
{
    return text.empty() ? std::string() : std::string(".SH ") + title + "\n" + text;
}

std::string item(const std::string& term, const std::string& text)
{
    return ".TP\n.B " + roff(term) + "\n" + roff(text) + "\n";
}

std::string optionText(const Command::Option& option)
{
    return dashed(option.name) + (option.value ? std::string(" ") + option.value : "");
}

std::string optionItems(const Command& command)
{
    std::string text;
    for (const Command::Option& option : command.options)
        text += item(optionText(option), option.help);
    return text;
}

std::string exampleItems(const Command& command)
{
    std::string text;
    for (const Command::Example& example : command.examples)
        text += item(example.line, example.help);
    return text;
}

std::string invocation(const Command& command)
{
    return std::string("scopix") + (*command.name ? " " : "") + command.name;
}

std::string commandItems(const std::vector<Command>& commands)
{
    std::string text;
    for (const Command& command : commands)
        text += item(invocation(command) + " " + command.usage, firstSentence(command.summary));
    return text;
}

// Between single quotes of a shell.
std::string quoted(const std::string& text)
{
    std::string out = "'";
    for (const char sign : text)
        out += sign == '\'' ? std::string("'\\''") : std::string(1, sign);
    return out + "'";
}

std::string optionWords(const Command& command)
{
    std::string words;
    for (const Command::Option& option : command.options)
        words += (words.empty() ? "" : " ") + dashed(option.name);
    return words;
}

// Those that take a value, as a pattern of "case"; a sign that no word has where there is none.
std::string valuePattern(const Command& command)
{
    std::string words;
    for (const Command::Option& option : command.options)
        if (option.value)
            words += (words.empty() ? "" : "|") + dashed(option.name);
    return words.empty() ? "''" : words;
}

bool hasHelp(const Command& command)
{
    return std::any_of(command.options.begin(), command.options.end(),
                       [](const Command::Option& each) { return std::string(each.name) == "help"; });
}

std::string bashCase(const Command& command)
{
    return std::string("    ") + (*command.name ? command.name : "*") +
           ")\n        options=" + quoted(optionWords(command) + (hasHelp(command) ? "" : " --help")) +
           "\n        case $before in " + valuePattern(command) + ") return ;; esac\n        ;;\n";
}

// What _arguments of zsh has between brackets and colons.
std::string zshText(const std::string& text)
{
    std::string out;
    for (const char sign : text)
        out += std::string(sign == '[' || sign == ']' || sign == ':' || sign == '\\' ? "\\" : "") + sign;
    return out;
}

std::string zshOptions(const Command& command)
{
    std::string text;
    for (const Command::Option& option : command.options) {
        const std::string value = option.value ? ":" + zshText(option.value) + ":_files" : std::string();
        text += " \\\n            " + quoted(dashed(option.name) + "[" + zshText(option.help) + "]" + value);
    }
    return text + (hasHelp(command) ? "" : " \\\n            '--help[Show how it is used.]'") +
           " \\\n            '*:file:_files'\n";
}

std::string fishOptions(const Command& command, const std::string& condition)
{
    std::string text;
    for (const Command::Option& option : command.options) {
        const std::string name = option.name;
        text += "complete -c scopix -n " + quoted(condition) + (name.size() == 1 ? " -s " : " -l ") + name +
                (option.value ? " -r" : "") + " -d " + quoted(option.help) + "\n";
    }
    return text;
}

} // namespace

// Up to where more is said of it; points also stand before endings of files.
std::string firstSentence(const std::string& text)
{
    const std::string first = text.substr(0, std::min(text.find(". "), text.find("; ")));
    return first.back() == '.' ? first : first + '.';
}

Manual::Manual(const Command& program, const std::vector<Command>& commands, std::string version)
    : m_program(program)
    , m_commands(commands)
    , m_version(std::move(version))
{
}

std::string Manual::name(const Command& command)
{
    return std::string("scopix") + (*command.name ? "-" : "") + command.name;
}

std::string Manual::page(const Command& command) const
{
    const bool isProgram = &command == &m_program;
    std::string others;
    for (const Command& each : m_commands)
        if (&each != &command)
            others += (others.empty() ? ".BR " : ",\n.BR ") + roff(name(each)) + " (1)";
    if (!isProgram)
        others = ".BR scopix (1),\n" + others;
    return ".TH " + roff(upper(name(command))) + " 1 \"\" \"Scopix " + m_version + "\" \"Scopix\"\n" +
           section("NAME", roff(name(command)) + " \\- " +
                               roff(withoutStop(lowerFirst(firstSentence(command.summary)))) + "\n") +
           section("SYNOPSIS", ".B " + roff(invocation(command)) + "\n" +
                                   (command.options.empty() ? "" : "[OPTION...]\n") + roff(command.usage) +
                                   "\n" + (isProgram ? ".br\n.B scopix\nCOMMAND [ARGUMENT...]\n" : "")) +
           section("DESCRIPTION", roff(command.summary) + "\n") + section("OPTIONS", optionItems(command)) +
           section("COMMANDS", isProgram ? commandItems(m_commands) : std::string()) +
           section("EXAMPLES", exampleItems(command)) +
           section("EXIT STATUS", roff(command.status) + "; 2 where it cannot be done.\n") +
           section("SEE ALSO", others + "\n");
}

std::string Manual::bashCompletion() const
{
    std::string names;
    std::string cases;
    for (const Command& command : m_commands) {
        names += (names.empty() ? "" : " ") + std::string(command.name);
        cases += bashCase(command);
    }
    return "# bash completion of scopix, made from what scopix --help says\n"
           "_scopix()\n{\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options\n"
           "    COMPREPLY=()\n"
           "    case ${COMP_WORDS[1]} in\n" +
           cases + bashCase(m_program) +
           "    esac\n"
           "    if [[ $current == -* ]]; then\n"
           "        mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$current\")\n"
           "    elif [ \"$COMP_CWORD\" -eq 1 ]; then\n"
           "        mapfile -t COMPREPLY < <(compgen -W " +
           quoted(names) +
           " -- \"$current\"; compgen -f -- \"$current\")\n"
           "    fi\n"
           "}\n"
           "complete -o bashdefault -o default -o filenames -F _scopix scopix\n";
}

std::string Manual::zshCompletion() const
{
    std::string names;
    std::string cases;
    for (const Command& command : m_commands) {
        names += "        " +
                 quoted(std::string(command.name) + ":" + zshText(firstSentence(command.summary))) + "\n";
        cases += std::string("    ") + command.name +
                 ")\n        shift words; (( CURRENT-- ))\n        _arguments" + zshOptions(command) +
                 "        ;;\n";
    }
    return "#compdef scopix\n"
           "# zsh completion of scopix, made from what scopix --help says\n"
           "_scopix() {\n"
           "    local -a commands=(\n" +
           names +
           "    )\n"
           "    (( CURRENT == 2 )) && _describe -t commands command commands\n"
           "    case $words[2] in\n" +
           cases + "    *)\n        _arguments" + zshOptions(m_program) +
           "        ;;\n"
           "    esac\n"
           "}\n"
           "_scopix \"$@\"\n";
}

std::string Manual::fishCompletion() const
{
    std::string text = "# fish completion of scopix, made from what scopix --help says\n";
    std::string names;
    for (const Command& command : m_commands)
        names += std::string(" ") + command.name;
    for (const Command& command : m_commands)
        text += "complete -c scopix -n __fish_use_subcommand -a " + std::string(command.name) + " -d " +
                quoted(firstSentence(command.summary)) + "\n";
    for (const Command& command : m_commands)
        text += fishOptions(command, "__fish_seen_subcommand_from " + std::string(command.name));
    return text + fishOptions(m_program, "not __fish_seen_subcommand_from" + names);
}

} // namespace scopix
