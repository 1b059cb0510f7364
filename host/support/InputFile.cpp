// SPDX-License-Identifier: MIT
#include "support/InputFile.h"

#include <scopix/SpxSentence.h>
#include <xsg/support/SpecialFile.h>

#include <QCoreApplication>
#include <QFile>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("InputFile", text);
}

} // namespace

QString readFile(const QString& path, qint64 most, QByteArray& content)
{
    if (xsg::isSpecialFile(QFile::encodeName(path).toStdString()))
        return tr("it is no regular file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return SpxSentence::ofFileError(file);
    if (file.size() > most)
        return tr("it has more than %1 bytes").arg(most);
    content = file.read(most + 1);
    if (file.error() != QFileDevice::NoError || content.size() < file.size())
        return tr("it cannot be read to its end");
    return {};
}

} // namespace scopix
