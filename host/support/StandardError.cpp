// SPDX-License-Identifier: MIT
#include "support/StandardError.h"

#include "support/Printable.h"

#include <scopix/SpxSentence.h>
#include <xsg/errors/SoError.h>

#include <QString>

#include <cstdio>
#include <mutex>

namespace scopix
{

namespace
{

struct LastPosted {
    std::mutex mutex;
    QString text;
};

// Never destroyed: errors may be posted while the process ends.
LastPosted& lastPosted()
{
    static auto* const s_last = new LastPosted;
    return *s_last;
}

} // namespace

void printOnStandardError(const QString& text)
{
    std::fprintf(stderr, "scopix: %s\n", qPrintable(text));
    std::fflush(stderr);
}

void printPosted(const SoError& error)
{
    LastPosted& last = lastPosted();
    const std::lock_guard<std::mutex> lock(last.mutex);
    last.text = printable(SpxSentence::translated(error.getSentence()));
    printOnStandardError(last.text);
}

bool takeLastPosted(const QString& text)
{
    LastPosted& last = lastPosted();
    const std::lock_guard<std::mutex> lock(last.mutex);
    const bool isIt = last.text == text;
    last.text.clear();
    return isIt;
}

} // namespace scopix
