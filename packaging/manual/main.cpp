// SPDX-License-Identifier: MIT
// Writes the pages of the manual and the completions of the shells into a folder: what the build installs of
// them.
#include "app/WindowCommand.h"
#include "commands/CommandTable.h"
#include "commands/Manual.h"

#include <cstdio>

namespace
{

int write(const std::string& folder, const std::string& file, const std::string& text)
{
    std::FILE* out = std::fopen((folder + '/' + file).c_str(), "wb");
    const bool isWritten = out && std::fwrite(text.data(), 1, text.size(), out) == text.size();
    if (out && std::fclose(out) == 0 && isWritten)
        return 0;
    std::fprintf(stderr, "%s/%s cannot be written.\n", folder.c_str(), file.c_str());
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace scopix;
    if (argc != 2)
        return 2;
    const std::string folder = argv[1];
    const Manual manual(windowCommand(), allCommands(), SCOPIX_VERSION);
    int status = write(folder, "scopix.1", manual.page(windowCommand()));
    for (const Command& command : allCommands())
        status |= write(folder, Manual::name(command) + ".1", manual.page(command));
    status |= write(folder, "scopix.bash", manual.bashCompletion());
    status |= write(folder, "_scopix", manual.zshCompletion());
    return status | write(folder, "scopix.fish", manual.fishCompletion());
}
