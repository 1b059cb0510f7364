// SPDX-License-Identifier: MIT
#include "support/StandardError.h"

#include <QString>

#include <cstdio>

namespace scopix
{

void printOnStandardError(const QString& text)
{
    std::fprintf(stderr, "scopix: %s\n", qPrintable(text));
    std::fflush(stderr);
}

} // namespace scopix
