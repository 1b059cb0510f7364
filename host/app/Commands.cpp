// SPDX-License-Identifier: MIT
#include <scopix-host/Commands.h>

#include "commands/CommandTable.h"
#include "language/Languages.h"

#include <scopix-host/CommandLine.h>

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <optional>

namespace scopix
{

bool Commands::isCommand(int argc, char** argv)
{
    return argc > 1 && findCommand(argv[1]);
}

int Commands::run(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 2, argv + argc);
    std::optional<QCoreApplication> application;
    // All else that is printed is read by programs (decisions.md: commands-in-english).
    if (std::find(words.begin(), words.end(), "--help") != words.end() && !QCoreApplication::instance()) {
        application.emplace(argc, argv);
        Languages::begin();
    }
    return runCommand(*findCommand(argv[1]), words);
}

int Commands::save(const CommandLine& line)
{
    return runCommand(*findCommand("convert"), {"--", QFile::encodeName(line.file).toStdString(),
                                                QFile::encodeName(line.save).toStdString()});
}

} // namespace scopix
