// SPDX-License-Identifier: MIT
#pragma once

#include <scopix-host/HostExport.h>

namespace scopix
{

struct CommandLine;

/// What the program does without a window: `scopix print FILE` and its like. Needs no display and no
/// QApplication.
class SCOPIX_HOST_API Commands
{
public:
    /// Whether the first argument after the program's name is a command. A file of the same name is
    /// "./print".
    static bool isCommand(int argc, char** argv);
    /// Runs it; returns the exit status. Plug-ins are not loaded.
    static int run(int argc, char** argv);
    /// Reads the file of the command line and writes it to that of its --save; returns the exit status. What
    /// the new file does not keep is said on standard error.
    static int save(const CommandLine& line);
};

} // namespace scopix
