// SPDX-License-Identifier: MIT
#include "SpxSentence.h"

#include <xsg/values/SentenceInLanguage.h>

#include <QCoreApplication>

QString SpxSentence::translated(const SbSentence& sentence)
{
    return QString::fromStdString(xsg::inLanguage(sentence, [](const char* source) {
        return QCoreApplication::translate("Sentence", source).toStdString();
    }));
}
