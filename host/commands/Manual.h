// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Arguments.h"

#include <string>
#include <vector>

namespace scopix
{

/// What else is made of the texts of --help: pages for man, and completions for shells. The first command is
/// the program itself, whose name is empty.
class Manual
{
public:
    /// Both have to outlive it; `version` is of Scopix.
    Manual(const Command& program, const std::vector<Command>& commands, std::string version);

    /// A page in the language of man. Its file is name() with the ending ".1".
    std::string page(const Command& command) const;
    /// "scopix" or "scopix-print".
    static std::string name(const Command& command);

    /// Scripts that each shell reads to complete what is typed behind "scopix".
    std::string bashCompletion() const;
    std::string zshCompletion() const;
    std::string fishCompletion() const;

private:
    const Command& m_program;
    const std::vector<Command>& m_commands;
    std::string m_version;
};

/// The first sentence of what a command does.
std::string firstSentence(const std::string& text);

} // namespace scopix
