// SPDX-License-Identifier: MIT
#include "support/OutputFile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace scopix
{

namespace
{

constexpr QFile::Permissions AnyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

QString tr(const char* text)
{
    return QCoreApplication::translate("OutputFile", text);
}

} // namespace

QString reasonAgainstWriting(const QString& path, const QStringList& fileExtensions)
{
    const QFileInfo file(path); // of what a link leads to
    if (!fileExtensions.contains(file.suffix().toLower()))
        return tr("its name was expected to end in .%1").arg(fileExtensions.join(tr(", .")));
    if (!file.exists())
        return {};
    if (file.isDir())
        return tr("it is a folder");
    if (!file.isFile())
        return tr("it is no regular file");
    // For root every file is writable; a file without write permission is still protected on purpose.
    if (!file.isWritable() || !(file.permissions() & AnyWrite))
        return tr("the file is write-protected");
    return {};
}

} // namespace scopix
