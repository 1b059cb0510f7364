// SPDX-License-Identifier: MIT
#include "SpxSentence.h"

#include <QCoreApplication>

namespace
{

std::string inUtf8(const SbSentence& sentence)
{
    if (!sentence.getSource())
        return sentence.getText();
    const std::vector<SbSentence>& arguments = sentence.getArguments();
    std::string text;
    SbSentence::fill(
        QCoreApplication::translate("Sentence", sentence.getSource()).toStdString(), arguments.size(),
        [&](std::string_view between) { text += between; },
        [&](std::size_t place) { text += inUtf8(arguments[place]); });
    return text;
}

} // namespace

QString SpxSentence::translated(const SbSentence& sentence)
{
    return QString::fromStdString(inUtf8(sentence));
}
