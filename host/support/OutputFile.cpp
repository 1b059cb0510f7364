// SPDX-License-Identifier: MIT
#include "support/OutputFile.h"

#include <scopix/SpxSentence.h>
#include <xsg/support/FileReplacement.h>

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("OutputFile", text);
}

std::string encoded(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

std::vector<std::string> encodedAll(const QStringList& texts)
{
    std::vector<std::string> all;
    for (const QString& text : texts)
        all.push_back(encoded(text));
    return all;
}

} // namespace

QString reasonAgainstWriting(const QString& path, const QStringList& fileExtensions)
{
    if (xsg::isOfAnotherKind(encoded(path), encodedAll(fileExtensions)))
        return tr("its name was expected to end in .%1").arg(fileExtensions.join(tr(", .")));
    return SpxSentence::translated(xsg::reasonAgainstReplacing(encoded(path)));
}

QString replaceFile(const QString& path, const QByteArray& content)
{
    xsg::FileReplacement file(encoded(path));
    if (file.open() && file.write({content.constData(), static_cast<std::size_t>(content.size())}) &&
        file.commit())
        return {};
    return SpxSentence::translated(file.getProblem());
}

} // namespace scopix
