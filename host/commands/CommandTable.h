// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Arguments.h"

#include <string>
#include <vector>

namespace scopix
{

const std::vector<Command>& allCommands();
/// Null for what is none, such as the name of a file.
const Command* findCommand(const std::string& name);
/// Runs one with the words after its name; returns its exit status. Makes a QCoreApplication where there is
/// none.
int runCommand(const Command& command, const std::vector<std::string>& words);
/// One line for each.
std::string commandList();

} // namespace scopix
