// SPDX-License-Identifier: MIT
#include "commands/Output.h"

#include "support/Printable.h"

#include <cstdio>

namespace scopix
{

namespace
{

void say(const char* before, const std::string& sentence)
{
    const QByteArray line = printable(QString::fromStdString(sentence)).toUtf8();
    std::fprintf(stderr, "scopix: %s%s\n", before, line.constData());
}

} // namespace

void print(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

bool finishPrinting()
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return true;
    complain("The output could not be written to its end.");
    return false;
}

void complain(const std::string& sentence)
{
    say("", sentence);
}

void warn(const std::string& sentence)
{
    say("Note: ", sentence);
}

} // namespace scopix
