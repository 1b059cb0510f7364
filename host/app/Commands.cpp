// SPDX-License-Identifier: MIT
#include <scopix-host/Commands.h>

#include "commands/CommandTable.h"

namespace scopix
{

bool Commands::isCommand(int argc, char** argv)
{
    return argc > 1 && findCommand(argv[1]);
}

int Commands::run(int argc, char** argv)
{
    return runCommand(*findCommand(argv[1]), std::vector<std::string>(argv + 2, argv + argc));
}

} // namespace scopix
