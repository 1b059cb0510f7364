// SPDX-License-Identifier: MIT
#include "SpxSentence.h"

#include <xsg/support/SystemReason.h>
#include <xsg/values/SentenceInLanguage.h>

#include <QCoreApplication>
#include <QFileDevice>

QString SpxSentence::translated(const SbSentence& sentence)
{
    return QString::fromStdString(xsg::inLanguage(sentence, [](const char* source) {
        return QCoreApplication::translate("Sentence", source).toStdString();
    }));
}

// Qt tells the words of the system, and keeps its number to itself.
QString SpxSentence::ofFileError(const QFileDevice& file)
{
    return translated(xsg::systemReasonOf(file.errorString().toStdString()));
}
