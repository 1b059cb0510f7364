// SPDX-License-Identifier: MIT
#include "model/TranslatedSentence.h"

#include <xsg/support/SystemReason.h>
#include <xsg/values/SentenceInLanguage.h>

#include <QCoreApplication>
#include <QFileDevice>

namespace scopix
{

QString translated(const SbSentence& sentence)
{
    return QString::fromStdString(xsg::inLanguage(sentence, [](const char* source) {
        return QCoreApplication::translate("Sentence", source).toStdString();
    }));
}

QString translatedErrorOf(const QFileDevice& file)
{
    return translated(xsg::systemReasonOf(file.errorString().toStdString()));
}

} // namespace scopix
