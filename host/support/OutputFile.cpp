// SPDX-License-Identifier: MIT
#include "support/OutputFile.h"

#include <xsg/support/FileReplacement.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

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

// What a link leads to may have a name without an ending.
bool isOfAnotherKind(const QString& path, const QStringList& fileExtensions)
{
    const QString target = QFile::decodeName(xsg::followLinks(encoded(path)).c_str());
    const QString ending = QFileInfo(target).suffix().toLower();
    return !fileExtensions.contains(QFileInfo(path).suffix().toLower()) ||
           (target != path && !ending.isEmpty() && !fileExtensions.contains(ending));
}

} // namespace

QString reasonAgainstWriting(const QString& path, const QStringList& fileExtensions)
{
    if (isOfAnotherKind(path, fileExtensions))
        return tr("its name was expected to end in .%1").arg(fileExtensions.join(tr(", .")));
    return tr(xsg::reasonAgainstReplacing(encoded(path)).c_str());
}

QString replaceFile(const QString& path, const QByteArray& content)
{
    xsg::FileReplacement file(encoded(path));
    if (file.open() && file.write({content.constData(), static_cast<std::size_t>(content.size())}) &&
        file.commit())
        return {};
    return tr(file.getProblem().c_str());
}

} // namespace scopix
