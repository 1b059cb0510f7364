// SPDX-License-Identifier: MIT
#include "commands/Arguments.h"

#include <QCoreApplication>

#include <algorithm>
#include <charconv>

namespace scopix
{

std::string dashed(const std::string& name)
{
    return (name.size() == 1 ? "-" : "--") + name;
}

namespace
{

constexpr std::size_t HelpColumn = 26;

const Command::Option* findOption(const Command& command, const std::string& name)
{
    const auto found = std::find_if(command.options.begin(), command.options.end(),
                                    [&](const Command::Option& each) { return name == each.name; });
    return found == command.options.end() ? nullptr : &*found;
}

// What starts with one dash may be a query, or a number.
bool isOption(const Command& command, const std::string& word)
{
    return word.substr(0, 2) == "--" ||
           (word.size() == 2 && word[0] == '-' && findOption(command, word.substr(1)));
}

std::string padded(std::string text)
{
    text.resize(std::max(text.size() + 1, HelpColumn), ' ');
    return text;
}

std::string seeHelp(const Command& command)
{
    return " (scopix " + std::string(command.name) + " --help shows how it is used).";
}

bool parseOption(const Command& command, const std::vector<std::string>& words, std::size_t& at,
                 Arguments& arguments, std::string& error)
{
    const std::string& word = words[at];
    const std::size_t equals = word[1] == '-' ? word.find('=') : std::string::npos;
    const std::string name =
        word.substr(word[1] == '-' ? 2 : 1, equals == std::string::npos ? equals : equals - 2);
    const Command::Option* option = findOption(command, name);
    const bool isGiven = equals != std::string::npos;
    if (!option || (isGiven && !option->value)) {
        error = option ? word + " takes no value" : "there is no option " + word;
        return false;
    }
    if (option->value && !isGiven && ++at == words.size()) {
        error = dashed(name) + " expects " + option->value + ", and nothing was given";
        return false;
    }
    arguments.options[name] = !option->value ? std::string() : isGiven ? word.substr(equals + 1) : words[at];
    return true;
}

} // namespace

std::string Arguments::get(const char* option) const
{
    const auto found = options.find(option);
    return found == options.end() ? std::string() : found->second;
}

bool parseArguments(const Command& command, const std::vector<std::string>& words, Arguments& arguments,
                    std::string& error)
{
    bool isRest = false;
    for (std::size_t at = 0; at < words.size() && error.empty(); ++at) {
        if (!isRest && words[at] == "--")
            isRest = true;
        else if (isRest || !isOption(command, words[at]))
            arguments.values.push_back(words[at]);
        else
            parseOption(command, words, at, arguments, error);
    }
    if (error.empty() && (arguments.values.size() < command.fewest || arguments.values.size() > command.most))
        error = std::string("it expects ") + command.usage + ", and " +
                std::to_string(arguments.values.size()) +
                (arguments.values.size() == 1 ? " argument was given" : " arguments were given");
    if (!error.empty())
        error += seeHelp(command);
    return error.empty();
}

std::string translated(const char* text)
{
    return QCoreApplication::translate("Command", text).toStdString();
}

std::string helpOf(const Command& command)
{
    const auto tr = [](const char* text) { return QCoreApplication::translate("Command", text); };
    std::string text = tr("Usage: scopix %1 %2")
                           .arg(QLatin1String(command.name), QLatin1String(command.usage))
                           .toStdString() +
                       "\n" + translated(command.summary) + "\n";
    if (!command.options.empty())
        text += "\n" + translated("Options:") + "\n";
    for (const Command::Option& option : command.options)
        text += padded("  " + dashed(option.name) + (option.value ? std::string(" ") + option.value : "")) +
                translated(option.help) + "\n";
    text += "\n" + translated("Examples:") + "\n";
    for (const Command::Example& example : command.examples)
        text += std::string("  ") + example.line + "\n      " + translated(example.help) + "\n";
    return text + "\n" +
           tr("Exit status: %1; 2 where it cannot be done.").arg(tr(command.status)).toStdString() + "\n";
}

bool readNumber(const std::string& text, int lowest, int highest, int& number)
{
    int value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size() || value < lowest ||
        value > highest)
        return false;
    number = value;
    return true;
}

bool readSize(const std::string& text, int& width, int& height)
{
    constexpr int LargestSide = 16384;
    const std::size_t cross = text.find('x');
    return cross != std::string::npos && readNumber(text.substr(0, cross), 1, LargestSide, width) &&
           readNumber(text.substr(cross + 1), 1, LargestSide, height);
}

} // namespace scopix
