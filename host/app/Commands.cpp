// SPDX-License-Identifier: MIT
#include <scopix-host/Commands.h>

#include "commands/CommandTable.h"

#include <scopix-host/CommandLine.h>

#include <QFile>

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

int Commands::save(const CommandLine& line)
{
    return runCommand(*findCommand("convert"), {"--", QFile::encodeName(line.file).toStdString(),
                                                QFile::encodeName(line.save).toStdString()});
}

} // namespace scopix
