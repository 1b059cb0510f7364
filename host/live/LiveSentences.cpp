// SPDX-License-Identifier: MIT
#include "live/LiveSentences.h"

#include "support/Printable.h"

#include <scopix/live/client/SentenceOfProgram.h>
#include <xsg/values/SbSentence.h>

#include <QCoreApplication>

namespace scopix
{

QString toText(const live::Sentence& sentence)
{
    if (!sentence.source())
        return QString::fromStdString(sentence.text());
    const std::vector<std::string>& arguments = sentence.arguments();
    std::string text;
    SbSentence::fill(
        QCoreApplication::translate("Sentence", sentence.source()).toStdString(), arguments.size(),
        [&](std::string_view between) { text += between; },
        [&](std::size_t place) { text += arguments[place]; });
    return QString::fromStdString(text);
}

QString toText(const std::string& words)
{
    return printable(toText(live::sentenceOfProgram(words)));
}

} // namespace scopix
