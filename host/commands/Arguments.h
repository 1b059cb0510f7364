// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

namespace scopix
{

/// What a command was given, as bytes of the command line.
struct Arguments {
    std::vector<std::string> values;            // in their order
    std::map<std::string, std::string> options; // by name, without dashes; flags have an empty value

    bool has(const char* option) const { return options.count(option) > 0; }
    /// Empty where it was not given.
    std::string get(const char* option) const;
};

/// How a command ends, for the shell.
enum ExitStatus {
    Fine = 0,
    Differs = 1, // or: nothing found, something left out, something odd
    Failed = 2,  // bad use, or a file that cannot be read or written
};

/// One command: what it takes, what --help says, and what it does. What is here is all that help, parsing and
/// documentation know of it.
struct Command {
    struct Option {
        const char* name;  // "size", or "o" for -o
        const char* value; // "WxH"; null for a flag
        const char* help;
    };
    struct Example {
        const char* line;
        const char* help;
    };

    const char* name;
    const char* usage; // "FILE [PATH]"
    const char* summary;
    std::size_t fewest; // arguments
    std::size_t most;
    std::vector<Option> options;
    std::vector<Example> examples;
    const char* status; // what its exit status says
    int (*run)(const Arguments& arguments);
};

/// False, and one sentence, where the command cannot be called so. "--" ends the options.
bool parseArguments(const Command& command, const std::vector<std::string>& words, Arguments& arguments,
                    std::string& error);
/// In the user's language, where the program speaks it.
std::string helpOf(const Command& command);
/// One of the texts of a command; the manual has them as they are.
std::string translated(const char* text);
/// "-o" or "--size".
std::string dashed(const std::string& option);

/// A number that is typed as an option's value; false where it is none, or outside.
bool readNumber(const std::string& text, int lowest, int highest, int& number);
/// A size in pixels, as in "800x600".
bool readSize(const std::string& text, int& width, int& height);

} // namespace scopix
